// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/jet_catalogue.h"
#include "tools/texts.h"

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

constexpr quint32 catalogue_page = 2;

} // namespace

QList<table_place> tables_of(jet_file& file) {
    QList<table_place> found;
    // The library's own way through the catalogue can go round for ever in a damaged one.
    jet_table catalogue(file, {u"MSysObjects"_s, catalogue_page});
    const QStringList columns = catalogue.columns();
    const qsizetype id = columns.indexOf(u"Id"_s);
    const qsizetype name = columns.indexOf(u"Name"_s);
    const qsizetype type = columns.indexOf(u"Type"_s);
    const qsizetype flags = columns.indexOf(u"Flags"_s);
    if (id < 0 || name < 0 || type < 0 || flags < 0) {
        throw damaged(texts::tr("it does not tell what tables it holds"));
    }
    catalogue.for_each_row([&](const QJsonArray& row) {
        MdbCatalogEntry entry{};
        entry.object_type = row.at(type).toInt(-1) & 0x7f;
        entry.flags = row.at(flags).toInt();
        if (mdb_is_user_table(&entry) != 0) {
            const auto page = static_cast<quint32>(row.at(id).toInt()) & 0xffffff;
            found.append({row.at(name).toString(), page});
        }
    });
    return found;
}

} // namespace old_format
