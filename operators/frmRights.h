// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/recordset.h"

#include <QDialog>

class data_grid;

/// The rights editor: the operators on one side, the functions on the other, each marked when the
/// operator holds it. A mark is written as it is set; there is nothing to save.
class frmRights : public QDialog {
    Q_OBJECT

public:
    /// What cannot be read leaves its grid empty.
    explicit frmRights(QWidget* parent = nullptr);
    ~frmRights() override;
    Q_DISABLE_COPY_MOVE(frmRights)

    /// Clears every mark.
    void ResetFuns();
    /// Marks what the operator holds. Throws DataError; then nothing is marked, and no mark can be
    /// changed.
    void GetOneRights(qint32 userid);
    /// These write one right of an operator. Throw DataError.
    static void ADDRight(qint32 userid, qint32 funid);
    static void DeleteRight(qint32 userid, qint32 funid);

private:
    void read_users();
    void read_functions();
    void show_rights_of_current_user();
    void toggle();

    Recordset users_;
    Recordset functions_; ///< in memory: funid, funName, Selected
    data_grid* dataUsers;
    data_grid* dataFuns;
    bool rights_are_known_ = false; ///< the marks are those of the current operator
};
