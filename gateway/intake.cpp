// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/intake.h"

#include "gateway/numbers.h"
#include "gateway/try_store.h"

#include <QCryptographicHash>

#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace gateway {

intake::intake(store& file, clock& time, number_settings numbers, std::function<void()> taken)
    : store_(file),
      clock_(time),
      numbers_(std::move(numbers)),
      taken_(std::move(taken)),
      rows_(file),
      quiet_(time.make_alarm([this] { close_quiet(); })) {
    rows_.open_owed();
}

taking intake::take(const QString& client, const QByteArray& frame, qint64 read_at,
                    std::optional<earlier_answer> before) {
    clients_[client].active_at = clock_.steady();
    if (before && !before->written) {
        lost_.insert(before->id);
        opened(client);
    }
    taking result{verdict::failed};
    const bool kept = try_store([&] {
        transaction all(store_.database());
        settle_earlier(before);
        if (const auto message = read(client, frame)) {
            result = keep(*message);
        }
        all.commit();
    });
    const bool is_late = clock_.steady() - read_at > latest_answer.count();
    if (!kept) {
        return is_late ? taking() : taking{verdict::failed};
    }
    lost_.clear();
    if (result.id == 0) {
        return result;
    }
    taken_();
    if (is_late) {
        leave_open(client, result.id);
        return {};
    }
    return result;
}

void intake::settle_earlier(std::optional<earlier_answer> before) {
    for (const message_id id : std::as_const(lost_)) {
        rows_.set_answer(id, answer_state::open);
    }
    if (before && before->written) {
        rows_.set_answer(before->id, answer_state::confirmed);
    }
}

std::optional<taken_message> intake::read(const QString& client, const QByteArray& frame) const {
    const auto submitted = parse_submission(frame);
    const auto number =
        submitted ? network_number(numbers_, submitted->mobile) : std::optional<QString>();
    if (!number || submitted->text.isEmpty()) {
        return std::nullopt;
    }
    const QByteArray digest = QCryptographicHash::hash(frame, QCryptographicHash::Sha256);
    return taken_message{client, submitted->mobile, *number, submitted->text,
                         QString::fromLatin1(digest.toBase64())};
}

taking intake::keep(const taken_message& message) {
    const auto open = rows_.find_open(message, clock_.now() - longest_open.count());
    if (open) {
        rows_.absorb(*open);
    }
    return {verdict::sent, open ? *open : rows_.insert(message, clock_.now())};
}

void intake::confirm(message_id id) {
    // Where it fails the row stays owed, and is open after the next start: looked for in vain.
    try_store([&] { rows_.set_answer(id, answer_state::confirmed); });
}

void intake::leave_open(const QString& client, message_id id) {
    lost_.insert(id);
    if (try_store([&] { rows_.set_answer(id, answer_state::open); })) {
        lost_.remove(id);
    }
    opened(client);
}

void intake::count_links(const QString& client, int links) {
    clients_[client] = {links, clock_.steady()};
    bool may_repeat = false;
    if (links == 0) {
        clients_.remove(client);
    } else if (try_store([&] { may_repeat = rows_.has_open(client); }) && may_repeat) {
        opened(client);
    }
}

void intake::opened(const QString& client) {
    with_open_.insert(client);
    if (!quiet_->is_set()) {
        quiet_->set(30s);
    }
}

void intake::close_quiet() {
    const qint64 quiet_since = clock_.steady() - quiet_until_closed.count();
    for (const QString& client : with_open_.values()) {
        const auto found = clients_.constFind(client);
        if (found == clients_.cend()) {
            with_open_.remove(client); // looked for when it comes again
        } else if (found->active_at <= quiet_since) {
            if (try_store([&] { rows_.close_open(client); })) {
                with_open_.remove(client);
            }
        }
    }
    if (!with_open_.isEmpty()) {
        quiet_->set(30s);
    }
}

} // namespace gateway
