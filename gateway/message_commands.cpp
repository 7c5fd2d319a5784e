// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/message_commands.h"

#include "gateway/console.h"
#include "gateway/relay_rules.h"
#include "gateway/store.h"
#include "gateway/texts.h"
#include "platform/data_error.h"

#include <QDateTime>
#include <QFile>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// Works on the store of the options; the reason why it cannot be done, or nothing, comes back.
int in_store(const options& wanted, store::user who,
             const std::function<QString(physical_database&)>& work) {
    const QString& folder = wanted.values.gateway.state_dir;
    try {
        store file(folder, who);
        const QString fault = work(file.database());
        if (!fault.isEmpty()) {
            complain(fault);
        }
        return fault.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const DataError& error) {
        complain(texts::tr("cannot use the store in %1: %2").arg(folder, error.detail()));
        return EXIT_FAILURE;
    }
}

QString no_message(message_id id) {
    return texts::tr("there is no message %1").arg(id);
}

QString time_text(const QString& milliseconds) {
    return milliseconds.isEmpty() ? QString()
                                  : QDateTime::fromMSecsSinceEpoch(milliseconds.toLongLong())
                                        .toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

void print_field(const QString& label, const QString& value) {
    if (!value.isEmpty()) {
        print(u"%1: %2\n"_s.arg(label, value));
    }
}

void print_message(const QStringList& row) {
    print_field(texts::tr("message"), row.at(0));
    print_field(texts::tr("state"), row.at(1));
    print_field(texts::tr("since"), time_text(row.at(2)));
    print_field(texts::tr("reason"), row.at(3));
    print_field(texts::tr("taken"), time_text(row.at(4)));
    print_field(texts::tr("client"), row.at(5));
    print_field(texts::tr("answer to the client"), row.at(6));
    print_field(texts::tr("repeats taken for it"), row.at(7));
    print_field(texts::tr("mobile"), row.at(8));
    print_field(texts::tr("number for the network"), row.at(9));
    print_field(texts::tr("attempts"), row.at(10));
    print_field(texts::tr("next attempt"), time_text(row.at(11)));
    print_field(texts::tr("the network's reference"), row.at(12));
    print_field(texts::tr("text"), row.at(13));
}

/// Changes the state of a message that is in one where it may, and lets the daemon look.
int decide(const options& wanted, bool (*may)(message_state), const QString& statement,
           const QString& event) {
    return in_store(wanted, store::user::writer, [&](physical_database& database) {
        transaction all(database);
        const auto found =
            database.texts(u"SELECT state FROM message WHERE id = ?1"_s, {wanted.id});
        if (found.isEmpty()) {
            return no_message(wanted.id);
        }
        const QString& state = found.first().first();
        if (!may(state_named(state).value_or(message_state::handing))) {
            return texts::tr("message %1 is %2: nothing is changed").arg(wanted.id).arg(state);
        }
        const qint64 now = QDateTime::currentMSecsSinceEpoch();
        database.execute(statement, {wanted.id, now});
        // With the time as its reference: a person may decide the same thing again.
        database.execute(u"INSERT OR IGNORE INTO event (message, at, fate, ref, reason) VALUES "
                         "(?1, ?2, ?3, ?2, '')"_s,
                         {wanted.id, now, event});
        all.commit();
        QFile nudge(store::nudge_in(wanted.values.gateway.state_dir));
        if (!nudge.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) || nudge.write("\n") != 1) {
            complain(texts::tr("no gateway is told of it: %1").arg(nudge.errorString()));
        }
        return QString();
    });
}

} // namespace

int show_message(const options& wanted) {
    return in_store(wanted, store::user::reader, [&wanted](physical_database& database) {
        const auto found = database.texts(
            u"SELECT id, state, since, reason, taken_at, client, answer, nullif(absorbed, 0), "
            "mobile, number, attempts, next_at, network_ref, text FROM message WHERE id = ?1"_s,
            {wanted.id});
        if (found.isEmpty()) {
            return no_message(wanted.id);
        }
        print_message(found.first());
        for (const QStringList& event : database.texts(
                 u"SELECT at, fate, ref, reason FROM event WHERE message = ?1 ORDER BY at"_s,
                 {wanted.id})) {
            const bool by_person = event.at(2) == event.at(0);
            print(u"  %1  %2\n"_s.arg(
                time_text(event.at(0)),
                QStringList{event.at(1), by_person ? QString() : event.at(2), event.at(3)}
                    .join(u"  "_s)
                    .trimmed()));
        }
        return QString();
    });
}

int resend_message(const options& wanted) {
    return decide(wanted, can_be_resent,
                  u"UPDATE message SET state = 'queued', since = ?2, next_at = ?2, reason = NULL, "
                  "done_at = NULL WHERE id = ?1"_s,
                  u"resent"_s);
}

int drop_message(const options& wanted) {
    return decide(wanted, can_be_dropped,
                  u"UPDATE message SET state = 'dropped', since = ?2, next_at = NULL, done_at = ?2 "
                  "WHERE id = ?1"_s,
                  u"dropped"_s);
}

} // namespace gateway
