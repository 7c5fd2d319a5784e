// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/m_sendsmses.h"

#include "platform/data_error.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

QString m_sendsmses::key_of(qint16 smsid) {
    return u's' + QString::number(smsid);
}

m_sendsms& m_sendsmses::Add(const QString& cname, const QDateTime& stime, const QDateTime& rtime,
                            bool sendisok, const QString& sms, qint16 cid, const QString& mobile,
                            qint16 smsid, const QString& /*sKey*/) {
    if (contains(smsid)) {
        throw DataError(DataError::Kind::duplicate_key, key_of(smsid));
    }
    places_.insert(smsid, next_place_);
    const auto added = items_.emplace_hint(items_.end(), next_place_,
                                           m_sendsms{.smsid = smsid,
                                                     .mobile = mobile,
                                                     .cid = cid,
                                                     .sms = sms,
                                                     .sendisok = sendisok,
                                                     .rtime = rtime,
                                                     .stime = stime,
                                                     .cname = cname});
    ++next_place_;
    return added->second;
}

m_sendsms* m_sendsmses::Item(qsizetype index) {
    const auto item = find(index);
    return item == items_.end() ? nullptr : &item->second;
}

m_sendsms* m_sendsmses::Item(const QString& key) {
    const auto item = find(key);
    return item == items_.end() ? nullptr : &item->second;
}

qsizetype m_sendsmses::Count() const {
    return std::ssize(items_);
}

void m_sendsmses::Remove(qsizetype index) {
    remove(find(index));
}

void m_sendsmses::Remove(const QString& key) {
    remove(find(key));
}

void m_sendsmses::keep_first(qsizetype count) {
    const auto first = std::next(items_.begin(), qMin(count, Count()));
    std::for_each(first, items_.end(),
                  [this](const auto& item) { places_.remove(item.second.smsid); });
    items_.erase(first, items_.end());
}

std::map<m_sendsmses::place, m_sendsms>::iterator m_sendsmses::find(qsizetype index) {
    return index < 1 || index > Count() ? items_.end() : std::next(items_.begin(), index - 1);
}

std::map<m_sendsmses::place, m_sendsms>::iterator m_sendsmses::find(const QString& key) {
    bool ok = false;
    const qint16 smsid = key.sliced(qMin<qsizetype>(1, key.size())).toShort(&ok);
    if (!ok || key_of(smsid) != key || !contains(smsid)) {
        return items_.end();
    }
    return items_.find(places_.value(smsid));
}

void m_sendsmses::remove(std::map<place, m_sendsms>::iterator item) {
    if (item != items_.end()) {
        places_.remove(item->second.smsid);
        items_.erase(item);
    }
}
