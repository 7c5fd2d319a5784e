// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/c_users.h"

#include "data/nvltrim.h"
using namespace Qt::StringLiterals;

void c_users::openrs(Recordset& rs) const {
    open_detached(rs, u"Users"_s);
}

void c_users::open_login(Recordset& rs, const QString& username, const QString& password) const {
    if (nvltrim(password).isEmpty()) {
        open_detached(
            rs,
            u"select * from users where username= %1and ( password='' or password is null)"_s.arg(
                literal(username)));
    } else {
        open_detached(rs, u"select * from users where username= %1and  password=%2"_s.arg(
                              literal(username), literal(password)));
    }
}

void c_users::open_user(Recordset& rs, qint32 userid) const {
    open_detached(rs, u"SELECT [userid], [username], [password] FROM Users where userid=%1"_s.arg(
                          literal(userid)));
}

bool c_users::addrec(const QString& username, const QString& password) const {
    return execute(connection, u"INSERT INTO users ( username,password ) values (%1,%2)"_s,
                   username, password);
}

bool c_users::updaterec(qint32 userid, const QString& username, const QString& password) const {
    return execute(connection, u"update users set username=%2, password =%3 where userid=%1"_s,
                   userid, username, password);
}

bool c_users::deleterec(qint32 userid) const {
    return execute(connection, u"delete from users where userid=%1"_s, userid);
}
