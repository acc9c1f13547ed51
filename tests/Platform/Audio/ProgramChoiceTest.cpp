// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Audio/ProgramChoice.h"

#include <gtest/gtest.h>

using Platform::ProgramChoice;
using Platform::ProgramIdentity;
using Mode = ProgramChoice::Mode;

TEST(ProgramIdentity, IsTheApplicationIdElseTheExecutableElseTheName) {
    ProgramIdentity program{
        .applicationId = "org.mozilla.firefox", .binary = "firefox", .name = "Firefox", .nodeName = "Firefox.1"};
    EXPECT_EQ(program.id(), "org.mozilla.firefox");
    program.applicationId.clear();
    EXPECT_EQ(program.id(), "firefox");
    program.binary.clear();
    EXPECT_EQ(program.id(), "Firefox");
    program.name.clear();
    EXPECT_EQ(program.id(), "Firefox.1");
    EXPECT_EQ(ProgramIdentity().id(), "");
}

TEST(ProgramIdentity, AnInterpreterDoesNotIdentifyItsPrograms) {
    for (const char* binary : {"python", "python3", "python3.11", "java", "electron", "electron-28", "wine64-preloader",
                               "wine-preloader", "node", "perl"})
        EXPECT_EQ((ProgramIdentity{.binary = binary, .name = "A Player"}.id()), "A Player") << binary;
    for (const char* binary : {"javaplayer", "pythonista", "nodeplay", "monolith", "vlc"})
        EXPECT_EQ((ProgramIdentity{.binary = binary, .name = "A Player"}.id()), binary);
    EXPECT_EQ(ProgramIdentity{.binary = "python3"}.id(), "python3") << "nothing else is known";
}

TEST(ProgramIdentity, IsNamedByAnyOfItsPartsInUpperOrLowerCase) {
    const ProgramIdentity program{
        .applicationId = "org.mozilla.firefox", .binary = "firefox-bin", .name = "Firefox", .nodeName = "node"};
    for (const char* wanted : {"org.mozilla.firefox", "FIREFOX-BIN", "firefox", "Node"})
        EXPECT_TRUE(program.is(wanted)) << wanted;
    for (const char* wanted : {"", "fire", "firefox ", "mozilla"})
        EXPECT_FALSE(program.is(wanted)) << wanted;
    EXPECT_FALSE(ProgramIdentity().is(""));
}

TEST(ProgramIdentity, HasANameForPeople) {
    EXPECT_EQ((ProgramIdentity{.applicationId = "a.b", .binary = "b", .name = "B Player"}.title()), "B Player");
    EXPECT_EQ((ProgramIdentity{.applicationId = "a.b", .binary = "b"}.title()), "b");
    EXPECT_EQ((ProgramIdentity{.applicationId = "a.b", .nodeName = "n"}.title()), "a.b");
    EXPECT_EQ((ProgramIdentity{.nodeName = "n"}.title()), "n");
}

TEST(ProgramChoice, TakesTheNamedProgramsOrAllOthers) {
    const ProgramIdentity one{.binary = "one"};
    const ProgramIdentity two{.name = "Two"};
    EXPECT_TRUE(ProgramChoice().takes(one));
    const ProgramChoice only{Mode::Only, {"ONE", "three"}};
    EXPECT_TRUE(only.takes(one));
    EXPECT_FALSE(only.takes(two));
    const ProgramChoice allBut{Mode::AllBut, {"two"}};
    EXPECT_TRUE(allBut.takes(one));
    EXPECT_FALSE(allBut.takes(two));
    EXPECT_FALSE((ProgramChoice{Mode::Only, {}}.takes(one)));
    EXPECT_TRUE((ProgramChoice{Mode::AllBut, {}}.takes(one)));
}

TEST(ProgramChoice, SurvivesTheWayToTheDriver) {
    for (const ProgramChoice& choice :
         {ProgramChoice(), ProgramChoice{Mode::Only, {}}, ProgramChoice{Mode::AllBut, {"a"}},
          ProgramChoice{Mode::Only, {"Player, the 2nd", "100%", "only:x", "a\nb\x7F", "Grüße \"'\\{}"}}}) {
        const std::string text = choice.encoded();
        EXPECT_EQ(ProgramChoice::decoded(text), choice) << text;
        EXPECT_EQ(text.find('\n'), std::string::npos);
    }
    EXPECT_EQ(ProgramChoice().encoded(), "");
}

TEST(ProgramChoice, ADamagedTextTakesNoProgram) {
    for (const char* text : {"everything", "only", "{", ":"}) {
        EXPECT_EQ(ProgramChoice::decoded(text), (ProgramChoice{Mode::Only, {}})) << text;
        EXPECT_FALSE(ProgramChoice::decoded(text).takes({.name = "everything"}));
    }
    EXPECT_EQ(ProgramChoice::decoded("only:a%4,b%,,%zz").programs, (std::vector<std::string>{"a%4", "b%", "%zz"}));
}
