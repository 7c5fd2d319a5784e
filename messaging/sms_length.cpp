// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/sms_length.h"

#include "platform/gsm_alphabet.h"

#include <QList>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

struct encoding {
    qsizetype alone;    ///< units that one message holds
    qsizetype in_a_row; ///< units left in each of several messages
};

constexpr encoding gsm_7bit{160, 153};
constexpr encoding ucs_2{70, 67};

qsizetype messages_for(const QList<qsizetype>& units, const encoding& used) {
    if (std::accumulate(units.begin(), units.end(), qsizetype{0}) <= used.alone) {
        return units.isEmpty() ? 0 : 1;
    }
    qsizetype messages = 1;
    qsizetype room = used.in_a_row;
    for (const qsizetype wanted : units) {
        if (wanted > room) {
            ++messages;
            room = used.in_a_row;
        }
        room -= wanted;
    }
    return messages;
}

} // namespace

sms_length sms_length::of(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    QList<qsizetype> units;
    std::transform(characters.begin(), characters.end(), std::back_inserter(units), gsm_units);
    encoding used = gsm_7bit;
    if (units.contains(0)) {
        used = ucs_2;
        std::transform(characters.begin(), characters.end(), units.begin(),
                       [](uint c) { return QChar::requiresSurrogates(c) ? 2 : 1; });
    }
    return {characters.size(), messages_for(units, used)};
}

QString sms_length::tell(const QString& text) {
    const sms_length length = of(text);
    return u"共 %1 个字，计 %2 条短信"_s.arg(length.characters).arg(length.messages);
}
