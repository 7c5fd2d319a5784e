// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/spListHeaders.h"

#include <functional>
#include <initializer_list>
#include <optional>
#include <vector>

class QLineEdit;
class QPushButton;
class QWidget;
class form_row;

/// Lets the operator pick a row. Its values stand in the columns' `Other1`, all empty when none was
/// picked; nothing when there is nothing to pick from. Throws DataError.
using row_picker = std::function<std::optional<spListHeaders>()>;

/// A box and the column of the picked row that goes into it.
struct picked_box {
    QWidget* box;
    QString column; ///< its key
};

/// What the boxes of a picker show when no row was picked.
enum class given_up { keeps_them, empties_them };

/// Puts a small button "…" behind the row's box, which opens a picker and writes the picked row
/// into the boxes; the keyboard is in the row's box then. `purpose` tells what is picked.
QPushButton* add_picker_button(const form_row& row, const QString& name, const QString& purpose,
                               row_picker pick, std::vector<picked_box> boxes, given_up otherwise);

/// Nothing is typed into these boxes: the button fills them, and has the keyboard in their place.
void leave_to(QPushButton* button, std::initializer_list<QLineEdit*> boxes);
