// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/check_command.h"

#include "gateway/console.h"
#include "gateway/engines.h"
#include "gateway/texts.h"
#include "platform/data_error.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTcpServer>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace gateway {

namespace {

/// The store as a running gateway would find it; that there is none yet is no fault.
QString store_fault(const QString& folder) {
    try {
        if (QFileInfo::exists(store::path_in(folder))) {
            const store file(folder, store::user::reader);
        }
        return {};
    } catch (const DataError& error) {
        return error.detail();
    }
}

/// Tells the outcome of one trial; true when it went well.
bool tell(const QString& what, const QString& fault) {
    print(u"%1: %2\n"_s.arg(what, fault.isEmpty() ? texts::tr("fine") : fault));
    return fault.isEmpty();
}

} // namespace

int check_settings(const settings& wanted) {
    const bool store_is_fine = tell(texts::tr("store in %1").arg(wanted.gateway.state_dir),
                                    store_fault(wanted.gateway.state_dir));
    system_clock time;
    const auto engine = make_engine(wanted, time);
    engine->check([store_is_fine](const QString& fault) {
        const bool engine_is_fine = tell(texts::tr("engine"), fault);
        QCoreApplication::exit(engine_is_fine && store_is_fine ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    return QCoreApplication::exec();
}

} // namespace gateway
