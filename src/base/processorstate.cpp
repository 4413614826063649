// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <base/processorstate.h>

#if (defined(__x86_64__) || defined(__i386__)) && (defined(__GNUC__) || defined(__clang__))
#define ZUNO_HAS_VECTOR_REGISTERS
#include <cpuid.h>
#include <immintrin.h>
#endif

namespace zuno {

#ifdef ZUNO_HAS_VECTOR_REGISTERS

namespace {

// Functions of their own, since the instructions must not be met where there are none.
[[gnu::target("avx"), gnu::noinline]] void zeroUpperHalves()
{
    _mm256_zeroupper();
}

[[gnu::noinline]] void fillUpperHalf()
{
    // Written out: the compiler would clear the halves at the end of a function that uses them.
    asm volatile("vcmptrueps %%ymm0, %%ymm0, %%ymm0" ::: "xmm0");
}

[[gnu::target("xsave"), gnu::noinline]] unsigned long long statesInUse()
{
    return _xgetbv(1);
}

bool tellsStatesInUse()
{
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
    constexpr unsigned Leaf = 0xd;
    constexpr unsigned XGetBvOfOne = 4;
    return __get_cpuid_count(Leaf, 1, &a, &b, &c, &d) != 0 && (a & XGetBvOfOne) != 0;
}

// This one asks the operating system, too.
bool hasAvx()
{
    return __builtin_cpu_supports("avx") != 0;
}

} // namespace

void clearVectorRegisters()
{
    if (hasAvx())
        zeroUpperHalves();
}

void dirtyVectorRegisters()
{
    if (hasAvx())
        fillUpperHalf();
}

bool areVectorRegistersDirty()
{
    constexpr unsigned long long UpperHalves = 4;
    return hasAvx() && tellsStatesInUse() && (statesInUse() & UpperHalves) != 0;
}

#else

void clearVectorRegisters() {}
void dirtyVectorRegisters() {}
bool areVectorRegistersDirty()
{
    return false;
}

#endif

} // namespace zuno
