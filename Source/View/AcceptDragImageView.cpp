// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/AcceptDragImageView.h"

#include "Source/View/NamedImages.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDrag>
#include <QFileInfo>
#include <QImageReader>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr double kShownPoints = 50;
constexpr double kRadius = 6;
/// Larger files are refused.
constexpr qint64 kLargestFile = qint64(64) << 20;

/// A null image when the file is not an image. Pipes and devices are not opened: reading them may never end.
QImage loaded(const QString& path) {
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > kLargestFile)
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    return reader.read();
}

QImage cover(const QImage& image) {
    QImage square(AcceptDragImageView::kCoverSide, AcceptDragImageView::kCoverSide,
                  QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(square.rect(), image.scaled(square.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return square;
}

QStringList localFiles(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

/// Detects Escape during a drag. Qt's drag consumes the key and does not distinguish a cancelled drag from one that
/// nobody accepted.
class EscapeWatch : public QObject {
public:
    EscapeWatch() {
        // The last installed filter is called first, and Qt installs its own when the drag begins.
        QTimer::singleShot(0, this, [this] { qApp->installEventFilter(this); });
    }
    [[nodiscard]] bool wasPressed() const { return pressed_; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
            pressed_ = true;
        return false;
    }

private:
    bool pressed_ = false;
};

} // namespace

AcceptDragImageView::AcceptDragImageView(QWidget* parent) : QWidget(parent) {
    setAcceptDrops(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Cover"));
    setAccessibleDescription(tr("No picture"));
}

void AcceptDragImageView::setImgShow(const QImage& image) {
    imgShow_ = image;
    if (!imgShow_.isNull())
        imgShow_.setDevicePixelRatio(double(imgShow_.width()) / kShownPoints);
    setAccessibleDescription(imgShow_.isNull() ? tr("No picture") : tr("A picture; Delete removes it"));
    update();
}

void AcceptDragImageView::setStrImagePath(const QString& path) {
    strImagePath_ = path;
    if (path.isEmpty())
        return;
    const QImage image = loaded(path);
    if (!image.isNull())
        setImgShow(cover(image));
}

bool AcceptDragImageView::hasImageFile(const QStringList& paths) {
    for (const QString& path : paths) {
        const QImage image = loaded(path);
        if (image.isNull())
            continue;
        strImagePath_ = path;
        setImgShow(cover(image));
        Q_EMIT imageChanged();
        return true;
    }
    return false;
}

void AcceptDragImageView::takeImage(const QImage& image) {
    if (image.isNull())
        return;
    strImagePath_.clear();
    setImgShow(cover(image));
    Q_EMIT imageChanged();
}

void AcceptDragImageView::removeImage() {
    if (imgShow_.isNull())
        return;
    setImgShow({});
    setStrImagePath({});
    Q_EMIT imageChanged();
}

void AcceptDragImageView::dragEnterEvent(QDragEnterEvent* event) {
    dragOver_ = event->source() != this;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    update();
}

void AcceptDragImageView::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void AcceptDragImageView::dragLeaveEvent(QDragLeaveEvent*) {
    dragOver_ = false;
    update();
}

void AcceptDragImageView::dropEvent(QDropEvent* event) {
    dragOver_ = false;
    update();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (event->source() == this)
        return; // dropped back on its source
    (void)takeData(*event->mimeData());
}

bool AcceptDragImageView::takeData(const QMimeData& data) {
    // A browser supplies the address of a picture and the picture: an address that is not a local file is skipped.
    if (hasImageFile(localFiles(data)))
        return true;
    if (data.hasImage())
        takeImage(qvariant_cast<QImage>(data.imageData()));
    return data.hasImage();
}

void AcceptDragImageView::mousePressEvent(QMouseEvent* event) {
    event->accept();
    pressed_ = event->button() == Qt::LeftButton;
    pressedAt_ = event->position().toPoint();
}

void AcceptDragImageView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    const bool far = (event->position().toPoint() - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
    if (!pressed_ || !(event->buttons() & Qt::LeftButton) || !far || imgShow_.isNull())
        return;
    pressed_ = false;
    startDrag();
}

QImage AcceptDragImageView::plainImage() const {
    QImage plain = imgShow_;
    plain.setDevicePixelRatio(1);
    return plain;
}

void AcceptDragImageView::startDrag() {
    // Qt deletes it when the other program has fetched the picture, possibly after exec() has returned.
    auto* const drag = new QDrag(this);
    auto* const data = new QMimeData;
    data->setImageData(plainImage());
    drag->setMimeData(data);
    const QPixmap shown = QPixmap::fromImage(imgShow_);
    drag->setPixmap(shown);
    drag->setHotSpot(QRectF(QPointF(), shown.deviceIndependentSize()).center().toPoint());
    // Where no program accepts the picture, it is removed.
    drag->setDragCursor(NamedImages::pixmap(u"delete"_s, {24, 24}, devicePixelRatioF()), Qt::IgnoreAction);
    EscapeWatch escape;
    (void)drag->exec(Qt::CopyAction, Qt::CopyAction);
    if (escape.wasPressed())
        return; // the user cancelled
    if (!rect().contains(mapFromGlobal(QCursor::pos())))
        removeImage();
}

void AcceptDragImageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        removeImage();
    else if (event->matches(QKeySequence::Copy) && !imgShow_.isNull())
        QGuiApplication::clipboard()->setImage(plainImage());
    else if (event->matches(QKeySequence::Paste))
        (void)takeData(*QGuiApplication::clipboard()->mimeData());
    else if (event->key() == Qt::Key_Space)
        Q_EMIT fileWanted();
    else
        QWidget::keyPressEvent(event);
}

QRectF AcceptDragImageView::wellRect() const {
    const double side = std::min(width(), height()) - 2;
    QRectF well(0, 0, side, side);
    well.moveCenter(QRectF(rect()).center());
    return well;
}

void AcceptDragImageView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF well = wellRect();
    QPainterPath shape;
    shape.addRoundedRect(well, kRadius, kRadius);
    painter.fillPath(shape, palette().color(QPalette::Base));
    if (!imgShow_.isNull()) {
        painter.save();
        painter.setClipPath(shape);
        painter.drawImage(well, imgShow_, QRectF(QPointF(), QSizeF(imgShow_.size())));
        painter.restore();
    }
    QColor frame = palette().color(QPalette::Text);
    frame.setAlphaF(0.35F);
    QPen pen(frame, 1, imgShow_.isNull() ? Qt::DashLine : Qt::SolidLine);
    if (dragOver_ || hasFocus())
        pen = QPen(palette().color(QPalette::Highlight), 2);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
}
