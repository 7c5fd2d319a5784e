// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/database/transaction.h"

#include "platform/try_step.h"

transaction::transaction(physical_database& database, physical_database::purpose wanted)
    : database_(database) {
    database_.begin(wanted);
}

transaction::~transaction() {
    try_step([this] {
        if (database_.in_transaction()) { // some errors have ended it already
            database_.rollback();
        }
    });
}

void transaction::commit() {
    database_.commit();
}
