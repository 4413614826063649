// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace zuno {

/// Frees the processor of what was left in the upper halves of its vector registers. No number
/// changes by it. To be called where numeric work begins; costs about a nanosecond.
///
/// Qt 6.4.2 hashes texts of less than eight characters with AVX instructions and returns without
/// clearing the upper halves (qHashBits, with AES). From then on many Intel processors stall at
/// each change between the instructions that we and Qt are compiled to (SSE) and those that the
/// mathematical library chooses (AVX): everything that computes with coordinates took 15 times as
/// long, 94 % of the window's time while sessions were selected. Other processors do not mind, and
/// a benchmark that has hashed a name is as slow as what it measures; so they begin with
/// dirtyVectorRegisters(), and compare with work that has cleared them.
void clearVectorRegisters();

/// Leaves the upper halves in use, as Qt does; for tests and benchmarks. Does nothing on processors
/// without AVX.
void dirtyVectorRegisters();

/// Whether the upper halves are in use; false also where the processor does not tell.
[[nodiscard]] bool areVectorRegistersDirty();

} // namespace zuno
