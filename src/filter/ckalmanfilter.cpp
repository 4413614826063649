// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filter/ckalmanfilter.h>

#include <filter/smallmatrices.h>

namespace zuno {

namespace {

using small::Column;
using small::Single;
using small::Square;

CMatrix identityLike(const CMatrix &p)
{
    return identity(p.rows());
}

// Every product is evaluated from left to right; another order gives other last bits.
template<typename P, typename X, typename U>
void predictAndCorrect(P &p, X &x, const P &a, const X &b, const U &u, const P &h, const P &r,
                       const P &q, const X &z)
{
    x = add(multiply(a, x), multiply(b, u));
    p = add(multiply(multiply(a, p), transpose(a)), q);
    const P hTransposed = transpose(h);
    const P s = add(multiply(multiply(h, p), hTransposed), r);
    const P gain = multiply(multiply(p, hTransposed), inverse(s));
    const X innovation = subtract(z, multiply(h, x));
    x = add(x, multiply(gain, innovation));
    p = multiply(subtract(identityLike(p), multiply(gain, h)), p);
}

bool isSquare(const CMatrix &m)
{
    return m.rows() == 2 && m.cols() == 2;
}

bool isColumn(const CMatrix &m)
{
    return m.rows() == 2 && m.cols() == 1;
}

Square toSquare(const CMatrix &m)
{
    return {m.element(0, 0), m.element(0, 1), m.element(1, 0), m.element(1, 1)};
}

Column toColumn(const CMatrix &m)
{
    return {m.element(0, 0), m.element(1, 0)};
}

} // namespace

const CMatrix &CKalmanFilter::step(const CMatrix &z)
{
    const bool isSmall = isSquare(m_p) && isColumn(m_x) && isSquare(m_a) && isColumn(m_b)
                         && m_u.rows() == 1 && m_u.cols() == 1 && isSquare(m_h) && isSquare(m_r)
                         && isSquare(m_q) && isColumn(z);
    if (!isSmall) {
        predictAndCorrect(m_p, m_x, m_a, m_b, m_u, m_h, m_r, m_q, z);
        return m_x;
    }
    Square p = toSquare(m_p);
    Column x = toColumn(m_x);
    predictAndCorrect(p, x, toSquare(m_a), toColumn(m_b), Single {m_u.element(0, 0)}, toSquare(m_h),
                      toSquare(m_r), toSquare(m_q), toColumn(z));
    m_p.element(0, 0) = p.a;
    m_p.element(0, 1) = p.b;
    m_p.element(1, 0) = p.c;
    m_p.element(1, 1) = p.d;
    m_x.element(0, 0) = x.a;
    m_x.element(1, 0) = x.b;
    return m_x;
}

} // namespace zuno
