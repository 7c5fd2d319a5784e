// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QProcess;
class frmMain;

/// The tour: four runs of the program over one database. Each is handed the main window when
/// somebody has logged in, and ends by closing it.
namespace tour {

/// A phrase, two customers and the gateway's port. The engine reads the port once, when the window
/// opens: a new one serves the next start.
void first_run(frmMain& window, const QString& port);
/// A message goes out, an answer comes in; sorting, finding, logging out.
void second_run(frmMain& window, QProcess& gateway);
/// A class with two members, messages to it and to everybody, their answers, another layout.
void third_run(frmMain& window, QProcess& gateway);
/// What an operator without rights may do, with one and without it again.
void fourth_run(frmMain& window);

} // namespace tour
