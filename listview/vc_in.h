// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/spListHeaders.h"
#include "platform/database/recordset.h"

#include <optional>

/// What a controller may be able to do with records.
enum class entity_command { create, modify, remove };

/// What a list window and a picker button need of an entity: the interface of every controller. By
/// itself an entity can do nothing.
class vc_in {
public:
    vc_in() = default;
    virtual ~vc_in() = default;
    Q_DISABLE_COPY_MOVE(vc_in)

    /// Opens a further list window over the entity's view. Throws DataError.
    virtual void listall() {}
    /// Creates records through the edit dialog; true when the operator ended with a saved one.
    virtual bool createrec() { return false; }
    /// Edits the record with this key; true when it was saved.
    virtual bool modifyrec(qint16 /*id*/) { return false; }
    /// Deletes the record with this key; true when it was deleted.
    virtual bool deleterec(qint16 /*id*/) { return false; }
    /// Opens the record set on all rows of the entity's view. Throws DataError.
    virtual void openrs(Recordset& /*rs*/) {}
    virtual void search(const QVariant& /*column*/, const QVariant& /*value*/) {}
    /// The name of the view's key column.
    [[nodiscard]] virtual QString getidstring() const { return {}; }
    /// Lets the operator pick one row; its values stand in the columns' `Other1`, empty when
    /// nothing was picked. Nothing for an entity that cannot be picked. Throws DataError.
    [[nodiscard]] virtual std::optional<spListHeaders> Ref() { return std::nullopt; }
    /// False for a command that would do nothing.
    [[nodiscard]] virtual bool can(entity_command /*command*/) const { return false; }
};
