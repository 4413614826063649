// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QBuffer>
#include <QTest>

#include <base/bytereader.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

/// A file that ends earlier than it said, as one that is being copied.
class ShortDevice final : public QBuffer
{
public:
    using QBuffer::QBuffer;
    [[nodiscard]] qint64 size() const override { return QBuffer::size() + 100; }
};

} // namespace

// The values themselves and the ends of fields are tested with session files, cut at every byte.
class TestByteReader final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The file is fetched in pieces of 4 kB; nothing may be lost or doubled where they meet.
    void piecewiseAsFromMemory()
    {
        QByteArray bytes;
        for (int i = 0; i < 20000; ++i)
            bytes.append(static_cast<char>((i * 7) ^ (i >> 8)));
        QBuffer device(&bytes);
        QVERIFY(device.open(QIODevice::ReadOnly));
        for (int start = 4080; start < 4100; ++start) {
            ByteReader fromMemory(bytes);
            ByteReader fromDevice(device);
            for (ByteReader *reader : {&fromMemory, &fromDevice}) {
                QCOMPARE(reader->u8(), 0);
                reader->seek(start);
            }
            QCOMPARE(fromDevice.u32(), fromMemory.u32());
            QCOMPARE(fromDevice.countedBytes(), fromMemory.countedBytes());
            QCOMPARE(fromDevice.take(9000).toByteArray(), bytes.mid(fromMemory.position(), 9000));
            fromMemory.skip(9000);
            QCOMPARE(fromDevice.f64(), fromMemory.f64());
            fromDevice.skip(-5);
            QCOMPARE(fromDevice.position(), fromMemory.position());
            fromDevice.skip(100000);
            QVERIFY(fromDevice.atEnd());
        }
    }

    void fileShorterThanItSaid()
    {
        QByteArray bytes("\x01\x02\x03\x04\x05", 5);
        ShortDevice device(&bytes);
        QVERIFY(device.open(QIODevice::ReadOnly));
        ByteReader reader(device);
        QCOMPARE(reader.u32(), 0x04030201U);
        QCOMPARE(reader.u32(), 0U);
        QCOMPARE(reader.u8(), 5);
        QVERIFY(reader.atEnd());
    }
};

QTEST_GUILESS_MAIN(TestByteReader)
#include "tst_bytereader.moc"
