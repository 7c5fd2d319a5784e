// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/postman.h"

#include "gateway/client_link.h"
#include "gateway/numbers.h"
#include "gateway/relay_rules.h"
#include "gateway/try_store.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace gateway {

postman::postman(store& file, clock& time, number_settings numbers)
    : store_(file), clock_(time), numbers_(std::move(numbers)), rows_(file) {}

void postman::add(client_link* link) {
    links_.append(link);
    QObject::connect(link, &client_link::confirmed, link, [this](qint64 id) { confirm(id); });
    QObject::connect(link, &client_link::written, link, [this](qint64 id) {
        try_store([&] { rows_.set_written(id, clock_.now()); });
    });
    look();
}

void postman::remove(client_link* link) {
    links_.removeOne(link);
    if (link == current_) {
        current_ = nullptr;
        look();
    }
}

client_link* postman::choose() const {
    const auto spoken = std::find_if(links_.begin(), links_.end(),
                                     [](const client_link* link) { return link->has_spoken(); });
    return spoken != links_.end() ? *spoken : links_.value(0);
}

void postman::look() {
    if (store_.database().in_transaction()) {
        return; // what is not kept yet goes to nobody
    }
    client_link* const wanted = current_ == nullptr || current_->can_bring() ? choose() : current_;
    if (wanted != current_) {
        current_ = wanted;
        brought_ = 0;
    }
    if (current_ == nullptr || !current_->can_bring()) {
        return;
    }
    std::optional<waiting_message> next;
    if (try_store([&] { next = rows_.waiting_after(brought_); }) && next) {
        brought_ = next->id;
        current_->bring(next->id, for_client(*next));
    }
}

void postman::confirm(qint64 id) {
    // Where this fails, the message comes again to the next client.
    try_store([&] { rows_.set_confirmed(id, clock_.now()); });
    look();
}

received_message postman::for_client(const waiting_message& message) const {
    const QString sender = message.mobile.isEmpty() ? sender_field(numbers_, message.sender)
                                                    : u"00"_s + message.mobile;
    return {sender.left(max_sender_length), message.time, text_for_client(message.text)};
}

bool postman::keep(const incoming_message& message) {
    const bool kept = try_store([&] { rows_.insert(message); });
    look();
    return kept;
}

bool postman::keep(const incoming_part& part) {
    const bool kept = try_store([&] {
        joined_transaction all(store_.database());
        rows_.insert(part, clock_.now());
        all.commit();
    });
    look();
    return kept;
}

} // namespace gateway
