// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

#include <functional>

/// A moment as statements and the store write it: "yyyy/mm/dd hh:mm:ss".
[[nodiscard]] QString fmtdatetime(const QDateTime& moment);

/// A moment as the boxes show it: "yyyy-mm-dd hh:mm:ss".
[[nodiscard]] QString show_datetime(const QDateTime& moment);

/// Where the present moment comes from; tests hand in their own.
using clock_source = std::function<QDateTime()>;

/// The system's clock, to the second.
[[nodiscard]] QDateTime system_clock();
