// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/settings.h"

#include <QVariantList>

#include <functional>
#include <memory>

class physical_database;

namespace gateway {

/// The connection to gammu-smsd's database, and the only place that knows what kind it is. Waits
/// for a lock of somebody else's only for a moment. Everything throws DataError.
class gammu_database {
public:
    explicit gammu_database(const gammu_settings& wanted);
    ~gammu_database();
    Q_DISABLE_COPY_MOVE(gammu_database)

    /// The columns of every row as texts; Null is a null text. Values take the place of ?1, ?2, …
    [[nodiscard]] QList<QStringList> rows(const QString& sql, const QVariantList& values = {});
    /// Runs a statement that gives no rows; true when it changed some.
    bool run(const QString& sql, const QVariantList& values = {});
    [[nodiscard]] qint64 last_key() const;

    /// Does it all or nothing; nobody else writes meanwhile.
    void together(const std::function<void()>& work);

    /// What it was opened on is still there.
    [[nodiscard]] bool is_alive() const;

private:
    std::unique_ptr<physical_database> database_;
};

} // namespace gateway
