// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QMdiArea;

/// The ways to arrange the frame's windows, by their codes.
enum class mdi_arrangement { cascade = 0, tile_horizontal = 1, tile_vertical = 2, icons = 3 };

/// Lines up the minimised windows, in front, and arranges the others in the room above them (icons:
/// leaves the others as they are).
void arrange(const QMdiArea& area, mdi_arrangement arrangement);
