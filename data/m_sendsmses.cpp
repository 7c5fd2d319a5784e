// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/m_sendsmses.h"

#include "platform/data_error.h"

#include <algorithm>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

QString m_sendsmses::key_of(qint16 smsid) {
    return u's' + QString::number(smsid);
}

m_sendsms& m_sendsmses::Add(QString cname, const QDateTime& stime, const QDateTime& rtime,
                            bool sendisok, QString sms, qint16 cid, QString mobile, qint16 smsid,
                            const QString& /*sKey*/) {
    if (contains(smsid)) {
        throw DataError(DataError::Kind::duplicate_key, key_of(smsid));
    }
    queued_.set(place_of(smsid));
    m_sendsms& added = items_.emplaceBack();
    added.smsid = smsid;
    added.mobile = std::move(mobile);
    added.cid = cid;
    added.sms = std::move(sms);
    added.sendisok = sendisok;
    added.rtime = rtime;
    added.stime = stime;
    added.cname = std::move(cname);
    return added;
}

m_sendsms* m_sendsmses::Item(qsizetype index) {
    return index < 1 || index > Count() ? nullptr : &items_[index - 1];
}

m_sendsms* m_sendsmses::Item(const QString& key) {
    return Item(index_of(key));
}

qsizetype m_sendsmses::Count() const {
    return std::ssize(items_);
}

void m_sendsmses::Remove(qsizetype index) {
    if (const m_sendsms* item = Item(index)) {
        queued_.reset(place_of(item->smsid));
        items_.erase(std::next(items_.begin(), index - 1));
    }
}

void m_sendsmses::Remove(const QString& key) {
    Remove(index_of(key));
}

void m_sendsmses::keep_first(qsizetype count) {
    const auto first = std::next(items_.begin(), qMin(count, Count()));
    std::for_each(first, items_.end(),
                  [this](const m_sendsms& item) { queued_.reset(place_of(item.smsid)); });
    items_.erase(first, items_.end());
}

/// Where the message with this key stands, from 1; 0 when there is none.
qsizetype m_sendsmses::index_of(const QString& key) const {
    bool ok = false;
    const qint16 smsid = key.sliced(qMin<qsizetype>(1, key.size())).toShort(&ok);
    if (!ok || key_of(smsid) != key || !contains(smsid)) {
        return 0;
    }
    const auto item = std::find_if(items_.begin(), items_.end(), [smsid](const m_sendsms& queued) {
        return queued.smsid == smsid;
    });
    return std::distance(items_.begin(), item) + 1;
}
