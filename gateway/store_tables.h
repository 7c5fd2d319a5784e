// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

namespace gateway {

// Times are milliseconds since 1970. The partial indexes hold the few rows that something is still
// to be done about, so that no step slows down with what is kept.
inline constexpr const char* store_tables = R"(
CREATE TABLE message (
    id INTEGER PRIMARY KEY AUTOINCREMENT, -- the networks keep it, so it must never come again
    client TEXT NOT NULL,                 -- its address
    mobile TEXT NOT NULL,                 -- as the client wrote it
    number TEXT NOT NULL,                 -- as the network is given it
    text TEXT NOT NULL,
    digest TEXT NOT NULL,                 -- of the frame
    taken_at INTEGER NOT NULL,
    answer TEXT NOT NULL,                 -- owed, open, confirmed
    absorbed INTEGER NOT NULL DEFAULT 0,  -- frames that were taken for this one again
    state TEXT NOT NULL,
    since INTEGER NOT NULL,               -- when it came into this state
    attempts INTEGER NOT NULL DEFAULT 0,
    next_at INTEGER,                      -- when it is handed over or asked for; null: never
    network_ref TEXT,
    reason TEXT,
    done_at INTEGER                       -- when nothing was left to be done about it
);
-- From the seconds since 1970 on: what a network still tells of an earlier store, whose messages did
-- not come faster than one a second, meets none of these.
INSERT INTO sqlite_sequence (name, seq) VALUES ('message', unixepoch());
CREATE INDEX message_open ON message (client, digest) WHERE answer = 'open';
CREATE INDEX message_queued ON message (next_at, id) WHERE state = 'queued';
CREATE INDEX message_unknown ON message (next_at, id) WHERE state = 'unknown';
CREATE INDEX message_handing ON message (id) WHERE state = 'handing';
CREATE INDEX message_failed ON message (since) WHERE state = 'failed';
CREATE INDEX message_done ON message (done_at, state) WHERE done_at IS NOT NULL;
CREATE TABLE event (
    message INTEGER NOT NULL,             -- the key's columns first: SQLite 3.40 takes other orders
    fate TEXT NOT NULL,                   -- for damage when it checks the file
    ref TEXT NOT NULL,
    reason TEXT NOT NULL,
    at INTEGER NOT NULL,
    PRIMARY KEY (message, fate, ref, reason)
) WITHOUT ROWID;
CREATE TABLE received (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    key TEXT NOT NULL UNIQUE,             -- the network's
    sender TEXT NOT NULL,                 -- as the network gave it
    mobile TEXT,                          -- what the client is told instead, of a notice
    at INTEGER NOT NULL,
    text TEXT NOT NULL,
    written_at INTEGER,
    confirmed_at INTEGER
);
CREATE INDEX received_waiting ON received (id) WHERE confirmed_at IS NULL;
CREATE INDEX received_confirmed ON received (confirmed_at) WHERE confirmed_at IS NOT NULL;
CREATE TABLE part (
    key TEXT PRIMARY KEY,
    sender TEXT NOT NULL,
    reference INTEGER NOT NULL,
    number INTEGER NOT NULL,
    count INTEGER NOT NULL,
    at INTEGER NOT NULL,
    text TEXT NOT NULL,
    taken_at INTEGER NOT NULL,
    whole TEXT                            -- the key of the received message that it became part of
) WITHOUT ROWID;
CREATE INDEX part_waiting ON part (sender, reference, count, number) WHERE whole IS NULL;
CREATE INDEX part_taken ON part (taken_at);
PRAGMA user_version = 1;
)";

} // namespace gateway
