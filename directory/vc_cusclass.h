// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_cusclass.h"
#include "directory/frmCusclass.h"
#include "listview/entity_screen.h"

/// Customer classes on the screen.
class vc_cusclass : public entity_screen<c_cusclass, frmCusclass> {
public:
    vc_cusclass(QMdiArea& windows, const c_cusclass& access);
};
