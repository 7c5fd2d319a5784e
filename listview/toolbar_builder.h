// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

class QToolBar;

/// The toolbar's pictures under their buttons' keys.
using image_list = QHash<QString, QIcon>;

/// Refills the image list from the program's resources and the toolbar with the buttons of a mode:
/// "all" has the buttons that add, change and delete, "modify" the one that changes, any other none
/// of them. The variant with a filter has its button behind these. A button is an action whose
/// objectName is its key.
void build_toolbar(image_list& images, QToolBar& toolbar, bool read_only, const QString& mode,
                   bool with_filter = false);
