// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_recvedsms.h"
#include "listview/entity_screen.h"

/// Received messages on the screen: listed and deleted, never written by hand.
class vc_recvedsms : public entity_list<c_recvedsms> {
public:
    vc_recvedsms(QMdiArea& windows, const c_recvedsms& access);
};
