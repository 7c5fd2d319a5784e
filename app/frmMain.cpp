// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmMain.h"

#include "app/application_title.h"
#include "app/frmAbout.h"
#include "app/frmLogin.h"
#include "app/frmserver.h"
#include "app/list_follower.h"
#include "app/list_panel.h"
#include "app/screens.h"
#include "app/window_placement.h"
#include "operators/frmRights.h"
#include "operators/rsclsuser.h"
#include "operators/usermaintain.h"
#include "platform/guarded.h"
#include "platform/widgets/msgbox.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using command = std::function<void()>;

/// An item without a command does nothing when chosen.
QAction* add_item(QMenu& menu, const QString& name, const QString& caption,
                  const command& chosen = {}) {
    QAction* item = menu.addAction(caption);
    item->setObjectName(name);
    if (chosen) {
        QObject::connect(item, &QAction::triggered, &menu, guarded([chosen] { chosen(); }));
    }
    return item;
}

/// A command behind the check of a right.
command with_right(qint32 right, const command& allowed = {}) {
    return [right, allowed] {
        if (curuser->CanDo(right, true) && allowed) {
            allowed();
        }
    };
}

command list_of(vc_in& controller) {
    return with_right(function_id::daily_work, [&controller] { controller.listall(); });
}

QMenu& add_menu(QMainWindow& window, const QString& name, const QString& caption) {
    QMenu* menu = window.menuBar()->addMenu(caption);
    menu->setObjectName(name);
    return *menu;
}

} // namespace

frmMain::frmMain(std::unique_ptr<QMdiArea> windows, screens& opened,
                 const dispatch_engine::collaborators& dispatched)
    : windows_(windows.release()),
      opened_(opened),
      engine_(dispatched),
      operator_panel_(new QLabel(this)) {
    setWindowTitle(application_title());
    setCentralWidget(windows_);
    windows_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    windows_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    build_system_menu();
    build_work_menu();
    build_gateway_menu();
    build_query_menu();
    build_window_menu();
    build_help_menu();

    auto* sbStatusBar = new QStatusBar(this);
    sbStatusBar->setObjectName(u"sbStatusBar"_s);
    setStatusBar(sbStatusBar);
    sbStatusBar->addWidget(new list_panel(*windows_, this), 1);
    operator_panel_->setObjectName(u"Panel2"_s);
    operator_panel_->setTextFormat(Qt::PlainText); // a name with "<" is no markup
    sbStatusBar->addPermanentWidget(operator_panel_);

    auto* follower = new list_follower(*windows_, this);
    connect(&engine_, &dispatch_engine::sent, follower,
            [this, follower] { follower->note(opened_.outgoing); });
    connect(&engine_, &dispatch_engine::stored, follower,
            [this, follower] { follower->note(opened_.received); });
    msgbox::set_silent(false);
    restore_placement(*this);
    show_operator();
    connect(curuser.get(), &rsclsuser::username_changed, this, &frmMain::show_operator);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { save_placement(*this); });
    engine_.initsend();
}

// Not sooner: what a closing interrupts may still ask for the user.
frmMain::~frmMain() {
    releaseuser();
}

void frmMain::build_system_menu() {
    QMenu& menu = add_menu(*this, u"mnuFile"_s, u"操作管理(&F)"_s);
    add_item(
        menu, u"mnuSysUSer"_s, u"操作员管理"_s,
        with_right(function_id::operator_administration, [this] { opened_.operators.listall(); }));
    add_item(menu, u"mnuSysRight"_s, u"权限设置"_s,
             with_right(function_id::operator_administration, [this] { frmRights(this).exec(); }));
    add_item(menu, u"mnuChgPassword"_s, u"改变我的口令"_s,
             [] { usermaintain::modifyuser(curuser->userid(), u"txtPassword"_s); });
    logout_ = add_item(menu, u"logout"_s, u"注销我自己"_s, [this] { log_out_or_in(); });
    add_item(menu, u"mnuSysExit"_s, u"退出(&X)"_s, [this] { close(); });
}

void frmMain::build_work_menu() {
    QMenu& menu = add_menu(*this, u"mnuIN"_s, u"日常工作(&C)"_s);
    add_item(menu, u"mnucusclass"_s, u"客户分类目录"_s, list_of(opened_.classes));
    add_item(menu, u"mnuProject"_s, u"客户资料"_s, list_of(opened_.customers));
    add_item(menu, u"mnugroup"_s, u"客户分组"_s, list_of(opened_.groups));
    add_item(menu, u"mnuCreTech"_s, u"常用语"_s, list_of(opened_.phrases));
    menu.addSeparator()->setObjectName(u"mc"_s);
    add_item(menu, u"mnusend"_s, u"短信单发"_s, list_of(opened_.outgoing));
    add_item(menu, u"mnuTIMEC"_s, u"短信群发"_s, list_of(opened_.group_sends));
    add_item(menu, u"mnusendtoall"_s, u"向所有客户发送短信"_s)->setEnabled(false);
    menu.addSeparator()->setObjectName(u"mck"_s);
    add_item(menu, u"mnunewcustomer"_s, u"查询收到的短信"_s, list_of(opened_.received));
}

void frmMain::build_gateway_menu() {
    QMenu& menu = add_menu(*this, u"mnusetled"_s, u"短信发送参数"_s);
    add_item(menu, u"mnustartsend"_s, u"开始发送短信"_s)->setEnabled(false);
    add_item(menu, u"mnustopsend"_s, u"停止短信发送"_s)->setEnabled(false);
    add_item(menu, u"mnuPara"_s, u"参数定义"_s,
             with_right(function_id::daily_work, [this] { opened_.parameters.modifyrec(1); }));
}

void frmMain::build_query_menu() {
    QMenu& menu = add_menu(*this, u"mnuOut"_s, u"查询(D)"_s);
    add_item(menu, u"MNULEDMODE"_s, u"查询短信发送情况"_s);
    menu.menuAction()->setEnabled(false);
}

void frmMain::build_window_menu() {
    QMenu& menu = add_menu(*this, u"mnuWindow"_s, u"窗口(&W)"_s);
    const auto add = [this, &menu](const QString& name, const QString& caption,
                                   mdi_arrangement arrangement) {
        add_item(menu, name, caption, [this, arrangement] { arrange(*windows_, arrangement); });
    };
    add(u"mnuWindowCascade"_s, u"级连"_s, mdi_arrangement::cascade);
    add(u"mnuWindowTileHorizontal"_s, u"水平排列"_s, mdi_arrangement::tile_horizontal);
    add(u"mnuWindowTileVertical"_s, u"垂直排列"_s, mdi_arrangement::tile_vertical);
    add(u"mnuWindowArrangeIcons"_s, u"图标安排"_s, mdi_arrangement::icons);
}

void frmMain::build_help_menu() {
    QMenu& menu = add_menu(*this, u"mnuHelp"_s, u"帮助(&H)"_s);
    add_item(menu, u"mnuHelpContents"_s, u"帮助内容"_s);
    menu.addSeparator()->setObjectName(u"mnuHelpBar0"_s);
    add_item(menu, u"mnuHelpAbout"_s, u"关于"_s,
             [this] { frmAbout(*system_registry(), this).exec(); });
}

void frmMain::setserver() {
    if (!curuser->CanDo(function_id::operator_administration, true)) {
        return;
    }
    frmserver dialog(this);
    dialog.exec();
    if (dialog.serverok) {
        msgbox::information(u"服务器已经设置好，下次进入系统才可生效！"_s, u"系统提示"_s);
    }
}

void frmMain::show_operator() {
    operator_panel_->setText(u"操作员："_s + curuser->username());
}

void frmMain::log_out_or_in() {
    if (curuser->userid() != rsclsuser::nobody) {
        curuser->logout();
        windows_->closeAllSubWindows(); // nobody may do anything in them
    } else {
        frmLogin login(this);
        login.exec();
        if (login.failed) {
            QCoreApplication::exit(1);
            return;
        }
        if (!curuser) { // the program was ended meanwhile
            return;
        }
    }
    if (curuser->userid() != rsclsuser::nobody) {
        curuser->refreshRights();
        logout_->setText(u"注消我自己"_s);
    } else {
        logout_->setText(u"注册"_s);
    }
}

bool frmMain::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest) {
        // No menu falls behind an arrow, not even beside the buttons of a maximised list.
        setMinimumWidth(menuBar()->sizeHint().width());
    }
    return QMainWindow::event(event);
}

void frmMain::closeEvent(QCloseEvent* event) {
    leave();
    event->accept();
}

void frmMain::leave() {
    if (std::exchange(leaves_, true)) {
        return;
    }
    save_placement(*this);
    msgbox::set_silent(true);
    for (QWidget* window : QApplication::topLevelWidgets()) {
        window->hide();
    }
    connect(&engine_, &dispatch_engine::finished, this, &QCoreApplication::quit);
    engine_.finish();
}
