// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/Dictionary.h"
#include "Source/HotKey/HotKeyRegister.h"

#include <QKeySequence>
#include <QLineEdit>
#include <QPointer>

#include <memory>
#include <optional>

class QAction;

/// The field in which the user types a key combination. It shows it, stores it, registers it system-wide through its
/// register, and copies it to a menu item. Main thread.
///
/// While it has the focus it grabs the keyboard: otherwise a combination that another program has grabbed would never
/// arrive here. Tab and Shift+Tab move the focus on and leave the combination as it was.
class KeybordShortcutTextView : public QLineEdit {
    Q_OBJECT
public:
    static inline const QString CharactersKey = QStringLiteral("KeybordShortcutCharactersKey");
    static inline const QString ModifierFlagsKey = QStringLiteral("KeybordShortcutModifierFlagsKey");
    static inline const QString KeyCodeKey = QStringLiteral("KeybordShortcutKeyCodeKey");

    static constexpr std::uint32_t ShiftFlag = 0x20000;
    static constexpr std::uint32_t ControlFlag = 0x40000;
    static constexpr std::uint32_t OptionFlag = 0x80000;
    static constexpr std::uint32_t CommandFlag = 0x100000;

    explicit KeybordShortcutTextView(QWidget* parent = nullptr);
    ~KeybordShortcutTextView() override;

    [[nodiscard]] QString saveKey() const { return saveKey_; }
    void setSaveKey(const QString& key) { saveKey_ = key; }
    /// Null when there is no shortcut, empty while only modifiers are held.
    [[nodiscard]] QString characters() const { return characters_; }
    void setCharacters(const QString& characters) { characters_ = characters; }
    [[nodiscard]] std::uint32_t modifierFlags() const { return modifierFlags_; }
    void setModifierFlags(std::uint32_t flags) { modifierFlags_ = flags; }
    /// ANSI virtual key code.
    [[nodiscard]] std::uint16_t keyCode() const { return keyCode_; }
    void setKeyCode(std::uint16_t code) { keyCode_ = code; }
    [[nodiscard]] HotKeyRegister* hotKeyRegister() const { return hotKeyRegister_.get(); }
    void setHotKeyRegister(std::unique_ptr<HotKeyRegister> hotKeyRegister);

    /// The three values; an empty dictionary when there are no characters.
    [[nodiscard]] Dictionary data() const;
    void setData(const Dictionary& data);
    /// Loads the stored shortcut, if it has the right shape, and shows it.
    void loadUserDefault();
    void saveUserDefault();
    /// Reduces the flags to the four modifiers and shows the combination.
    void updateShortcutValue();
    /// Remembers the present combination as the default.
    void keepAsDefault() { default_ = data(); }
    /// Restores the default, stores it and registers it. Unregister first all fields that may hold this combination.
    void useDefault();
    /// @return whether the combination is registered now.
    bool updateHotKeyRegister();

    [[nodiscard]] QAction* menuItem() const { return menuItem_; }
    /// The keys of this shortcut in the desktop's own words, if the desktop reports them. The user may have chosen
    /// other keys in the desktop's settings than in this field.
    [[nodiscard]] const std::optional<QString>& desktopTrigger() const { return desktopTrigger_; }
    /// Shows the combination at @p item, which is not owned, and makes this field its represented object.
    void setMenuItem(QAction* item);

    /// Marks a field that captures combinations.
    Q_INVOKABLE [[nodiscard]] bool isEditKeybordShortcutControl() const { return true; }
    [[nodiscard]] bool acceptsFirstResponder() const { return true; }

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void flagsChanged(std::uint32_t flags);
    void keyDown(const QKeyEvent& event);
    void finishCapture();
    void clearShortcut();
    void combinationRefused();
    void setDesktopTrigger(const std::optional<QString>& trigger);
    [[nodiscard]] QKeySequence shownKeys() const;
    void saveCapture();
    void leave(bool forward);
    [[nodiscard]] bool waitsForKeys() const;
    void letKeyboardGo();

    QString saveKey_;
    QString characters_;
    std::uint32_t modifierFlags_ = 0;
    std::uint16_t keyCode_ = 0;
    std::unique_ptr<HotKeyRegister> hotKeyRegister_;
    std::optional<QString> desktopTrigger_;
    QPointer<QAction> menuItem_;
    Dictionary default_;
    Dictionary atFocus_; ///< the combination when the focus came
    bool awaitsRelease_ = false;
    bool modifiersSeen_ = false; ///< since the field has the focus: the user is typing the shown combination
    bool captured_ = false;      ///< the combination was typed, not loaded
    bool ignoresReleases_ = false;
    bool holdsKeyboard_ = false;
};
