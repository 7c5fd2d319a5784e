// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "tests/support/person.h"
#include "tests/support/test_database.h"
#include "tests/tour/chapters.h"
#include "tests/tour/guide.h"
#include "tests/tour/visitor.h"

#include <QProcess>

using namespace Qt::StringLiterals;
using namespace visitor;

namespace {

const QString greeting = u"尊敬的客户，祝您节日快乐，阖家幸福！"_s;

void add_a_phrase(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnuCreTech"_s, u"menu"_s);
    expect_dialog("frmSmsm", u"phrase"_s, u"短语维护"_s, {{u"txtText"_s, greeting}});
    expect_box(u"phrase-saved"_s, u"保存成功|成功创建一个短语信息，继续创建吗？ "_s,
               QMessageBox::No);
    press(window, u"Add"_s);
    guide::step(u"phrases"_s, greeting,
                {shown(window, 1), stored(u"select text from smsmodels"_s)});
}

void add_two_customers(frmMain& window) {
    const QString caption = u"客户资料"_s;
    const QString saved = u"保存成功|成功创建一个客户信息，继续创建吗？ "_s;
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    expect_dialog("frmCustomer", u"customer"_s, caption,
                  {{u"txtCname"_s, u"李晓梅"_s}, {u"txtSex"_s, u"女"_s}});
    expect_box(u"mobile-missing"_s, u"输入错误|输入的客户信息错误，必须输入手机号码，请检查！  "_s);
    expect_dialog("frmCustomer", u"mobile-given"_s, caption, {{u"txtMobile"_s, u"13912345678"_s}});
    expect_box(u"customer-saved"_s, saved, QMessageBox::Yes);
    expect_dialog(
        "frmCustomer", u"next-customer"_s, caption,
        {{u"txtCname"_s, u"王建国"_s}, {u"txtMobile"_s, u"13800138000"_s}, {u"txtSex"_s, u"男"_s}});
    expect_box(u"next-saved"_s, saved, QMessageBox::No);
    press(window, u"Add"_s);
    guide::step(
        u"customers"_s, u"李晓梅|13912345678|女 / 王建国|13800138000|男"_s,
        {shown(window, 3), stored(u"select cname, mobile, sex from customer order by cid"_s)});
}

} // namespace

void tour::first_run(frmMain& window, const QString& port) {
    guide::step(u"main-window"_s, u"67,67 433x433 操作员：valdrine|注销我自己"_s,
                {describe(window)});
    window.move(70, 80);
    window.resize(1140, 740);
    add_a_phrase(window);
    add_two_customers(window);
    expect_dialog("FrmParameter", u"parameters"_s, u"参数设置"_s, {{u"txtport"_s, port}});
    expect_box(u"parameters-saved"_s, u"保存成功|成功地修改了参数。 "_s);
    choose(window, u"mnusetled"_s, u"mnuPara"_s);
    choose(window, u"mnuFile"_s, u"mnuSysExit"_s);
}

namespace {

/// Makes the lists look like those of a business at work.
void fill_the_lists() {
    test_database::execute(
        u"insert into smsmodels (text) values ('您预订的商品已经到货，欢迎到店领取。'), ('周六会员日全场八五折，欢迎光临！'), ('您的会员卡将于月底到期，续费可享九折。')"_s);
    test_database::execute(
        u"insert into customer (cname, sex, mobile, birth) values ('陈静','女','13622223333','1990-07-21'), ('赵志强','男','15011112222','1983-01-30'), ('刘洋','男','18600001111','1995-09-08'), ('孙丽','女','13755556666','1988-12-05'), ('周海涛','男','15877778888','1976-04-17'), ('吴敏','女','18900009999','1992-02-26')"_s);
    test_database::execute(
        u"insert into sendsms (cid, mobile, sms, sendisok, smsfrom, imsend, rtime, stime) select cid, mobile, (select text from smsmodels where mid=2+cid%3), (cid<8)*-1, (cid%3=1)*-1, (cid%2)*-1, strftime('%Y/%m/%d','now',(cid*2-16+cid%2)||' days')||printf(' %02d:%02d:00',cid+7,cid*23%60), strftime('%Y/%m/%d','now',(cid*2-15)||' days')||printf(' %02d:%02d:00',cid+7,cid*23%60) from customer where cid>2"_s);
}

void write_a_message(frmMain& window) {
    person::expect_modal("frmSendsms", [](QWidget& dialog) {
        expect_pick(u"customer-picker"_s, u"客户资料"_s);
        person::click(dialog, u"Cmdrefcus"_s);
        expect_pick(u"phrase-picker"_s, u"常用短语"_s);
        person::click(dialog, u"cmdrefsms"_s);
        guide::step(u"message"_s, u"13912345678|"_s + greeting,
                    {person::text_of(dialog, u"txtMobile"_s) + u'|' +
                     person::text_of(dialog, u"txtSms"_s)});
        expect_box(u"message-saved"_s, u"保存成功|成功创建一个短信信息，继续创建吗？ "_s,
                   QMessageBox::No);
        person::click(dialog, u"cmdok"_s);
    });
    press(window, u"Add"_s);
}

void send_and_receive(frmMain& window, QProcess& gateway) {
    const QString row = u"李晓梅|13912345678|%1|"_s.arg(greeting);
    const QString sent =
        u"select cname, mobile, sms, case sendisok when 0 then '待发送' when -1 then '已发送' end from vwsendsms where smsid=7"_s;
    guide::step(u"message-waits"_s, row + u"待发送"_s, {shown(window, 4, 6), stored(sent)});
    window.startTimer();
    guide::wait_for(u"the sent mark"_s, [&] { return stored(sent) == row + u"已发送"_s; });
    press(window, u"refresh"_s);
    guide::step(u"message-sent"_s, row + u"已发送"_s, {shown(window, 4, 6), stored(sent)});

    gateway.write("recv 8613912345678 你好\n");
    const QString received = u"select cname, mobile, sms from vwrecvedsms"_s;
    guide::wait_for(u"the received message"_s, [&] { return !stored(received).isEmpty(); });
    choose(window, u"mnuIN"_s, u"mnunewcustomer"_s);
    guide::step(u"received"_s, u"李晓梅|13912345678|你好"_s, {shown(window, 3), stored(received)});
    press(window, u"Exit"_s);
}

void sort_and_find(frmMain& window) {
    expect_dialog("frmSort", u"sort"_s, u"排序"_s, {{u"ComboColName"_s, u"手机号码"_s}});
    press(window, u"sort"_s);
    guide::step(u"sorted"_s, u"陈静 / 孙丽 / 李晓梅 / 赵志强 / 周海涛 / 刘洋 / 吴敏"_s,
                {shown(window, 1)});
    expect_dialog("frmFind", u"find"_s, u"条件"_s,
                  {{u"ComboColName"_s, u"客户名称"_s}, {u"txtV"_s, u"赵志强"_s}});
    press(window, u"find"_s);
    guide::step(u"found"_s, u"赵志强"_s, {front_list(window).value(u"cname"_s)});
}

} // namespace

void tour::second_run(frmMain& window, QProcess& gateway) {
    const QString place = u"70,80 1140x740 操作员："_s;
    guide::step(u"same-place"_s, place + u"valdrine|注销我自己"_s, {describe(window)});
    fill_the_lists();
    choose(window, u"mnuIN"_s, u"mnusend"_s);
    guide::step(u"rows-added-directly"_s, u"陈静 / 赵志强 / 刘洋 / 孙丽 / 周海涛 / 吴敏"_s,
                {shown(window, 1), stored(u"select cname from vwsendsms"_s)});
    write_a_message(window);
    send_and_receive(window, gateway);
    sort_and_find(window);
    choose(window, u"mnuFile"_s, u"logout"_s);
    guide::step(u"logged-out"_s, place + u"|注册"_s, {describe(window)});
    expect_box(u"refused"_s, u"提示|你没有权限操作这项功能!"_s);
    choose(window, u"mnuIN"_s, u"mnuCreTech"_s);
    expect_login(u"log-in-again"_s, {});
    choose(window, u"mnuFile"_s, u"logout"_s);
    guide::step(u"logged-in"_s, place + u"valdrine|注消我自己"_s, {describe(window)});
    choose(window, u"mnuFile"_s, u"mnuSysExit"_s);
}
