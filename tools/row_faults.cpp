// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/row_faults.h"
#include "tools/texts.h"

const QList<row_fault>& row_faults() {
    // A statement writes a text between apostrophes: one that holds an apostrophe can be neither
    // saved again nor looked for. Messages that are done with are never written again.
    static const QList<row_fault> all{
        {u"users", texts::tr("users.username is Null (the operator cannot log in)"),
         u"username IS NULL"},
        {u"users", texts::tr("users.password is Null (the operator cannot log in)"),
         u"password IS NULL"},
        {u"users", texts::tr("an apostrophe in users (the operator cannot log in)"),
         u"instr(username, '''') OR instr(password, '''')"},
        {u"customer", texts::tr("an apostrophe in customer.mobile (no group send gets beyond it)"),
         u"instr(mobile, '''')"},
        {u"customer", texts::tr("an apostrophe in customer (it cannot be saved)"),
         u"instr(cname, '''') OR instr(birth, '''') OR instr(sex, '''') OR instr(phone, '''') OR "
         u"instr(memo, '''')"},
        {u"cusclass", texts::tr("an apostrophe in cusclass.cname (it cannot be saved)"),
         u"instr(cname, '''')"},
        {u"smsmodels", texts::tr("an apostrophe in smsmodels.text (no message can be made of it)"),
         u"instr(text, '''')"},
        {u"sendsms",
         texts::tr("an apostrophe in a message of sendsms that waits (it cannot be changed)"),
         u"sendisok = 0 AND (instr(mobile, '''') OR instr(sms, ''''))"},
    };
    return all;
}
