// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/client.h"

#include "app/application_title.h"
#include "app/error_report.h"
#include "app/frmLogin.h"
#include "app/frmMain.h"
#include "app/frmSplash.h"
#include "data/schema.h"
#include "data/strconn.h"
#include "operators/rsclsuser.h"
#include "platform/database/connection_string.h"
#include "platform/guarded.h"
#include "platform/settings_store.h"
#include "platform/termination_watch.h"
#include "platform/widgets/readable_style.h"

#include <QApplication>
#include <QIcon>
#include <QTranslator>

using namespace Qt::StringLiterals;

client::client()
    : windows_(std::make_unique<QMdiArea>()), screens_(*windows_), turn_(data_source(strconn)) {}

client::~client() = default;

frmMain& client::open_main_window() {
    main_window_ = std::make_unique<frmMain>(
        std::move(windows_), screens_,
        dispatch_engine::collaborators{.parameters = screens_.parameter_records,
                                       .outgoing = screens_.outgoing_records,
                                       .received = screens_.received_records,
                                       .queue = queue_,
                                       .turn = &turn_});
    frmSplash splash(main_window_.get());
    splash.show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // lets the picture appear
    splash.repaint();
    main_window_->show();
    splash.hide();
    return *main_window_;
}

std::optional<int> start_session(const QString& directory) {
    // No server name outlives a restart.
    settings_store::save(application_title(), settings_section(), u"connection"_s, {});
    try {
        strconn = make_strconn(directory);
        ensure_database(strconn);
    } catch (const std::exception& error) {
        show_last_error(error);
        return 1;
    }
    curuser = std::make_unique<rsclsuser>();
    frmLogin login;
    login.exec();
    if (login.loginok) {
        return std::nullopt;
    }
    releaseuser();
    return login.failed ? 1 : 0;
}

void end_when_asked(QObject& owner) {
    auto* watch = new termination_watch(&owner);
    QObject::connect(watch, &termination_watch::requested, watch,
                     [] { QApplication::closeAllWindows(); });
}

void set_up_toolkit() {
    QApplication::setStyle(new readable_style);
    QApplication::setWindowIcon(QIcon(u":/smscrm.svg"_s));
    auto* chinese = new QTranslator(QCoreApplication::instance());
    if (chinese->load(u":/translations/qtbase_zh_CN.qm"_s)) {
        QCoreApplication::installTranslator(chinese);
    }
    error_edge::set_handler(show_error);
}
