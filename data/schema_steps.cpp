// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema_steps.h"

#include "data/delivered_views.h"
#include "platform/database/physical_database.h"

#include <array>

namespace {

// Booleans hold -1 and 0 (`recvedsms.readed` 1 and 0), moments are texts "yyyy/mm/dd hh:mm:ss".
// Texts compare without regard to case. Keys are never given out twice: what still points at a
// deleted row must not come to mean a new one. Nothing points at messages, group sends,
// memberships, rights and lines of the log; their owner may close up those with smsdb.
constexpr const char* tables_and_first_rows = R"sql(
CREATE TABLE smsmodels (
    mid INTEGER PRIMARY KEY AUTOINCREMENT,
    text TEXT COLLATE NOCASE
);
CREATE TABLE cusclass (
    ccid INTEGER PRIMARY KEY AUTOINCREMENT,
    cname TEXT COLLATE NOCASE
);
CREATE TABLE customer (
    cid INTEGER PRIMARY KEY AUTOINCREMENT,
    birth TEXT COLLATE NOCASE,
    cname TEXT COLLATE NOCASE,
    sex TEXT COLLATE NOCASE,
    mobile TEXT COLLATE NOCASE,
    phone TEXT COLLATE NOCASE,
    memo TEXT COLLATE NOCASE
);
CREATE TABLE parameters (
    ip TEXT COLLATE NOCASE,
    port INTEGER
);
CREATE TABLE cgroup (
    gid INTEGER PRIMARY KEY AUTOINCREMENT,
    cid INTEGER,
    ccid INTEGER
);
CREATE TABLE sendsms (
    smsid INTEGER PRIMARY KEY AUTOINCREMENT,
    mobile TEXT COLLATE NOCASE,
    sms TEXT COLLATE NOCASE,
    cid INTEGER,
    sendisok INTEGER NOT NULL DEFAULT 0,
    smsfrom INTEGER NOT NULL DEFAULT 0,
    imsend INTEGER NOT NULL DEFAULT 0,
    rtime TEXT COLLATE NOCASE,
    stime TEXT COLLATE NOCASE
);
CREATE TABLE recvedsms (
    smsrid INTEGER PRIMARY KEY AUTOINCREMENT,
    mobile TEXT COLLATE NOCASE,
    sms TEXT COLLATE NOCASE,
    rtime TEXT COLLATE NOCASE,
    readed INTEGER NOT NULL DEFAULT 0
);
CREATE TABLE gsendsms (
    gsid INTEGER PRIMARY KEY AUTOINCREMENT,
    cid INTEGER,
    sms TEXT COLLATE NOCASE,
    imsend INTEGER NOT NULL DEFAULT 0,
    isall INTEGER NOT NULL DEFAULT 0,
    stime TEXT COLLATE NOCASE,
    rtime TEXT COLLATE NOCASE
);
CREATE TABLE users (
    userid INTEGER PRIMARY KEY AUTOINCREMENT,
    username TEXT COLLATE NOCASE,
    password TEXT COLLATE NOCASE
);
CREATE TABLE rights (
    rid INTEGER PRIMARY KEY AUTOINCREMENT,
    userid INTEGER,
    funid INTEGER
);
CREATE TABLE Functions (
    FunId INTEGER PRIMARY KEY AUTOINCREMENT,
    funName TEXT COLLATE NOCASE
);
CREATE TABLE operatelog (
    opid INTEGER PRIMARY KEY AUTOINCREMENT,
    optime TEXT COLLATE NOCASE,
    userid INTEGER,
    operation TEXT COLLATE NOCASE
);
CREATE TABLE CONSTS (
    constid INTEGER PRIMARY KEY AUTOINCREMENT,
    no TEXT COLLATE NOCASE,
    value TEXT COLLATE NOCASE,
    dispvalue TEXT COLLATE NOCASE
);
CREATE TABLE viewdef (
    viewid INTEGER PRIMARY KEY AUTOINCREMENT,
    ViewNo TEXT COLLATE NOCASE UNIQUE,
    viewName TEXT COLLATE NOCASE,
    other TEXT COLLATE NOCASE,
    readonly INTEGER,
    isTwoS INTEGER
);
CREATE TABLE viewitems (
    itemid INTEGER PRIMARY KEY AUTOINCREMENT,
    ViewNo TEXT COLLATE NOCASE,
    pos INTEGER,
    keyword TEXT COLLATE NOCASE,
    caption TEXT COLLATE NOCASE,
    Width INTEGER,
    FormatStr TEXT COLLATE NOCASE,
    ReadOnly INTEGER,
    DataType INTEGER,
    DataWidth INTEGER,
    RefType INTEGER,
    PointNum INTEGER,
    Other1 TEXT COLLATE NOCASE,
    Other2 TEXT COLLATE NOCASE,
    HAlignment INTEGER,
    TAlignment INTEGER,
    CanSet INTEGER,
    ColMerge INTEGER,
    Visible INTEGER,
    DispTrue TEXT COLLATE NOCASE,
    DispFalse TEXT COLLATE NOCASE,
    DispNull TEXT COLLATE NOCASE,
    CanFilter INTEGER,
    condValue1 TEXT COLLATE NOCASE,
    CondValue2 TEXT COLLATE NOCASE,
    FormatType INTEGER
);

INSERT INTO Functions (FunId, funName) VALUES (1, '操作员管理'), (2, '日常工作');
INSERT INTO users (username, password) VALUES ('valdrine', '');
INSERT INTO rights (userid, funid) VALUES (1, 1), (1, 2);
INSERT INTO parameters (ip, port) VALUES ('127.0.0.1', 9100);
)sql";

// Databases older than the steps differ in their indexes, a view and the headings of numbers and
// moments.
// The index on mobiles is partial, so that reading every customer's goes by number and not by it;
// so is that of the queue, which holds what waits in the order of its numbers.
constexpr const char* indexes_and_views = R"sql(
DROP INDEX IF EXISTS customer_mobile;
DROP INDEX IF EXISTS cgroup_class;
DROP INDEX IF EXISTS sendsms_pending;
DROP INDEX IF EXISTS rights_user;
DROP INDEX IF EXISTS viewitems_view;
CREATE INDEX customer_mobile ON customer (mobile) WHERE mobile <> '';
CREATE INDEX cgroup_class ON cgroup (ccid);
CREATE INDEX sendsms_queue ON sendsms (smsid) WHERE sendisok = 0;
CREATE INDEX rights_user ON rights (userid);
CREATE INDEX viewitems_view ON viewitems (ViewNo, pos);

DROP VIEW IF EXISTS vwgroup;
DROP VIEW IF EXISTS vwsendsms;
DROP VIEW IF EXISTS vwrecvedsms;
DROP VIEW IF EXISTS vwgsendsms;
DROP VIEW IF EXISTS vwoperate;
CREATE VIEW vwgroup AS
    SELECT g.gid, g.cid, g.ccid, coalesce(k.cname, '') AS cname, coalesce(c.cname, '') AS cusname,
           coalesce(c.mobile, '') AS mobile
    FROM cgroup g JOIN cusclass k ON k.ccid = g.ccid JOIN customer c ON c.cid = g.cid;
CREATE VIEW vwsendsms AS
    SELECT s.smsid, s.mobile, s.sms, s.cid, s.sendisok, s.smsfrom, s.imsend, s.rtime, s.stime,
           coalesce(c.cname, '') AS cname
    FROM sendsms s LEFT JOIN customer c ON c.cid = s.cid;
CREATE VIEW vwrecvedsms AS
    SELECT r.smsrid, r.mobile, r.sms, r.rtime, r.readed, coalesce(c.cid, 0) AS cid,
           coalesce(c.cname, '') AS cname
    FROM recvedsms r LEFT JOIN customer c
        ON c.cid = (SELECT min(same.cid) FROM customer same
                    WHERE same.mobile = r.mobile AND same.mobile <> '');
CREATE VIEW vwgsendsms AS
    SELECT g.gsid, g.cid, g.sms, g.imsend, g.isall, g.stime, g.rtime,
           coalesce(k.cname, '') AS cname
    FROM gsendsms g LEFT JOIN cusclass k ON k.ccid = g.cid;
CREATE VIEW vwoperate AS
    SELECT o.opid, o.optime, o.userid, coalesce(u.username, '') AS username, o.operation
    FROM operatelog o LEFT JOIN users u ON u.userid = o.userid;

UPDATE viewitems SET HAlignment = CASE DataType WHEN 0 THEN 1 ELSE 0 END
    WHERE HAlignment = 3 AND DataType IN (0, 2);
)sql";

void make_tables(physical_database& database) {
    database.execute_script(tables_and_first_rows);
}

void mend_indexes_and_views(physical_database& database) {
    database.execute_script(indexes_and_views);
    bring_in_delivered_views(database);
}

/// Step n stands at n - 1. A step that was delivered once stays as it is: what it lacks comes by a
/// later one. Lists that are new are brought in by a step that calls bring_in_delivered_views.
constexpr std::array schema_steps{
    &make_tables,
    &mend_indexes_and_views,
};

} // namespace

int newest_schema_version() {
    return static_cast<int>(schema_steps.size());
}

void run_schema_step(physical_database& database, int number) {
    schema_steps.at(static_cast<size_t>(number - 1))(database);
    database.set_schema_version(number);
}
