// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// The window that the operator works in; a box without one would open in a corner of its own.
/// Null when nothing is shown.
[[nodiscard]] QWidget* owner_window();
