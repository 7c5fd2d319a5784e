// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "gateway/kannel_status.h"

#include "gateway/texts.h"

#include <QStringList>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace gateway {

kannel_status read_kannel_status(int http_status, const QByteArray& body) {
    kannel_status status;
    bool is_status = false;
    QStringList path;
    QXmlStreamReader xml(body);
    while (!xml.atEnd()) {
        switch (xml.readNext()) {
        case QXmlStreamReader::StartElement:
            path.append(xml.name().toString());
            is_status = is_status || path == QStringList{u"gateway"_s, u"smscs"_s};
            status.links += path.last() == u"smsc" ? 1 : 0;
            break;
        case QXmlStreamReader::EndElement:
            path.removeLast();
            break;
        case QXmlStreamReader::Characters: {
            const QString where = path.join(u'/');
            if (where == u"gateway/smscs/smsc/status") {
                status.online += xml.text().startsWith(u"online") ? 1 : 0;
            } else if (where == u"gateway/sms/storesize") {
                status.stored = xml.text().toLongLong();
            } else if (where == u"gateway" && xml.text().contains(u"Denied")) {
                return {texts::tr("Kannel does not know this status password")};
            }
            break;
        }
        default:
            break;
        }
    }
    if (xml.hasError() || !is_status) {
        return {texts::tr("this is no status.xml of Kannel (HTTP %1)").arg(http_status)};
    }
    return status;
}

QString tell(const kannel_status& status) {
    if (!status.fault.isEmpty()) {
        return status.fault;
    }
    return texts::tr("%1 of %2 links online, %3 messages stored")
        .arg(status.online)
        .arg(status.links)
        .arg(status.stored);
}

} // namespace gateway
