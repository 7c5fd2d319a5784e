// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_sendsms.h"

#include <QList>

#include <bitset>

/// The send queue: messages in the order of their arrival, each under the key "s" and its number,
/// so that a message is in it at most once.
class m_sendsmses {
public:
    /// Appends a message and returns it. Its key is made from `smsid`, whatever `sKey` says. Throws
    /// DataError (duplicate_key) when it is in the queue already.
    m_sendsms& Add(QString cname, const QDateTime& stime, const QDateTime& rtime, bool sendisok,
                   QString sms, qint16 cid, QString mobile, qint16 smsid, const QString& sKey = {});

    /// The message at a position from 1, or under a key; nullptr when there is none.
    [[nodiscard]] m_sendsms* Item(qsizetype index);
    [[nodiscard]] m_sendsms* Item(const QString& key);
    [[nodiscard]] qsizetype Count() const;
    /// For loops over the messages in order.
    [[nodiscard]] auto begin() const { return items_.begin(); }
    [[nodiscard]] auto end() const { return items_.end(); }
    /// Removes one message; one that is not there is no error.
    void Remove(qsizetype index);
    void Remove(const QString& key);
    /// Removes all but the first `count` messages.
    void keep_first(qsizetype count);

    [[nodiscard]] static QString key_of(qint16 smsid);
    [[nodiscard]] bool contains(qint16 smsid) const { return queued_.test(place_of(smsid)); }

private:
    [[nodiscard]] static size_t place_of(qint16 smsid) { return static_cast<quint16>(smsid); }
    [[nodiscard]] qsizetype index_of(const QString& key) const;

    QList<m_sendsms> items_;
    std::bitset<65536> queued_; ///< by number; there are 16 bits of them
};
