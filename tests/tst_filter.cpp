// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <charconv>
#include <cmath>
#include <random>

#include <QTest>

#include <filter/ckalmanfilter.h>

using namespace zuno;

namespace {

using Operation = CMatrix (*)(const CMatrix &, const CMatrix &);

/// "1 2; 3 4" or, without elements, "0x2". No two numbers give the same text, nor do two zeros.
QByteArray text(const CMatrix &m)
{
    QByteArray text;
    for (int i = 0; i < m.rows() * m.cols(); ++i) {
        std::array<char, 32> number {};
        std::to_chars(number.begin(), number.end(), m.element(i / m.cols(), i % m.cols()));
        text.append(i == 0 ? "" : (i % m.cols() == 0 ? "; " : " ")).append(number.data());
    }
    const QByteArray shape = QByteArray::number(m.rows()) + 'x' + QByteArray::number(m.cols());
    return text.isEmpty() ? shape : text;
}

/// Elements from -1 to 1, some of them zeros of either sign; the same in every run.
CMatrix randomMatrix(quint8 rows, quint8 cols)
{
    static std::mt19937 random(7);
    CMatrix m(rows, cols);
    for (int i = 0; i < rows * cols; ++i) {
        const float element = static_cast<float>(random() % 2001) / 1000.0F - 1.0F;
        m.element(i / cols, i % cols) = random() % 5 == 0 ? std::copysign(0.0F, element) : element;
    }
    return m;
}

/// c + sign a·b, or c + sign a·bᵀ: all that a step is made of, but for the inverse.
CMatrix plus(CMatrix c, float sign, const CMatrix &a, const CMatrix &b, bool isFlipped = false)
{
    for (int i = 0; i < c.rows(); ++i) {
        for (int j = 0; j < c.cols(); ++j) {
            float sum = 0.0F;
            for (int k = 0; k < a.cols(); ++k)
                sum += a.element(i, k) * (isFlipped ? b.element(j, k) : b.element(k, j));
            c.element(i, j) += sign * sum;
        }
    }
    return c;
}

} // namespace

class TestFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data()
    {
        QTest::addColumn<QByteArray>("got");
        QTest::addColumn<QByteArray>("wanted");
        const auto row = [](const char *name, Operation operation, const CMatrix &a,
                            const CMatrix &b, const char *wanted) {
            QTest::newRow(name) << text(operation(a, b)) << QByteArray(wanted);
        };
        row("product", multiply, {{1, 2, 3}, {4, 5, 6}}, {{7, 8}, {9, 10}, {11, 12}},
            "58 64; 139 154");
        row("product of 2x3 and 2x2", multiply, {{1, 2, 3}, {4, 5, 6}}, {{1, 2}, {3, 4}},
            "0 0; 0 0");
        row("product over nothing", multiply, CMatrix(2, 0), CMatrix(0, 2), "0 0; 0 0");
        row("product from the left", multiply, {{1e8F, 1, -1e8F}}, {{1}, {1}, {1}}, "0");
        row("product begins at 0", multiply, {{-0.0F}}, {{1}}, "0");
        row("sum of negative zeros", add, {{-0.0F, -0.0F, 1}}, {{-0.0F, 0, 2}}, "-0 0 3");
        row("sum of 2x1 and 1x2", add, {{1}, {2}}, {{1, 2}}, "0; 0");
        row("sum with fewer columns", add, {{1, 2, 3}, {4, 5, 6}}, {{1, 2}, {3, 4}},
            "0 0 0; 0 0 0");
        row("difference of zeros", subtract, {{-0.0F, 0, 1}}, {{0, 0, 3}}, "-0 0 -2");
        row("difference with fewer rows", subtract, {{1}, {2}, {3}}, {{1}, {2}}, "0; 0; 0");
        row("rows are exchanged", solve, {{0, 1}, {1, 0}}, {{1, 2}, {3, 4}}, "3 4; 1 2");
        row("singular, exchanged", solve, {{1, 2}, {2, 4}}, {{1, 2}, {3, 4}}, "3 4; 1 2");
        row("singular, first of equals", solve, {{1, 1}, {-1, -1}}, {{1, 2}, {3, 4}}, "1 2; 3 4");
        row("zero pivot on the way", solve, {{0, 1, 0}, {0, 0, 1}, {0, 2, 0}}, {{1}, {2}, {3}},
            "1; 3; 2");
        row("too few rows", solve, {{0, 1}, {1, 0}}, {{5, 6}}, "0 0; 5 6");
        row("too many rows", solve, {{0, 1}, {1, 0}}, {{1}, {2}, {3}}, "2; 1");
        row("least squares, other rows", solve, {{1, 0}, {1, 1}, {1, 2}}, {{1}, {2}}, "1; 2");
        row("least squares, zero column", solve, {{1, 0}, {2, 0}, {3, 0}}, {{1}, {2}, {3}},
            "1; 2; 3");
        row("fewer equations than unknowns", solve, {{1, 2, 3}, {4, 5, 6}}, {{1}, {2}}, "1; 2");
        row("points beside a line", solve, {{2, 0}, {2, 2}, {2, 2}, {2, 0}},
            {{0, 2}, {4, 8}, {8, 8}, {4, 2}}, "1 1; 2 3");
        row("a zero on top", solve, {{0, 1}, {2, 1}, {4, 1}}, {{1}, {2}, {3}}, "0.5; 1");
        row("too large to be squared", solve, {{3e30F, 0}, {4e30F, 0}, {0, 2e30F}},
            {{5e30F}, {5e30F}, {2e30F}}, "1.4; 1");
        // Operations of one matrix; the other one is not looked at.
        const Operation flip = [](const CMatrix &a, const CMatrix &) { return transpose(a); };
        const Operation invert = [](const CMatrix &a, const CMatrix &) { return inverse(a); };
        row("transpose", flip, {{1, 2, -0.0F}, {4, 5, 6}}, CMatrix(), "1 4; 2 5; -0 6");
        row("transpose of no elements", flip, CMatrix(2, 0), CMatrix(), "0x2");
        row("inverse", invert, {{2, 0}, {0, -4}}, CMatrix(), "0.5 0; -0 -0.25");
        row("inverse to the bit", invert, {{1, 3, 2}, {3, 1, 1}, {2, 5, 9}}, CMatrix(),
            "-0.08888888 0.3777778 -0.022222234; 0.5555555 -0.11111111 -0.11111107; -0.28888887 "
            "-0.022222226 0.17777777");
        row("inverse of a singular matrix", invert, {{1, 2}, {2, 4}}, CMatrix(), "0 1; 1 0");
        row("inverse of nothing", invert, CMatrix(0, 0), CMatrix(), "0x0");
    }
    void operations()
    {
        QFETCH(const QByteArray, got);
        QTEST(got, "wanted");
    }

    // Matrices within themselves (up to four elements) and on the heap, onto one of either kind.
    void keepsElements()
    {
        QCOMPARE(text({{1, 2}, {3}, {4, 5, 6}}), "1 2; 3 0; 4 5");
        for (const CMatrix &original :
             {randomMatrix(2, 2), randomMatrix(1, 5), randomMatrix(255, 255)}) {
            const QByteArray wanted = text(original);
            for (const CMatrix &target : {CMatrix(), CMatrix(2, 2), CMatrix(2, 3)}) {
                CMatrix copy(target);
                copy = original;
                copy.element(copy.rows() - 1, copy.cols() - 1) += 1.0F;
                QVERIFY(!(copy == original) && text(original) == wanted);
                copy = original;
                CMatrix moved(target);
                moved = std::move(copy);
                // cppcheck-suppress accessMoved // What is left is empty.
                QCOMPARE(text(copy), "0x0"); // NOLINT(bugprone-use-after-move)
                QCOMPARE(text(CMatrix(std::move(moved))), wanted);
            }
        }
    }

    // The large elements stand off the diagonal, so nothing is solved without exchanging rows.
    void solvesSquares()
    {
        for (const quint8 size : {1, 2, 5, 255}) {
            CMatrix a = randomMatrix(size, size);
            for (int i = 0; i < size; ++i)
                a.element(i, (i + 1) % size) += static_cast<float>(size + 1);
            const CMatrix b = randomMatrix(size, 1);
            const CMatrix rest = subtract(multiply(a, solve(a, b)), b);
            for (int i = 0; i < size; ++i)
                QVERIFY2(std::abs(rest.element(i, 0)) < 1e-4F, qPrintable(QString::number(size)));
        }
    }

    void steps_data()
    {
        QTest::addColumn<QList<quint8>>("sizes"); // states, inputs and measurements
        QTest::addColumn<bool>("isSingular");
        QTest::newRow("two of each, one input") << QList<quint8> {2, 1, 2} << false;
        QTest::newRow("two of each, no inverse") << QList<quint8> {2, 1, 2} << true;
        QTest::newRow("two states, one measurement") << QList<quint8> {2, 1, 1} << false;
        QTest::newRow("four states") << QList<quint8> {4, 2, 3} << false;
    }
    void steps()
    {
        QFETCH(const QList<quint8>, sizes);
        QFETCH(const bool, isSingular);
        const quint8 n = sizes[0];
        const quint8 m = sizes[2];
        for (int start = 0; start < 500; ++start) {
            CMatrix x = randomMatrix(n, 1);
            CMatrix p = randomMatrix(n, n);
            const CMatrix a = randomMatrix(n, n);
            const CMatrix b = randomMatrix(n, sizes[1]);
            const CMatrix u = randomMatrix(sizes[1], 1);
            // What does not depend on the state has no variance but its noise.
            const CMatrix h = isSingular ? CMatrix(m, n) : randomMatrix(m, n);
            const auto noise = static_cast<float>(start % 2);
            const CMatrix r = isSingular ? CMatrix {{noise, noise}, {2 * noise, 2 * noise}}
                                         : randomMatrix(m, m);
            const CMatrix q = randomMatrix(n, n);
            CKalmanFilter filter;
            filter.setState(x);
            filter.setCovariance(p);
            filter.setTransition(a);
            filter.setControl(b);
            filter.setControlInput(u);
            filter.setObservation(h);
            filter.setMeasurementNoise(r);
            filter.setProcessNoise(q);
            for (int step = 0; step < 4; ++step) {
                const CMatrix z = randomMatrix(m, 1);
                x = plus(plus(CMatrix(n, 1), 1, b, u), 1, a, x);
                p = plus(q, 1, plus(CMatrix(n, n), 1, a, p), a, true);
                const CMatrix s = plus(r, 1, plus(CMatrix(m, n), 1, h, p), h, true);
                const CMatrix crossed = plus(CMatrix(n, m), 1, p, h, true);
                const CMatrix gain = plus(CMatrix(n, m), 1, crossed, inverse(s));
                x = plus(x, 1, gain, plus(z, -1, h, x));
                p = plus(CMatrix(n, n), 1, plus(identity(n), -1, gain, h), p);
                QCOMPARE(text(filter.step(z)), text(x));
                QCOMPARE(text(filter.covariance()), text(p));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestFilter)
#include "tst_filter.moc"
