// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Bounds what the running process may use from now on; beyond it the system ends the process or
/// gives no more. It leaves no image of its memory behind either. 0 bytes stand for no bound.
void limit_this_process(qint64 memory_bytes, int processor_seconds);
