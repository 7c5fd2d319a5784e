// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/frmSplash.h"

#include "app/application_title.h"

#include <QFrame>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize picture_size(480, 280);
constexpr QRect title_place(32, 190, 416, 44); // the calm part of the picture

QPixmap paint_logo(qreal scale) {
    QPixmap picture = QIcon(u":/splash.svg"_s).pixmap(picture_size, scale);
    QPainter painter(&picture);
    QFont font = painter.font();
    font.setPixelSize(28);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(title_place, Qt::AlignLeft | Qt::AlignVCenter, application_title());
    return picture;
}

} // namespace

frmSplash::frmSplash(QWidget* owner) : QWidget(owner, Qt::SplashScreen | Qt::FramelessWindowHint) {
    auto* fraMainFrame = new QFrame(this);
    fraMainFrame->setObjectName(u"fraMainFrame"_s);
    auto* picLogo = new QLabel(fraMainFrame);
    picLogo->setObjectName(u"picLogo"_s);
    picLogo->setPixmap(paint_logo(devicePixelRatioF()));
    auto* frame_layout = new QVBoxLayout(fraMainFrame);
    frame_layout->setContentsMargins({});
    frame_layout->addWidget(picLogo);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(fraMainFrame);
    resize(picture_size);
    move(screen()->availableGeometry().center() - rect().center());
}
