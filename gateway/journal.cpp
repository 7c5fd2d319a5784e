// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/journal.h"

#include "gateway/console.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace gateway {

QString journal::open(const QString& path) {
    file_.setFileName(path);
    // Unbuffered, so that a line is one write and whole lines survive a crash. A new one is for its
    // owner alone: it holds what customers write.
    const bool opened = file_.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered,
                                   QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return opened ? QString() : file_.errorString();
}

void journal::record(const submission& message, std::optional<verdict> result) {
    write(u"out"_s, message.mobile, result ? verdict_code(*result) : QString(), message.text);
}

void journal::record(const received_message& message) {
    write(u"in"_s, message.sender, {}, message.text);
}

void journal::record_unreadable(const QByteArray& frame) {
    write(u"out"_s, {}, verdict_code(verdict::failed), decode_text(frame));
}

void journal::record_disconnection(const QString& reason) {
    write(u"out"_s, {}, {}, u"client disconnected: "_s + reason);
}

void journal::write(const QString& direction, const QString& mobile, const QString& verdict_text,
                    const QString& text) {
    if (!file_.isOpen()) {
        return;
    }
    const QJsonObject entry{
        {u"time"_s, QDateTime::currentDateTime().toString(Qt::ISODateWithMs)},
        {u"direction"_s, direction},
        {u"mobile"_s, mobile},
        {u"verdict"_s, verdict_text},
        {u"text"_s, text},
    };
    const QByteArray line = QJsonDocument(entry).toJson(QJsonDocument::Compact) + '\n';
    const bool failed = file_.write(line) != line.size();
    // A full disk would otherwise be told again with every message.
    if (failed && !failing_) {
        complain(u"cannot write the journal: %1"_s.arg(file_.errorString()));
    }
    failing_ = failed;
}

} // namespace gateway
