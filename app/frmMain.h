// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/mdi_arrange.h"
#include "messaging/dispatch_engine.h"

#include <QMainWindow>

class QLabel;
class vc_in;

/// The frame window: menus, status bar, the list windows and the dispatch engine.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    /// The controllers that the menus open.
    struct controllers {
        vc_in& phrases;
        vc_in& classes;
        vc_in& customers;
        vc_in& parameters;
        vc_in& groups;
        vc_in& outgoing;
        vc_in& group_sends;
        vc_in& received;
        vc_in& operators;
    };

    /// `windows` is the area into which the controllers put their list windows.
    frmMain(std::unique_ptr<QMdiArea> windows, const controllers& opened,
            const dispatch_engine::collaborators& dispatched);
    ~frmMain() override;
    Q_DISABLE_COPY_MOVE(frmMain)

    // The engine's operations, as the window offers them.
    void startTimer() { engine_.startTimer(); }
    void StopTomer() { engine_.StopTomer(); }
    void initsend() { engine_.initsend(); }
    void sendend(const bool& ok) { engine_.sendend(ok); }
    void sendsms() { engine_.sendsms(); }

    /// Ends the program: its windows go at once and nothing is shown any more; the process goes
    /// when the message in flight is answered and marked, or has not been within the reply
    /// time-out.
    void leave();

    /// Asks for the database server's name; no menu leads here.
    void setserver();

    [[nodiscard]] dispatch_engine& engine() { return engine_; }

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void build_system_menu();
    void build_work_menu();
    void build_gateway_menu();
    void build_query_menu();
    void build_window_menu();
    void build_help_menu();
    void show_operator();
    void log_out_or_in();

    QMdiArea* windows_;
    controllers opened_;
    dispatch_engine engine_;
    QLabel* operator_panel_;
    QAction* logout_ = nullptr;
    bool leaves_ = false;
};
