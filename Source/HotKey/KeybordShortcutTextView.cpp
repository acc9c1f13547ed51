// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/HotKey/KeybordShortcutTextView.h"

#include "Platform/Desktop/KeyCodes.h"
#include "Platform/Foundation/Dictionary.h"
#include "Platform/Foundation/Services.h"
#include "Platform/Foundation/UserDefaults.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

// Not in the key table, so every register refuses it.
constexpr std::uint16_t noKeyCode = 0xFFFF;

std::uint32_t flagOfModifierKey(int key) {
    switch (key) {
    case Qt::Key_Shift:
        return KeybordShortcutTextView::ShiftFlag;
    case Qt::Key_Control:
        return KeybordShortcutTextView::ControlFlag;
    case Qt::Key_Alt:
        return KeybordShortcutTextView::OptionFlag;
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
        return KeybordShortcutTextView::CommandFlag;
    default:
        return 0;
    }
}

bool isModifierKey(int key) {
    return flagOfModifierKey(key) != 0 || key == Qt::Key_AltGr || key == Qt::Key_CapsLock || key == Qt::Key_NumLock ||
           key == Qt::Key_ScrollLock || key == Qt::Key_Hyper_L || key == Qt::Key_Hyper_R;
}

std::uint32_t flagsOf(Qt::KeyboardModifiers modifiers) {
    std::uint32_t flags = 0;
    flags |= modifiers & Qt::ShiftModifier ? KeybordShortcutTextView::ShiftFlag : 0;
    flags |= modifiers & Qt::ControlModifier ? KeybordShortcutTextView::ControlFlag : 0;
    flags |= modifiers & Qt::AltModifier ? KeybordShortcutTextView::OptionFlag : 0;
    flags |= modifiers & Qt::MetaModifier ? KeybordShortcutTextView::CommandFlag : 0;
    return flags;
}

// An event of a modifier key contains the state before the event.
std::uint32_t flagsAfter(const QKeyEvent& event) {
    const std::uint32_t before = flagsOf(event.QInputEvent::modifiers());
    const std::uint32_t own = flagOfModifierKey(event.key());
    return event.type() == QEvent::KeyPress ? before | own : before & ~own;
}

// The character of the key without modifiers but Shift; other keys are shown by name.
QString charactersIgnoringModifiers(const QKeyEvent& event) {
    const int key = event.key();
    if (key > Qt::Key_Space && key < Qt::Key_Escape) {
        const auto letter = static_cast<char32_t>(key);
        const QString sign = QString::fromUcs4(&letter, 1);
        return event.modifiers() & Qt::ShiftModifier ? sign : sign.toLower();
    }
    if (key == 0 || key == Qt::Key_unknown)
        return u""_s;
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

std::uint16_t keyCodeOf(const QKeyEvent& event) {
    if (const auto code = Platform::KeyCodes::virtualKeyCodeOfScanCode(event.nativeScanCode()))
        return *code;
    if (event.nativeScanCode() != 0)
        return noKeyCode;
    return Platform::KeyCodes::virtualKeyCodeOfSign(Qt::Key(event.key())).value_or(noKeyCode);
}

// A cleared shortcut is an empty dictionary. Any other value without all three parts was not written by this program.
bool isShortcut(const Dictionary& stored) {
    using View = KeybordShortcutTextView;
    return stored.isEmpty() || (stored.value(View::CharactersKey).typeId() == QMetaType::QString &&
                                Platform::isNumber(stored.value(View::ModifierFlagsKey)) &&
                                Platform::isNumber(stored.value(View::KeyCodeKey)));
}

} // namespace

KeybordShortcutTextView::KeybordShortcutTextView(QWidget* parent) : QLineEdit(parent) {
    setReadOnly(true);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setPlaceholderText(tr("None"));
}

KeybordShortcutTextView::~KeybordShortcutTextView() {
    letKeyboardGo();
}

void KeybordShortcutTextView::setHotKeyRegister(std::unique_ptr<HotKeyRegister> hotKeyRegister) {
    hotKeyRegister_ = std::move(hotKeyRegister);
    if (!hotKeyRegister_)
        return;
    hotKeyRegister_->setRefused([this] { combinationRefused(); });
    hotKeyRegister_->setTriggerChanged([this](const QString& trigger) { setDesktopTrigger(trigger); });
}

Dictionary KeybordShortcutTextView::data() const {
    if (characters_.isNull())
        return {};
    return {{CharactersKey, characters_}, {ModifierFlagsKey, uint(modifierFlags_)}, {KeyCodeKey, uint(keyCode_)}};
}

void KeybordShortcutTextView::setData(const Dictionary& data) {
    const QVariant characters = data.value(CharactersKey);
    characters_ = characters.isValid() ? characters.toString() : QString();
    modifierFlags_ = static_cast<std::uint32_t>(Platform::longLongValue(data.value(ModifierFlagsKey)));
    keyCode_ = static_cast<std::uint16_t>(Platform::longLongValue(data.value(KeyCodeKey)));
}

void KeybordShortcutTextView::loadUserDefault() {
    const QVariant stored = Platform::services().userDefaults->objectForKey(saveKey_);
    if (stored.typeId() == QMetaType::QVariantMap && isShortcut(stored.toMap()))
        setData(stored.toMap());
    else if (stored.isValid())
        qWarning("%s holds no shortcut; the default is used", qPrintable(saveKey_));
    updateShortcutValue();
}

void KeybordShortcutTextView::saveUserDefault() {
    Platform::services().userDefaults->setObject(saveKey_, data());
}

void KeybordShortcutTextView::updateShortcutValue() {
    QString text = characters_.toUpper();
    std::uint32_t mask = 0;
    const auto prepend = [&](std::uint32_t flag, const QString& name) {
        if (!(modifierFlags_ & flag))
            return;
        text.prepend(name + u" + "_s);
        mask |= flag;
    };
    prepend(ShiftFlag, QCoreApplication::translate("KeyNames", "Shift", "a key of the keyboard"));
    prepend(CommandFlag, QCoreApplication::translate("KeyNames", "Super", "a key of the keyboard"));
    prepend(OptionFlag, QCoreApplication::translate("KeyNames", "Alt", "a key of the keyboard"));
    prepend(ControlFlag, QCoreApplication::translate("KeyNames", "Control", "a key of the keyboard"));
    modifierFlags_ = mask;
    // A trigger that names keys as Qt does gets the names that the modifiers have everywhere in the program.
    if (desktopTrigger_) {
        const QKeySequence keys = shownKeys();
        text = keys.isEmpty() ? *desktopTrigger_ : keys.toString(QKeySequence::NativeText);
    }
    setText(mask == 0 ? QString() : text);
}

void KeybordShortcutTextView::setDesktopTrigger(const std::optional<QString>& trigger) {
    // While the field has the focus, the user is typing a new combination.
    if (trigger == desktopTrigger_ || (hasFocus() && trigger))
        return;
    desktopTrigger_ = trigger;
    setToolTip(!trigger             ? QString()
               : trigger->isEmpty() ? tr("The desktop has no keys for this. Choose some in its settings.")
                                    : tr("These keys are set in the desktop's settings."));
    setPlaceholderText(trigger && trigger->isEmpty() ? tr("No keys in the desktop's settings")
                                                     : tr("Click, then press the keys"));
    updateShortcutValue();
    if (menuItem_ && menuItem_->data().value<QObject*>() == this)
        setMenuItem(menuItem_);
}

QKeySequence KeybordShortcutTextView::shownKeys() const {
    if (modifierFlags_ == 0 || characters_.isEmpty())
        return {};
    if (desktopTrigger_) {
        // Some desktops name keys as Qt does; other descriptions cannot be shown in a menu.
        const auto keys = QKeySequence::fromString(*desktopTrigger_, QKeySequence::PortableText);
        return keys.count() == 1 && keys[0].key() != Qt::Key_unknown ? keys : QKeySequence();
    }
    QString keys;
    if (modifierFlags_ & ControlFlag)
        keys += u"Ctrl+"_s;
    if (modifierFlags_ & OptionFlag)
        keys += u"Alt+"_s;
    if (modifierFlags_ & ShiftFlag)
        keys += u"Shift+"_s;
    if (modifierFlags_ & CommandFlag)
        keys += u"Meta+"_s;
    return QKeySequence::fromString(keys + characters_.toUpper(), QKeySequence::PortableText);
}

bool KeybordShortcutTextView::updateHotKeyRegister() {
    if (!hotKeyRegister_)
        return false;
    if (modifierFlags_ != 0)
        hotKeyRegister_->registerHotKey(keyCode_, modifierFlags_);
    else
        hotKeyRegister_->unregisterHotKey();
    return hotKeyRegister_->hasRegisterHotKey();
}

void KeybordShortcutTextView::setMenuItem(QAction* item) {
    menuItem_ = item;
    if (!item)
        return;
    item->setShortcut(shownKeys());
    item->setShortcutVisibleInContextMenu(true);
    // The item shows the shortcut, but the hot key triggers it; as a window shortcut it would trigger twice.
    item->setShortcutContext(Qt::WidgetShortcut);
    item->setData(QVariant::fromValue(static_cast<QObject*>(this)));
}

bool KeybordShortcutTextView::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // Escape, menu shortcuts and mnemonics arrive here first, as plain keys.
        event->accept();
        return true;
    case QEvent::KeyPress:
        // Otherwise Tab would move the focus before keyPressEvent().
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    case QEvent::KeyRelease:
        keyReleaseEvent(static_cast<QKeyEvent*>(event));
        return true;
    default:
        return QLineEdit::event(event);
    }
}

void KeybordShortcutTextView::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    atFocus_ = data();
    modifiersSeen_ = false;
    setAccessibleDescription(tr("Press the keys"));
    // The keys of the mnemonic that led here are still pressed; releasing them is not input.
    ignoresReleases_ = flagsOf(QGuiApplication::keyboardModifiers()) != 0;
    grabKeyboard();
    holdsKeyboard_ = true;
    update();
}

void KeybordShortcutTextView::focusOutEvent(QFocusEvent* event) {
    letKeyboardGo();
    if (awaitsRelease_)
        finishCapture();
    setAccessibleDescription({});
    QLineEdit::focusOutEvent(event);
    update();
}

void KeybordShortcutTextView::hideEvent(QHideEvent* event) {
    letKeyboardGo();
    // A window that is shown again restores its focus: the next key would be captured as a shortcut.
    clearFocus();
    QLineEdit::hideEvent(event);
}

void KeybordShortcutTextView::letKeyboardGo() {
    if (!holdsKeyboard_)
        return;
    holdsKeyboard_ = false;
    releaseKeyboard();
}

void KeybordShortcutTextView::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    QLineEdit::mousePressEvent(event);
    update();
}

void KeybordShortcutTextView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

void KeybordShortcutTextView::paintEvent(QPaintEvent* event) {
    if (!waitsForKeys())
        QLineEdit::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    if (waitsForKeys()) {
        QStyleOptionFrame frame;
        initStyleOption(&frame);
        style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter, tr("Press the keys"));
    }
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), 4));
    painter.drawRect(rect());
}

void KeybordShortcutTextView::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (awaitsRelease_ || event->isAutoRepeat())
        return;
    ignoresReleases_ = false;
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isTab && (flagsOf(event->modifiers()) & ~ShiftFlag) == 0)
        leave(event->key() == Qt::Key_Tab && !(event->modifiers() & Qt::ShiftModifier));
    else if (isModifierKey(event->key()))
        flagsChanged(flagsAfter(*event));
    else
        keyDown(*event);
}

void KeybordShortcutTextView::keyReleaseEvent(QKeyEvent* event) {
    event->accept();
    if (event->isAutoRepeat())
        return;
    if (awaitsRelease_) {
        if (!isModifierKey(event->key()))
            finishCapture();
    } else if (isModifierKey(event->key())) {
        const std::uint32_t flags = flagsAfter(*event);
        if (!ignoresReleases_)
            flagsChanged(flags);
        else if (flags == 0)
            ignoresReleases_ = false;
    }
}

void KeybordShortcutTextView::flagsChanged(std::uint32_t flags) {
    if (!hasFocus())
        return;
    if (hotKeyRegister_)
        hotKeyRegister_->unregisterHotKey();
    setDesktopTrigger({});
    characters_ = u""_s;
    modifierFlags_ = flags;
    keyCode_ = 0;
    modifiersSeen_ = true;
    updateShortcutValue();
    update();
}

bool KeybordShortcutTextView::waitsForKeys() const {
    return hasFocus() && !awaitsRelease_ && (!modifiersSeen_ || modifierFlags_ == 0);
}

// The Shift of Shift+Tab has already replaced the combination.
void KeybordShortcutTextView::leave(bool forward) {
    if (modifiersSeen_) {
        setData(atFocus_);
        updateShortcutValue();
        (void)updateHotKeyRegister();
    }
    (void)focusNextPrevChild(forward);
}

void KeybordShortcutTextView::useDefault() {
    setData(default_);
    updateShortcutValue();
    captured_ = false; // refused, it is kept like one that was loaded
    (void)updateHotKeyRegister();
    saveCapture();
}

// The combination is stored when the key is released: earlier, it would trigger at once while the key is still pressed.
void KeybordShortcutTextView::keyDown(const QKeyEvent& event) {
    setDesktopTrigger({});
    characters_ = charactersIgnoringModifiers(event);
    modifierFlags_ = flagsOf(event.modifiers());
    keyCode_ = keyCodeOf(event);
    updateShortcutValue();
    awaitsRelease_ = true;
}

void KeybordShortcutTextView::finishCapture() {
    awaitsRelease_ = false;
    ignoresReleases_ = false;
    clearFocus();
    captured_ = true;
    if (!updateHotKeyRegister())
        clearShortcut();
    saveCapture();
}

// The desktop refuses some time after the combination was typed. One that was loaded from the settings is kept: another
// program may hold it only for a while.
void KeybordShortcutTextView::combinationRefused() {
    if (!captured_)
        return;
    clearShortcut();
    saveCapture();
}

void KeybordShortcutTextView::clearShortcut() {
    setDesktopTrigger({});
    modifierFlags_ = 0;
    characters_ = QString();
    keyCode_ = 0;
    updateShortcutValue();
}

void KeybordShortcutTextView::saveCapture() {
    saveUserDefault();
    if (menuItem_ && menuItem_->data().value<QObject*>() == this)
        setMenuItem(menuItem_);
}
