// SPDX-FileCopyrightText: 2026 The smscrm authors
// SPDX-License-Identifier: MIT

#pragma once

// Each measures one part of the table and prints its lines.

/// Dispatch through a gateway that answers at once on this port of this machine.
void bench_dispatch(int gateway_port);
/// What a poll costs that finds messages.
void bench_search();
void bench_group_send();
/// The gateway: how fast it keeps a message, with few and many kept, and its memory.
void bench_gateway();
/// A message through the gateway and Kannel, which has to be installed.
void bench_kannel();
/// List windows: open, refresh, sort, find.
void bench_list();
/// Process start, memory, and wake-ups of an idle client.
void bench_process();

/// Runs one of the processes that `bench_process` measures instead of the table; returns its exit
/// status.
int run_probe(int argc, char** argv);
