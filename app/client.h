// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_cusclass.h"
#include "data/c_customer.h"
#include "data/c_group.h"
#include "data/c_gsendsms.h"
#include "data/c_parameter.h"
#include "data/c_recvedsms.h"
#include "data/c_sendsms.h"
#include "data/c_smsm.h"
#include "directory/vc_cusclass.h"
#include "directory/vc_customer.h"
#include "directory/vc_group.h"
#include "directory/vc_parameter.h"
#include "directory/vc_smsm.h"
#include "messaging/vc_gsendsms.h"
#include "messaging/vc_recvedsms.h"
#include "messaging/vc_sendsms.h"
#include "operators/vc_users.h"
#include "platform/database/exclusive_lease.h"

#include <QMdiArea>

#include <memory>

class frmMain;

/// The composition root: makes the record-access objects, the controllers and the main window, and
/// hands each what it needs. Lives until the process ends.
class client {
public:
    client();
    ~client();
    Q_DISABLE_COPY_MOVE(client)

    /// Makes the main window, shows it behind the splash picture, and returns it.
    frmMain& open_main_window();

private:
    std::unique_ptr<QMdiArea> windows_; ///< the main window's, once there is one

    c_smsm phrases_;
    c_cusclass classes_;
    c_customer customers_;
    c_parameter parameters_;
    c_group groups_;
    c_sendsms outgoing_;
    c_gsendsms group_sends_;
    c_recvedsms received_;
    m_sendsmses queue_;
    exclusive_lease turn_; ///< of all clients on this database, one sends

    vc_smsm phrase_screen_;
    vc_cusclass class_screen_;
    vc_customer customer_screen_;
    vc_parameter parameter_screen_;
    vc_group group_screen_;
    vc_sendsms outgoing_screen_;
    vc_gsendsms group_send_screen_;
    vc_recvedsms received_screen_;
    vc_users operator_screen_;

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
