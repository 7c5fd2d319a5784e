// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "platform/data_error.h"
#include "platform/process_limits.h"
#include "platform/program_language.h"
#include "platform/standard_streams.h"
#include "platform/terminal_application.h"
#include "tools/command.h"
#include "tools/console.h"
#include "tools/old_format/commands.h"
#include "tools/sheets/commands.h"
#include "tools/texts.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

const auto& commands() {
    static const std::array all{check_command(),
                                tidy_command(),
                                upgrade_command(),
                                create_command(),
                                backup_command(),
                                restore_command(),
                                archive_command(),
                                renumber_command(),
                                grant_command(),
                                import_customers_command(),
                                export_customers_command(),
                                old_format::import_command(),
                                old_format::read_old_command()};
    return all;
}

QString overview() {
    QString text =
        texts::tr("Usage: smsdb COMMAND …\n\nLooks after the database of an office.\n\n");
    for (const command& offered : commands()) {
        if (!offered.summary.isEmpty()) {
            text += u"  %1 %2\n"_s.arg(offered.name, -17).arg(offered.summary);
        }
    }
    return text +
           texts::tr(
               "\nsmsdb COMMAND --help tells how a command is used; smsdb --version the version.\n");
}

int run(const command& wanted, const QStringList& arguments) {
    QCommandLineParser parser;
    parser.addOption(QCommandLineOption(QStringList{u"h"_s, u"help"_s}));
    parser.addOptions(wanted.options);
    const bool understood = parser.parse(arguments);
    if (parser.isSet(u"help"_s)) {
        print(wanted.help);
        return exit_status::clean;
    }
    const QStringList operands = parser.positionalArguments();
    if (!understood) {
        throw failure(texts::tr("%1 (see smsdb %2 --help)").arg(parser.errorText(), wanted.name));
    }
    if (operands.size() != wanted.operands || operands.contains(QString())) {
        throw failure(texts::tr("%1 takes %2 name(s) (see smsdb %1 --help)")
                          .arg(wanted.name)
                          .arg(wanted.operands));
    }
    try {
        return wanted.run(parser);
    } catch (const DataError& error) {
        throw failure(describe(error, operands.first()));
    }
}

int run(QStringList arguments) {
    arguments.removeFirst();
    const QString name = arguments.value(0);
    if (name == u"-h" || name == u"--help") {
        print(overview());
        return exit_status::clean;
    }
    if (name == u"-v" || name == u"--version") {
        print(texts::tr("smsdb %1\n").arg(QString::fromLatin1(SMSDB_VERSION)));
        return exit_status::clean;
    }
    const auto* wanted = std::find_if(commands().begin(), commands().end(),
                                      [&name](const command& c) { return c.name == name; });
    if (wanted == commands().end()) {
        throw failure(name.isEmpty()
                          ? texts::tr("no command (see smsdb --help)")
                          : texts::tr("unknown command: %1 (see smsdb --help)").arg(name));
    }
    return run(*wanted, arguments);
}

} // namespace

int main(int argc, char* argv[]) {
    fill_standard_streams();
    survive_file_size_limit();
    const auto application = terminal_application(argc, argv);
    speak_users_language(u"smsdb"_s);
    try {
        const int status = run(QCoreApplication::arguments());
        flush_output();
        return status;
    } catch (const std::exception& error) {
        complain(QString::fromUtf8(error.what()));
        return exit_status::unusable;
    }
}
