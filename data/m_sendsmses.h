// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_sendsms.h"

#include <QHash>

#include <map>

/// The send queue: messages in the order of their arrival, each under the key "s" and its number,
/// so that a message is in it at most once.
class m_sendsmses {
public:
    /// Appends a message and returns it. Its key is made from `smsid`, whatever `sKey` says. Throws
    /// DataError (duplicate_key) when it is in the queue already.
    m_sendsms& Add(const QString& cname, const QDateTime& stime, const QDateTime& rtime,
                   bool sendisok, const QString& sms, qint16 cid, const QString& mobile,
                   qint16 smsid, const QString& sKey = {});

    /// The message at a position from 1, or under a key; nullptr when there is none.
    [[nodiscard]] m_sendsms* Item(qsizetype index);
    [[nodiscard]] m_sendsms* Item(const QString& key);
    [[nodiscard]] qsizetype Count() const;
    /// For loops over the messages in order; each is paired with its place.
    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }
    /// Removes one message; one that is not there is no error.
    void Remove(qsizetype index);
    void Remove(const QString& key);
    /// Removes all but the first `count` messages.
    void keep_first(qsizetype count);

    [[nodiscard]] static QString key_of(qint16 smsid);
    [[nodiscard]] bool contains(qint16 smsid) const { return places_.contains(smsid); }

private:
    using place = qint64; ///< grows with every message added, so the map keeps their order

    [[nodiscard]] std::map<place, m_sendsms>::iterator find(qsizetype index);
    [[nodiscard]] std::map<place, m_sendsms>::iterator find(const QString& key);
    void remove(std::map<place, m_sendsms>::iterator item);

    std::map<place, m_sendsms> items_;
    QHash<qint16, place> places_;
    place next_place_ = 0;
};
