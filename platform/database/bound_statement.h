// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/physical_database.h"

/// A statement with question marks in place of its values, kept for many runs. The values may be
/// any text, also one with quotes in it. Must not outlive its connection. Throws DataError.
class bound_statement {
public:
    bound_statement(physical_database& database, const QString& statement)
        : prepared_(database.prepare(statement)) {}

    /// Runs it with these values in the question marks' order; an invalid one is Null.
    void run(const QVariantList& values = {}) { prepared_->run(values); }
    /// The same for a statement that gives rows.
    [[nodiscard]] row_store rows(const QVariantList& values = {}) {
        return prepared_->rows(values);
    }

private:
    std::unique_ptr<physical_database::prepared_statement> prepared_;
};
