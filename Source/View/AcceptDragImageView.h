// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

/// The artwork well: shows a cover, takes one that is dropped on it (a file, or a picture itself) and gives it up when
/// it is dragged out. Main thread.
class AcceptDragImageView : public QWidget {
    Q_OBJECT
public:
    /// Side of a cover in pixels: pictures are stretched to a square of it.
    static constexpr int kCoverSide = 300;

    explicit AcceptDragImageView(QWidget* parent = nullptr);

    /// The shown image; null when the well is empty.
    [[nodiscard]] const QImage& imgShow() const { return imgShow_; }
    /// Keeps a copy, 50 × 50 points large, and shows it; null clears the well.
    void setImgShow(const QImage& image);
    [[nodiscard]] QString strImagePath() const { return strImagePath_; }
    /// Keeps the path. A path that loads as an image becomes the cover.
    void setStrImagePath(const QString& path);
    /// Takes the first of the files that loads as an image. @return whether there was one; else the well stays as it is
    bool hasImageFile(const QStringList& paths);
    /// Takes a picture that has no file.
    void takeImage(const QImage& image);
    /// Whether something is being dragged over it.
    [[nodiscard]] bool isDragOver() const { return dragOver_; }
    /// Empties the well.
    void removeImage();

    [[nodiscard]] QSize sizeHint() const override { return {128, 128}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {96, 96}; }

Q_SIGNALS:
    /// The user changed what is in the well.
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
