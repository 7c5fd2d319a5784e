// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/http_server.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// Kannel itself on free ports of this machine, with the sample configuration that goes with the
/// gateway, and two centres: "fake", played by Kannel's fakesmsc, and "network", a provider of HTTP
/// that the stage plays: it refuses a number that ends in 1, has no time for one that ends in 9,
/// and takes all others.
class kannel_stage {
    Q_DISABLE_COPY_MOVE(kannel_stage)

public:
    /// Kannel brings what it receives to the address, which ends with a slash. With the name of a
    /// sample of a network, there is that network alone.
    explicit kannel_stage(const QString& calls, const QString& network = {});
    ~kannel_stage();

    /// Each waits until the program serves.
    void start_bearerbox();
    void start_smsbox();
    void start_fakesmsc();
    void kill_smsbox();

    /// A message comes from the provider; `header` is that of a part of a long one.
    void receive(const QString& sender, const QString& text, const QByteArray& header = {}) const;

    /// What fakesmsc got for the number: the parts' texts, in the order of arrival.
    [[nodiscard]] QStringList at_fake(const QString& number);

    QStringList at_provider; ///< "number text", one for every call

    quint16 sendsms_port = 0;
    quint16 admin_port = 0;

private:
    void write(const QString& name, QString text, const QString& calls) const;
    void run(QProcess& program, const QString& path, const QStringList& arguments);

    QTemporaryDir folder_;
    gateway::http_server provider_;
    quint16 smsbox_port_ = 0;
    quint16 fake_port_ = 0;
    quint16 provider_port_ = 0;
    QProcess bearerbox_;
    QProcess smsbox_;
    QProcess fakesmsc_;
    QByteArray heard_; ///< all that fakesmsc wrote
};
