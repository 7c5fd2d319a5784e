// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmAbout.h"

#include "app/application_title.h"
#include "platform/guarded.h"
#include "platform/widgets/msgbox.h"

#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QProcess>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int icon_size = 64; // pixels

QLabel* add_label(QGridLayout& layout, int row, const QString& name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setVisible(!text.isEmpty());
    layout.addWidget(label, row, 1, 1, 2);
    return label;
}

void add_line(QGridLayout& layout, int row) {
    auto* line = new QFrame;
    line->setObjectName(u"Line1"_s);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    layout.addWidget(line, row, 0, 1, 3);
}

} // namespace

frmAbout::frmAbout(const Registry& registry, QWidget* parent)
    : QDialog(parent), registry_(registry) {
    setWindowTitle(u"关于本系统"_s);
    auto* layout = new QGridLayout(this);
    layout->setColumnStretch(1, 1);
    auto* picIcon = new QLabel;
    picIcon->setObjectName(u"picIcon"_s);
    picIcon->setPixmap(
        QIcon(u":/smscrm.svg"_s).pixmap({icon_size, icon_size}, devicePixelRatioF()));
    layout->addWidget(picIcon, 0, 0, 2, 1, Qt::AlignTop);
    add_texts(*layout);
    add_buttons(*layout);
    setMinimumWidth(fontMetrics().averageCharWidth() * 70);
}

void frmAbout::add_texts(QGridLayout& layout) {
    QLabel* title = add_label(layout, 0, u"lblTitle"_s, application_title());
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    title->setFont(font);
    add_label(layout, 1, u"lblVersion"_s, u"版本：1.0.1 belta2"_s);
    add_label(layout, 2, u"lblDescription"_s, {});
    add_label(layout, 3, u"Label1"_s, {});
    add_label(layout, 4, u"Label2"_s, {});
    add_line(layout, 5);
    add_label(layout, 6, u"lblDisclaimer"_s,
              u"安装的版本：%1\n警告：客户资料属于隐私，请妥善保管口令和数据库文件。"_s.arg(
                  QString::fromLatin1(SMSCRM_VERSION)));
    add_line(layout, 7);
}

void frmAbout::add_buttons(QGridLayout& layout) {
    auto* cmdOK = new QPushButton(u"确认"_s);
    cmdOK->setObjectName(u"cmdOK"_s);
    cmdOK->setDefault(true);
    auto* cmdSysInfo = new QPushButton(u"&系统信息..."_s);
    cmdSysInfo->setObjectName(u"cmdSysInfo"_s);
    layout.addWidget(cmdOK, 8, 2);
    layout.addWidget(cmdSysInfo, 9, 2);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this, guarded([this] { StartSysInfo(); }));
}

void frmAbout::StartSysInfo() {
    const auto root = Registry::RootEnum::local_machine;
    QString path;
    if (GetKeyValue(root, u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s, path)) {
        QProcess::startDetached(path, {});
        return;
    }
    if (GetKeyValue(root, u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"MSINFO"_s, path)) {
        path += u"\\MSINFO32.EXE"_s;
        if (QFileInfo::exists(path)) {
            QProcess::startDetached(path, {});
            return;
        }
    }
    msgbox::plain(u"System Information Is Unavailable At This Time"_s, application_title());
}

bool frmAbout::GetKeyValue(Registry::RootEnum root, const QString& key_name,
                           const QString& value_name, QString& result) const {
    result.clear();
    const auto found = registry_.query(root, key_name, value_name);
    if (!found) {
        return false;
    }
    const qsizetype end = found->bytes.indexOf('\0');
    QByteArray bytes = end < 0 ? found->bytes : found->bytes.first(end);
    if (found->type == Registry::TypeEnum::dword) {
        std::reverse(bytes.begin(), bytes.end()); // the last byte counts most
        result = QString::number(bytes.toHex().toUInt(nullptr, 16));
    } else {
        result = QString::fromLocal8Bit(bytes);
    }
    return true;
}
