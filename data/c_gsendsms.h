// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_gsendsms.h"
#include "data/table_access.h"

#include <functional>

class Connection;

/// Group sends: table `gsendsms`, read through view `vwgsendsms`, expanded into `sendsms` when
/// stored. `getrec` leaves `sms` empty: the text of a stored group send is fixed. `deleterec`
/// leaves the messages made from it as they are.
class c_gsendsms : public table_access<m_gsendsms> {
public:
    /// Takes how many messages are written. Called while the transaction is open: it must not let
    /// events in.
    using progress_report = std::function<void(qsizetype done)>;

    c_gsendsms();

    /// Opens the customers, not group sends.
    void searchsms(Recordset& rs) const;
    /// Stores the group send and one pending message for each customer addressed; all of it is on
    /// disk when the call returns. After an error half-way what was written stays, and the answer
    /// is false. Tells `report` from time to time how far it has come.
    [[nodiscard]] bool addrec(const QString& sms, qint16 cid, bool imsend, qint16 isall,
                              const QDateTime& rtime, const QDateTime& stime,
                              const progress_report& report = {}) const;
    /// How many customers `addrec` would address; nothing when the database does not tell.
    [[nodiscard]] std::optional<qint32> count_addressees(qint16 cid, qint16 isall) const;
    /// Leaves the messages made from it as they are.
    [[nodiscard]] bool updaterec(qint16 gsid, qint16 cid, bool imsend, qint16 isall,
                                 const QDateTime& rtime, const QDateTime& stime) const;

    [[nodiscard]] bool add(const m_gsendsms& send, const progress_report& report = {}) const {
        return addrec(send.sms, send.cid, send.imsend, send.isall, send.rtime, send.stime, report);
    }
    [[nodiscard]] bool update(const m_gsendsms& send) const {
        return updaterec(send.gsid, send.cid, send.imsend, send.isall, send.rtime, send.stime);
    }

private:
    static void expand(Connection& connection, const m_gsendsms& send,
                       const progress_report& report);
};
