// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Foundation/FileLock.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/MainQueue.h"
#include "Platform/Foundation/RunningProgram.h"
#include "Platform/Foundation/linux/RequestSocket.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>

#include <sys/stat.h>
#include <unistd.h>

namespace Platform {
namespace {

// A request may contain the keys of a whole library in one line.
constexpr qsizetype longestLine = 1 << 24;

class LinuxRunningProgram final : public RunningProgram {
public:
    explicit LinuxRunningProgram(const QString& identifier) : identifier_(identifier) {}
    ~LinuxRunningProgram() override {
        server_.reset(); // before the lock: the next holder of the lock listens at the same path
    }

    bool acquire() override {
        if (lock_.isHeld())
            return true;
        lastError_.clear();
        // The lock lies beside the folder that a launch empties: two programs that would empty the same folder then use
        // the same lock, even when their environments differ.
        const auto folder = Folders::temporary();
        if (!folder) {
            lastError_ = folder.error().text;
            return false;
        }
        const auto taken = lock_.take(*folder + u'/' + identifier_ + QStringLiteral(".lock"));
        if (taken.error().kind != Error::Kind::Busy)
            lastError_ = taken.error().text;
        return bool(taken);
    }

    bool listen(Handler handler) override {
        if (!lock_.isHeld())
            return false;
        const QString path = socketPath();
        QLocalSocket probe;
        probe.connectToServer(path);
        if (probe.waitForConnected(200)) {
            lastError_ = QCoreApplication::translate("Foundation", "%1 is already answered").arg(path);
            return false;
        }
        if (!removeDeadSocket(path))
            return false;
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
        return askOther(identifier_, request, answer, timeoutMs);
    }

    QString lastError() const override { return lastError_; }

private:
    QString socketPath() const { return requestSocket(identifier_); }

    /// Removes the socket of a killed program. Anything else at @p path is kept.
    bool removeDeadSocket(const QString& path) {
        struct stat status {};
        const QByteArray name = QFile::encodeName(path);
        if (lstat(name.constData(), &status) != 0)
            return true;
        if (!S_ISSOCK(status.st_mode) || status.st_uid != geteuid()) {
            lastError_ = QCoreApplication::translate("Foundation", "%1 is not a socket of this user").arg(path);
            return false;
        }
        return QLocalServer::removeServer(path);
    }

    void serve(QLocalSocket* client) {
        QObject::connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        QObject::connect(client, &QLocalSocket::readyRead, client, [this, client] { answerLines(client); });
        answerLines(client); // for data that arrived before the signal was connected
    }

    // The event loop may delete the socket, so this function must not run one. The work that follows an answer is
    // queued: it may open a dialog, whose loop handles this socket again.
    void answerLines(QLocalSocket* client) {
        if (!client->canReadLine() && client->bytesAvailable() > longestLine)
            client->abort(); // the line is too long
        while (client->canReadLine()) {
            if (workToBegin_ > 0) {
                MainQueue::post(client, [this, client] { answerLines(client); });
                return;
            }
            Reply reply = handler_(client->readLine().trimmed());
            client->write(reply.line.replace('\n', ' ') + '\n');
            client->flush();
            if (!reply.afterwards)
                continue;
            ++workToBegin_;
            MainQueue::post(server_.get(), [this, work = std::move(reply.afterwards)] {
                --workToBegin_;
                work();
            });
        }
    }

    QString identifier_;
    QString lastError_;
    FileLock lock_;
    Handler handler_;
    int workToBegin_ = 0; ///< answered requests whose work has not started
    std::unique_ptr<QLocalServer> server_;
};

} // namespace

std::unique_ptr<RunningProgram> RunningProgram::create(const QString& bundleIdentifier) {
    return std::make_unique<LinuxRunningProgram>(bundleIdentifier);
}

} // namespace Platform
