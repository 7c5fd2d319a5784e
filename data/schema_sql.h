// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

// Booleans hold -1 and 0 (`recvedsms.readed` 1 and 0), moments are texts "yyyy/mm/dd hh:mm:ss".
// Texts compare without regard to case. Keys are never given out twice: what still points at a
// deleted row must not come to mean a new one. Nothing points at messages, group sends,
// memberships, rights and lines of the log; their owner may close up those with smsdb.
inline constexpr const char* schema_sql = R"sql(
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
-- Partial, so that reading every customer's mobile goes by number and not by this.
CREATE INDEX customer_mobile ON customer (mobile) WHERE mobile <> '';
CREATE TABLE parameters (
    ip TEXT COLLATE NOCASE,
    port INTEGER
);
CREATE TABLE cgroup (
    gid INTEGER PRIMARY KEY AUTOINCREMENT,
    cid INTEGER,
    ccid INTEGER
);
CREATE INDEX cgroup_class ON cgroup (ccid);
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
-- By number, because that is the order in which pending messages go out.
CREATE INDEX sendsms_pending ON sendsms (smsid) WHERE sendisok = 0;
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
CREATE INDEX rights_user ON rights (userid);
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
CREATE INDEX viewitems_view ON viewitems (ViewNo, pos);

CREATE VIEW vwgroup AS
    SELECT g.gid, g.cid, g.ccid, ifnull(k.cname, '') AS cname, ifnull(c.cname, '') AS cusname,
           ifnull(c.mobile, '') AS mobile
    FROM cgroup g JOIN cusclass k ON k.ccid = g.ccid JOIN customer c ON c.cid = g.cid;
CREATE VIEW vwsendsms AS
    SELECT s.smsid, s.mobile, s.sms, s.cid, s.sendisok, s.smsfrom, s.imsend, s.rtime, s.stime,
           ifnull(c.cname, '') AS cname
    FROM sendsms s LEFT JOIN customer c ON c.cid = s.cid;
CREATE VIEW vwrecvedsms AS
    SELECT r.smsrid, r.mobile, r.sms, r.rtime, r.readed, ifnull(c.cid, 0) AS cid,
           ifnull(c.cname, '') AS cname
    FROM recvedsms r LEFT JOIN customer c
        ON c.cid = (SELECT min(same.cid) FROM customer same
                    WHERE same.mobile = r.mobile AND same.mobile <> '');
CREATE VIEW vwgsendsms AS
    SELECT g.gsid, g.cid, g.sms, g.imsend, g.isall, g.stime, g.rtime, ifnull(k.cname, '') AS cname
    FROM gsendsms g LEFT JOIN cusclass k ON k.ccid = g.cid;
CREATE VIEW vwoperate AS
    SELECT o.opid, o.optime, o.userid, ifnull(u.username, '') AS username, o.operation
    FROM operatelog o LEFT JOIN users u ON u.userid = o.userid;

INSERT INTO Functions (FunId, funName) VALUES (1, '操作员管理'), (2, '日常工作');
INSERT INTO users (username, password) VALUES ('valdrine', '');
INSERT INTO rights (userid, funid) VALUES (1, 1), (1, 2);
INSERT INTO parameters (ip, port) VALUES ('127.0.0.1', 9100);
)sql";
