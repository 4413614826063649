// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filter/cludecomposition.h>

#include <cmath>

namespace zuno {

CLUDecomposition::CLUDecomposition(const CMatrix &a) : m_lu(a)
{
    for (int i = 0; i < a.rows(); ++i)
        m_pivots[static_cast<std::size_t>(i)] = static_cast<quint8>(i);
    for (int j = 0; j < a.cols(); ++j) {
        decomposeColumn(j);
        pivotColumn(j);
    }
}

// Working in the column itself is the same as working in a copy of it: element k of the column
// is final before a row i > k reads it.
void CLUDecomposition::decomposeColumn(int j)
{
    for (int i = 0; i < m_lu.rows(); ++i) {
        float sum = 0.0F;
        for (int k = 0; k < std::min(i, j); ++k)
            sum += m_lu.element(i, k) * m_lu.element(k, j);
        m_lu.element(i, j) -= sum;
    }
}

void CLUDecomposition::pivotColumn(int j)
{
    const int rows = m_lu.rows();
    int pivot = j;
    for (int i = j + 1; i < rows; ++i) {
        if (std::fabs(m_lu.element(i, j)) > std::fabs(m_lu.element(pivot, j)))
            pivot = i;
    }
    if (pivot != j) {
        m_lu.swapRows(pivot, j);
        std::swap(m_pivots[static_cast<std::size_t>(pivot)], m_pivots[static_cast<std::size_t>(j)]);
        m_pivotSign = static_cast<qint8>(-m_pivotSign);
    }
    if (j < rows && m_lu.element(j, j) != 0.0F) {
        for (int i = j + 1; i < rows; ++i)
            m_lu.element(i, j) /= m_lu.element(j, j);
    }
}

bool CLUDecomposition::isSingular() const
{
    // A matrix with more columns than rows has no pivot in the columns that are over.
    const int diagonal = std::min(m_lu.rows(), m_lu.cols());
    for (int k = 0; k < diagonal; ++k) {
        if (m_lu.element(k, k) == 0.0F)
            return true;
    }
    return diagonal < m_lu.cols();
}

CMatrix CLUDecomposition::permuted(const CMatrix &b) const
{
    CMatrix x(m_lu.rows(), b.cols());
    for (int i = 0; i < x.rows(); ++i) {
        const int source = m_pivots[static_cast<std::size_t>(i)];
        for (int j = 0; source < b.rows() && j < b.cols(); ++j)
            x.element(i, j) = b.element(source, j);
    }
    return x;
}

CMatrix CLUDecomposition::solve(const CMatrix &b) const
{
    CMatrix x = permuted(b);
    if (m_lu.rows() != b.rows() || isSingular())
        return x;
    const int n = m_lu.cols();
    for (int k = 0; k < n; ++k) {
        for (int i = k + 1; i < n; ++i) {
            for (int j = 0; j < b.cols(); ++j)
                x.element(i, j) -= x.element(k, j) * m_lu.element(i, k);
        }
    }
    for (int k = n - 1; k >= 0; --k) {
        for (int j = 0; j < b.cols(); ++j)
            x.element(k, j) /= m_lu.element(k, k);
        for (int i = 0; i < k; ++i) {
            for (int j = 0; j < b.cols(); ++j)
                x.element(i, j) -= x.element(k, j) * m_lu.element(i, k);
        }
    }
    return x;
}

} // namespace zuno
