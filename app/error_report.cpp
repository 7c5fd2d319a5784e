// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#include "app/error_report.h"

#include "data/strconn.h"
#include "platform/data_error.h"
#include "platform/database/connection_string.h"
#include "platform/widgets/msgbox.h"

using namespace Qt::StringLiterals;

namespace {

QString describe_data_error(const DataError& error) {
    const QString file = data_source(strconn);
    switch (error.kind()) {
    case DataError::Kind::missing_file:
        return u"找不到数据库文件，请检查：\n%1"_s.arg(file);
    case DataError::Kind::cannot_open:
        return u"不能打开数据库文件，请检查文件和目录的权限：\n%1\n\n%2"_s.arg(file,
                                                                               error.detail());
    case DataError::Kind::not_a_database:
        return u"数据库文件已经损坏，或者不是本系统的数据库，请用备份恢复：\n%1"_s.arg(file);
    case DataError::Kind::old_format:
        return u"数据库文件是旧的格式，请先用导入工具“smsdb import”把它转换成新的数据库，原文件没有改动：\n%1"_s
            .arg(file);
    case DataError::Kind::newer_version:
        return u"数据库是由更新版本的程序建立或者升级的，请先升级本程序：\n%1"_s.arg(file);
    case DataError::Kind::locked:
        return u"数据库正被其他程序占用，请稍后再试：\n%1"_s.arg(file);
    case DataError::Kind::disk:
        return u"读写数据库文件出错，请检查磁盘空间：\n%1\n\n%2"_s.arg(file, error.detail());
    case DataError::Kind::text_literal:
        return u"输入的内容不能含有单引号，请检查！"_s;
    case DataError::Kind::criterion:
        return u"条件不正确，请检查！"_s;
    case DataError::Kind::conversion:
        return u"数据的格式或者范围不正确。\n\n"_s + error.detail();
    case DataError::Kind::statement:
        return u"数据库操作失败：\n%1\n\n%2"_s.arg(file, error.detail());
    case DataError::Kind::duplicate_key:
    case DataError::Kind::cursor:
        break;
    }
    return u"数据库操作失败。\n\n"_s + error.detail();
}

} // namespace

QString describe_error(const std::exception& error) {
    if (const auto* data_error = dynamic_cast<const DataError*>(&error)) {
        return describe_data_error(*data_error);
    }
    return u"发生意外错误。\n\n"_s + QString::fromUtf8(error.what());
}

void show_error(const std::exception& error) {
    msgbox::critical(describe_error(error), u"系统提示"_s);
}

void show_last_error(const std::exception& error) {
    msgbox::critical(describe_error(error) + u"\n\n程序将退出。"_s, u"系统提示"_s);
}
