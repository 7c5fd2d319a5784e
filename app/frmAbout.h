// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/registry.h"

#include <QDialog>

class QGridLayout;

/// Title and version, and a button that starts the system's information program.
class frmAbout : public QDialog {
    Q_OBJECT

public:
    explicit frmAbout(const Registry& registry, QWidget* parent = nullptr);

    /// Starts the system's information program, or says that there is none.
    void StartSysInfo();
    /// A registry value as text; a 32-bit number in decimal. False, and an empty result, when it is
    /// not there.
    bool GetKeyValue(Registry::RootEnum root, const QString& key_name, const QString& value_name,
                     QString& result) const;

private:
    void add_texts(QGridLayout& layout);
    void add_buttons(QGridLayout& layout);

    const Registry& registry_;
};
