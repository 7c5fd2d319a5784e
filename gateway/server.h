// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/client_link.h"
#include "gateway/intake.h"
#include "gateway/postman.h"
#include "gateway/stillness.h"

#include <QList>
#include <QObject>
#include <QTcpServer>

namespace gateway {

/// Serves the clients: their frames go to the intake and are answered, what the postman has goes
/// out to them. Holds how many there may be.
class server : public QObject {
    Q_OBJECT

public:
    /// Clients served at once, less where the system allows this process fewer open files.
    static constexpr int max_clients = 500;

    /// All that is handed in outlives the server.
    server(intake& taking, postman& received, clock& time, int links_per_address);

    /// Listens; port 0 takes any free one. Gives the reason if it cannot, else nothing.
    [[nodiscard]] QString listen(const endpoint& place);
    /// Listens on a socket that already does. What its clients sent while nobody read may be
    /// several frames in one piece, and is not trusted.
    [[nodiscard]] QString adopt(qintptr listener);

    [[nodiscard]] int client_count() const { return static_cast<int>(links_.size()); }

    /// The address and the port it listens on.
    [[nodiscard]] endpoint place() const;

    /// Lets nobody in any more, answers what has come and ends every link in order. `ended` is
    /// called when all are gone, or after a time.
    void end(const std::function<void()>& ended);

signals:
    /// The last link is gone.
    void emptied();

private:
    void accept_clients();
    void add_client(QTcpSocket* socket);
    void remove_client(client_link* link, const QString& reason);
    /// Makes room by dropping a link that never sent a frame; false if there is none.
    bool drop_silent(const QString& client, const QString& reason);
    [[nodiscard]] int count_links(const QString& client) const;
    void take_frame(client_link* link, const QByteArray& frame, qint64 read_at);
    void end_earlier_links(const client_link* link);
    void distrust_all();

    intake& intake_;
    postman& postman_;
    clock& clock_;
    int links_per_address_;
    int most_links_;
    QTcpServer listener_;
    QList<client_link*> links_;
    stillness stillness_;
    qint64 trusted_from_ = 0; ///< what new clients have sent before they are let in
    std::unique_ptr<alarm> accept_again_;
    std::unique_ptr<alarm> end_links_;
    std::unique_ptr<alarm> ended_;
};

} // namespace gateway
