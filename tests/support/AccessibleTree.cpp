// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/AccessibleTree.h"

#include "tests/support/WaitFor.h"

#include <QCoreApplication>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString reader() {
    return QStringLiteral(SONAPHEX_BIN_DIR "/sonaphex_test_reader");
}

/// Runs the reader while this process answers it. @return its output; null when it failed
QString run(const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(reader(), QStringList{arguments.first(), QString::number(getpid())} + arguments.mid(1));
    // Without waitForFinished(): the reader's calls are answered by this event loop.
    if (!waitFor([&] { return process.state() == QProcess::NotRunning; }, 120000) || process.exitCode() != 0)
        return {};
    const QString output = QString::fromUtf8(process.readAllStandardOutput());
    return output.isNull() ? u""_s : output;
}

AccessibleTree::Node parsed(const QString& line) {
    const QStringList fields = line.split(u'\t');
    AccessibleTree::Node node;
    node.depth = fields.value(0).toInt();
    node.role = fields.value(1);
    node.name = fields.value(2);
    node.description = fields.value(3);
    node.states = fields.value(4).split(u',', Qt::SkipEmptyParts);
    if (const QStringList numbers = fields.value(5).split(u','); numbers.size() == 3)
        node.value = {numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble()};
    if (const QStringList place = fields.value(6).split(u','); place.size() == 4)
        node.place = {place[0].toInt(), place[1].toInt(), place[2].toInt(), place[3].toInt()};
    return node;
}

} // namespace

namespace AccessibleTree {

QList<Node> read() {
    QList<Node> tree;
    for (const QString& line : run({u"tree"_s}).split(u'\n', Qt::SkipEmptyParts))
        tree.append(parsed(line));
    return tree;
}

QString text(const QList<Node>& tree) {
    QString all;
    for (const Node& node : tree) {
        all += QString(qsizetype(node.depth) * 2, u' ') + node.role + u" “"_s + node.name + u"”"_s;
        if (!node.description.isEmpty() && node.description != node.name)
            all += u" ("_s + node.description + u")"_s;
        if (node.value)
            all += u" = %1 of %2 to %3"_s.arg(node.value->now).arg(node.value->minimum).arg(node.value->maximum);
        QStringList shown;
        for (const QString& state : {u"focusable"_s, u"focused"_s, u"checked"_s, u"pressed"_s, u"selected"_s,
                                     u"editable"_s, u"read-only"_s, u"expanded"_s, u"default"_s})
            if (node.has(state))
                shown.append(state);
        if (!node.has(u"enabled"_s))
            shown.append(u"disabled"_s);
        if (!node.has(u"showing"_s))
            shown.append(u"hidden"_s);
        all += (shown.isEmpty() ? QString() : u" ["_s + shown.join(u", ") + u"]"_s) + u'\n';
    }
    return all;
}

std::optional<Node> find(const QList<Node>& tree, const QString& name) {
    for (const Node& node : tree)
        if (node.name == name && node.has(u"showing"_s))
            return node;
    return std::nullopt;
}

bool setValue(const QString& name, double number) {
    return !run({u"set"_s, name, QString::number(number)}).isNull();
}

bool press(const QString& name) {
    return !run({u"press"_s, name}).isNull();
}

Listener::Listener() {
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.start(reader(), {u"listen"_s, QString::number(getpid())});
    listening_ = waitFor([this] { return heard().contains(u"listening"_s); });
}

Listener::~Listener() {
    process_.closeWriteChannel();
    if (!waitFor([this] { return process_.state() == QProcess::NotRunning; })) {
        process_.kill();
        process_.waitForFinished();
    }
}

QStringList Listener::heard() {
    while (process_.canReadLine())
        lines_.append(QString::fromUtf8(process_.readLine()).trimmed());
    return lines_;
}

bool Listener::heardAnnouncement(const QString& text) {
    return waitFor([&] {
        for (const QString& line : heard()) {
            const QStringList fields = line.split(u'\t');
            const bool appears = fields[0] == u"object:state-changed:showing"_s && fields.value(1) == u"1"_s;
            // Newer versions of Qt have an event for it.
            if ((appears || fields[0].startsWith(u"object:announcement"_s)) && fields.value(2) == u"notification"_s &&
                fields.value(3) == text)
                return true;
        }
        return false;
    });
}

} // namespace AccessibleTree
