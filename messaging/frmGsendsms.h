// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/m_gsendsms.h"
#include "messaging/message_dialog.h"

#include <optional>

class QLineEdit;

/// Writes a group send: to which class or to all, what, and when.
class frmGsendsms : public message_dialog<m_gsendsms> {
    Q_OBJECT

public:
    /// To how many customers a group send with these fields goes; nothing when that is not known.
    using addressee_count = std::function<std::optional<qint32>(qint16 cid, qint16 isall)>;

    /// `classes` and `phrases` serve the two picker buttons.
    frmGsendsms(vc_in& classes, vc_in& phrases, clock_source now, addressee_count count,
                QWidget* parent = nullptr);

private:
    [[nodiscard]] std::optional<qint32> addressees() const;
    void tell_addressees();

    addressee_count count_;
    QLineEdit* txtCid;
    QCheckBox* Chkall;
    QLabel* lblAddressees;
};
