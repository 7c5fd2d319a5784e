// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"
#include "platform/data_error.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/new_file.h"
#include "tools/texts.h"

#include <QCommandLineParser>

using namespace Qt::StringLiterals;

namespace {

QString help() {
    return texts::tr(R"(Usage: smsdb create FILE

Makes the database of a fresh office, as the client does at its first start: the operator valdrine
with an empty password and all rights, and a gateway at 127.0.0.1, port 9100.
A file that exists is never touched.

Exit status: 0 made; 2 not made.
)");
}

int run(const QCommandLineParser& arguments) {
    const QString path = arguments.positionalArguments().first();
    new_file made(path);
    try {
        make_database(made.path());
    } catch (const DataError& error) {
        throw failure(describe(error, path));
    }
    conclude(texts::tr("made %1\n").arg(path), [&made] { made.put_in_place(); });
    return exit_status::clean;
}

} // namespace

command create_command() {
    return {u"create"_s, texts::tr("make the database of a fresh office"), help(), 1, {}, run};
}
