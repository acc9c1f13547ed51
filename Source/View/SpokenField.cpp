// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/SpokenField.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QTextDocumentFragment>
#include <QVariant>
#include <QWidget>

namespace {

constexpr const char* kCaption = "spokenCaption";

QString joined(const QString& caption, const QString& text) {
    if (caption.isEmpty() || caption == text)
        return text;
    return text.isEmpty() ? caption : QCoreApplication::translate("SpokenField", "%1: %2").arg(caption, text);
}

/// A label that says its accessible name and its text.
class LabelInterface : public QAccessibleWidget {
public:
    explicit LabelInterface(QLabel& label) : QAccessibleWidget(&label), label_(label) {}

    QAccessible::Role role() const override {
        return label_.text().isEmpty() && !label_.pixmap(Qt::ReturnByValue).isNull() ? QAccessible::Graphic
                                                                                     : QAccessible::StaticText;
    }
    QString text(QAccessible::Text which) const override {
        if (which != QAccessible::Name)
            return QAccessibleWidget::text(which);
        if (label_.property(kCaption).isValid())
            return label_.accessibleName();
        return joined(label_.accessibleName(), plainText());
    }
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation match) const override {
        auto found = QAccessibleWidget::relations(match);
        if (label_.buddy() && (match & QAccessible::Labelled))
            found.append({QAccessible::queryAccessibleInterface(label_.buddy()), QAccessible::Labelled});
        return found;
    }

private:
    [[nodiscard]] QString plainText() const {
        QString text = label_.text();
        const auto format = label_.textFormat();
        if (format == Qt::RichText || (format == Qt::AutoText && Qt::mightBeRichText(text)))
            text = QTextDocumentFragment::fromHtml(text).toPlainText();
        if (label_.buddy()) // the mnemonic's mark
            text.remove(u'&');
        return text.simplified();
    }

    QLabel& label_;
};

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    auto* const label = className == QLatin1StringView("QLabel") ? qobject_cast<QLabel*>(object) : nullptr;
    if (label)
        return new LabelInterface(*label);
    // Qt gives only main windows and dialogs the role of a window.
    auto* const widget = className == QLatin1StringView("QWidget") ? qobject_cast<QWidget*>(object) : nullptr;
    const bool isWindow =
        widget && widget->windowType() == Qt::Window && qstrcmp(widget->metaObject()->className(), "QWidget") == 0;
    return isWindow ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

} // namespace

namespace SpokenField {

void install() {
    static const bool once = [] {
        QAccessible::installFactory(interfaceOf);
        return true;
    }();
    Q_UNUSED(once)
}

void setText(QWidget& field, const QString& text) {
    if (!field.property(kCaption).isValid())
        field.setProperty(kCaption, field.accessibleName());
    const QString name = joined(field.property(kCaption).toString(), text);
    if (name != field.accessibleName())
        field.setAccessibleName(name);
}

} // namespace SpokenField
