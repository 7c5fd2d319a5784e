// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_group.h"
#include "directory/frmGroup.h"
#include "listview/entity_screen.h"

/// Memberships of customers in classes on the screen.
class vc_group : public entity_screen<c_group, frmGroup, vc_in&, vc_in&> {
public:
    /// `classes` and `customers` are what the edit dialog picks from.
    vc_group(QMdiArea& windows, const c_group& access, vc_in& classes, vc_in& customers);
};
