// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

/// A database value as text: Null is empty, anything else loses the blanks around it.
[[nodiscard]] QString nvltrim(const QVariant& value);
