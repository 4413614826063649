// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <filter/cludecomposition.h>

#include <cmath>

namespace zuno {

CLUDecomposition::CLUDecomposition(const CMatrix &a) : m_lu(a)
{
    for (int i = 0; i < a.rows(); ++i)
        m_pivots[static_cast<std::size_t>(i)] = static_cast<quint8>(i);
    if (a.rows() == 2 && a.cols() == 2)
        decompose(FixedSize<2>(), FixedSize<2>());
    else
        decompose<quint8, quint8>(a.rows(), a.cols());
}

// Working in the column itself is the same as working in a copy of it: element k of the column
// is final before a row i > k reads it.
template<typename Rows, typename Cols>
void CLUDecomposition::decompose(Rows rows, Cols cols)
{
    float *lu = m_lu.data();
    for (int j = 0; j < cols; ++j) {
        for (int i = 0; i < rows; ++i) {
            float sum = 0.0F;
            for (int k = 0; k < std::min(i, j); ++k)
                sum += lu[(i * cols) + k] * lu[(k * cols) + j];
            lu[(i * cols) + j] -= sum;
        }
        pivotColumn(static_cast<quint8>(j), rows, cols);
    }
}

template<typename Rows, typename Cols>
void CLUDecomposition::pivotColumn(quint8 j, Rows rows, Cols cols)
{
    float *lu = m_lu.data();
    int pivot = j;
    for (int i = j + 1; i < rows; ++i) {
        if (std::fabs(lu[(i * cols) + j]) > std::fabs(lu[(pivot * cols) + j]))
            pivot = i;
    }
    if (pivot != j) {
        for (int k = 0; k < cols; ++k)
            std::swap(lu[(pivot * cols) + k], lu[(j * cols) + k]);
        std::swap(m_pivots[static_cast<std::size_t>(pivot)], m_pivots[static_cast<std::size_t>(j)]);
        m_pivotSign = static_cast<qint8>(-m_pivotSign);
    }
    if (j < rows && lu[(j * cols) + j] != 0.0F) {
        for (int i = j + 1; i < rows; ++i)
            lu[(i * cols) + j] /= lu[(j * cols) + j];
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
        if (source < b.rows())
            std::copy_n(b.data() + (source * b.cols()), b.cols(), x.data() + (i * b.cols()));
    }
    return x;
}

// Forward substitution with the unit lower triangle, then back substitution with the upper one.
template<typename Size, typename Cols>
void CLUDecomposition::substitute(float *x, Size n, Cols cols) const
{
    const float *lu = m_lu.data();
    for (int k = 0; k < n; ++k) {
        for (int i = k + 1; i < n; ++i) {
            for (int j = 0; j < cols; ++j)
                x[(i * cols) + j] -= x[(k * cols) + j] * lu[(i * n) + k];
        }
    }
    for (int k = n - 1; k >= 0; --k) {
        for (int j = 0; j < cols; ++j)
            x[(k * cols) + j] /= lu[(k * n) + k];
        for (int i = 0; i < k; ++i) {
            for (int j = 0; j < cols; ++j)
                x[(i * cols) + j] -= x[(k * cols) + j] * lu[(i * n) + k];
        }
    }
}

CMatrix CLUDecomposition::solve(const CMatrix &b) const
{
    CMatrix x = permuted(b);
    if (m_lu.rows() != b.rows() || isSingular())
        return x;
    if (m_lu.cols() == 2 && b.cols() == 2)
        substitute(x.data(), FixedSize<2>(), FixedSize<2>());
    else
        substitute<quint8, quint8>(x.data(), m_lu.cols(), b.cols());
    return x;
}

} // namespace zuno
