// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/settings_store.h"

#include <QSettings>

QString settings_store::get(const QString& application, const QString& section, const QString& key,
                            const QString& fallback) {
    const QSettings store(QSettings::IniFormat, QSettings::UserScope, application);
    return store.value(section + u'/' + key, fallback).toString();
}

void settings_store::save(const QString& application, const QString& section, const QString& key,
                          const QString& value) {
    QSettings store(QSettings::IniFormat, QSettings::UserScope, application);
    store.setValue(section + u'/' + key, value);
}
