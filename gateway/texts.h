// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace gateway {

/// What smsgateway says: `texts::tr("…")` is in the user's language.
class texts {
    Q_DECLARE_TR_FUNCTIONS(smsgateway)
};

} // namespace gateway
