// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/list_command.h"

#include "gateway/console.h"
#include "gateway/store.h"
#include "gateway/texts.h"
#include "platform/data_error.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

QString time_text(qint64 milliseconds) {
    return QDateTime::fromMSecsSinceEpoch(milliseconds).toString(Qt::ISODateWithMs);
}

QString as_json(const row_store& rows, qsizetype row) {
    const QJsonObject line{
        {u"id"_s, rows.integer(row, 0)},       {u"time"_s, time_text(rows.integer(row, 1))},
        {u"state"_s, rows.text(row, 2)},       {u"number"_s, rows.text(row, 3)},
        {u"text"_s, rows.text(row, 4)},        {u"reason"_s, rows.text(row, 5)},
        {u"absorbed"_s, rows.integer(row, 6)}, {u"attempts"_s, rows.integer(row, 7)},
    };
    return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

QString as_line(const row_store& rows, qsizetype row) {
    const QString reason = rows.text(row, 5);
    return u"%1  %2  %3  %4  %5%6"_s.arg(rows.text(row, 0), time_text(rows.integer(row, 1)),
                                         rows.text(row, 2), rows.text(row, 3),
                                         rows.text(row, 4).replace(u'\n', u' '),
                                         reason.isEmpty() ? reason : u"  ("_s + reason + u')');
}

} // namespace

int list_messages(const options& wanted) {
    try {
        store file(wanted.values.gateway.state_dir, store::user::reader);
        const row_store rows = file.database().rows(
            u"SELECT id, taken_at, state, number, text, coalesce(reason, ''), absorbed, attempts FROM message WHERE ?1 IN ('', state) AND taken_at >= ?2 ORDER BY id"_s,
            {wanted.state, wanted.since});
        for (qsizetype row = 0; row < rows.rows(); ++row) {
            print((wanted.json ? as_json(rows, row) : as_line(rows, row)) + u'\n');
        }
        return EXIT_SUCCESS;
    } catch (const DataError& error) {
        complain(texts::tr("cannot read the store in %1: %2")
                     .arg(wanted.values.gateway.state_dir, error.detail()));
        return EXIT_FAILURE;
    }
}

} // namespace gateway
