// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Source/View/NamedImages.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

// Outside any namespace, as the macro requires. The linker drops resources of a static library unless their initialiser
// is called by name.
static void initResources() {
    Q_INIT_RESOURCE(sonaphex);
}

namespace {

QString folder() {
    static const bool once = [] {
        initResources();
        return true;
    }();
    Q_UNUSED(once)
    return u":/images/"_s;
}

QByteArray source(const QString& name) {
    static QHash<QString, QByteArray> sources;
    const auto known = sources.constFind(name);
    if (known != sources.constEnd())
        return *known;
    QFile file(folder() + name);
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    sources.insert(name, text);
    return text;
}

QColor textColor(QPalette::ColorGroup group = QPalette::Active) {
    return QGuiApplication::palette().color(group, QPalette::ButtonText);
}

// Inserts the colour into the text of the drawing: the renderer treats "currentColor" as black.
QByteArray recolored(const QString& name, const QColor& color) {
    return QByteArray(source(name)).replace("currentColor", color.name(QColor::HexRgb).toLatin1());
}

void render(QPainter& painter, const QRectF& rect, const QString& name, const QColor& color) {
    QSvgRenderer renderer(recolored(name, color));
    if (!renderer.isValid())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (color.alphaF() < 1)
        painter.setOpacity(painter.opacity() * color.alphaF());
    renderer.render(&painter, rect);
    painter.restore();
}

QPixmap rendered(const QString& name, QSize pixels, const QColor& color) {
    const QString key = u"%1/%2x%3/%4"_s.arg(name).arg(pixels.width()).arg(pixels.height()).arg(color.rgba(), 0, 16);
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    render(painter, QRectF(QPointF(), QSizeF(pixels)), name, color);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

// A drawing's own colours do not follow the palette's disabled group, so they are desaturated.
QPixmap faded(const QPixmap& pixmap, const QColor& towards) {
    QPixmap result(pixmap.size());
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(0.55);
    painter.drawPixmap(0, 0, pixmap);
    painter.setOpacity(1);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    QColor veil = towards;
    veil.setAlphaF(0.85F);
    painter.fillRect(QRectF(QPointF(), pixmap.deviceIndependentSize()), veil);
    return result;
}

class DrawingEngine : public QIconEngine {
public:
    explicit DrawingEngine(QString name, NamedImages::ColorOf colorOf = {})
        : name_(std::move(name)), colorOf_(std::move(colorOf)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1;
        QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(NamedImages::onWholePixels(*painter, rect.topLeft()), picture);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QSize fitted = NamedImages::naturalSize(name_).scaled(size, Qt::KeepAspectRatio);
        if (fitted.isEmpty())
            return {};
        if (colorOf_)
            return rendered(name_, fitted, colorOf_(mode));
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Disabled:
            return faded(rendered(name_, fitted, textColor(QPalette::Disabled)), textColor(QPalette::Disabled));
        case QIcon::Selected:
            return rendered(name_, fitted, palette.color(QPalette::Active, QPalette::HighlightedText));
        default:
            return rendered(name_, fitted, textColor());
        }
    }
    QSize actualSize(const QSize& size, QIcon::Mode, QIcon::State) override {
        return NamedImages::naturalSize(name_).scaled(size, Qt::KeepAspectRatio);
    }
    QIconEngine* clone() const override { return new DrawingEngine(name_, colorOf_); }
    QString key() const override { return u"sonaphex-drawing"_s; }
    QString iconName() override { return name_; }
    bool isNull() override { return !NamedImages::exists(name_); }

private:
    QString name_;
    NamedImages::ColorOf colorOf_; ///< empty: the palette's colours
};

} // namespace

namespace NamedImages {

QStringList names() {
    return QDir(folder()).entryList(QDir::Files, QDir::Name);
}

bool exists(const QString& name) {
    return !name.isEmpty() && !name.contains(u'/') && !source(name).isEmpty();
}

QIcon icon(const QString& name) {
    return exists(name) ? QIcon(new DrawingEngine(name)) : QIcon();
}

QIcon icon(const QString& name, ColorOf colorOf) {
    return exists(name) ? QIcon(new DrawingEngine(name, std::move(colorOf))) : QIcon();
}

QSize naturalSize(const QString& name) {
    static QHash<QString, QSize> sizes;
    const auto known = sizes.constFind(name);
    if (known != sizes.constEnd())
        return *known;
    const QSize size = exists(name) ? QSvgRenderer(source(name)).defaultSize() : QSize();
    sizes.insert(name, size);
    return size;
}

QPixmap pixmap(const QString& name, QSize size, qreal ratio, const QColor& color) {
    if (!exists(name) || size.isEmpty())
        return {};
    QPixmap picture = rendered(name, (QSizeF(size) * ratio).toSize(), color.isValid() ? color : textColor());
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void draw(QPainter& painter, const QRectF& rect, const QString& name, const QColor& color) {
    if (exists(name))
        render(painter, rect, name, color.isValid() ? color : textColor());
}

QPointF onWholePixels(const QPainter& painter, QPointF place) {
    const QTransform toDevice = painter.deviceTransform();
    return toDevice.inverted().map(QPointF(toDevice.map(place).toPoint()));
}

} // namespace NamedImages
