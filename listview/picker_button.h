// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QPushButton;
class QString;

/// A small button "…" that opens a picker; `purpose` tells what is picked. It is for a layout,
/// which gives it its parent and its place in the tab order.
[[nodiscard]] QPushButton* make_picker_button(const QString& name, const QString& purpose);
