// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QPlainTextEdit>
#include <QString>

class vc_in;

// What the dialogs of single messages and of group sends have in common.

/// A send time as the boxes show it.
[[nodiscard]] QString show_stime(const QDateTime& stime);

/// Lets the operator pick a phrase; its text replaces what stands in the box, unless none was
/// picked.
void pick_phrase_into(vc_in& phrases, QPlainTextEdit& box);
