// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "listview/list_screen.h"
#include "platform/widgets/owner_window.h"

#include <memory>
#include <tuple>
#include <utility>

/// The controller of an entity whose records are listed and deleted, through its record access.
template <class Access>
class entity_list : public list_screen {
public:
    const Access& records;

    entity_list(QMdiArea& windows, const Access& access, const entity_description& described)
        : list_screen(windows, described), records(access) {}

    /// A key of 0 stands for no record: an empty list has none to delete.
    bool deleterec(qint16 id) override {
        return report_deletion(this->messages(), id != 0 && records.deleterec(id));
    }
    void openrs(Recordset& rs) override { records.openrs(rs); }
    [[nodiscard]] bool can(entity_command command) const override {
        return command == entity_command::remove;
    }
};

/// The controller of an entity whose records are also written, in a dialog that is made with the
/// collaborators.
template <class Access, class Dialog, class... Collaborators>
class entity_writer : public entity_list<Access> {
public:
    /// True when the dialog's record may be saved; otherwise the dialog has told why.
    using record_check = bool (*)(Dialog& dialog);

    entity_writer(QMdiArea& windows, const Access& access, const entity_description& described,
                  record_check validate, Collaborators... with)
        : entity_list<Access>(windows, access, described),
          check_(validate),
          collaborators_(std::forward<Collaborators>(with)...) {}

    bool createrec() override {
        const auto dialog = make_dialog();
        return add_loop(
            *dialog, this->messages(), [&] { return check_(*dialog); },
            [&] { return add(dialog->record); });
    }
    [[nodiscard]] bool can(entity_command command) const override {
        return command != entity_command::modify;
    }

protected:
    using record = decltype(Dialog::record);

    [[nodiscard]] virtual bool add(const record& added) const { return this->records.add(added); }
    [[nodiscard]] bool check(Dialog& dialog) const { return check_(dialog); }
    [[nodiscard]] std::unique_ptr<Dialog> make_dialog() const {
        return std::apply(
            [](auto&... with) { return std::make_unique<Dialog>(with..., owner_window()); },
            collaborators_);
    }

private:
    record_check check_;
    std::tuple<Collaborators...> collaborators_;
};

/// The controller of an entity whose records are also changed.
template <class Access, class Dialog, class... Collaborators>
class entity_screen : public entity_writer<Access, Dialog, Collaborators...> {
public:
    using entity_writer<Access, Dialog, Collaborators...>::entity_writer;

    bool modifyrec(qint16 id) override {
        const auto found = this->records.getrec(id);
        if (!found) {
            report_missing(this->messages());
            return false;
        }
        const auto dialog = this->make_dialog();
        dialog->record = *found;
        return edit_loop(
            *dialog, this->messages(), [&] { return this->check(*dialog); },
            [&] { return this->records.update(dialog->record); });
    }
    [[nodiscard]] bool can(entity_command /*command*/) const override { return true; }
};
