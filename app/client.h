// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "app/screens.h"
#include "platform/database/exclusive_lease.h"

#include <QMdiArea>

#include <memory>

class frmMain;

/// The composition root: makes the screens and the main window, and hands each what it needs. Lives
/// until the process ends.
class client {
public:
    client();
    ~client();
    Q_DISABLE_COPY_MOVE(client)

    /// Makes the main window, shows it behind the splash picture, and returns it.
    frmMain& open_main_window();

private:
    std::unique_ptr<QMdiArea> windows_; ///< the main window's, once there is one

    screens screens_;
    m_sendsmses queue_;
    exclusive_lease turn_; ///< of all clients on this database, one sends

    std::unique_ptr<frmMain> main_window_;
};

/// What stands before the main window: makes the connection string for a database in `directory`,
/// the database itself when there is none, and the session user, and asks the operator to log in.
/// Returns nothing when the program is to go on, else its exit status.
[[nodiscard]] std::optional<int> start_session(const QString& directory);

/// While `owner` lives, ends the program when the system wants it: in good order, as if somebody
/// closed its windows.
void end_when_asked(QObject& owner);

/// Sets up the toolkit for this program: title, icon, Chinese standard texts, error boxes.
void set_up_toolkit();
