// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/gammu_health.h"

#include "gateway/texts.h"
#include "platform/data_error.h"

namespace gateway {

namespace {

QString fault_of(const DataError& error) {
    switch (error.kind()) {
    case DataError::Kind::missing_file:
        return texts::tr("there is no such file");
    case DataError::Kind::locked:
        return texts::tr("another program keeps it locked");
    case DataError::Kind::not_a_database:
    case DataError::Kind::old_format:
        return texts::tr("it is damaged or no database of SQLite");
    default:
        return error.detail();
    }
}

} // namespace

network_health health_of(const std::optional<gammu_phone>& phone) {
    if (!phone) {
        return {false, texts::tr("gammu-smsd has not begun to serve a modem in this database")};
    }
    if (!phone->alive) {
        return {false,
                texts::tr("gammu-smsd has given no sign of life for modem %1").arg(phone->name)};
    }
    return {true,
            phone->signal > 0
                ? texts::tr("gammu-smsd, modem %1, signal %2 %").arg(phone->name).arg(phone->signal)
                : texts::tr("gammu-smsd, modem %1").arg(phone->name)};
}

network_health health_of(const QString& database, const DataError& error) {
    return {false, texts::tr("gammu-smsd's database %1: %2").arg(database, fault_of(error))};
}

} // namespace gateway
