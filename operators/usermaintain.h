// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class Recordset;
class frmuser;

/// Adding, changing and deleting operators: the rows of table `users`.
namespace usermaintain {

/// Adds operators until the user of the program stops; true after at least one, false when
/// cancelled.
bool adduser();
/// Changes an operator, beginning in the dialog's box of this name; true when saved. The session
/// user goes by the new name at once.
bool modifyuser(qint32 id, const QString& first_box = QStringLiteral("txtUserName"));
/// Deletes an operator without asking; the rights rows stay.
bool deleteuser(qint32 id);

/// Whether what stands in the dialog can be saved; otherwise the dialog has told why.
[[nodiscard]] bool checkuser(frmuser& dialog);
/// These store what stands in the dialog; false, and a message, when that fails.
[[nodiscard]] bool insertuser(const frmuser& dialog);
[[nodiscard]] bool updateuser(const frmuser& dialog);

/// Opens the record set on all operators. Throws DataError.
void Userrs(Recordset& rs);

} // namespace usermaintain
