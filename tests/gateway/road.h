// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/relay.h"
#include "test_client.h"

#include <QTemporaryDir>
#include <QTest>

/// The whole road between a client and an engine, in real time.
class road {
public:
    explicit road(gateway::backend& engine)
        : store_(folder_.path(), gateway::store::user::daemon),
          relay_(store_, engine, clock_, gateway::settings()) {
        [&] {
            QCOMPARE(relay_.clients().listen({QHostAddress(QHostAddress::LocalHost), 0}),
                     QString());
        }();
        relay_.start();
        client = std::make_unique<test_client>(relay_.clients().place().port);
    }

    /// Sends a message to a number of 11 digits and gives its number in the store.
    QString send(const QString& mobile, const QString& text) {
        const qsizetype before = client->answers().size();
        client->send(QStringLiteral("11") + mobile + text);
        [&] { QTRY_COMPARE(client->answers().mid(before), QStringLiteral("1")); }();
        return column(QStringLiteral("SELECT max(id) FROM message")).value(0);
    }

    /// The first column of what the store gives.
    QStringList column(const QString& sql) { return store_.database().column(sql); }

    std::unique_ptr<test_client> client;

private:
    QTemporaryDir folder_;
    gateway::system_clock clock_;
    gateway::store store_;
    gateway::relay relay_;
};
