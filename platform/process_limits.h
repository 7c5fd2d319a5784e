// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Bounds what the running process may use from now on; beyond it the system ends the process or
/// gives no more. It leaves no image of its memory behind either. 0 bytes stand for no bound. Where
/// the system has no such limits nothing happens.
void limit_this_process(qint64 memory_bytes, int processor_seconds);

/// Makes a limit on the size of files an error like a full disk, not the end of the process.
void survive_file_size_limit();
