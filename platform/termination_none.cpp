// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/termination.h"

void remove_on_termination(const QStringList& /*files*/) {}
