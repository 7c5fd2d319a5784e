// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/records.h"

#include "tools/command.h"
#include "tools/console.h"
#include "tools/texts.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

constexpr qint64 longest_line = 0x4000000;
/// No sound file grows more than this by being written as text, however many Nulls it holds.
constexpr qint64 growth = 32;

bool is_value(const QJsonValue& value) {
    return !value.isArray() && (!value.isObject() || value.toObject().isEmpty());
}

} // namespace

records::records(const QString& path, const QString& charset)
    : path_(path), allowance_(longest_line + growth * QFileInfo(path).size()) {
    reader_.setStandardInputFile(QProcess::nullDevice());
    reader_.setStandardErrorFile(QProcess::nullDevice());
    reader_.start(QCoreApplication::applicationFilePath(),
                  {u"read-old"_s, u"--charset"_s, charset, QFileInfo(path).absoluteFilePath()},
                  QIODevice::ReadOnly);
}

records::~records() {
    reader_.kill();
    reader_.waitForFinished();
}

void records::refuse_damaged(const QString& how) const {
    throw failure(texts::tr("%1: is damaged: %2 (see smsdb import --help)").arg(path_, how));
}

QJsonArray records::next_line() {
    // All that is there is taken at once; a line is a small part of it, or in the making.
    qsizetype end = pending_.indexOf('\n', taken_);
    while (end < 0) {
        const qsizetype seen = pending_.size() - taken_;
        pending_.remove(0, std::exchange(taken_, 0));
        if (seen >= longest_line) {
            refuse_damaged(texts::tr("reading it gives no sense"));
        }
        if (reader_.bytesAvailable() == 0 && !reader_.waitForReadyRead(-1)) {
            refuse_damaged(texts::tr("reading it came to no good end"));
        }
        pending_ += reader_.readAll();
        end = pending_.indexOf('\n', seen);
    }
    const QByteArrayView line = QByteArrayView(pending_).sliced(taken_, end - taken_);
    taken_ = end + 1;
    allowance_ -= line.size();
    QJsonArray fields =
        QJsonDocument::fromJson(QByteArray::fromRawData(line.data(), line.size())).array();
    if (fields.isEmpty() || allowance_ < 0) {
        refuse_damaged(texts::tr("reading it gives no sense"));
    }
    return fields;
}

records::record records::next() {
    QJsonArray fields = next_line();
    const QString kind = fields.takeAt(0).toString();
    const bool are_texts = std::all_of(fields.cbegin(), fields.cend(),
                                       [](const QJsonValue& field) { return field.isString(); });
    if (kind == u"end" && fields.isEmpty()) {
        return {};
    }
    if (kind == u"damaged" && fields.size() == 1 && are_texts) {
        refuse_damaged(harmless(fields.first().toString()));
    }
    if (kind == u"failed" && fields.size() == 1 && are_texts) {
        throw failure(u"%1: %2"_s.arg(path_, harmless(fields.first().toString())));
    }
    if (kind == u"table" && !fields.isEmpty() && are_texts) {
        current_ = {record::Kind::table, fields.takeAt(0).toString(), {}, {}};
        for (const auto& name : std::as_const(fields)) {
            current_.columns.append(name.toString());
        }
        return current_;
    }
    if (kind != u"row" || fields.size() != current_.columns.size() || fields.isEmpty() ||
        !std::all_of(fields.cbegin(), fields.cend(), is_value)) {
        refuse_damaged(texts::tr("reading it gives no sense"));
    }
    current_.kind = record::Kind::row;
    current_.values = fields;
    return current_;
}

} // namespace old_format
