// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "gateway/gammu_backend.h"
#include "tests/gateway/hand_sink.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

/// gammu-smsd's tables in a folder of their own, our engine beside them, and the real daemon with
/// its dummy phone when it is wanted.
class gammu_stage {
public:
    gammu_stage();
    ~gammu_stage() { stop_daemon(); }
    Q_DISABLE_COPY_MOVE(gammu_stage)

    void start_daemon();
    void stop_daemon();
    /// Writes a phone's sign of life, `age` SQLite's words for how old it is.
    void sign_in(const QString& age = QStringLiteral("-0 seconds"));
    /// Opens our engine anew, as a gateway that starts.
    void start_engine();

    /// Puts a message into the phone; the header is hexadecimal.
    void receive(const QString& sender, const QString& text, const QString& header = {});

    /// Runs a statement, or gives the first column of its rows.
    void run(const QString& sql) const { (void)gateway::gammu_database(settings).run(sql); }
    [[nodiscard]] QStringList column(const QString& sql) const;

    [[nodiscard]] QString path(const QString& name) const { return folder_.filePath(name); }

    gateway::gammu_settings settings;
    hand_sink sink;
    std::optional<gateway::gammu_backend> engine;

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    int dropped_ = 0;
};
