// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QString>
#include <QTranslator>

#include <string_view>

/// Puts every translated text into brackets while it lives, so that a text that bypasses translation is found.
class MarkedTexts : public QTranslator {
public:
    MarkedTexts() { QCoreApplication::installTranslator(this); }
    ~MarkedTexts() override { QCoreApplication::removeTranslator(this); }

    QString translate(const char* context, const char* text, const char* /*comment*/, int /*n*/) const override {
        using namespace std::string_view_literals;
        // Qt reads these back as the names of keys and as the direction of the layout.
        if (context == "QShortcut"sv || context == "QGuiApplication"sv)
            return {};
        return QChar(kOpen) + QString::fromUtf8(text) + QChar(kClose);
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

    /// @p shown without its marked texts, which may contain others, and without punctuation, numbers and markup: what
    /// is left has bypassed translation.
    [[nodiscard]] static QString unmarked(const QString& shown) {
        QString left;
        int depth = 0;
        for (const QChar c : shown) {
            if (c == QChar(kOpen))
                ++depth;
            else if (c == QChar(kClose))
                --depth;
            else if (depth == 0)
                left += c.isLetter() ? c : QChar(u' ');
        }
        return left.simplified();
    }

private:
    static constexpr char16_t kOpen = u'⟦';
    static constexpr char16_t kClose = u'⟧';
};

/// The texts, the numbers and the direction of a language while it lives.
class TestLanguage {
public:
    explicit TestLanguage(const QString& language) : before_(QLocale()) {
        QLocale::setDefault(QLocale(language));
        isLoaded_ = ours_.load(QStringLiteral("sonaphex_") + language,
                               QStringLiteral(SONAPHEX_BIN_DIR "/Resources/translations"));
        if (toolkit_.load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&toolkit_);
        QCoreApplication::installTranslator(&ours_);
    }
    ~TestLanguage() {
        QCoreApplication::removeTranslator(&ours_);
        QCoreApplication::removeTranslator(&toolkit_);
        QLocale::setDefault(before_);
    }
    TestLanguage(const TestLanguage&) = delete;
    TestLanguage& operator=(const TestLanguage&) = delete;
    [[nodiscard]] bool isLoaded() const { return isLoaded_; }

private:
    QLocale before_;
    QTranslator ours_;
    QTranslator toolkit_;
    bool isLoaded_ = false;
};
