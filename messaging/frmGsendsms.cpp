// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "messaging/frmGsendsms.h"

#include "platform/data_error.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

frmGsendsms::frmGsendsms(vc_in& classes, vc_in& phrases, clock_source now, addressee_count count,
                         QWidget* parent)
    : message_dialog(u"短信群发"_s, std::move(now), parent), count_(std::move(count)) {
    add_number(u"txtGSID"_s, u"User ID:"_s, record.gsid);
    const auto name = add_line(u"txtCname"_s, u"群组名称："_s, record.cname);
    txtCid = add_beside(name, u"txtCid"_s, u"分类编号"_s, number_of(record.cid));
    add_picker_button(
        name, u"Cmdrefcus"_s, u"选择客户分类"_s, [&classes] { return classes.Ref(); },
        {{txtCid, u"ccid"_s}, {name.box, u"cname"_s}}, given_up::keeps_them);
    Chkall = add_check(u"Chkall"_s, u"向所有的客户发送？"_s, record.isall).box;
    lblAddressees = add_note(u"lblAddressees"_s);
    connect(txtCid, &QLineEdit::textChanged, this, &frmGsendsms::tell_addressees);
    connect(Chkall, &QCheckBox::toggled, this, &frmGsendsms::tell_addressees);
    tell_addressees();
    add_message_rows(phrases);
    finish(*name.box);
}

std::optional<qint32> frmGsendsms::addressees() const {
    try {
        return Chkall->isChecked() ? count_(0, -1) : count_(to_int16(txtCid->text()), 0);
    } catch (const DataError&) {
        return 0; // what is no number is no class
    }
}

void frmGsendsms::tell_addressees() {
    const auto count = addressees();
    lblAddressees->setText(count ? u"将发给 %1 位客户"_s.arg(*count) : u"不知道将发给多少位客户"_s);
}
