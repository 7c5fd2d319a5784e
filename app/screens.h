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

/// The record access of every entity and its controller, each made with what it needs.
struct screens {
    /// `area` gets the list windows; `now` is the clock of all of them.
    explicit screens(QMdiArea& area, clock_source clock = system_clock)
        : windows(area), now(std::move(clock)) {
        outgoing_records.now = now;
    }
    ~screens() = default;
    Q_DISABLE_COPY_MOVE(screens)

    QMdiArea& windows;
    clock_source now;

    c_smsm phrase_records;
    c_cusclass class_records;
    c_customer customer_records;
    c_parameter parameter_records;
    c_group group_records;
    c_sendsms outgoing_records;
    c_gsendsms group_send_records;
    c_recvedsms received_records;

    vc_smsm phrases{windows, phrase_records};
    vc_cusclass classes{windows, class_records};
    vc_customer customers{windows, customer_records};
    vc_parameter parameters{parameter_records};
    vc_group groups{windows, group_records, classes, customers};
    vc_sendsms outgoing{windows, outgoing_records, customers, phrases, now};
    vc_gsendsms group_sends{windows, group_send_records, classes, phrases, now};
    vc_recvedsms received{windows, received_records};
    vc_users operators{windows};
};
