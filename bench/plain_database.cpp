// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "bench/plain_database.h"

#include <stdexcept>

plain_database::plain_database(const std::string& path) {
    sqlite3* handle = nullptr;
    const int result = sqlite3_open(path.c_str(), &handle);
    handle_.reset(handle);
    if (result != SQLITE_OK) {
        raise();
    }
    execute("PRAGMA journal_mode=WAL");
    execute("PRAGMA synchronous=FULL");
}

plain_database::statement plain_database::prepare(const std::string& sql) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(handle_.get(), sql.c_str(), -1, &prepared, nullptr) != SQLITE_OK) {
        raise();
    }
    return {prepared, sqlite3_finalize};
}

bool plain_database::step(const statement& prepared) {
    const int result = sqlite3_step(prepared.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        raise();
    }
    return result == SQLITE_ROW;
}

void plain_database::execute(const std::string& sql) {
    if (sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        raise();
    }
}

int plain_database::number(const std::string& sql) {
    const statement query = prepare(sql);
    step(query);
    return sqlite3_column_int(query.get(), 0);
}

void plain_database::raise() const {
    throw std::runtime_error(sqlite3_errmsg(handle_.get()));
}
