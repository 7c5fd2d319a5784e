// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

/// Fills closed standard streams, so that no file or socket is taken for one of them: what is
/// written to them is lost. To be called before anything is opened.
void fill_standard_streams();
