// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

/// The artwork well: shows a cover, accepts a dropped one (a file, or a picture itself) and removes it when it is
/// dragged out. Main thread.
class AcceptDragImageView : public QWidget {
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

    [[nodiscard]] QSize sizeHint() const override { return {128, 128}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {96, 96}; }

Q_SIGNALS:
    /// The user changed the picture.
    void imageChanged();

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
    [[nodiscard]] QRectF wellRect() const;

    QImage imgShow_;
    QString strImagePath_;
    QPoint pressedAt_;
    bool pressed_ = false;
    bool dragOver_ = false;
};
