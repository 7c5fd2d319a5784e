// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/forms/entity_loops.h"
#include "listview/frmref.h"
#include "listview/vc_in.h"

#include <span>

class QMdiArea;

/// What the screens of an entity have of their own, beside what they do.
struct entity_description {
    QStringView view_no;   ///< of the list window and the picker
    QStringView id_column; ///< the view's key column
    entity_messages messages = {};
    QStringView picker_caption = {};
    std::span<const picker_column> picker_columns = {}; ///< none: it cannot be picked
};

/// A controller with a list window and a picker, as its description says.
class list_screen : public vc_in {
public:
    /// `described` must live as long as the controller.
    list_screen(QMdiArea& windows, const entity_description& described)
        : windows_(windows), described_(described) {}

    void listall() override;
    [[nodiscard]] QString getidstring() const override;
    [[nodiscard]] std::optional<spListHeaders> Ref() override;

protected:
    [[nodiscard]] const entity_messages& messages() const { return described_.messages; }

private:
    QMdiArea& windows_;
    const entity_description& described_;
};
