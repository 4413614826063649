// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <random>

#include <QTest>

#include <filter/ckalmanfilter.h>

using namespace zuno;

namespace {

/// "1 2; 3 4" is two rows of two; "2x0" has that shape and no elements.
CMatrix matrix(const QByteArray &text)
{
    if (text.contains('x')) {
        const QList<QByteArray> shape = text.split('x');
        return {static_cast<quint8>(shape[0].toInt()), static_cast<quint8>(shape[1].toInt())};
    }
    std::vector<CMatrix::Row> rows;
    for (const QByteArray &line : text.split(';')) {
        CMatrix::Row row;
        for (const QByteArray &number : line.simplified().split(' '))
            row.push_back(number.toFloat());
        rows.push_back(row);
    }
    return CMatrix(rows);
}

/// The same text of a matrix; a negative zero is "-0". With nine digits, no two numbers of 32 bits
/// are the same text.
QByteArray text(const CMatrix &m, int digits = 6)
{
    if (m.rows() == 0 || m.cols() == 0)
        return QByteArray::number(m.rows()) + 'x' + QByteArray::number(m.cols());
    QByteArrayList lines;
    for (int i = 0; i < m.rows(); ++i) {
        QByteArrayList numbers;
        for (int j = 0; j < m.cols(); ++j) {
            const auto number = static_cast<double>(m.element(i, j));
            const bool isNegativeZero = number == 0.0 && std::signbit(number);
            numbers.append(isNegativeZero ? "-0" : QByteArray::number(number, 'g', digits));
        }
        lines.append(numbers.join(' '));
    }
    return lines.join("; ");
}

using Rows = std::vector<CMatrix::Row>;

/// Elements from -1 to 1, some of them zeros of either sign; the same in every run.
Rows randomRows(int rows, int cols, std::mt19937 &random)
{
    Rows result(static_cast<std::size_t>(rows), CMatrix::Row(static_cast<std::size_t>(cols)));
    for (CMatrix::Row &row : result) {
        for (float &element : row) {
            element = static_cast<float>(random() % 2001) / 1000.0F - 1.0F;
            element = random() % 5 == 0 ? std::copysign(0.0F, element) : element;
        }
    }
    return result;
}

Rows zeros(std::size_t rows, std::size_t cols)
{
    return Rows(rows, CMatrix::Row(cols));
}

// The filter once more, with nothing but loops over rows of numbers.

Rows times(const Rows &a, const Rows &b)
{
    Rows product = zeros(a.size(), b[0].size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < b[0].size(); ++j) {
            for (std::size_t k = 0; k < b.size(); ++k)
                product[i][j] += a[i][k] * b[k][j];
        }
    }
    return product;
}

Rows plus(Rows a, const Rows &b, float sign = 1.0F)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < a[i].size(); ++j)
            a[i][j] += sign * b[i][j];
    }
    return a;
}

Rows flipped(const Rows &a)
{
    Rows result = zeros(a[0].size(), a.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        for (std::size_t j = 0; j < a[i].size(); ++j)
            result[j][i] = a[i][j];
    }
    return result;
}

Rows unit(std::size_t n)
{
    Rows result = zeros(n, n);
    for (std::size_t i = 0; i < n; ++i)
        result[i][i] = 1.0F;
    return result;
}

/// Triangles in place of a, column by column, with the rows of x exchanged alike; whether every
/// pivot is there. Each element collects its products before it is changed.
bool decompose(Rows &a, Rows &x)
{
    const std::size_t n = a.size();
    bool isRegular = true;
    for (std::size_t j = 0; j < n; ++j) {
        std::size_t pivot = j;
        for (std::size_t i = 0; i < n; ++i) {
            float sum = 0.0F;
            for (std::size_t k = 0; k < std::min(i, j); ++k)
                sum += a[i][k] * a[k][j];
            a[i][j] -= sum;
            pivot = i > j && std::abs(a[i][j]) > std::abs(a[pivot][j]) ? i : pivot;
        }
        std::swap(a[j], a[pivot]);
        std::swap(x[j], x[pivot]);
        isRegular &= a[j][j] != 0.0F;
        for (std::size_t i = j + 1; i < n && a[j][j] != 0.0F; ++i)
            a[i][j] /= a[j][j];
    }
    return isRegular;
}

Rows inverted(Rows a)
{
    const std::size_t n = a.size();
    Rows x = unit(n);
    if (!decompose(a, x))
        return x;
    for (std::size_t j = 0; j < n; ++j) {
        for (std::size_t k = 0; k < n; ++k) {
            for (std::size_t i = k + 1; i < n; ++i)
                x[i][j] -= x[k][j] * a[i][k];
        }
        for (std::size_t k = n; k-- > 0;) {
            x[k][j] /= a[k][k];
            for (std::size_t i = 0; i < k; ++i)
                x[i][j] -= x[k][j] * a[i][k];
        }
    }
    return x;
}

struct PlainFilter
{
    Rows p, x, a, b, u, h, r, q;

    void step(const Rows &z)
    {
        x = plus(times(a, x), times(b, u));
        p = plus(times(times(a, p), flipped(a)), q);
        const Rows s = plus(times(times(h, p), flipped(h)), r);
        const Rows gain = times(times(p, flipped(h)), inverted(s));
        x = plus(x, times(gain, plus(z, times(h, x), -1.0F)));
        p = times(plus(unit(p.size()), times(gain, h), -1.0F), p);
    }
};

/// The largest element of A·X - B, computed in double precision.
double residual(const CMatrix &a, const CMatrix &x, const CMatrix &b)
{
    double largest = 0.0;
    for (int i = 0; i < b.rows(); ++i) {
        for (int j = 0; j < b.cols(); ++j) {
            double sum = -static_cast<double>(b.element(i, j));
            for (int k = 0; k < a.cols(); ++k)
                sum += static_cast<double>(a.element(i, k)) * static_cast<double>(x.element(k, j));
            largest = std::max(largest, std::abs(sum));
        }
    }
    return largest;
}

using Operation = CMatrix (*)(const CMatrix &, const CMatrix &);

} // namespace

class TestFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data();
    void operations();
    void keepsElements_data();
    void keepsElements();
    void solvesSquares_data();
    void solvesSquares();
    void steps_data();
    void steps();
};

void TestFilter::operations_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");
    QTest::addColumn<QByteArray>("result");
    const auto row = [](const char *name, Operation operation, const char *a, const char *b,
                        const char *result) {
        QTest::newRow(name) << operation << QByteArray(a) << QByteArray(b) << QByteArray(result);
    };
    row("product", multiply, "1 2 3; 4 5 6", "7 8; 9 10; 11 12", "58 64; 139 154");
    row("product of 3x1 and 1x3", multiply, "1; 2; 3", "4 5 6", "4 5 6; 8 10 12; 12 15 18");
    row("product of 2x3 and 2x2", multiply, "1 2 3; 4 5 6", "1 2; 3 4", "0 0; 0 0");
    row("product of 2x2 and 3x1", multiply, "1 2; 3 4", "1; 2; 3", "0; 0");
    row("product of no rows", multiply, "0x2", "1 2 3; 4 5 6", "0x3");
    row("product over nothing", multiply, "2x0", "0x2", "0 0; 0 0");
    row("product in 32 bits", multiply, "1e8 1 -1e8", "1; 1; 1", "0");
    row("product from the left", multiply, "1e8 -1e8 1", "1; 1; 1", "1");
    row("product begins at 0", multiply, "-0", "1", "0");
    row("sum", add, "1 2; 3 4", "10 20; 30 40", "11 22; 33 44");
    row("sum of negative zeros", add, "-0 -0", "-0 0", "-0 0");
    row("sum of 2x1 and 1x2", add, "1; 2", "1 2", "0; 0");
    row("sum with fewer columns", add, "1 2 3; 4 5 6", "1 2; 3 4", "0 0 0; 0 0 0");
    row("sum of nothing", add, "0x0", "0x0", "0x0");
    row("difference", subtract, "1 2 3", "10 20 30", "-9 -18 -27");
    row("difference of zeros", subtract, "-0 0", "0 0", "-0 0");
    row("difference with fewer rows", subtract, "1; 2; 3", "1; 2", "0; 0; 0");

    row("solution", solve, "2 1; 1 3", "3; 5", "0.8; 1.4");
    row("solution of 1x1", solve, "4", "2 6", "0.5 1.5");
    row("rows are exchanged", solve, "0 1; 1 0", "1 2; 3 4", "3 4; 1 2");
    row("singular, exchanged", solve, "1 2; 2 4", "1 2; 3 4", "3 4; 1 2");
    row("singular, first of equals", solve, "1 1; -1 -1", "1 2; 3 4", "1 2; 3 4");
    row("zeros", solve, "0 0; 0 0", "1; 2", "1; 2");
    row("1x1 zero", solve, "0", "7", "7");
    row("zero pivot on the way", solve, "0 1 0; 0 0 1; 0 2 0", "1; 2; 3", "1; 3; 2");
    row("too few rows", solve, "0 1; 1 0", "5 6", "0 0; 5 6");
    row("no rows", solve, "1 2; 3 4", "0x1", "0; 0");
    row("too many rows", solve, "0 1; 1 0", "1; 2; 3", "2; 1");
    row("least squares, other rows", solve, "1 0; 1 1; 1 2", "1; 2", "1; 2");
    row("least squares, zero column", solve, "1 0; 2 0; 3 0", "1; 2; 3", "1; 2; 3");
    row("fewer equations than unknowns", solve, "1 2 3; 4 5 6", "1; 2", "1; 2");
    row("points on a line", solve, "1 0; 1 1; 1 2", "1; 3; 5", "1; 2");
    row("points beside a line", solve, "1 0; 1 1; 1 2; 1 3", "0; 2; 1; 3", "0.3; 0.8");
    row("two right-hand sides", solve, "1 0; 1 1; 1 2", "1 6; 3 3; 5 0", "1 6; 2 -3");
    row("first elements negative", solve, "-1 0; -1 -1; -1 2", "1; 0; 4", "-1.21429; 1.35714");
    row("a zero on top", solve, "0 1; 2 1; 4 1", "1; 2; 3", "0.5; 1");
    row("too large to be squared", solve, "3e30 0; 4e30 0; 0 2e30", "5e30; 5e30; 2e30", "1.4; 1");

    // Operations of one matrix; the other one is not looked at.
    const Operation flip = [](const CMatrix &a, const CMatrix &) { return transpose(a); };
    row("transpose", flip, "1 2 3; 4 5 6", "0x0", "1 4; 2 5; 3 6");
    row("transpose of a row", flip, "1 2 -0", "0x0", "1; 2; -0");
    row("transpose of no elements", flip, "2x0", "0x0", "0x2");
    const Operation invert = [](const CMatrix &a, const CMatrix &) { return inverse(a); };
    row("inverse", invert, "2 0; 0 -4", "0x0", "0.5 0; -0 -0.25");
    row("inverse of an exchange", invert, "0 1; 1 0", "0x0", "0 1; 1 0");
    row("inverse of a singular matrix", invert, "1 2; 2 4", "0x0", "0 1; 1 0");
    row("inverse of nothing", invert, "0x0", "0x0", "0x0");
    const Operation one = [](const CMatrix &a, const CMatrix &) { return identity(a.rows()); };
    row("identity", one, "3x0", "0x0", "1 0 0; 0 1 0; 0 0 1");
    row("identity of nothing", one, "0x0", "0x0", "0x0");
}

void TestFilter::operations()
{
    QFETCH(Operation, operation);
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);
    QTEST(text(operation(matrix(a), matrix(b))), "result");
}

// Copies, moves and assignments, for matrices within themselves (up to four elements) and on the
// heap, each onto one of either kind.
void TestFilter::keepsElements_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    for (int n = 1; n <= 5; ++n) {
        for (int m = 1; m <= 5; ++m)
            QTest::addRow("%dx%d", n, m) << n << m;
    }
    QTest::newRow("0x0") << 0 << 0;
    QTest::newRow("255x1") << 255 << 1;
    QTest::newRow("1x255") << 1 << 255;
    QTest::newRow("255x255") << 255 << 255;
}

void TestFilter::keepsElements()
{
    QFETCH(int, rows);
    QFETCH(int, cols);
    std::mt19937 random(7);
    const CMatrix original = rows == 0 ? CMatrix() : CMatrix(randomRows(rows, cols, random));
    const QByteArray wanted = text(original);
    QCOMPARE(int(original.rows()), rows);
    QCOMPARE(int(original.cols()), cols);
    QCOMPARE(original.rowCount(), rows);

    CMatrix copy(original);
    QCOMPARE(text(copy), wanted);
    if (rows > 0) {
        copy.element(rows - 1, cols - 1) += 1.0F;
        QVERIFY(!(copy == original));
        QCOMPARE(text(original), wanted);
    }
    for (const char *target : {"0x0", "1 2; 3 4", "1 2 3; 4 5 6"}) {
        CMatrix other = matrix(target);
        other = original;
        QCOMPARE(text(other), wanted);
        other = *&other;
        QCOMPARE(text(other), wanted);
        CMatrix &same = other;
        other = std::move(same);
        QCOMPARE(text(other), wanted);

        CMatrix moved = matrix(target);
        moved = std::move(other);
        QCOMPARE(text(moved), wanted);
        // cppcheck-suppress accessMoved // What is left is empty.
        QCOMPARE(text(other), "0x0"); // NOLINT(bugprone-use-after-move)
        other = matrix(target);
        QCOMPARE(text(other), QByteArray(target));
        const CMatrix constructed(std::move(moved));
        QCOMPARE(text(constructed), wanted);
    }
}

void TestFilter::solvesSquares_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {1, 2, 3, 4, 5, 16, 255})
        QTest::addRow("%d", size) << size;
}

void TestFilter::solvesSquares()
{
    QFETCH(int, size);
    std::mt19937 random(11);
    // The large elements stand off the diagonal, so nothing is solved without exchanging rows.
    CMatrix a(randomRows(size, size, random));
    for (int i = 0; i < size; ++i)
        a.element(i, (i + 1) % size) += static_cast<float>(size);
    const CMatrix b(randomRows(size, 2, random));
    QVERIFY(residual(a, solve(a, b), b) < 1e-4);
    QVERIFY(residual(a, inverse(a), identity(static_cast<quint8>(size))) < 1e-4);
}

void TestFilter::steps_data()
{
    QTest::addColumn<int>("states");
    QTest::addColumn<int>("inputs");
    QTest::addColumn<int>("measurements");
    QTest::addColumn<bool>("isSingular");
    QTest::newRow("two of each, one input") << 2 << 1 << 2 << false;
    QTest::newRow("two of each, two inputs") << 2 << 2 << 2 << false;
    QTest::newRow("two of each, no inverse") << 2 << 1 << 2 << true;
    QTest::newRow("one state") << 1 << 1 << 1 << false;
    QTest::newRow("two states, one measurement") << 2 << 1 << 1 << false;
    QTest::newRow("one state, two measurements") << 1 << 1 << 2 << false;
    QTest::newRow("four states, three measurements") << 4 << 2 << 3 << false;
    QTest::newRow("four states, no inverse") << 4 << 2 << 3 << true;
}

void TestFilter::steps()
{
    QFETCH(int, states);
    QFETCH(int, inputs);
    QFETCH(int, measurements);
    QFETCH(bool, isSingular);
    std::mt19937 random(3);
    for (int start = 0; start < 500; ++start) {
        PlainFilter plain {randomRows(states, states, random),
                           randomRows(states, 1, random),
                           randomRows(states, states, random),
                           randomRows(states, inputs, random),
                           randomRows(inputs, 1, random),
                           randomRows(measurements, states, random),
                           randomRows(measurements, measurements, random),
                           randomRows(states, states, random)};
        // What is measured without noise and does not depend on the state has no variance.
        if (isSingular) {
            plain.h = zeros(plain.h.size(), plain.p.size());
            plain.r = zeros(plain.r.size(), plain.r.size());
        }
        CKalmanFilter filter;
        filter.setCovariance(CMatrix(plain.p));
        filter.setState(CMatrix(plain.x));
        filter.setTransition(CMatrix(plain.a));
        filter.setControl(CMatrix(plain.b));
        filter.setControlInput(CMatrix(plain.u));
        filter.setObservation(CMatrix(plain.h));
        filter.setMeasurementNoise(CMatrix(plain.r));
        filter.setProcessNoise(CMatrix(plain.q));
        for (int step = 0; step < 4; ++step) {
            const Rows z = randomRows(measurements, 1, random);
            plain.step(z);
            QCOMPARE(text(filter.step(CMatrix(z)), 9), text(CMatrix(plain.x), 9));
            QCOMPARE(text(filter.covariance(), 9), text(CMatrix(plain.p), 9));
        }
    }
}

QTEST_GUILESS_MAIN(TestFilter)
#include "tst_filter.moc"
