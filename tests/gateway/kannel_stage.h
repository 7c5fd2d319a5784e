// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/http_server.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// Kannel itself on free ports of this machine: bearerbox, smsbox, and two centres: "fake", played
/// by Kannel's fakesmsc, and "provider", a provider of HTTP that the stage plays: it refuses a
/// number that ends in 1, has no time for one that ends in 9, and takes all others. Its user is
/// "relay" with the password "p a&ss=1%", its status password is "look".
class kannel_stage {
public:
    /// Kannel brings what it receives to the address, which ends with a slash.
    explicit kannel_stage(const QString& calls);
    ~kannel_stage();

    /// Each waits until the program serves.
    void start_bearerbox();
    void start_smsbox();
    void start_fakesmsc();
    void kill_smsbox();

    /// A message (UTF-16BE) comes to the provider; `header` is that of a part of a long one.
    void receive(const QString& sender, const QString& text, const QByteArray& header = {}) const;

    /// What fakesmsc got for the number: the parts' texts, in the order of arrival.
    [[nodiscard]] QStringList at_fake(const QString& number);

    quint16 sendsms_port = 0;
    quint16 admin_port = 0;

private:
    void write_configuration(const QString& calls) const;
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
