// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHostAddress>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <chrono>

namespace gateway {

/// An address to listen on; port 0 takes a free one.
struct endpoint {
    QHostAddress address;
    quint16 port = 0;
};

/// "address:port", with brackets around an address of IPv6.
[[nodiscard]] QString endpoint_text(const endpoint& place);

enum class engine_name { simulator, kannel, gammu };

/// Which failures the office is told of by a received message.
enum class told_failures { all, refused, none };

/// [gateway]
struct gateway_settings {
    engine_name engine = engine_name::simulator;
    endpoint listen{QHostAddress(QHostAddress::LocalHost), 9100};
    QString state_dir; ///< empty: where the system keeps the state of services or users
    int keep_days = 400;
    told_failures tell_failures = told_failures::all;
    int links_per_address = 20;
};

/// [numbers]: how customers' numbers are written and how the network wants them. In a pattern, "x"
/// is any digit and "*" at the end any further ones.
struct number_settings {
    QString country = QStringLiteral("86");
    QString trunk_prefix = QStringLiteral("0"); ///< in front of a national number that is no mobile
    QStringList mobiles{QStringLiteral("1xxxxxxxxxx")};
    QStringList short_codes{QStringLiteral("xxx"),   QStringLiteral("xxxx"),
                            QStringLiteral("xxxxx"), QStringLiteral("xxxxxx"),
                            QStringLiteral("106*"),  QStringLiteral("95*")};
};

/// [simulator]. Rates are probabilities from 0 to 1.
struct simulator_settings {
    double fail_rate = 0;                      ///< of messages that the network refuses
    double lose_rate = 0;                      ///< of accepted messages that it then cannot deliver
    double drop_rate = 0;                      ///< of messages of which nothing is ever heard
    double not_now_rate = 0;                   ///< of attempts that are put off
    std::chrono::milliseconds delay{0};        ///< before it accepts a message
    std::chrono::milliseconds report_delay{0}; ///< from then to the report of delivery
    bool echo = false;                         ///< every accepted message is answered
    std::chrono::milliseconds echo_delay{1'000};
    int window = 100;
};

/// [kannel]
struct kannel_settings {
    QUrl sendsms{QStringLiteral("http://127.0.0.1:13013/cgi-bin/sendsms")};
    QString username;
    QString password;
    QString from; ///< the sender's number, if the operator does not set it
    QString smsc; ///< the link to use, if there are several
    int window = 10;
    std::chrono::seconds timeout{30};
    QUrl callback; ///< this gateway's [http] as Kannel reaches it; empty: as it listens
    QUrl status{QStringLiteral("http://127.0.0.1:13000/status.xml")};
    QString status_password;
};

enum class sql_driver { sqlite, postgresql };

/// [gammu]
struct gammu_settings {
    sql_driver driver = sql_driver::sqlite;
    QString database; ///< the file of SQLite, or the name of the database
    QString host;
    int port = 5432;
    QString username;
    QString password;
    QString phone_id; ///< of one modem among several
    bool reports = true;
    int window = 10;
    std::chrono::milliseconds poll{2'000};
};

/// [http]: the status page, and where networks call back.
struct http_settings {
    bool on = true;
    bool page = true;
    endpoint listen{QHostAddress(QHostAddress::LocalHost), 9101};
    QString secret; ///< a part of the path that networks call
};

/// The whole file.
struct settings {
    gateway_settings gateway;
    number_settings numbers;
    simulator_settings simulator;
    kannel_settings kannel;
    gammu_settings gammu;
    http_settings http;
};

/// What was read, and a line for every fault in it, with the file and where there is one the line.
/// A setting with a fault keeps its default.
struct settings_reading {
    settings values;
    QStringList faults;
};

/// Reads a settings file (INI, UTF-8). Unknown sections and keys, keys that stand twice, values out
/// of range, and what the chosen engine lacks are faults. Passwords are never part of a fault.
[[nodiscard]] settings_reading read_settings(const QString& path);

} // namespace gateway
