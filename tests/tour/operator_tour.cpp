// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"
#include "listview/frmdatagrid.h"
#include "platform/widgets/data_grid.h"
#include "tests/tour/chapters.h"
#include "tests/tour/guide.h"
#include "tests/tour/visitor.h"

using namespace Qt::StringLiterals;
using namespace visitor;

namespace {

const QString clerk = u"小王"_s;
const QString padded = u" %1 "_s.arg(guide::secret); // a new operator's password loses its blanks
const QString operators = u"select username from users"_s;

void find_the_layout(frmMain& window) {
    choose(window, u"mnuIN"_s, u"mnuProject"_s);
    guide::step(u"layout-kept"_s, u"编号|手机|客户名称|性别|电话|备注"_s, {layout_of(window)});
    press(window, u"Exit"_s);
}

void add_an_operator(frmMain& window) {
    choose(window, u"mnuFile"_s, u"mnuSysUSer"_s);
    const QString caption = u"操作员"_s;
    expect_dialog("frmuser", u"operator-unnamed"_s, caption, {{u"txtUserName"_s, u"  "_s}});
    expect_box(u"name-missing"_s, u"输入错误|用户名称输入错误请检查！"_s);
    expect_dialog("frmuser", u"operator-misspelt"_s, caption,
                  {{u"txtUserName"_s, clerk}, {u"txtPassword"_s, padded}});
    expect_box(u"passwords-differ"_s, u"输入错误|用户口令输入错误！ "_s);
    expect_saving("frmuser", u"operator"_s, caption, {{u"txtconpass"_s, padded}},
                  u"创建成功|成功创建一个新的用户，是否继续? "_s);
    press(window, u"Add"_s);
    see_rows(u"operators"_s, u"valdrine / "_s + clerk, window, 1, operators);
}

/// Toggles the right to the daily work of the operator in the second row; nobody else's changes.
void change_the_right(frmMain& window, const QString& step, const QString& before,
                      const QString& after, const std::function<void(data_grid&)>& toggle) {
    person::expect_modal("frmRights", [=](QWidget& editor) {
        person::find<data_grid>(editor, u"dataUsers"_s).selectRow(1);
        auto& functions = person::find<data_grid>(editor, u"dataFuns"_s);
        const QString rights =
            u"select group_concat(userid || funid, ' ') from (select * from rights order by userid, funid)"_s;
        guide::step(u"rights-before-"_s + step.section(u'-', -1), before,
                    {rows_of(functions, 2, 2, 1)});
        toggle(functions);
        guide::step(step, after + (after.isEmpty() ? u"11 12"_s : u"11 12 22"_s),
                    {rows_of(functions, 2, 2, 1) + stored(rights)});
        person::press_key(editor, Qt::Key_Escape);
    });
    choose(window, u"mnuFile"_s, u"mnuSysRight"_s);
}

void log_in_as(frmMain& window, const QString& step, const QString& name = u"valdrine"_s,
               const QString& password = {}) {
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
    expect_saving("frmuser", u"my-password"_s, u"操作员"_s,
                  {{u"txtPassword"_s, padded}, {u"txtconpass"_s, padded}},
                  u"保存成功|成功修改了用户的信息"_s, QMessageBox::Ok);
    choose(window, u"mnuFile"_s, u"mnuChgPassword"_s);
    choose(window, u"mnuFile"_s, u"logout"_s);
    expect_login(u"old-password"_s, guide::secret, clerk);
    expect_box(u"old-password-refused"_s, u"登录错误|用户名称或者口令输入错误，请重新输入！"_s);
    expect_login(u"new-password"_s, padded, clerk);
    choose(window, u"mnuFile"_s, u"logout"_s);
}

void delete_the_operator(frmMain& window) {
    choose(window, u"mnuFile"_s, u"mnuSysUSer"_s);
    front_grid(window).selectRow(1);
    expect_box(u"deleted"_s, u"删除成功|成功删除操作员，编号为:2"_s);
    press(window, u"Delete"_s);
    see_rows(u"operators-left"_s, u"valdrine"_s, window, 1, operators);
}

} // namespace

void tour::fourth_run(frmMain& window, QProcess& /*gateway*/) {
    find_the_layout(window);
    add_an_operator(window);
    change_the_right(window, u"right-granted"_s, {}, u"√"_s,
                     [](data_grid& functions) { person::double_click(functions, 1); });
    log_in_as(window, u"clerk"_s, clerk, guide::secret);
    work_as_the_clerk(window);
    log_in_as(window, u"administrator"_s);
    change_the_right(window, u"right-withdrawn"_s, u"√"_s, {}, [](data_grid& functions) {
        functions.selectRow(1);
        QTest::keyClick(&functions, Qt::Key_Space);
    });
    log_in_as(window, u"clerk-again"_s, clerk, padded);
    expect_box(u"daily-work-refused"_s, u"|你没有权限操作这项功能!"_s); // not a single right
    choose(window, u"mnuIN"_s, u"mnusend"_s);
    log_in_as(window, u"administrator-again"_s);
    delete_the_operator(window);
    expect_dialog("frmAbout", u"about"_s, u"关于本系统"_s);
    choose(window, u"mnuHelp"_s, u"mnuHelpAbout"_s);
}
