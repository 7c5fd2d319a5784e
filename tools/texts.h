// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

/// What smsdb says: `texts::tr("…")` is in the user's language.
class texts {
    Q_DECLARE_TR_FUNCTIONS(smsdb)
};
