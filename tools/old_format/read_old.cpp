// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/commands.h"

#include "platform/process_limits.h"
#include "tools/old_format/jet_catalogue.h"
#include "tools/texts.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb read-old OLD.mdb --charset NAME

What smsdb import runs to read the old file, so that a damaged one ends this process and no other.
Writes a line of JSON a record: ["table", its name, its columns …], ["row", its values …], and at the
end ["end"], or ["damaged", how] or ["failed", the reason].
)");
}

void write(const QJsonArray& record) {
    const QByteArray line = QJsonDocument(record).toJson(QJsonDocument::Compact) + '\n';
    if (std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout) !=
        static_cast<size_t>(line.size())) {
        throw failure(texts::tr("nobody listens"));
    }
}

int run(const QCommandLineParser& arguments) {
    constexpr qint64 mebibyte = 0x100000;
    constexpr qint64 bytes_a_second = 2 * mebibyte; // a tenth of what a slow machine reads
    const QString path = arguments.positionalArguments().first();
    limit_this_process(SMSDB_READER_MEMORY * mebibyte,
                       static_cast<int>(5 + QFileInfo(path).size() / bytes_a_second));
    try {
        jet_file file(path, arguments.value(u"charset"_s));
        for (const table_place& which : tables_of(file)) {
            jet_table table(file, which);
            QJsonArray head = QJsonArray::fromStringList(table.columns());
            head.prepend(which.name);
            head.prepend(u"table"_s);
            write(head);
            table.for_each_row([](QJsonArray row) {
                row.prepend(u"row"_s);
                write(row);
            });
        }
        write({u"end"_s});
    } catch (const damaged& how) {
        write({u"damaged"_s, QString::fromUtf8(how.what())});
        return exit_status::unusable;
    } catch (const failure& reason) {
        write({u"failed"_s, QString::fromUtf8(reason.what())});
        return exit_status::unusable;
    }
    return exit_status::clean;
}

} // namespace

command read_old_command() {
    return {u"read-old"_s, {}, help(), 1, {QCommandLineOption(u"charset"_s, {}, u"name"_s)}, run};
}

} // namespace old_format
