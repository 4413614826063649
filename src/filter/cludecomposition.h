// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filter/cmatrix.h>

namespace zuno {

/// LU decomposition of a square matrix, left-looking (Crout) with partial row pivoting.
class CLUDecomposition
{
public:
    /// Decomposes @p a. A zero pivot leaves its column as it is and the decomposition goes on.
    explicit CLUDecomposition(const CMatrix &a);
    virtual ~CLUDecomposition() = default;
    CLUDecomposition(const CLUDecomposition &) = default;
    CLUDecomposition &operator=(const CLUDecomposition &) = default;
    CLUDecomposition(CLUDecomposition &&) = default;
    CLUDecomposition &operator=(CLUDecomposition &&) = default;

    /// Solves A·X = B. When the rows do not match or A is singular, the rows of B come back in
    /// pivot order; a row that B lacks is a row of zeros.
    [[nodiscard]] CMatrix solve(const CMatrix &b) const;

    [[nodiscard]] const CMatrix &lu() const { return m_lu; }
    /// 1 or -1: the sign of the row permutation.
    [[nodiscard]] qint8 pivotSign() const { return m_pivotSign; }

private:
    void decomposeColumn(int j);
    void pivotColumn(int j);
    [[nodiscard]] bool isSingular() const;
    [[nodiscard]] CMatrix permuted(const CMatrix &b) const;

    CMatrix m_lu;
    std::array<quint8, 255> m_pivots {};
    qint8 m_pivotSign = 1;
};

} // namespace zuno
