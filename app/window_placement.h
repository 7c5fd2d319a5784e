// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QWidget;

/// Puts a window where the settings store says, in twips; without settings at 1000, 1000 with a
/// size of 6500 by 6500. Settings that are no numbers are reported in a box and the defaults taken.
/// A window that the screens would not show whole, as one from a larger screen, is moved and made
/// smaller until one of them does.
void restore_placement(QWidget& window);

/// Keeps the window's placement in the settings store; a minimised one's is not kept.
void save_placement(const QWidget& window);
