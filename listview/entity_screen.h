// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/forms/entity_loops.h"
#include "listview/frmdatagrid.h"
#include "listview/vc_in.h"

#include <memory>

/// The controller of an entity that has a list window and a record-access class: what all of them
/// do alike. A derived class names its view and its key column and overrides what it can do.
template <class Access>
class entity_list : public vc_in {
public:
    /// The entity's record access; set once when the objects are wired.
    const Access* records = nullptr;

    entity_list(QMdiArea& windows, QStringView view_no, QStringView id_column,
                const entity_messages& messages)
        : windows_(windows), view_no_(view_no), id_column_(id_column), messages_(messages) {}

    void listall() override { open_list_window(windows_, *this, view_no_.toString()); }
    bool createrec() override { return false; }
    bool modifyrec(qint16 /*id*/) override { return false; }
    /// A key of 0 stands for no record: an empty list has none to delete.
    bool deleterec(qint16 id) override {
        return report_deletion(messages_, id != 0 && records->deleterec(id));
    }
    void openrs(Recordset& rs) override { records->openrs(rs); }
    void search(const QVariant& /*column*/, const QVariant& /*value*/) override {}
    [[nodiscard]] QString getidstring() const override { return id_column_.toString(); }
    [[nodiscard]] std::optional<spListHeaders> Ref() override { return std::nullopt; }
    [[nodiscard]] bool can(entity_command command) const override {
        return command == entity_command::remove;
    }

protected:
    [[nodiscard]] const entity_messages& messages() const { return messages_; }

private:
    QMdiArea& windows_;
    QStringView view_no_;
    QStringView id_column_;
    const entity_messages& messages_;
};

/// The controller of an entity whose records are also written by hand. A derived class says how its
/// record is checked, inserted and updated.
template <class Access, class Dialog>
class entity_screen : public entity_list<Access> {
public:
    using entity_list<Access>::entity_list;
    using record = decltype(Dialog::record);

    bool createrec() override {
        const std::unique_ptr<Dialog> dialog = make_dialog();
        return add_loop(
            *dialog, this->messages(), [&] { return validate(*dialog); },
            [&] { return insert(dialog->record); });
    }

    bool modifyrec(qint16 id) override {
        const auto found = this->records->getrec(id);
        if (!found) {
            report_missing(this->messages());
            return false;
        }
        const std::unique_ptr<Dialog> dialog = make_dialog();
        dialog->record = *found;
        return edit_loop(
            *dialog, this->messages(), [&] { return validate(*dialog); },
            [&] { return update(dialog->record); });
    }

    [[nodiscard]] bool can(entity_command /*command*/) const override { return true; }

protected:
    [[nodiscard]] virtual std::unique_ptr<Dialog> make_dialog() const = 0;
    /// True when the dialog's record may be saved; otherwise the dialog has told why.
    [[nodiscard]] virtual bool validate(Dialog& dialog) const = 0;
    [[nodiscard]] virtual bool insert(const record& added) const = 0;
    [[nodiscard]] virtual bool update(const record& changed) const = 0;
};
