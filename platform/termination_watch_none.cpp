// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/termination_watch.h"

termination_watch::termination_watch(QObject* parent) : QObject(parent) {}

termination_watch::~termination_watch() = default;
