// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/vc_in.h"

class QMdiArea;

/// The operator list on the screen, over operator maintenance.
class vc_users : public vc_in {
public:
    explicit vc_users(QMdiArea& windows) : windows_(windows) {}

    void listall() override;
    bool createrec() override;
    bool modifyrec(qint16 id) override;
    bool deleterec(qint16 id) override;
    void openrs(Recordset& rs) override;
    void search(const QVariant& /*column*/, const QVariant& /*value*/) override {}
    [[nodiscard]] QString getidstring() const override;
    [[nodiscard]] std::optional<spListHeaders> Ref() override;

private:
    QMdiArea& windows_;
};
