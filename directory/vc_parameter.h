// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_parameter.h"
#include "listview/vc_in.h"

/// The gateway parameters on the screen: one record, edited and nothing else.
class vc_parameter : public vc_in {
public:
    /// The parameters' record access; set once when the objects are wired.
    const c_parameter* records = nullptr;

    void listall() override {}
    bool createrec() override { return false; }
    /// Edits the one record, whatever the key.
    bool modifyrec(qint16 id) override;
    bool deleterec(qint16 /*id*/) override { return false; }
    void openrs(Recordset& /*rs*/) override {}
    void search(const QVariant& /*column*/, const QVariant& /*value*/) override {}
    [[nodiscard]] QString getidstring() const override { return {}; }
    [[nodiscard]] std::optional<spListHeaders> Ref() override { return std::nullopt; }
};
