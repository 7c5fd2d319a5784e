// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "fuzz/target.h"
#include "tools/command.h"
#include "tools/old_format/jet_catalogue.h"

#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>

#include <array>

using namespace Qt::StringLiterals;

// Whatever is damaged in an old file, what is read of it are rows of its tables, or it is refused.

namespace {

/// Each an old file of a few kilobytes more than the other needs.
const QByteArray& sound_file(std::size_t which) {
    static const auto read = [](const QString& name) {
        QFile file(QStringLiteral(FIXTURES "/") + name);
        expect(file.open(QIODevice::ReadOnly), "the sound file can be read");
        return file.readAll();
    };
    static const std::array files{read(u"jet3-small.mdb"_s), read(u"jet4-small.mdb"_s)};
    return files.at(which % files.size());
}

void check_value(const QJsonValue& value) {
    expect(!value.isArray() && (!value.isObject() || value.toObject().isEmpty()),
           "a value is one that can stand in a table");
    const QString text = value.toString();
    expect(QString::fromUtf8(text.toUtf8()) == text, "a text has whole characters");
}

void read_all(const QString& path) {
    old_format::jet_file file(path, u"GBK"_s);
    for (const old_format::table_place& which : old_format::tables_of(file)) {
        old_format::jet_table table(file, which);
        const qsizetype columns = table.columns().size();
        table.for_each_row([columns](const QJsonArray& row) {
            expect(row.size() == columns, "a row has a value for each column");
            for (const auto& value : row) {
                check_value(value);
            }
        });
    }
}

} // namespace

// The first byte chooses a sound file, every four further ones change a byte of it: three for the
// place, one for the new value.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const QTemporaryDir folder;
    if (size == 0) {
        return 0;
    }
    QByteArray content = sound_file(data[0]);
    for (std::size_t at = 1; at + 4 <= size; at += 4) {
        const qsizetype place = data[at] | data[at + 1] << 8 | data[at + 2] << 16;
        content[place % content.size()] = static_cast<char>(data[at + 3]);
    }
    QFile damaged(folder.filePath(u"old.mdb"_s));
    expect(damaged.open(QIODevice::WriteOnly) && damaged.write(content) == content.size(),
           "the damaged file is written");
    damaged.close();
    try {
        read_all(damaged.fileName());
    } catch (const failure&) { // NOLINT(bugprone-empty-catch): refused, as it may be
    }
    return 0;
}
