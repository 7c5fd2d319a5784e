// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/// Lets a program speak Chinese to a user whose system does; to everybody else it speaks English,
/// the language of its sources. Needs the application object; `program` is the first part of the
/// name of its translation among the resources.
void speak_users_language(const QString& program);
