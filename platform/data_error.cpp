// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/data_error.h"

DataError::DataError(Kind kind, const QString& detail)
    : std::runtime_error(detail.toStdString()), kind_(kind), detail_(detail) {}
