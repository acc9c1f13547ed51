// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/Screenshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QWidget>

namespace Screenshot {

QImage take(QWidget& widget, const QString& name, qreal ratio) {
    // Qt posts palette changes to the widgets; without this call the picture would show the old palette.
    QCoreApplication::sendPostedEvents();
    QImage image((QSizeF(widget.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    widget.render(&image);
    const QString folder = qEnvironmentVariable("SONAPHEX_SCREENSHOTS");
    if (!folder.isEmpty()) {
        QDir().mkpath(folder);
        image.save(folder + u'/' + name + QStringLiteral(".png"));
    }
    return image;
}

double coverage(const QImage& image, QRgb background) {
    if (image.isNull())
        return 0;
    qsizetype differing = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            differing += image.pixel(x, y) != background ? 1 : 0;
    return double(differing) / (double(image.width()) * image.height());
}

} // namespace Screenshot
