// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filter/cmatrix.h>

namespace zuno {

/// QR decomposition by Householder reflections, for rectangular systems (least squares).
class CQRDecomposition
{
public:
    /// Decomposes @p a, which should have at least as many rows as columns.
    explicit CQRDecomposition(const CMatrix &a);
    virtual ~CQRDecomposition() = default;
    CQRDecomposition(const CQRDecomposition &) = default;
    CQRDecomposition &operator=(const CQRDecomposition &) = default;
    CQRDecomposition(CQRDecomposition &&) = default;
    CQRDecomposition &operator=(CQRDecomposition &&) = default;

    /// The least-squares solution of A·X = B, cols(A) x cols(B). B comes back unchanged when its
    /// rows do not match or A has not full rank.
    [[nodiscard]] CMatrix solve(const CMatrix &b) const;

    [[nodiscard]] const CMatrix &qr() const { return m_qr; }
    /// The diagonal of R, one entry a column.
    [[nodiscard]] const std::vector<float> &diagonal() const { return m_diagonal; }

private:
    void reflectColumn(int k);
    void applyReflection(int k, CMatrix &target, int column) const;
    [[nodiscard]] bool hasFullRank() const;

    CMatrix m_qr;
    std::vector<float> m_diagonal;
};

} // namespace zuno
