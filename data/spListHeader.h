// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

/// One column of a view definition. The 16-bit fields hold Booleans as 0 and -1.
struct spListHeader {
    QString key = {};     ///< the record set's field
    QString caption = {}; ///< the heading
    qint16 Width = 0;     ///< twips
    QString FormatStr = {};
    qint16 FormatType = 0;
    QString DispTrue = {};
    QString DispFalse = {};
    QString DispNull = {};
    qint16 TAlignment = 0; ///< alignment of the cells
    qint16 HAlignment = 0; ///< alignment of the heading
    qint16 Visible = -1;
    qint16 ReadOnly = -1;
    qint16 DataType = 0;
    qint16 DataWidth = 0;
    qint16 PointNum = 0;
    qint16 RefType = 0;
    qint16 POS = 0;     ///< place among the columns, from 1
    qint16 CanSet = -1; ///< the layout editor may hide and show it
    qint16 ColMerge = 0;
    qint16 CanFilter = -1;
    QVariant condValue1 = {};
    QVariant CondValue2 = {};
    QString Other1 = {}; ///< a reference pick returns the picked row's value here
    QString Other2 = {};
};
