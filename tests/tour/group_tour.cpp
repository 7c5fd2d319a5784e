// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"
#include "platform/widgets/data_grid.h"
#include "tests/support/person.h"
#include "tests/support/test_database.h"
#include "tests/tour/chapters.h"
#include "tests/tour/guide.h"
#include "tests/tour/visitor.h"

#include <QProcess>

using namespace Qt::StringLiterals;
using namespace visitor;

namespace {

void add_a_class(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnucusclass"_s);
    expect_dialog("frmCusclass", u"class"_s, u"客户分类"_s, {{u"txtText"_s, u"会员"_s}});
    expect_box(u"class-saved"_s, u"保存成功|成功创建一个客户分类信息，继续创建吗？ "_s,
               QMessageBox::No);
    press(window, u"Add"_s);
    guide::step(u"classes"_s, u"会员"_s,
                {shown(window, 1), stored(u"select cname from cusclass"_s)});
}

/// Puts the first customer into the class, then the others up to the `last` row.
void expect_members(const QString& step, int last, int customer = 0) {
    person::expect_modal("frmGroup", [=](QWidget& dialog) {
        expect_pick(step + u"-class"_s, u"客户分类目录"_s);
        person::click(dialog, u"cmdref"_s);
        expect_pick(step + u"-customer"_s, u"客户资料"_s, customer);
        person::click(dialog, u"Cmdrefcus"_s);
        guide::step(step, u"会员"_s, {person::text_of(dialog, u"txtCcname"_s)});
        const bool more = customer < last;
        expect_box(step + u"-saved"_s, u"保存成功|成功创建一个客户分组信息，继续创建吗？ "_s,
                   more ? QMessageBox::Yes : QMessageBox::No);
        if (more) {
            expect_members(u"next-"_s + step, last, customer + 1);
        }
        person::click(dialog, u"cmdok"_s);
    });
}

void put_two_customers_into_it(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnugroup"_s);
    expect_members(u"member"_s, 1);
    press(window, u"Add"_s);
    const QString members = u"1|会员|1|李晓梅|13912345678 / 1|会员|2|王建国|13800138000"_s;
    guide::step(
        u"members"_s, members,
        {shown(window, 5), stored(u"select ccid, cname, cid, cusname, mobile from vwgroup"_s)});
}

void expect_group_send(const QString& step, const std::function<void(QWidget&)>& fill,
                       const QString& seen) {
    person::expect_modal("frmGsendsms", [=](QWidget& dialog) {
        fill(dialog);
        guide::step(
            step, seen,
            {person::text_of(dialog, u"txtCname"_s) + u'|' + person::text_of(dialog, u"txtSms"_s)});
        expect_box(step + u"-saved"_s, u"保存成功|成功创建一个短信发送信息，继续创建吗？ "_s,
                   QMessageBox::No);
        person::click(dialog, u"cmdok"_s);
    });
}

void write_to_the_class_and_to_all(frmMain& window) {
    const QString to_members = u"您预订的商品已经到货，欢迎到店领取。"_s;
    const QString to_all = u"本店明天起九点开门。"_s;
    choose(window, u"mnuIN"_s, u"mnuTIMEC"_s);
    expect_group_send(
        u"group-send"_s,
        [](QWidget& dialog) {
            expect_pick(u"group-picker"_s, u"客户分类目录"_s);
            person::click(dialog, u"Cmdrefcus"_s);
            expect_pick(u"group-phrase"_s, u"常用短语"_s, 1);
            person::click(dialog, u"cmdrefsms"_s);
        },
        u"会员|"_s + to_members);
    press(window, u"Add"_s);
    expect_group_send(
        u"send-to-all"_s,
        [=](QWidget& dialog) {
            person::click(dialog, u"Chkall"_s);
            person::type(dialog, u"txtSms"_s, to_all);
        },
        u'|' + to_all);
    press(window, u"Add"_s);
    const QString seen = u"|会员|%1 / √||%2"_s.arg(to_members, to_all);
    guide::step(
        u"group-sends"_s, seen,
        {shown(window, 3), stored(u"select iif(isall,'√',''), cname, sms from vwgsendsms"_s)});
}

void send_them(frmMain& window) {
    window.startTimer();
    guide::wait_for(u"all to be sent"_s, [] {
        return stored(u"select count(*) from sendsms where smsfrom and smsid>7 and sendisok"_s) ==
               u"10"_s;
    });
    choose(window, u"mnuIN"_s, u"mnusend"_s);
    const QString both = u"李晓梅|13912345678|您预订的商品已经到货，欢迎到店领取。|已发送 / "
                         u"王建国|13800138000|您预订的商品已经到货，欢迎到店领取。|已发送 / "
                         u"李晓梅|13912345678|本店明天起九点开门。|已发送 / "_s;
    guide::step(u"group-sends-sent"_s, both, {shown(window, 4, 7).first(both.size())});
    press(window, u"Exit"_s);
}

/// A mobile that two customers share, and one that nobody has.
void take_their_answers(frmMain& window, QProcess& gateway) {
    test_database::execute(
        u"insert into customer (cname, mobile) values ('李晓梅的先生', '13912345678')"_s);
    const QString received = u"select cname, mobile, sms from vwrecvedsms"_s;
    QString seen = u"李晓梅|13912345678|你好"_s;
    for (const auto& [mobile, answer] : {std::pair(u"李晓梅|13912345678"_s, u"收到，谢谢"_s),
                                         std::pair(u"|13000000000"_s, u"请问几点关门？"_s)}) {
        seen += u" / %1|%2"_s.arg(mobile, answer);
        gateway.write(u"recv 86%1 %2\n"_s.arg(mobile.section(u'|', 1), answer).toUtf8());
        guide::wait_for(answer, [&] { return stored(received) == seen; });
    }
    choose(window, u"mnuIN"_s, u"mnunewcustomer"_s);
    guide::step(u"answers"_s, seen, {shown(window, 3), stored(received)});
}

void change_the_layout(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    person::expect_modal("frmSetList", [](QWidget& editor) {
        auto& columns = person::find<DataGrid>(editor, u"MSHFlexGrid1"_s);
        columns.selectRow(2);
        person::click(editor, u"cmdUP"_s);
        columns.selectRow(4);
        QTest::keyClick(&columns, Qt::Key_Space);
        const auto* cells = columns.model();
        guide::step(u"layout-editor"_s, u"手机 √ 生日 "_s,
                    {cells->index(1, 0).data().toString() + u' ' +
                     cells->index(1, 1).data().toString() + u' ' +
                     cells->index(4, 0).data().toString() + u' ' +
                     cells->index(4, 1).data().toString().trimmed()});
        person::press_key(editor, Qt::Key_Return);
    });
    press(window, u"setfield"_s);
    guide::step(u"layout-changed"_s, u"编号|手机|客户名称|性别|电话|备注"_s, {layout_of(window)});
    press(window, u"Save"_s);
}

} // namespace

void tour::third_run(frmMain& window, QProcess& gateway) {
    add_a_class(window);
    put_two_customers_into_it(window);
    write_to_the_class_and_to_all(window);
    send_them(window);
    take_their_answers(window, gateway);
    change_the_layout(window);
    choose(window, u"mnuFile"_s, u"mnuSysExit"_s);
}
