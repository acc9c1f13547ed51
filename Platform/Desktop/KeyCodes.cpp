// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Desktop/KeyCodes.h"

#include <algorithm>
#include <array>

namespace Platform::KeyCodes {
namespace {

struct Key {
    std::uint16_t code;     // ANSI virtual key code
    std::uint16_t physical; // as in linux/input-event-codes.h
    const char* keysym;
    Qt::Key sign;
};

constexpr Qt::Key none = Qt::Key_unknown;

constexpr std::array keys{
    Key{0, 30, "a", Qt::Key_A},
    Key{1, 31, "s", Qt::Key_S},
    Key{2, 32, "d", Qt::Key_D},
    Key{3, 33, "f", Qt::Key_F},
    Key{4, 35, "h", Qt::Key_H},
    Key{5, 34, "g", Qt::Key_G},
    Key{6, 44, "z", Qt::Key_Z},
    Key{7, 45, "x", Qt::Key_X},
    Key{8, 46, "c", Qt::Key_C},
    Key{9, 47, "v", Qt::Key_V},
    Key{10, 86, "less", Qt::Key_Less},
    Key{11, 48, "b", Qt::Key_B},
    Key{12, 16, "q", Qt::Key_Q},
    Key{13, 17, "w", Qt::Key_W},
    Key{14, 18, "e", Qt::Key_E},
    Key{15, 19, "r", Qt::Key_R},
    Key{16, 21, "y", Qt::Key_Y},
    Key{17, 20, "t", Qt::Key_T},
    Key{18, 2, "1", Qt::Key_1},
    Key{19, 3, "2", Qt::Key_2},
    Key{20, 4, "3", Qt::Key_3},
    Key{21, 5, "4", Qt::Key_4},
    Key{22, 7, "6", Qt::Key_6},
    Key{23, 6, "5", Qt::Key_5},
    Key{24, 13, "equal", Qt::Key_Equal},
    Key{25, 10, "9", Qt::Key_9},
    Key{26, 8, "7", Qt::Key_7},
    Key{27, 12, "minus", Qt::Key_Minus},
    Key{28, 9, "8", Qt::Key_8},
    Key{29, 11, "0", Qt::Key_0},
    Key{30, 27, "bracketright", Qt::Key_BracketRight},
    Key{31, 24, "o", Qt::Key_O},
    Key{32, 22, "u", Qt::Key_U},
    Key{33, 26, "bracketleft", Qt::Key_BracketLeft},
    Key{34, 23, "i", Qt::Key_I},
    Key{35, 25, "p", Qt::Key_P},
    Key{36, 28, "Return", Qt::Key_Return},
    Key{37, 38, "l", Qt::Key_L},
    Key{38, 36, "j", Qt::Key_J},
    Key{39, 40, "apostrophe", Qt::Key_Apostrophe},
    Key{40, 37, "k", Qt::Key_K},
    Key{41, 39, "semicolon", Qt::Key_Semicolon},
    Key{42, 43, "backslash", Qt::Key_Backslash},
    Key{43, 51, "comma", Qt::Key_Comma},
    Key{44, 53, "slash", Qt::Key_Slash},
    Key{45, 49, "n", Qt::Key_N},
    Key{46, 50, "m", Qt::Key_M},
    Key{47, 52, "period", Qt::Key_Period},
    Key{48, 15, "Tab", Qt::Key_Tab},
    Key{49, 57, "space", Qt::Key_Space},
    Key{50, 41, "grave", Qt::Key_QuoteLeft},
    Key{51, 14, "BackSpace", Qt::Key_Backspace},
    Key{53, 1, "Escape", Qt::Key_Escape},
    Key{64, 187, "F17", Qt::Key_F17},
    Key{65, 83, "KP_Decimal", none},
    Key{67, 55, "KP_Multiply", none},
    Key{69, 78, "KP_Add", none},
    Key{71, 69, "Num_Lock", Qt::Key_Clear},
    Key{72, 115, "XF86AudioRaiseVolume", Qt::Key_VolumeUp},
    Key{73, 114, "XF86AudioLowerVolume", Qt::Key_VolumeDown},
    Key{74, 113, "XF86AudioMute", Qt::Key_VolumeMute},
    Key{75, 98, "KP_Divide", none},
    Key{76, 96, "KP_Enter", Qt::Key_Enter},
    Key{78, 74, "KP_Subtract", none},
    Key{79, 188, "F18", Qt::Key_F18},
    Key{80, 189, "F19", Qt::Key_F19},
    Key{81, 117, "KP_Equal", none},
    Key{82, 82, "KP_0", none},
    Key{83, 79, "KP_1", none},
    Key{84, 80, "KP_2", none},
    Key{85, 81, "KP_3", none},
    Key{86, 75, "KP_4", none},
    Key{87, 76, "KP_5", none},
    Key{88, 77, "KP_6", none},
    Key{89, 71, "KP_7", none},
    Key{90, 190, "F20", Qt::Key_F20},
    Key{91, 72, "KP_8", none},
    Key{92, 73, "KP_9", none},
    Key{93, 124, "yen", Qt::Key_yen},
    Key{94, 89, "underscore", Qt::Key_Underscore},
    Key{96, 63, "F5", Qt::Key_F5},
    Key{97, 64, "F6", Qt::Key_F6},
    Key{98, 65, "F7", Qt::Key_F7},
    Key{99, 61, "F3", Qt::Key_F3},
    Key{100, 66, "F8", Qt::Key_F8},
    Key{101, 67, "F9", Qt::Key_F9},
    Key{103, 87, "F11", Qt::Key_F11},
    Key{105, 183, "F13", Qt::Key_F13},
    Key{106, 186, "F16", Qt::Key_F16},
    Key{107, 184, "F14", Qt::Key_F14},
    Key{109, 68, "F10", Qt::Key_F10},
    Key{111, 88, "F12", Qt::Key_F12},
    Key{113, 185, "F15", Qt::Key_F15},
    Key{114, 110, "Insert", Qt::Key_Insert},
    Key{115, 102, "Home", Qt::Key_Home},
    Key{116, 104, "Page_Up", Qt::Key_PageUp},
    Key{117, 111, "Delete", Qt::Key_Delete},
    Key{118, 62, "F4", Qt::Key_F4},
    Key{119, 107, "End", Qt::Key_End},
    Key{120, 60, "F2", Qt::Key_F2},
    Key{121, 109, "Page_Down", Qt::Key_PageDown},
    Key{122, 59, "F1", Qt::Key_F1},
    Key{123, 105, "Left", Qt::Key_Left},
    Key{124, 106, "Right", Qt::Key_Right},
    Key{125, 108, "Down", Qt::Key_Down},
    Key{126, 103, "Up", Qt::Key_Up},
};

template <typename Member, typename Value>
const Key* find(Member member, Value value) {
    const auto* key = std::find_if(keys.begin(), keys.end(), [&](const Key& k) { return k.*member == value; });
    return key == keys.end() ? nullptr : key;
}

} // namespace

std::optional<std::uint16_t> physicalKey(std::uint16_t virtualKeyCode) {
    const Key* key = find(&Key::code, virtualKeyCode);
    return key ? std::optional(key->physical) : std::nullopt;
}

std::optional<std::uint16_t> virtualKeyCode(std::uint16_t physicalKey) {
    const Key* key = find(&Key::physical, physicalKey);
    return key ? std::optional(key->code) : std::nullopt;
}

std::optional<std::uint16_t> virtualKeyCodeOfScanCode(std::uint32_t nativeScanCode) {
    if (nativeScanCode < 8 || nativeScanCode > 0xFFFF)
        return std::nullopt;
    return virtualKeyCode(static_cast<std::uint16_t>(nativeScanCode - 8));
}

std::optional<std::uint16_t> virtualKeyCodeOfSign(Qt::Key key) {
    if (key == none)
        return std::nullopt;
    const Key* found = find(&Key::sign, key);
    return found ? std::optional(found->code) : std::nullopt;
}

QString keysymName(std::uint16_t virtualKeyCode) {
    const Key* key = find(&Key::code, virtualKeyCode);
    return key ? QString::fromLatin1(key->keysym) : QString();
}

} // namespace Platform::KeyCodes
