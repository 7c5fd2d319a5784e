// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "operators/rsclsuser.h"

#include "data/c_rights.h"
#include "data/strconn.h"
#include "platform/data_error.h"
#include "platform/widgets/msgbox.h"

using namespace Qt::StringLiterals;

std::unique_ptr<rsclsuser> curuser;

void releaseuser() {
    curuser.reset();
}

rsclsuser::rsclsuser() {
    cn_.ConnectionString = strconn;
}

rsclsuser::~rsclsuser() = default;

void rsclsuser::logout() {
    userid_ = nobody;
    password_.clear();
    set_username({});
}

bool rsclsuser::ReleaseTask(const QVariant& /*task*/, const QVariant& /*argument*/) {
    return false;
}

bool rsclsuser::ApplyTask(const QVariant& /*task*/, const QVariant& /*argument*/) {
    return false;
}

void rsclsuser::set_userid(qint16 id) {
    userid_ = id;
    refreshRights();
}

void rsclsuser::set_username(const QString& name) {
    username_ = name;
    emit username_changed();
}

void rsclsuser::refreshRights() {
    if (rsrights_.State() == Recordset::StateEnum::open) {
        rsrights_.Close();
    }
    if (userid_ <= 0) {
        return;
    }
    try {
        if (cn_.State() == Connection::StateEnum::closed) {
            cn_.Open();
        }
        rsrights_.set_ActiveConnection(cn_);
        c_rights::openrs(rsrights_, userid_);
    } catch (const DataError&) { // NOLINT(bugprone-empty-catch)
        // The set stays closed, and CanDo answers no.
    }
}

bool rsclsuser::CanDo(qint32 funid, bool showmsg) {
    QString title = u"提示"_s;
    try {
        if (userid_ != nobody && holds_right(funid)) {
            return true;
        }
    } catch (const DataError&) {
        title.clear(); // an operator without any rights row has no first row to go to
    }
    if (showmsg) {
        msgbox::information(u"你没有权限操作这项功能!"_s, title);
    }
    return false;
}

bool rsclsuser::holds_right(qint32 funid) {
    if (rsrights_.State() == Recordset::StateEnum::closed) {
        refreshRights();
    }
    rsrights_.MoveFirst();
    rsrights_.Find(u"funid=%1"_s.arg(funid));
    return !rsrights_.Eof();
}
