// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "data/c_parameter.h"
#include "listview/vc_in.h"

/// The gateway parameters on the screen: one record, edited and nothing else.
class vc_parameter : public vc_in {
public:
    const c_parameter& records;

    explicit vc_parameter(const c_parameter& access) : records(access) {}

    /// Edits the one record, whatever the key.
    bool modifyrec(qint16 id) override;
    [[nodiscard]] bool can(entity_command command) const override {
        return command == entity_command::modify;
    }
};
