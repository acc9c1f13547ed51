// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/SpokenView.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

class Interface : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    Interface(QWidget& widget, SpokenView& view) : QAccessibleWidget(&widget, view.spokenRole()), view_(view) {}

    QString text(QAccessible::Text which) const override {
        if (which != QAccessible::Value && which != QAccessible::Description)
            return QAccessibleWidget::text(which);
        const QString value = view_.spokenValue();
        return value.isEmpty() ? QAccessibleWidget::text(which) : value;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        // A view that takes the focus only by a click is no control.
        if (!(widget()->focusPolicy() & Qt::TabFocus))
            state.focusable = false;
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && view_.spokenNumber().isValid())
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return view_.spokenNumber(); }
    void setCurrentValue(const QVariant& value) override { view_.setSpokenNumber(value); }
    QVariant maximumValue() const override { return view_.spokenMaximum(); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return 0.1; }

private:
    SpokenView& view_;
};

QAccessibleInterface* spokenInterfaceOf(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    auto* const view = dynamic_cast<SpokenView*>(widget);
    return view ? new Interface(*widget, *view) : nullptr;
}

} // namespace

SpokenView::SpokenView() {
    static const bool once = [] {
        QAccessible::installFactory(spokenInterfaceOf);
        return true;
    }();
    Q_UNUSED(once)
}

void SpokenView::announceValue(QWidget& view) {
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent event(&view, dynamic_cast<SpokenView&>(view).spokenNumber());
    QAccessible::updateAccessibility(&event);
}
