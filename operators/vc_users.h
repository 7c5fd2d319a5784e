// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/list_screen.h"

/// The operator list on the screen, over operator maintenance.
class vc_users : public list_screen {
public:
    explicit vc_users(QMdiArea& windows);

    bool createrec() override;
    bool modifyrec(qint16 id) override;
    bool deleterec(qint16 id) override;
    void openrs(Recordset& rs) override;
    [[nodiscard]] bool can(entity_command /*command*/) const override { return true; }
};
