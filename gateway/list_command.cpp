// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/list_command.h"

#include "gateway/console.h"
#include "gateway/message_text.h"
#include "gateway/store.h"
#include "platform/bound_statement.h"
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

QString as_json(const bound_statement& row) {
    const QJsonObject line{
        {u"id"_s, row.integer(0)},       {u"time"_s, time_text(row.integer(1))},
        {u"state"_s, row.text(2)},       {u"number"_s, row.text(3)},
        {u"text"_s, row.text(4)},        {u"reason"_s, row.text(5)},
        {u"absorbed"_s, row.integer(6)}, {u"attempts"_s, row.integer(7)},
    };
    return QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact));
}

QString as_line(const bound_statement& row) {
    QString text = row.text(4);
    return u"%1  %2  %3  %4  %5"_s.arg(row.text(0), time_text(row.integer(1)), row.text(2),
                                       row.text(3), text.replace(u'\n', u' '));
}

} // namespace

int list_messages(const options& wanted) {
    try {
        store file(wanted.values.gateway.state_dir, store::user::reader);
        bound_statement rows(
            file.database(),
            u"SELECT id, taken_at, state, number, text, coalesce(reason, ''), "
            "absorbed, attempts FROM message WHERE ?1 IN ('', state) ORDER BY id"_s);
        rows.start({wanted.state});
        while (rows.next()) {
            print((wanted.json ? as_json(rows) : as_line(rows)) + u'\n');
        }
        return EXIT_SUCCESS;
    } catch (const DataError& error) {
        complain(say("cannot read the store in %1: %2")
                     .arg(wanted.values.gateway.state_dir, error.detail()));
        return EXIT_FAILURE;
    }
}

} // namespace gateway
