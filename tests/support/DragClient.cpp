// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/DragClient.h"

#include <QApplication>
#include <QDrag>
#include <QDropEvent>
#include <QImage>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimer>
#include <QUrl>
#include <QWidget>
#include <QWindow>

#include <cstdio>
#include <cstring>

namespace DragClient {
namespace {

void say(const QByteArray& line) {
    std::printf("%s\n", line.constData());
    std::fflush(stdout);
}

class Window : public QWidget {
public:
    explicit Window(const QString& gives) : gives_(gives) {
        setWindowFlags(Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint);
        setAcceptDrops(true);
    }

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!(event->buttons() & Qt::LeftButton))
            return;
        auto* const data = new QMimeData;
        if (gives_ == QStringLiteral("image")) {
            QImage image(32, 16, QImage::Format_RGB32);
            image.fill(Qt::green);
            data->setImageData(image);
        } else {
            data->setUrls({QUrl(gives_)});
        }
        auto* const drag = new QDrag(this); // Qt deletes it
        drag->setMimeData(data);
        (void)drag->exec(Qt::CopyAction);
    }
    void dragEnterEvent(QDragEnterEvent* event) override {
        event->acceptProposedAction();
        say("entered");
    }
    void dropEvent(QDropEvent* event) override {
        const QMimeData& data = *event->mimeData();
        if (data.hasImage()) {
            const auto image = qvariant_cast<QImage>(data.imageData());
            say("dropped image " + QByteArray::number(image.width()) + 'x' + QByteArray::number(image.height()));
        } else if (data.hasUrls()) {
            say("dropped files " + QByteArray::number(data.urls().size()));
        } else {
            say("dropped nothing");
        }
        event->acceptProposedAction();
    }

private:
    QString gives_;
};

} // namespace

int run(int argc, char** argv) {
    if (argc < 5 || std::strcmp(argv[1], "--drag-client") != 0)
        return -1;
    QApplication application(argc, argv);
    Window window(QString::fromLocal8Bit(argv[4]));
    window.setGeometry(std::atoi(argv[2]), std::atoi(argv[3]), 120, 120);
    window.show();
    QTimer exposed;
    QObject::connect(&exposed, &QTimer::timeout, &window, [&] {
        if (!window.windowHandle()->isExposed())
            return;
        exposed.stop();
        say("ready");
    });
    exposed.start(10);
    return QApplication::exec();
}

} // namespace DragClient
