// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/KeyNames.h"

#include <QCoreApplication>
#include <QTranslator>

#include <string_view>

namespace {

class Names : public QTranslator {
    Q_DECLARE_TR_FUNCTIONS(KeyNames)

public:
    using QTranslator::QTranslator;

    QString translate(const char* context, const char* text, const char* /*disambiguation*/, int /*n*/) const override {
        using namespace std::string_view_literals;
        if (context != "QShortcut"sv)
            return {};
        return text == "Ctrl"sv    ? control_
               : text == "Meta"sv  ? super_
               : text == "Shift"sv ? shift_
               : text == "Alt"sv   ? alt_
                                   : QString();
    }
    [[nodiscard]] bool isEmpty() const override { return false; }

private:
    // Translated now: translate() runs under a lock that looking up another text would take again.
    const QString control_ = tr("Control", "a key of the keyboard");
    const QString shift_ = tr("Shift", "a key of the keyboard");
    const QString alt_ = tr("Alt", "a key of the keyboard");
    const QString super_ = tr("Super", "a key of the keyboard");
};

} // namespace

namespace KeyNames {

void install() {
    static const bool installed = QCoreApplication::installTranslator(new Names(QCoreApplication::instance()));
    Q_UNUSED(installed)
}

} // namespace KeyNames
