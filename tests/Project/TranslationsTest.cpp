// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The translations are complete and fit their sources: every text of the sources is in every file, is translated, and
// keeps the placeholders, the tags and the mnemonics of its source.
#include "tests/support/RunTool.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct Message {
    QString context{};
    QString source{};
    QString comment{};
    QString type{}; ///< of the translation: empty when it is finished
    bool isPlural = false;
    QStringList forms{}; ///< one, or one for each plural form

    /// Identifies the text.
    [[nodiscard]] QString key() const {
        return context + u" | "_s + source + (comment.isEmpty() ? u""_s : u" | "_s + comment);
    }
};

QList<Message> messagesOf(QXmlStreamReader& xml) {
    QList<Message> messages;
    QString context;
    Message message;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement()) {
            if (xml.name() == u"message")
                messages.append(message);
            continue;
        }
        if (xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.name() == u"message") {
            message = {};
            message.context = context;
            message.isPlural = xml.attributes().value(u"numerus"_s) == u"yes";
        } else if (xml.name() == u"source") {
            message.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            message.comment = xml.readElementText();
        } else if (xml.name() == u"translation") {
            message.type = xml.attributes().value(u"type"_s).toString();
            if (!message.isPlural)
                message.forms = {xml.readElementText()};
        } else if (xml.name() == u"numerusform") {
            message.forms.append(xml.readElementText());
        }
    }
    return messages;
}

QList<Message> messagesOfFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    return messagesOf(xml);
}

/// Placeholders ("%1", "%n") and tags ("<code>"), each as often as it occurs.
QStringList placesIn(const QString& text) {
    static const QRegularExpression place(u"%L?\\d|%n|</?[a-z][^>]*>"_s);
    QStringList places;
    for (auto matches = place.globalMatch(text); matches.hasNext();)
        places << matches.next().captured();
    places.sort();
    return places;
}

qsizetype mnemonicsIn(const QString& text) {
    static const QRegularExpression mnemonic(u"&(?![&\\s]|$)"_s);
    return QString(text).remove(u"&&"_s).count(mnemonic);
}

/// What is wrong with a translation; empty when nothing is.
QString faultOf(const Message& message) {
    if (!message.type.isEmpty())
        return message.type;
    for (const QString& form : message.forms) {
        if (form.trimmed().isEmpty())
            return u"empty"_s;
        QStringList wanted = placesIn(message.source);
        const QStringList found = placesIn(form);
        // "one recording": a plural form may spell its number.
        if (message.isPlural && !found.contains(u"%n"_s))
            wanted.removeAll(u"%n"_s);
        if (found != wanted)
            return u"has %1 instead of %2: %3"_s.arg(found.join(u' '), wanted.join(u' '), form);
        if (mnemonicsIn(form) != mnemonicsIn(message.source))
            return u"has another mnemonic: %1"_s.arg(form);
        if (form.contains(u'…') != message.source.contains(u'…'))
            return u"has another ellipsis: %1"_s.arg(form);
    }
    const bool spells = message.isPlural &&
                        std::ranges::none_of(message.forms, [](const QString& form) { return form.contains(u"%n"_s); });
    return spells ? u"no form has the number"_s : QString();
}

QString folder() {
    return QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/translations/");
}

const QStringList& languages() {
    static const QStringList all{u"ar"_s, u"de"_s, u"es"_s, u"fr"_s, u"ja"_s};
    return all;
}

QString fileOf(const QString& language) {
    return u"sonaphex_%1.ts"_s.arg(language);
}

QSet<QString> keysOf(const QList<Message>& messages) {
    QSet<QString> keys;
    for (const Message& message : messages)
        keys.insert(message.key());
    return keys;
}

/// Texts in code that are the same in every language: protocols, stored values, names of devices, commands.
bool isTheSameInEveryLanguage(const QString& path, const QString& literal) {
    static const QStringList all{u"Korvane System Audio"_s,
                                 u"NO Title"_s,
                                 u"NO Artist"_s,
                                 u"NO Album"_s,
                                 u"NO General"_s,
                                 u"Audio CD"_s,
                                 u"Audio Name"_s,
                                 u"Disc Image (CUE/BIN)"_s,
                                 u"Lucida Grande"_s,
                                 u"sonaphex control "_s,
                                 u"Only recordings of the library are played."_s,
                                 u"no path"_s,
                                 u"no list of keys"_s,
                                 u"html lang="_s,
                                 u"rm -rf"_s,
                                 u"umask "_s,
                                 u"mkdir -p"_s,
                                 u"mv -T"_s,
                                 u"ended in the middle of a recording"_s};
    return path == u"CommandLine/CommandManual.cpp"_s ||
           std::ranges::any_of(all, [&literal](const QString& each) { return literal.contains(each); });
}

/// Literals of two words and more that a user would read untranslated: QString literals, and what is printed directly.
/// Translated texts are neither, because tr() takes plain characters.
QStringList untranslatedIn(const QString& path, QString code) {
    static const QRegularExpression comment(u"^\\s*//[^\\n]*"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression literal(
        u"u(\"(?:[^\"\\\\\\n]|\\\\.)*\"(?:\\s*u?\"(?:[^\"\\\\\\n]|\\\\.)*\")*)_s"
        "|QStringLiteral\\(\\s*(\"(?:[^\"\\\\\\n]|\\\\.)*\"(?:\\s*\"(?:[^\"\\\\\\n]|\\\\.)*\")*)"
        "|(?:printf|fputs)\\((?:std(?:err|out),\\s*)?(\"(?:[^\"\\\\\\n]|\\\\.)*\")"_s);
    static const QRegularExpression words(u"[A-Za-z]{2,},? [A-Za-z]{2,}"_s);
    QStringList found;
    code.remove(comment);
    for (auto matches = literal.globalMatch(code); matches.hasNext();) {
        const auto match = matches.next();
        const QString text = match.captured(1) + match.captured(2) + match.captured(3);
        if (text.contains(words) && !isTheSameInEveryLanguage(path, text))
            found << path + u": "_s + text;
    }
    return found;
}

QStringList untranslatedTexts() {
    const QDir root(QStringLiteral(SONAPHEX_SOURCE_DIR));
    QStringList found;
    QDirIterator tree(root.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (tree.hasNext()) {
        const QString path = root.relativeFilePath(tree.next());
        static const QRegularExpression shown(
            u"^(Platform|Source|CaptureComputerAudio|FilterAudio|RingtoneMaker|CommandLine|[A-Za-z]+\\.(h|cpp)$)"_s);
        QFile file(root.filePath(path));
        if (path.contains(shown) && file.open(QIODevice::ReadOnly))
            found << untranslatedIn(path, QString::fromUtf8(file.readAll()));
    }
    return found;
}

Message plain(const QString& source, const QString& translation) {
    return {.context = u"C"_s, .source = source, .forms = {translation}};
}

} // namespace

TEST(Translations, EveryTextIsTranslatedAndKeepsItsPlaceholders) {
    for (const QString& language : languages()) {
        const QList<Message> messages = messagesOfFile(folder() + fileOf(language));
        EXPECT_GT(messages.size(), 500) << qPrintable(language);
        for (const Message& message : messages) {
            const QString fault = faultOf(message);
            EXPECT_TRUE(fault.isEmpty()) << qPrintable(language + u": "_s + message.key() + u": "_s + fault);
        }
    }
}

TEST(Translations, ContainAllTextsOfTheSources) {
    const QTemporaryDir scratch;
    for (const QString& language : languages())
        ASSERT_TRUE(QFile::copy(folder() + fileOf(language), scratch.filePath(fileOf(language))));
    const ToolResult updated = runTool(QStringLiteral(SONAPHEX_SOURCE_DIR "/scripts/translations"),
                                       {QStringLiteral(SONAPHEX_LUPDATE), scratch.path()});
    ASSERT_EQ(updated.status, 0) << updated.errors.constData();
    for (const QString& language : languages()) {
        const QSet<QString> stored = keysOf(messagesOfFile(folder() + fileOf(language)));
        const QSet<QString> wanted = keysOf(messagesOfFile(scratch.filePath(fileOf(language))));
        EXPECT_GT(wanted.size(), 500);
        const char* help = "scripts/translations adds and removes texts";
        const QSet<QString> lacking = wanted - stored;
        const QSet<QString> old = stored - wanted;
        for (const QString& key : lacking)
            ADD_FAILURE() << qPrintable(fileOf(language)) << " lacks " << qPrintable(key) << ": " << help;
        for (const QString& key : old)
            ADD_FAILURE() << qPrintable(fileOf(language)) << " has the old text " << qPrintable(key) << ": " << help;
    }
}

TEST(Translations, ContainAllTextsOfTheHelpPages) {
    const QSet<QString> stored = keysOf(messagesOfFile(folder() + fileOf(u"de"_s)));
    static const QRegularExpression element(u"<(title|h1|h2|p)>(.*?)</\\1>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    for (const QString& name : {u"support.html"_s, u"computer-audio.html"_s}) {
        QFile page(QStringLiteral(SONAPHEX_SOURCE_DIR "/Resources/") + name);
        ASSERT_TRUE(page.open(QIODevice::ReadOnly));
        int texts = 0;
        for (auto matches = element.globalMatch(QString::fromUtf8(page.readAll())); matches.hasNext(); ++texts) {
            const QString text = matches.next().captured(2).simplified();
            EXPECT_TRUE(stored.contains(u"HelpPages | "_s + text)) << qPrintable(name + u": "_s + text);
        }
        EXPECT_GT(texts, 5);
    }
}

TEST(Translations, AFaultInATranslationIsFound) {
    EXPECT_EQ(faultOf(plain(u"Save %1"_s, u"%1 sichern"_s)), QString());
    EXPECT_NE(faultOf(plain(u"Save %1"_s, u"Sichern"_s)), QString());
    EXPECT_NE(faultOf(plain(u"Save %1"_s, u"%1 %2 sichern"_s)), QString());
    EXPECT_NE(faultOf(plain(u"Save %1"_s, u"%1 %1 sichern"_s)), QString());
    EXPECT_NE(faultOf(plain(u"Save"_s, u" "_s)), QString());
    EXPECT_NE(faultOf(plain(u"&Save"_s, u"Sichern"_s)), QString());
    EXPECT_NE(faultOf(plain(u"Save"_s, u"&Sichern"_s)), QString());
    EXPECT_EQ(faultOf(plain(u"&Save"_s, u"保存(&S)"_s)), QString());
    EXPECT_EQ(faultOf(plain(u"Cut && paste"_s, u"Schneiden & kleben"_s)), QString());
    EXPECT_NE(faultOf(plain(u"Save…"_s, u"Sichern"_s)), QString());
    EXPECT_NE(faultOf(plain(u"See <code>x</code>"_s, u"Siehe x"_s)), QString());
    Message message = plain(u"Save"_s, u"Sichern"_s);
    message.type = u"unfinished"_s;
    EXPECT_NE(faultOf(message), QString());
    message = {
        .context = u"C"_s, .source = u"%n of %1"_s, .isPlural = true, .forms = {u"eine von %1"_s, u"%n von %1"_s}};
    EXPECT_EQ(faultOf(message), QString());
    message.forms = {u"eine von %1"_s, u"viele von %1"_s};
    EXPECT_NE(faultOf(message), QString());
    message.forms = {u"%n"_s, u"%n von %1"_s};
    EXPECT_NE(faultOf(message), QString());
}

TEST(Translations, NoTextInTheCodeBypassesTranslation) {
    for (const QString& text : untranslatedTexts())
        ADD_FAILURE() << qPrintable(text) << ": use tr() or QCoreApplication::translate()";
}

TEST(Translations, ATextInTheCodeThatBypassesTranslationIsFound) {
    const auto count = [](const char* code) { return untranslatedIn(u"a.cpp"_s, QString::fromUtf8(code)).size(); };
    EXPECT_EQ(count(R"(why = u"the disk is full"_s;)"), 1);
    EXPECT_EQ(count(R"(why = QStringLiteral("the disk " "is full");)"), 1);
    EXPECT_EQ(count(R"(std::fprintf(stderr, "sonaphex: the disk is full\n");)"), 1);
    EXPECT_EQ(count(R"(why = tr("the disk is full");)"), 0);
    EXPECT_EQ(count(R"(key = u"PreferenceFilterKey"_s;)"), 0);
    EXPECT_EQ(count(R"(artist == u"NO Artist"_s)"), 0);
    EXPECT_EQ(count(R"(// u"the disk is full"_s)"), 0);
}
