// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/schema_differences.h"

#include "data/schema.h"
#include "platform/data_error.h"
#include "platform/database/physical_database.h"
#include "tools/texts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A table, a view or an index.
struct schema_object {
    QString kind;
    QString name;
    QString definition; ///< however its lines are broken

    [[nodiscard]] bool is_called_like(const schema_object& other) const {
        return kind == other.kind && name.compare(other.name, Qt::CaseInsensitive) == 0;
    }
};

/// But those that the engine makes itself.
QList<schema_object> objects_of(physical_database& database) {
    QList<schema_object> objects;
    for (
        const QStringList& row : database.texts(
            u"SELECT type, name, sql FROM sqlite_master WHERE name NOT LIKE 'sqlite%' ORDER BY rowid"_s)) {
        objects.append({row.at(0), row.at(1), row.at(2).simplified()});
    }
    return objects;
}

const schema_object* find_like(const QList<schema_object>& objects, const schema_object& wanted) {
    const auto found =
        std::find_if(objects.cbegin(), objects.cend(), [&wanted](const schema_object& object) {
            return object.is_called_like(wanted);
        });
    return found == objects.cend() ? nullptr : &*found;
}

QString kind_shown(const schema_object& object) {
    return object.kind == u"table"   ? texts::tr("table")
           : object.kind == u"view"  ? texts::tr("view")
           : object.kind == u"index" ? texts::tr("index")
                                     : texts::tr("trigger");
}

QStringList columns_of(physical_database& database, const QString& table) {
    return database.column(u"SELECT lower(name) FROM pragma_table_info('%1')"_s.arg(table));
}

class schema_comparison {
public:
    schema_comparison(physical_database& database, physical_database& fresh)
        : database_(database), fresh_(fresh) {}

    schema_differences compare();

private:
    void compare_versions();
    void compare_object(const schema_object& wanted, const schema_object* there);
    /// Whether all columns are there and can be read; what is not is put down.
    [[nodiscard]] bool has_all_columns(const schema_object& wanted);
    void put_down_incomplete(const QString& finding);

    physical_database& database_;
    physical_database& fresh_;
    schema_differences found_;
};

void schema_comparison::put_down_incomplete(const QString& finding) {
    found_.is_complete = false;
    found_.findings.append(finding);
}

void schema_comparison::compare_versions() {
    const int version = schema_version_of(database_);
    const int newest = schema_version_of(fresh_);
    if (version < newest) {
        found_.findings.append(
            texts::tr("is of an older version, %1 and not %2 (see smsdb upgrade)")
                .arg(version)
                .arg(newest));
    } else if (version > newest) {
        found_.findings.append(
            texts::tr("is of a newer version, %1 and not %2: it needs a newer smsdb")
                .arg(version)
                .arg(newest));
    }
}

bool schema_comparison::has_all_columns(const schema_object& wanted) {
    QStringList there;
    try {
        there = columns_of(database_, wanted.name);
    } catch (const DataError& error) {
        if (error.kind() != DataError::Kind::statement) {
            throw;
        }
        // a view over something that is missing
        put_down_incomplete(texts::tr("%1 %2 cannot be read: %3")
                                .arg(kind_shown(wanted), wanted.name, error.detail()));
        return false;
    }
    bool has_all = true;
    for (const QString& column : columns_of(fresh_, wanted.name)) {
        if (!there.contains(column)) {
            put_down_incomplete(texts::tr("column %1.%2 is missing").arg(wanted.name, column));
            has_all = false;
        }
    }
    return has_all;
}

void schema_comparison::compare_object(const schema_object& wanted, const schema_object* there) {
    const bool is_index = wanted.kind == u"index";
    if (there == nullptr) {
        found_.findings.append(texts::tr("%1 %2 is missing").arg(kind_shown(wanted), wanted.name));
        found_.is_complete = found_.is_complete && is_index;
    } else if ((is_index || has_all_columns(wanted)) && there->definition != wanted.definition) {
        found_.findings.append(texts::tr("%1 %2 is defined otherwise than in a fresh database")
                                   .arg(kind_shown(wanted), wanted.name));
    }
}

schema_differences schema_comparison::compare() {
    compare_versions();
    const QList<schema_object> wanted = objects_of(fresh_);
    const QList<schema_object> there = objects_of(database_);
    for (const schema_object& object : wanted) {
        compare_object(object, find_like(there, object));
    }
    for (const schema_object& object : there) {
        if (find_like(wanted, object) == nullptr) {
            found_.notes.append(
                texts::tr("%1 %2 is none of this system's").arg(kind_shown(object), object.name));
        }
    }
    return found_;
}

} // namespace

schema_differences compare_schemas(physical_database& database, physical_database& fresh) {
    return schema_comparison(database, fresh).compare();
}
