// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "RingtoneMaker/AudioTimeField.h"

#include "RingtoneMaker/AudioTimeFormatter.h"
#include "RingtoneMaker/ValueTransformers.h"

#include <QKeyEvent>
#include <QValidator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class FormValidator : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& text, int& /*cursor*/) const override {
        return AudioTimeFormatter::isPartialStringValid(text) ? Acceptable : Invalid;
    }
};

QString textOf(float seconds) {
    return AudioWaveTime2TimeStringTransformer().transformedValue(seconds).toString();
}

} // namespace

AudioTimeField::AudioTimeField(QWidget* parent) : QLineEdit(parent) {
    setText(textOf(0));
    setValidator(new FormValidator(this));
    setAlignment(Qt::AlignCenter);
    setFixedWidth(fontMetrics().horizontalAdvance(u"00:00:00"_s) + 36);
}

int AudioTimeField::seconds() const {
    QString whole;
    AudioTimeFormatter::getObjectValue(whole, text());
    return AudioWaveTime2TimeStringTransformer::stringToSecond(whole);
}

void AudioTimeField::setSeconds(float seconds) {
    shown_ = seconds;
    if (!isModified())
        setText(textOf(seconds));
}

void AudioTimeField::commit() {
    if (!isModified())
        return;
    const int typed = seconds();
    setModified(false);
    if (textOf(float(typed)) == textOf(shown_))
        setText(textOf(shown_)); // the same second: keep the tenths, which the field does not show
    else
        Q_EMIT secondsEdited(typed);
}

void AudioTimeField::step(int by) {
    const int stepped = std::max(0, seconds() + by);
    setModified(false);
    Q_EMIT secondsEdited(stepped);
}

bool AudioTimeField::overwrite(const QString& digit) {
    int at = hasSelectedText() ? selectionStart() : cursorPosition();
    QString changed = text();
    if (at < changed.size() && changed[at] == u':')
        ++at;
    if (at >= changed.size() || !changed[at].isDigit())
        return false;
    changed.replace(at, 1, digit);
    if (!AudioTimeFormatter::isPartialStringValid(changed))
        return true; // beyond the limit: the key does nothing
    setText(changed);
    setModified(true);
    setCursorPosition(at + 1);
    return true;
}

void AudioTimeField::keyPressEvent(QKeyEvent* event) {
    const QString typed = event->text();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        commit(); // and do not press the window's default button
        return;
    case Qt::Key_Up:
        return step(1);
    case Qt::Key_Down:
        return step(-1);
    default:
        break;
    }
    if (typed.size() == 1 && typed[0] >= u'0' && typed[0] <= u'9' && overwrite(typed))
        return;
    QLineEdit::keyPressEvent(event);
}

void AudioTimeField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    commit();
}
