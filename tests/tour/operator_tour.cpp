// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "platform/widgets/data_grid.h"
#include "tests/support/person.h"
#include "tests/tour/chapters.h"
#include "tests/tour/guide.h"
#include "tests/tour/visitor.h"

using namespace Qt::StringLiterals;
using namespace visitor;

namespace {

const QString clerk = u"小王"_s;

void find_the_layout(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    guide::step(u"layout-kept"_s, u"编号|手机|客户名称|性别|电话|备注"_s, {layout_of(window)});
    press(window, u"Exit"_s);
}

void add_an_operator(frmMain& window) {
    choose(window, u"mnuFile"_s, u"mnuSysUSer"_s);
    expect_dialog(
        "frmuser", u"operator"_s, u"操作员"_s,
        {{u"txtUserName"_s, clerk}, {u"txtPassword"_s, u"1234"_s}, {u"txtconpass"_s, u"1234"_s}});
    expect_box(u"operator-saved"_s, u"创建成功|成功创建一个新的用户，是否继续? "_s,
               QMessageBox::No);
    press(window, u"Add"_s);
    guide::step(u"operators"_s, u"valdrine / "_s + clerk,
                {shown(window, 1), stored(u"select username from users"_s)});
}

/// Double-clicks the right to the daily work of the operator in the second row.
void change_the_right(frmMain& window, const QString& step, const QString& before,
                      const QString& after) {
    person::expect_modal("frmRights", [=](QWidget& editor) {
        person::find<DataGrid>(editor, u"dataUsers"_s).selectRow(1);
        auto& functions = person::find<DataGrid>(editor, u"dataFuns"_s);
        const auto mark = [&functions] { return functions.model()->index(1, 2).data().toString(); };
        guide::step(u"rights-before-"_s + step.section(u'-', -1), before, {mark()});
        const QPoint place = functions.visualRect(functions.model()->index(1, 1)).center();
        QTest::mouseClick(functions.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(functions.viewport(), Qt::LeftButton, {}, place);
        guide::step(step, after,
                    {mark(), stored(u"select '√' from rights where userid=2 and funid=2"_s)});
        person::press_key(editor, Qt::Key_Escape);
    });
    choose(window, u"mnuFile"_s, u"mnuSysRight"_s);
}

void log_in_as(frmMain& window, const QString& step, const QString& name, const QString& password) {
    choose(window, u"mnuFile"_s, u"logout"_s);
    expect_login(step, password, name);
    choose(window, u"mnuFile"_s, u"logout"_s);
    guide::step(step + u"-done"_s, u"操作员：%1|注消我自己"_s.arg(name),
                {describe(window).section(u' ', 2)});
}

void work_as_the_clerk(frmMain& window) {
    expect_box(u"administration-refused"_s, u"提示|你没有权限操作这项功能!"_s);
    choose(window, u"mnuFile"_s, u"mnuSysUSer"_s);
    choose(window, u"mnuIN"_s, u"mnuCreTech"_s);
    guide::step(u"daily-work-allowed"_s, u"常用短语"_s, {front_list(window).windowTitle()});
    press(window, u"Exit"_s);
    expect_dialog("frmuser", u"my-password"_s, u"操作员"_s,
                  {{u"txtPassword"_s, u"5678"_s}, {u"txtconpass"_s, u"5678"_s}});
    expect_box(u"password-changed"_s, u"保存成功|成功修改了用户的信息"_s);
    choose(window, u"mnuFile"_s, u"mnuChgPassword"_s);
    choose(window, u"mnuFile"_s, u"logout"_s);
    expect_login(u"old-password"_s, u"1234"_s, clerk);
    expect_box(u"old-password-refused"_s, u"登录错误|用户名称或者口令输入错误，请重新输入！"_s);
    expect_login(u"new-password"_s, u"5678"_s);
    choose(window, u"mnuFile"_s, u"logout"_s);
}

void delete_the_operator(frmMain& window) {
    front_grid(window).selectRow(1);
    expect_box(u"deleted"_s, u"删除成功|成功删除操作员，编号为:2"_s);
    press(window, u"Delete"_s);
    guide::step(u"operators-left"_s, u"valdrine"_s,
                {shown(window, 1), stored(u"select username from users"_s)});
}

} // namespace

void tour::fourth_run(frmMain& window) {
    find_the_layout(window);
    add_an_operator(window);
    change_the_right(window, u"right-granted"_s, {}, u"√"_s);
    log_in_as(window, u"clerk"_s, clerk, u"1234"_s);
    work_as_the_clerk(window);
    log_in_as(window, u"administrator"_s, u"valdrine"_s, {});
    change_the_right(window, u"right-withdrawn"_s, u"√"_s, {});
    log_in_as(window, u"clerk-again"_s, clerk, u"5678"_s);
    expect_box(u"daily-work-refused"_s, u"|你没有权限操作这项功能!"_s); // not a single right
    choose(window, u"mnuIN"_s, u"mnusend"_s);
    log_in_as(window, u"administrator-again"_s, u"valdrine"_s, {});
    delete_the_operator(window);
    expect_dialog("frmAbout", u"about"_s, u"关于本系统"_s);
    choose(window, u"mnuHelp"_s, u"mnuHelpAbout"_s);
    choose(window, u"mnuFile"_s, u"mnuSysExit"_s);
}
