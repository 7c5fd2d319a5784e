// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "platform/database/physical_database.h"
#include "platform/widgets/data_grid.h"
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
    expect_saving("frmSmsm", u"phrase"_s, u"短语维护"_s, {{u"txtText"_s, greeting}},
                  u"保存成功|成功创建一个短语信息，继续创建吗？ "_s);
    press(window, u"Add"_s);
    see_rows(u"phrases"_s, greeting, window, 1, u"select text from smsmodels"_s);
}

void add_two_customers(frmMain& window) {
    const QString caption = u"客户资料"_s;
    const QString saved = u"保存成功|成功创建一个客户信息，继续创建吗？ "_s;
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    expect_dialog("frmCustomer", u"customer"_s, caption,
                  {{u"txtCname"_s, u"李晓梅"_s}, {u"txtSex"_s, u"女"_s}});
    expect_box(u"mobile-missing"_s, u"输入错误|输入的客户信息错误，必须输入手机号码，请检查！  "_s);
    expect_saving("frmCustomer", u"mobile-given"_s, caption, {{u"txtMobile"_s, u"13912345678"_s}},
                  saved, QMessageBox::Yes);
    expect_saving(
        "frmCustomer", u"next-customer"_s, caption,
        {{u"txtCname"_s, u"王建国"_s}, {u"txtMobile"_s, u"13800138000"_s}, {u"txtSex"_s, u"男"_s}},
        saved);
    press(window, u"Add"_s);
    see_rows(u"customers"_s, u"李晓梅|13912345678|女 / 王建国|13800138000|男"_s, window, 3,
             u"select cname, mobile, sex from customer order by cid"_s);
}

} // namespace

void tour::first_run(frmMain& window, QProcess& gateway) {
    guide::step(u"main-window"_s, u"67,67 433x433 操作员：valdrine|注销我自己"_s,
                {describe(window)});
    window.move(70, 80);
    window.resize(1140, 520);
    add_a_phrase(window);
    add_two_customers(window);
    expect_saving("FrmParameter", u"parameters"_s, u"参数设置"_s,
                  {{u"txtport"_s, gateway.arguments().last().section(u':', -1)}},
                  u"保存成功|成功地修改了参数。 "_s, QMessageBox::Ok);
    choose(window, u"mnusetled"_s, u"mnuPara"_s);
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
    const auto fill = [](QWidget& dialog) {
        pick(dialog, u"Cmdrefcus"_s, u"customer-picker"_s, u"客户资料"_s, u"晓梅"_s);
        pick(dialog, u"cmdrefsms"_s, u"phrase-picker"_s, u"常用短语"_s, u"节日"_s);
    };
    expect_filled("frmSendsms", u"message"_s, fill, {u"txtMobile"_s, u"txtSms"_s},
                  u"13912345678|"_s + greeting, u"成功创建一个短信信息，继续创建吗？ "_s);
    press(window, u"Add"_s);
}

void send_and_receive(frmMain& window, QProcess& gateway) {
    const QString row = u"李晓梅|13912345678|%1|"_s.arg(greeting);
    const QString sent =
        u"select cname, mobile, sms, case sendisok when 0 then '待发送' when -1 then '已发送' end from vwsendsms where smsid=7"_s;
    see_rows(u"message-waits"_s, row + u"待发送"_s, window, 4, sent, 6);
    window.startTimer();
    guide::wait_for(u"the sent mark"_s, [&] { return stored(sent) == row + u"已发送"_s; });
    guide::wait_for(u"the list to follow"_s,
                    [&] { return shown(window, 4, 6) == row + u"已发送"_s; });
    see_rows(u"message-sent"_s, row + u"已发送"_s, window, 4, sent, 6);

    gateway.write("recv 8613912345678 你好\n");
    const QString received = u"select cname, mobile, sms from vwrecvedsms"_s;
    guide::wait_for(u"the received message"_s, [&] { return !stored(received).isEmpty(); });
    choose(window, u"mnuIN"_s, u"mnunewcustomer"_s);
    see_rows(u"received"_s, u"李晓梅|13912345678|你好"_s, window, 3, received);
    tour::read_a_message(window, u"你好"_s);
    press(window, u"Exit"_s);
    // A client that goes before would get it again at its next start.
    const auto kept = open_database(gateway.arguments().at(1) + u"/relay.db"_s);
    guide::wait_for(u"the gateway to know that it was read"_s, [&kept] {
        return kept->number(u"SELECT count(*) FROM received WHERE confirmed_at IS NULL"_s) == 0;
    });
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
    const QString place = u"70,80 1140x520 操作员："_s;
    guide::step(u"same-place"_s, place + u"valdrine|注销我自己"_s, {describe(window)});
    fill_the_lists();
    choose(window, u"mnuIN"_s, u"mnusend"_s);
    see_rows(u"rows-added-directly"_s, u"陈静 / 赵志强 / 刘洋 / 孙丽 / 周海涛 / 吴敏"_s, window, 1,
             u"select cname from vwsendsms"_s);
    write_a_message(window);
    send_and_receive(window, gateway);
    sort_and_find(window);
    tour::work_in_a_list(window);
    choose(window, u"mnuFile"_s, u"logout"_s);
    guide::step(u"logged-out"_s, place + u"|注册"_s, {describe(window)});
    expect_box(u"refused"_s, u"提示|你没有权限操作这项功能!"_s);
    choose(window, u"mnuIN"_s, u"mnuCreTech"_s);
    expect_login(u"log-in-again"_s, {});
    choose(window, u"mnuFile"_s, u"logout"_s);
    guide::step(u"logged-in"_s, place + u"valdrine|注消我自己"_s, {describe(window)});
}

namespace {

void add_a_class(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnucusclass"_s);
    expect_saving("frmCusclass", u"class"_s, u"客户分类"_s, {{u"txtText"_s, u"会员"_s}},
                  u"保存成功|成功创建一个客户分类信息，继续创建吗？ "_s);
    press(window, u"Add"_s);
    see_rows(u"classes"_s, u"会员"_s, window, 1, u"select cname from cusclass"_s);
}

void expect_member(const QString& step, const QString& customer,
                   const std::function<void()>& next = {}) {
    const auto fill = [=](QWidget& dialog) {
        pick(dialog, u"cmdref"_s, step + u"-class"_s, u"客户分类目录"_s, u"会员"_s);
        pick(dialog, u"Cmdrefcus"_s, step + u"-customer"_s, u"客户资料"_s, customer);
    };
    expect_filled("frmGroup", step, fill, {u"txtCcname"_s}, u"会员"_s,
                  u"成功创建一个客户分组信息，继续创建吗？ "_s, next);
}

void put_two_customers_into_it(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnugroup"_s);
    expect_member(u"member"_s, u"李晓梅"_s, [] { expect_member(u"next-member"_s, u"王建国"_s); });
    press(window, u"Add"_s);
    see_rows(u"members"_s, u"1|会员|1|李晓梅|13912345678 / 1|会员|2|王建国|13800138000"_s, window,
             5, u"select ccid, cname, cid, cusname, mobile from vwgroup"_s);
}

void write_to(frmMain& window, const QString& step, const person::answer& fill,
              const QString& filled) {
    expect_filled("frmGsendsms", step, fill, {u"txtCname"_s, u"lblAddressees"_s, u"txtSms"_s},
                  filled, u"成功创建一个短信发送信息，继续创建吗？ "_s);
    press(window, u"Add"_s);
}

void write_to_the_class_and_to_all(frmMain& window) {
    const QString to_members = u"您预订的商品已经到货，欢迎到店领取。"_s;
    const QString to_all = u"本店明天起九点开门。"_s;
    const auto fill_for_members = [](QWidget& dialog) {
        pick(dialog, u"Cmdrefcus"_s, u"group-picker"_s, u"客户分类目录"_s, u"会员"_s);
        pick(dialog, u"cmdrefsms"_s, u"group-phrase"_s, u"常用短语"_s, u"到货"_s);
    };
    const auto fill_for_all = [&to_all](QWidget& dialog) {
        person::click(dialog, u"Chkall"_s);
        person::type(dialog, u"txtSms"_s, to_all);
    };
    choose(window, u"mnuIN"_s, u"mnuTIMEC"_s);
    write_to(window, u"group-send"_s, fill_for_members, u"会员|将发给 2 位客户|"_s + to_members);
    write_to(window, u"send-to-all"_s, fill_for_all, u"|将发给 8 位客户|"_s + to_all);
    see_rows(u"group-sends"_s, u"|会员|%1 / √||%2"_s.arg(to_members, to_all), window, 3,
             u"select iif(isall,'√',''), cname, sms from vwgsendsms"_s);
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
    see_rows(u"answers"_s, seen, window, 3, received);
}

void change_the_layout(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    person::expect_modal("frmSetList", [](QWidget& editor) {
        auto& columns = person::find<data_grid>(editor, u"MSHFlexGrid1"_s);
        columns.selectRow(2);
        person::click(editor, u"cmdUP"_s);
        columns.selectRow(4);
        QTest::keyClick(&columns, Qt::Key_Space);
        guide::step(u"layout-editor"_s,
                    u"编号|√ / 手机|√ / 客户名称|√ / 性别|√ / 生日|  / 电话|√ / 备注|√"_s,
                    {rows_of(columns, 0, 1)});
        person::click(editor, u"cmdOK"_s);
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
}
