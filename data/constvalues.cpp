// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/constvalues.h"

#include "data/literals.h"
#include "platform/data_error.h"
#include "platform/database/recordset.h"

#include <algorithm>

using namespace Qt::StringLiterals;

constvalue& constvalues::Add(const QString& value, const QString& dispvalue, const QString& key) {
    if (!key.isEmpty() && Item(key) != nullptr) {
        throw DataError(DataError::Kind::duplicate_key, key);
    }
    return items_.emplace_back(item{{value, dispvalue}, key});
}

const constvalue* constvalues::Item(qsizetype index) const {
    return index < 1 || index > Count() ? nullptr : &items_[static_cast<size_t>(index - 1)];
}

const constvalue* constvalues::Item(const QString& key) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&key](const item& candidate) { return candidate.key == key; });
    return key.isEmpty() || found == items_.end() ? nullptr : &*found;
}

void constvalues::Remove(qsizetype index) {
    if (Item(index) != nullptr) {
        items_.erase(items_.begin() + (index - 1));
    }
}

void constvalues::load(const QString& connection_string, const QString& group) {
    Recordset rs;
    rs.set_ActiveConnection(connection_string);
    rs.Open(u"select * from CONSTS where no=%1"_s.arg(literal(group)));
    for (; !rs.Eof(); rs.MoveNext()) {
        const QString value = rs.Fields(u"value"_s).toString();
        // A value that stands in the table twice keeps its first key.
        Add(value, rs.Fields(u"dispvalue"_s).toString(),
            Item(value) == nullptr ? value : QString());
    }
}
