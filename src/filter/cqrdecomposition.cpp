// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filter/cqrdecomposition.h>

#include <cmath>

namespace zuno {

namespace {

// The length of (a, b) without the overflow of squaring the larger one, in 32-bit floats.
float hypotenuse(float a, float b)
{
    if (std::fabs(a) > std::fabs(b)) {
        const float ratio = b / a;
        return std::fabs(a) * std::sqrt(1.0F + (ratio * ratio));
    }
    if (b != 0.0F) {
        const float ratio = a / b;
        return std::fabs(b) * std::sqrt(1.0F + (ratio * ratio));
    }
    return 0.0F;
}

} // namespace

CQRDecomposition::CQRDecomposition(const CMatrix &a) : m_qr(a)
{
    m_diagonal.reserve(a.cols());
    for (int k = 0; k < a.cols(); ++k)
        reflectColumn(k);
}

void CQRDecomposition::reflectColumn(int k)
{
    const int rows = m_qr.rows();
    float norm = 0.0F;
    for (int i = k; i < rows; ++i)
        norm = hypotenuse(norm, m_qr.element(i, k));
    if (norm != 0.0F) {
        if (m_qr.element(k, k) < 0.0F)
            norm = -norm;
        for (int i = k; i < rows; ++i)
            m_qr.element(i, k) /= norm;
        m_qr.element(k, k) = static_cast<float>(static_cast<double>(m_qr.element(k, k)) + 1.0);
        for (int j = k + 1; j < m_qr.cols(); ++j)
            applyReflection(k, m_qr, j);
    }
    m_diagonal.push_back(-norm);
}

void CQRDecomposition::applyReflection(int k, CMatrix &target, int column) const
{
    float s = 0.0F;
    for (int i = k; i < m_qr.rows(); ++i)
        s += m_qr.element(i, k) * target.element(i, column);
    s = -s / m_qr.element(k, k);
    for (int i = k; i < m_qr.rows(); ++i)
        target.element(i, column) += s * m_qr.element(i, k);
}

bool CQRDecomposition::hasFullRank() const
{
    return std::find(m_diagonal.begin(), m_diagonal.end(), 0.0F) == m_diagonal.end();
}

CMatrix CQRDecomposition::solve(const CMatrix &b) const
{
    if (b.rows() != m_qr.rows() || !hasFullRank())
        return b;
    const int n = m_qr.cols();
    CMatrix work = b;
    for (int k = 0; k < n; ++k) {
        for (int j = 0; j < b.cols(); ++j)
            applyReflection(k, work, j);
    }
    for (int k = n - 1; k >= 0; --k) {
        for (int j = 0; j < b.cols(); ++j)
            work.element(k, j) /= m_diagonal[static_cast<std::size_t>(k)];
        for (int i = 0; i < k; ++i) {
            for (int j = 0; j < b.cols(); ++j)
                work.element(i, j) -= work.element(k, j) * m_qr.element(i, k);
        }
    }
    CMatrix x(static_cast<quint8>(n), b.cols());
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < b.cols(); ++j)
            x.element(i, j) = work.element(i, j);
    }
    return x;
}

} // namespace zuno
