// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "listview/row_export.h"

#include "platform/csv.h"
#include "platform/widgets/data_grid.h"
#include "platform/widgets/msgbox.h"
#include "platform/widgets/wait_cursor.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

QString ask_for_file(const QString& name, QWidget* parent) {
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    QFileDialog dialog(parent, u"导出"_s, documents.path(), u"电子表格文件 (*.csv)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"csv"_s);
    dialog.selectFile(name);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

/// Writes beside the file and puts it in its place when all of it is there.
bool write(QSaveFile& file, const data_grid& grid) {
    const bool is_new = !QFileInfo::exists(file.fileName());
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (is_new) { // telephone numbers are nobody else's business
        file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
    const QList<int> columns = grid.shown_columns();
    file.write(csv::byte_order_mark.toByteArray() + csv::line(grid.captions(columns)));
    for (int row = 0; row < grid.model()->rowCount(); ++row) {
        file.write(csv::line(grid.texts(row, columns)));
    }
    return file.commit();
}

} // namespace

QString marked_row_as_line(const data_grid& grid) {
    static const QRegularExpression breaks(u"[\\t\\r\\n]+"_s);
    QStringList texts = grid.texts(grid.row(), grid.shown_columns());
    return texts.replaceInStrings(breaks, u" "_s).join(u'\t');
}

QString export_rows(const data_grid& grid, const QString& name, QWidget* parent) {
    QString path = ask_for_file(name, parent);
    if (path.isEmpty()) {
        return {};
    }
    QSaveFile file(path);
    const bool written = [&] {
        const wait_cursor waiting;
        return write(file, grid);
    }();
    if (!written) {
        msgbox::critical(u"不能写入文件，请检查文件夹的权限和磁盘空间。\n\n"_s + file.errorString(),
                         u"导出"_s);
        return {};
    }
    return path;
}
