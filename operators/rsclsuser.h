// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/database/connection.h"
#include "platform/database/recordset.h"

#include <QObject>

#include <memory>

/// The session user: who is logged in, and what this operator may do.
class rsclsuser : public QObject {
    Q_OBJECT

public:
    /// `userid` while nobody is logged in.
    static constexpr qint16 nobody = -1;

    rsclsuser();
    ~rsclsuser() override;
    Q_DISABLE_COPY_MOVE(rsclsuser)

    /// Back to nobody; the rights rows stay as they are.
    void logout();
    bool ReleaseTask(const QVariant& task, const QVariant& argument);
    bool ApplyTask(const QVariant& task, const QVariant& argument);

    [[nodiscard]] qint16 userid() const noexcept { return userid_; }
    /// Stores the id and loads its rights at once.
    void set_userid(qint16 id);
    /// Reads the rights rows anew; errors leave the operator without rights.
    void refreshRights();

    [[nodiscard]] const QString& username() const noexcept { return username_; }
    void set_username(const QString& name);
    [[nodiscard]] const QString& password() const noexcept { return password_; }
    void set_password(const QString& password) { password_ = password; }

    /// Whether the operator holds the right to a function; when not, and `showmsg`, says so.
    [[nodiscard]] bool CanDo(qint32 funid, bool showmsg);

signals:
    void username_changed();

private:
    [[nodiscard]] bool holds_right(qint32 funid);

    Connection cn_;
    Recordset rsrights_;
    qint16 userid_ = nobody;
    QString username_;
    QString password_;
};

/// The functions that rights guard.
namespace function_id {
inline constexpr qint32 operator_administration = 1;
inline constexpr qint32 daily_work = 2;
} // namespace function_id

/// The one session user, from start-up until the main window unloads.
extern std::unique_ptr<rsclsuser> curuser;

/// Ends the session user.
void releaseuser();
