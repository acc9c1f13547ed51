// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

/// A button that consists only of a named image, with another image while it is pressed.
class TransportButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit TransportButton(QWidget* parent = nullptr);

    [[nodiscard]] QString image() const { return image_; }
    void setImage(const QString& name);
    [[nodiscard]] QString pressedImage() const { return pressedImage_; }
    /// When empty, the image itself is used, slightly smaller.
    void setPressedImage(const QString& name);
    /// Side of the image in points.
    void setImageSize(int points);

    /// One sentence that the tool tip adds while the button is disabled.
    void setDisabledReason(const QString& reason) { disabledReason_ = reason; }
    [[nodiscard]] QString disabledReason() const { return disabledReason_; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString image_;
    QString pressedImage_;
    QString disabledReason_;
    int imageSize_ = 36;
};
