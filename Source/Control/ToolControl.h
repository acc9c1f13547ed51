// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <cstdint>

class QPainter;
class QRectF;
class QSizeF;

/// Small operations on files, times and windows, used in the whole program.
namespace ToolControl {

/// A window controller, as far as showWindowNib() needs it.
class WindowShower {
public:
    virtual ~WindowShower() = default;
    [[nodiscard]] virtual bool isWindowVisible() const = 0;
    virtual void showWindow() = 0;           ///< for a window that is visible
    virtual void makeKeyAndOrderFront() = 0; ///< for a hidden window
    virtual void center() = 0;
};
/// Shows a window, raises it and centres it on its screen.
void showWindowNib(WindowShower& controller);

/// "hh:mm:ss"; the hours have no limit.
[[nodiscard]] QString getTimeString(std::int64_t seconds);
/// Length of an audio file in seconds, from the file itself without decoding it; 0 when it cannot be read.
[[nodiscard]] float getAudioLength(const QString& path);
/// Decimal megabytes; sizes from 11 bytes to a megabyte count as one.
[[nodiscard]] std::int32_t getDirectorySize(const QString& path);
/// Free megabytes (binary) on the volume of the path; 0 when unknown.
[[nodiscard]] std::int64_t getLocalSize(const QString& path);
/// Whether a file may have this name on any system: without ":", "\\" and "/".
[[nodiscard]] bool isAvailable(const QString& fileName);

// The next three run /usr/bin/find and /usr/bin/file and wait for them without a limit. A tool that cannot be started
// throws std::runtime_error.

/// Whether a protected file is among those whose name matches the pattern, including subfolders.
[[nodiscard]] bool findDRMForExtension(const QString& folder, const QString& extension);
[[nodiscard]] bool hasDRMFile(const QString& path);
/// The output of file(1) for the file, with its leading blank and trailing newline.
[[nodiscard]] QString getFileInfoForFileCMD(const QString& path);

/// The folder of a DVD's films: the path itself, or such a folder in it. Null when there is none.
[[nodiscard]] QString isVIDEO_TS(const QString& path);
/// The path when it is a disc image of that kind, else null.
[[nodiscard]] QString isISO(const QString& path);
[[nodiscard]] QString isDMG(const QString& path);
[[nodiscard]] bool isDVDpath(const QString& path);
/// The first disc image of either kind; null when there is none.
[[nodiscard]] QString getFirstImageFile(const QStringList& paths);

/// Something with a size that can paint itself, for example a styled text.
class Drawable {
public:
    virtual ~Drawable() = default;
    [[nodiscard]] virtual QSizeF size() const = 0;
    virtual void drawInRect(QPainter& painter, const QRectF& rect) const = 0;
};
/// A picture of the drawable's size with a transparent background; null when it has no size.
[[nodiscard]] QImage creatorImageFromStr(const Drawable& string);

/// Shows the file in the file manager.
void openFile(const QString& path);

} // namespace ToolControl
