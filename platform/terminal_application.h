// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

#include <memory>

/// The application object of a program without windows, made of main's arguments. It starts without
/// the toolkit's warning of locales that are not in UTF-8, such as that of cron: terminal_text
/// serves them all.
[[nodiscard]] std::unique_ptr<QCoreApplication> terminal_application(int& argc, char** argv);
