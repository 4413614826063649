// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

#include <QtGlobal>

namespace zuno {

/// A small dense matrix of 32-bit floats, at most 255 x 255.
///
/// No operation fails: operands whose shapes do not fit give a zero matrix (products, sums,
/// differences) or the right-hand side (solve), as each function says. Sums run over increasing
/// indices in 32-bit floats, so results are the same to the bit everywhere.
///
/// Matrices of up to four elements, all that the filter of two states needs, live without a heap
/// allocation: a ride has tens of thousands of samples and each takes twenty matrix operations.
class CMatrix
{
public:
    using Row = std::vector<float>;

    /// The empty matrix, 0 x 0.
    CMatrix() = default;

    /// A matrix of @p rows x @p cols zeros.
    CMatrix(quint8 rows, quint8 cols) : m_rows(rows), m_cols(cols) { allocate(); }

    /// A matrix from its rows. The first row's length is the number of columns; shorter rows are
    /// filled with zeros, longer ones are cut.
    CMatrix(std::initializer_list<std::initializer_list<float>> rows) { assignRows(rows); }
    explicit CMatrix(const std::vector<Row> &rows) { assignRows(rows); }

    CMatrix(const CMatrix &other) : m_rows(other.m_rows), m_cols(other.m_cols)
    {
        allocate();
        std::copy_n(other.data(), size(), data());
    }
    CMatrix(CMatrix &&other) noexcept { take(other); }
    CMatrix &operator=(const CMatrix &other)
    {
        if (this != &other)
            *this = CMatrix(other);
        return *this;
    }
    CMatrix &operator=(CMatrix &&other) noexcept
    {
        if (this != &other)
            take(other);
        return *this;
    }
    virtual ~CMatrix() = default;

    [[nodiscard]] quint8 rows() const { return m_rows; }
    [[nodiscard]] quint8 cols() const { return m_cols; }
    /// The number of stored rows.
    [[nodiscard]] int rowCount() const { return m_rows; }

    /// Element (@p i, @p j); no bounds check.
    [[nodiscard]] float &element(int i, int j) { return data()[(i * m_cols) + j]; }
    [[nodiscard]] float element(int i, int j) const { return data()[(i * m_cols) + j]; }

    /// Swaps the rows @p a and @p b; no bounds check.
    void swapRows(int a, int b)
    {
        std::swap_ranges(data() + (a * m_cols), data() + ((a + 1) * m_cols), data() + (b * m_cols));
    }

    friend bool operator==(const CMatrix &a, const CMatrix &b)
    {
        return a.m_rows == b.m_rows && a.m_cols == b.m_cols
               && std::equal(a.data(), a.data() + a.size(), b.data());
    }

private:
    static constexpr int InlineElements = 4;

    [[nodiscard]] int size() const { return m_rows * m_cols; }
    [[nodiscard]] float *data() { return m_heap ? m_heap.get() : m_inline.data(); }
    [[nodiscard]] const float *data() const { return m_heap ? m_heap.get() : m_inline.data(); }

    void allocate()
    {
        if (size() > InlineElements)
            m_heap = std::make_unique<float[]>(static_cast<std::size_t>(size()));
    }

    void take(CMatrix &other) noexcept
    {
        m_heap = std::move(other.m_heap);
        m_inline = other.m_inline;
        m_rows = std::exchange(other.m_rows, quint8(0));
        m_cols = std::exchange(other.m_cols, quint8(0));
    }

    template<typename Rows>
    void assignRows(const Rows &rows)
    {
        m_rows = static_cast<quint8>(rows.size());
        m_cols = rows.size() == 0 ? quint8(0) : static_cast<quint8>(rows.begin()->size());
        allocate();
        int i = 0;
        for (const auto &row : rows) {
            if (i == m_rows)
                break;
            const int filled = std::min<int>(m_cols, static_cast<int>(row.size()));
            std::copy_n(row.begin(), filled, data() + (i * m_cols));
            ++i;
        }
    }

    std::array<float, InlineElements> m_inline {};
    std::unique_ptr<float[]> m_heap;
    quint8 m_rows = 0;
    quint8 m_cols = 0;
};

/// The product A·B, rows(A) x cols(B); zeros when cols(A) differs from rows(B).
[[nodiscard]] inline CMatrix multiply(const CMatrix &a, const CMatrix &b)
{
    CMatrix product(a.rows(), b.cols());
    if (a.cols() != b.rows())
        return product;
    for (int i = 0; i < a.rows(); ++i) {
        for (int j = 0; j < b.cols(); ++j) {
            float sum = 0.0F;
            for (int k = 0; k < a.cols(); ++k)
                sum += a.element(i, k) * b.element(k, j);
            product.element(i, j) = sum;
        }
    }
    return product;
}

/// A + B; zeros of A's shape when the shapes differ.
[[nodiscard]] inline CMatrix add(const CMatrix &a, const CMatrix &b)
{
    CMatrix sum(a.rows(), a.cols());
    if (a.rows() != b.rows() || a.cols() != b.cols())
        return sum;
    for (int i = 0; i < a.rows(); ++i) {
        for (int j = 0; j < a.cols(); ++j)
            sum.element(i, j) = a.element(i, j) + b.element(i, j);
    }
    return sum;
}

/// A - B; zeros of A's shape when the shapes differ.
[[nodiscard]] inline CMatrix subtract(const CMatrix &a, const CMatrix &b)
{
    CMatrix difference(a.rows(), a.cols());
    if (a.rows() != b.rows() || a.cols() != b.cols())
        return difference;
    for (int i = 0; i < a.rows(); ++i) {
        for (int j = 0; j < a.cols(); ++j)
            difference.element(i, j) = a.element(i, j) - b.element(i, j);
    }
    return difference;
}

/// The transpose of A, cols(A) x rows(A).
[[nodiscard]] inline CMatrix transpose(const CMatrix &a)
{
    CMatrix result(a.cols(), a.rows());
    for (int i = 0; i < a.rows(); ++i) {
        for (int j = 0; j < a.cols(); ++j)
            result.element(j, i) = a.element(i, j);
    }
    return result;
}

/// The identity of @p n rows and columns.
[[nodiscard]] inline CMatrix identity(quint8 n)
{
    CMatrix result(n, n);
    for (int i = 0; i < n; ++i)
        result.element(i, i) = 1.0F;
    return result;
}

/// Solves A·X = B: by LU with pivoting for a square A, by least squares (QR) otherwise.
/// A singular A gives the right-hand side back (its rows in pivot order for a square A).
[[nodiscard]] CMatrix solve(const CMatrix &a, const CMatrix &b);

/// The inverse of A, that is solve(A, identity(rows(A))).
[[nodiscard]] CMatrix inverse(const CMatrix &a);

} // namespace zuno
