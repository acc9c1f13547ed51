// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Source/View/SpokenView.h"

#include <QImage>
#include <QStringList>
#include <QWidget>

class QMimeData;

/// The artwork well: shows a cover, accepts a dropped one (a file, or a picture itself) and removes it when it is
/// dragged out. Keys: Delete removes the cover, Copy and Paste exchange it with other programs, Space asks for a file.
/// Main thread.
class AcceptDragImageView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    /// Side of a cover in pixels: pictures are scaled to this square.
    static constexpr int kCoverSide = 300;

    explicit AcceptDragImageView(QWidget* parent = nullptr);

    /// The shown image; null when the well is empty.
    [[nodiscard]] const QImage& imgShow() const { return imgShow_; }
    /// Keeps a copy of 50 × 50 points and shows it; null clears the well.
    void setImgShow(const QImage& image);
    [[nodiscard]] QString strImagePath() const { return strImagePath_; }
    /// Stores the path. If the file is an image, it becomes the cover.
    void setStrImagePath(const QString& path);
    /// Takes the first file that loads as an image. @return whether there was one; otherwise the well does not change
    bool hasImageFile(const QStringList& paths);
    /// Takes a picture without a file.
    void takeImage(const QImage& image);
    /// Whether something is being dragged over it.
    [[nodiscard]] bool isDragOver() const { return dragOver_; }
    /// Clears the well.
    void removeImage();

    [[nodiscard]] QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
    [[nodiscard]] QString spokenValue() const override { return accessibleDescription(); }

    [[nodiscard]] QSize sizeHint() const override { return {128, 128}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {96, 96}; }

Q_SIGNALS:
    /// The user changed the picture.
    void imageChanged();
    /// The user wants to choose a file.
    void fileWanted();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void startDrag();
    /// Takes the picture of a drop or of the clipboard. @return whether there was one
    bool takeData(const QMimeData& data);
    [[nodiscard]] QImage plainImage() const; ///< with one pixel per point
    [[nodiscard]] QRectF wellRect() const;

    QImage imgShow_;
    QString strImagePath_;
    QPoint pressedAt_;
    bool pressed_ = false;
    bool dragOver_ = false;
};
