// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// From now on these files are taken away first when the process is asked to end (Ctrl+C, a closed
/// terminal, the system's shutdown); none any more with an empty list. Where the system has no such
/// requests nothing happens.
void remove_on_termination(const QStringList& files);
