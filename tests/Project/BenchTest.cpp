// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Rules of all benches: a program that fails is not timed, and programs that do unequal work are not compared.
#include "tests/support/RunTool.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// A bench script of these lines. It prints "reached" at its end.
ToolResult bench(const QString& lines) {
    const QTemporaryDir scratch;
    return runTool(u"bash"_s,
                   {u"-c"_s, u"set -euo pipefail; SCRATCH=%1; . %2; %3\necho reached"_s.arg(
                                 scratch.path(), QStringLiteral(SONAPHEX_SOURCE_DIR "/scripts/lib/bench.sh"), lines)});
}

void expectStopped(const QString& lines, const QByteArray& why) {
    const auto result = bench(lines);
    EXPECT_NE(result.status, 0) << qPrintable(lines);
    EXPECT_FALSE(result.output.contains("reached")) << qPrintable(lines);
    EXPECT_TRUE(result.errors.contains(why)) << result.errors.constData();
}

} // namespace

TEST(BenchScripts, DoNotTimeAProgramThatFails) {
    expectStopped(u"x=$(milliseconds false); echo \"$x ms\""_s, "bench: false ended with status 1");
    expectStopped(u"timed sh -c 'echo no room >&2; exit 3'"_s, "bench: sh ended with status 3: no room");
    expectStopped(u"must no-such-program"_s, "bench: no-such-program ended with status 127");
    const auto works = bench(u"x=$(milliseconds true); timed true; report true \"$x\" \"$wall\" ms none"_s);
    EXPECT_EQ(works.status, 0) << works.errors.constData();
    EXPECT_TRUE(works.output.startsWith("true: ours ")) << works.output.constData();
    EXPECT_TRUE(works.output.endsWith("reached\n"));
}

TEST(BenchScripts, DoNotCompareUnequalWork) {
    expectStopped(u"equal frames 44100 44000 10"_s, "bench: frames: ours 44100, peer 44000: not the same work");
    expectStopped(u"equal title Title ''"_s, "ours Title, peer nothing");
    expectStopped(u"equal frames '' '' 10"_s, "not the same work");
    expectStopped(u"holds 'ten values' test 9 = 10"_s, "bench: ten values: not so");
    const auto same = bench(u"equal frames 44100 44095 10; equal title Title Title; not_equal 'the bit rate'"_s);
    EXPECT_EQ(same.status, 0) << same.errors.constData();
    EXPECT_TRUE(same.output.contains("  equal: title (Title)\n  not equal: the bit rate\n")) << same.output.constData();
}

TEST(BenchScripts, AllReportWhatIsEqualAndWhatIsNot) {
    const QDir folder(QStringLiteral(SONAPHEX_SOURCE_DIR "/bench"));
    const QStringList scripts = folder.entryList({u"*.sh"_s});
    ASSERT_GE(scripts.size(), 5);
    for (const QString& name : scripts) {
        QFile script(folder.filePath(name));
        ASSERT_TRUE(script.open(QIODevice::ReadOnly));
        const QByteArray text = script.readAll();
        EXPECT_TRUE(text.contains("scripts/bench}/bench.sh")) << qPrintable(name);
        EXPECT_TRUE(text.contains("\nequal ") || text.contains("    equal ")) << qPrintable(name);
        EXPECT_TRUE(text.contains("\nnot_equal ")) << qPrintable(name);
        EXPECT_FALSE(text.contains("/usr/bin/time")) << qPrintable(name) << " times past timed()";
    }
}
