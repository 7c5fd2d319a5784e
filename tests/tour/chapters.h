// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QProcess;
class QString;
class frmMain;

/// The tour: four runs of the program over one database. Each is handed the main window when
/// somebody has logged in, and is closed after it.
namespace tour {

using chapter = void(frmMain& window, QProcess& gateway);

/// A phrase, two customers and the gateway's port. The engine reads the port once, when the window
/// opens: a new one serves the next start.
chapter first_run;
/// A message goes out, an answer comes in; sorting, finding, logging out.
chapter second_run;
/// A class with two members, messages to it and to everybody, their answers, another layout.
chapter third_run;
/// What an operator without rights may do, with one and without it again.
chapter fourth_run;

/// Part of the second run: headings, the context menu and the export of the customers.
void work_in_a_list(frmMain& window);
/// The marked message of the list in front, in a window of its own.
void read_a_message(frmMain& window, const QString& expected);

} // namespace tour
