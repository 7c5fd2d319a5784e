// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Gives `file` the owner and the group of `model`, as far as the running user may: root both,
/// others a group of theirs. Where the system knows no owners nothing happens.
void give_owner_of(const QString& model, const QString& file);
