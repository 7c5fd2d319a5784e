// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/mdi_arrange.h"
#include "messaging/dispatch_engine.h"

#include <QMainWindow>

class QLabel;
struct screens;

/// The frame window: menus, status bar, the list windows and the dispatch engine.
class frmMain : public QMainWindow {
    Q_OBJECT

public:
    /// `windows` is the area into which the screens put their list windows.
    frmMain(std::unique_ptr<QMdiArea> windows, screens& opened,
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
    screens& opened_;
    dispatch_engine engine_;
    QLabel* operator_panel_;
    QAction* logout_ = nullptr;
    bool leaves_ = false;
};
