// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Turns a statement in Jet's SQL into SQLite's: a date between "#" marks becomes a text literal.
/// Quoted texts and bracketed names are left alone, and so is a "#" without a partner.
[[nodiscard]] QString translate_jet_sql(const QString& statement);
