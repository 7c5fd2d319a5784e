// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/clock.h"
#include "gateway/received_rows.h"
#include "gateway/settings.h"
#include "gateway/wire.h"

#include <QList>

namespace gateway {

class client_link;

/// Brings received messages to one client, one at a time in the order in which they came. Each
/// waits in the store until a client has surely read it; when the link ends before, the next client
/// gets it again.
class postman {
public:
    postman(store& file, clock& time, number_settings numbers);

    /// There may be something to bring.
    void look();
    /// A client came, or went.
    void add(client_link* link);
    void remove(client_link* link);

    /// Keeps a message from the network; true when it is on disk, now or already.
    [[nodiscard]] bool keep(const incoming_message& message);
    [[nodiscard]] bool keep(const incoming_part& part);
    /// The rows, for those who write more than a message in one transaction.
    [[nodiscard]] received_rows& rows() { return rows_; }

private:
    /// The client that came first, of those that have sent a message if there is one.
    [[nodiscard]] client_link* choose() const;
    void confirm(qint64 id);
    [[nodiscard]] received_message for_client(const waiting_message& message) const;

    store& store_;
    clock& clock_;
    number_settings numbers_;
    received_rows rows_;
    QList<client_link*> links_;
    client_link* current_ = nullptr;
    qint64 brought_ = 0; ///< the last that was given to the current link
};

} // namespace gateway
