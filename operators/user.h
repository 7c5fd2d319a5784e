// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// An operator as the dialog shows and fills it; the id is text, as the dialog holds it.
struct user {
    QString userid;
    QString username;
    QString password;
    QString conpass; ///< the password once more
};
