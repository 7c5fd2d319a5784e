// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tools/old_format/jet_table.h"

#include <QList>

namespace old_format {

/// The tables of a file that hold data, in no useful order. Throws damaged.
[[nodiscard]] QList<table_place> tables_of(jet_file& file);

} // namespace old_format
