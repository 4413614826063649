// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filter/ckalmanfilter.h>

namespace zuno {

// Every product is evaluated from left to right; another order gives other last bits.
const CMatrix &CKalmanFilter::step(const CMatrix &z)
{
    m_x = add(multiply(m_a, m_x), multiply(m_b, m_u));
    m_p = add(multiply(multiply(m_a, m_p), transpose(m_a)), m_q);
    const CMatrix hTransposed = transpose(m_h);
    const CMatrix s = add(multiply(multiply(m_h, m_p), hTransposed), m_r);
    const CMatrix gain = multiply(multiply(m_p, hTransposed), inverse(s));
    const CMatrix innovation = subtract(z, multiply(m_h, m_x));
    m_x = add(m_x, multiply(gain, innovation));
    m_p = multiply(subtract(identity(m_p.rows()), multiply(gain, m_h)), m_p);
    return m_x;
}

} // namespace zuno
