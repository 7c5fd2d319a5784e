// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "data/schema.h"
#include "tools/command.h"
#include "tools/console.h"

#include <QCommandLineParser>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView help = uR"(Usage: smsdb create FILE

Makes the database of a fresh office, as the client does at its first start: the operator valdrine
with an empty password and all rights, and a gateway at 127.0.0.1, port 9100.
A file that exists is never touched.

Exit status: 0 made; 2 not made.
)";

int run(const QCommandLineParser& arguments) {
    const QString path = arguments.positionalArguments().first();
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly,
                   QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
        throw failure(u"%1: cannot be made: %2"_s.arg(path, file.errorString()));
    }
    file.close();
    try {
        make_database(path);
    } catch (const std::exception&) {
        file.remove();
        throw;
    }
    print(u"made %1\n"_s.arg(path));
    return exit_status::clean;
}

} // namespace

command create_command() {
    return {u"create"_s, u"make the database of a fresh office"_s, help, 1, {}, run};
}
