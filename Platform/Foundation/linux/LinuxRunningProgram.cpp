// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/RunningProgram.h"

#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Platform {
namespace {

constexpr qsizetype longestLine = 1 << 16;

class LinuxRunningProgram final : public RunningProgram {
public:
    explicit LinuxRunningProgram(const QString& identifier) : identifier_(identifier) {}
    ~LinuxRunningProgram() override {
        server_.reset();
        if (lock_ >= 0)
            close(lock_); // the file stays: to remove it would let two programs lock two files of one name
    }

    bool acquire() override {
        if (lock_ >= 0)
            return true;
        lastError_.clear();
        // Beside the folder that a launch wipes: whoever would wipe the same folder meets the same lock, whatever else
        // differs between the two environments.
        QString why;
        const QString folder = Folders::temporary(&why);
        if (folder.isEmpty()) {
            lastError_ = why;
            return false;
        }
        const QString path = folder + u'/' + identifier_ + QStringLiteral(".lock");
        const QByteArray name = QFile::encodeName(path);
        for (int attempt = 0; attempt < 10; ++attempt) {
            const int file = open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
            if (file < 0) {
                lastError_ = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
                return false;
            }
            if (flock(file, LOCK_EX | LOCK_NB) != 0) {
                if (errno != EWOULDBLOCK)
                    lastError_ = QStringLiteral("%1: %2").arg(path, qt_error_string(errno));
                close(file);
                return false;
            }
            // Somebody may have removed the file between the two calls: a lock on a file without a name protects
            // nothing.
            struct stat mine {
            }, there{};
            if (fstat(file, &mine) == 0 && lstat(name.constData(), &there) == 0 && mine.st_ino == there.st_ino &&
                mine.st_dev == there.st_dev) {
                lock_ = file;
                return true;
            }
            close(file);
        }
        lastError_ = QStringLiteral("%1: the file keeps vanishing").arg(path);
        return false;
    }

    bool listen(Handler handler) override {
        if (lock_ < 0)
            return false;
        const QString path = socketPath();
        QLocalSocket probe;
        probe.connectToServer(path);
        if (probe.waitForConnected(200)) {
            lastError_ = QStringLiteral("%1 is already answered").arg(path);
            return false;
        }
        (void)QLocalServer::removeServer(path); // left by a program that was killed
        handler_ = std::move(handler);
        server_ = std::make_unique<QLocalServer>();
        server_->setSocketOptions(QLocalServer::UserAccessOption);
        QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(), [this] {
            while (QLocalSocket* client = server_->nextPendingConnection())
                serve(client);
        });
        if (server_->listen(path))
            return true;
        lastError_ = QStringLiteral("%1: %2").arg(path, server_->errorString());
        server_.reset();
        return false;
    }

    bool ask(const QByteArray& request, QByteArray& answer, int timeoutMs) override {
        QElapsedTimer timer;
        timer.start();
        const auto left = [&] { return std::max(0, timeoutMs - int(timer.elapsed())); };
        QLocalSocket socket;
        socket.connectToServer(socketPath());
        if (!socket.waitForConnected(left()))
            return false;
        QByteArray line = request;
        line.replace('\n', ' ');
        socket.write(line + '\n');
        while (socket.bytesToWrite() > 0)
            if (!socket.waitForBytesWritten(left()))
                return false;
        while (!socket.canReadLine())
            if (left() == 0 || !socket.waitForReadyRead(left()))
                return false;
        answer = socket.readLine(longestLine).trimmed();
        return true;
    }

    QString lastError() const override { return lastError_; }

private:
    QString socketPath() const { return Folders::runtime() + u'/' + identifier_ + QStringLiteral(".socket"); }

    void serve(QLocalSocket* client) {
        QObject::connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        const auto answerLines = [this, client] {
            if (!client->canReadLine() && client->bytesAvailable() > longestLine)
                client->abort(); // a line without end
            while (client->canReadLine()) {
                QByteArray answer = handler_(client->readLine(longestLine).trimmed());
                answer.replace('\n', ' ');
                client->write(answer + '\n');
            }
        };
        QObject::connect(client, &QLocalSocket::readyRead, client, answerLines);
        answerLines(); // what came before the connection of the signal
    }

    QString identifier_;
    QString lastError_;
    int lock_ = -1;
    Handler handler_;
    std::unique_ptr<QLocalServer> server_;
};

} // namespace

std::unique_ptr<RunningProgram> RunningProgram::create(const QString& bundleIdentifier) {
    return std::make_unique<LinuxRunningProgram>(bundleIdentifier);
}

} // namespace Platform
