// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "tools/old_format/commands.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace old_format {

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb import OLD.mdb NEW

Makes a database from one of the old format. This build of smsdb cannot do it: libmdb, which reads the
old format, was not there when it was built.
)");
}

int run(const QCommandLineParser& /*arguments*/) {
    throw failure(texts::tr("import: this build cannot read the old format, for want of libmdb"));
}

} // namespace

command import_command() {
    return {u"import"_s,
            texts::tr("make a database from one of the old format (not in this build)"),
            help(),
            2,
            {QCommandLineOption(u"charset"_s, {}, u"name"_s)},
            run};
}

command read_old_command() {
    return {u"read-old"_s, {}, help(), 1, {}, run};
}

} // namespace old_format
