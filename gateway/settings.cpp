// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/settings.h"

#include "gateway/setting_values.h"
#include "gateway/texts.h"

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

bool is_secret(const QString& name) {
    return name.endsWith(u"password") || name.endsWith(u"secret");
}

/// Reads the file a second time, for what the toolkit's reader does not tell: where a setting
/// stands, and what it passes over without a word.
class line_scan {
public:
    explicit line_scan(QIODevice& file) {
        while (!file.atEnd()) {
            ++line_;
            take(QString::fromUtf8(file.readLine()).trimmed());
        }
    }

    /// 0 for a setting that is not there.
    [[nodiscard]] int line_of(const QString& name) const { return lines_.value(name); }
    [[nodiscard]] const QList<std::pair<int, QString>>& faults() const { return faults_; }

private:
    void take(const QString& line) {
        if (line.isEmpty() || line.startsWith(u';')) {
            return;
        }
        if (line.startsWith(u'[') && line.endsWith(u']')) {
            section_ = line.sliced(1, line.size() - 2).trimmed();
            return;
        }
        const qsizetype sign = line.indexOf(u'=');
        const QString value = line.sliced(sign + 1).trimmed();
        if (sign <= 0) {
            faults_.emplaceBack(line_,
                                texts::tr("expected \"[section]\", \"key = value\" or a comment "
                                          "that begins with \";\""));
            return;
        }
        const QString name = section_ + u'/' + line.left(sign).trimmed();
        if (lines_.contains(name)) {
            faults_.emplaceBack(
                line_, texts::tr("%1 stands already in line %2").arg(name).arg(lines_.value(name)));
        }
        lines_.insert(name, line_);
        static const QRegularExpression misread(u"[;\\\\]"_s);
        if (!value.startsWith(u'"') &&
            (value.contains(misread) || (is_secret(name) && value.contains(u',')))) {
            faults_.emplaceBack(line_, texts::tr("%1: a value with one of , ; \\ belongs between "
                                                 "quotation marks, each \\ in it twice")
                                           .arg(name));
        }
    }

    int line_ = 0;
    QString section_;
    QHash<QString, int> lines_;
    QList<std::pair<int, QString>> faults_;
};

/// What an engine cannot do without.
QStringList missing(const settings& values) {
    QStringList faults;
    const auto require = [&faults](bool given, const QString& name) {
        if (!given) {
            faults.append(texts::tr("%1 is missing").arg(name));
        }
    };
    switch (values.gateway.engine) {
    case engine_name::kannel:
        require(!values.kannel.username.isEmpty(), u"kannel/username"_s);
        require(!values.kannel.password.isEmpty(), u"kannel/password"_s);
        require(values.http.on, u"http/on = yes"_s);
        require(!values.http.secret.isEmpty(), u"http/secret"_s);
        break;
    case engine_name::gammu:
        require(!values.gammu.database.isEmpty(), u"gammu/database"_s);
        break;
    case engine_name::simulator:
        break;
    }
    return faults;
}

} // namespace

settings_reading read_settings(const QString& path) {
    settings_reading result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.faults.append(u"%1: %2"_s.arg(path, file.errorString()));
        return result;
    }
    const line_scan lines(file);
    const auto complain = [&](int line, const QString& what) {
        result.faults.append(u"%1:%2: %3"_s.arg(path).arg(line).arg(what));
    };
    for (const auto& [line, what] : lines.faults()) {
        complain(line, what);
    }
    const QSettings ini(path, QSettings::IniFormat);
    if (ini.status() != QSettings::NoError && lines.faults().isEmpty()) {
        result.faults.append(texts::tr("%1: this is no settings file").arg(path));
    }
    const QStringList known = setting_names();
    for (const QString& name : ini.allKeys()) {
        // A value with commas is read as a list.
        const QString value = ini.value(name).toStringList().join(u',');
        if (!known.contains(name)) {
            complain(lines.line_of(name), texts::tr("there is no setting %1").arg(name));
            continue;
        }
        const QString expected = apply_setting(result.values, name, value);
        if (!expected.isEmpty()) {
            complain(lines.line_of(name),
                     is_secret(name)
                         ? texts::tr("%1: expected %2").arg(name, expected)
                         : texts::tr("%1 = %2: expected %3").arg(name, value, expected));
        }
    }
    for (const QString& what : missing(result.values)) {
        result.faults.append(u"%1: %2"_s.arg(path, what));
    }
    return result;
}

} // namespace gateway
