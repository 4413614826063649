// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QBuffer>
#include <QTest>

#include <session/bytereader.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

QString readAs(ByteReader &reader, QLatin1StringView type)
{
    return type == "u8"_L1        ? QString::number(reader.u8())
           : type == "u32"_L1     ? QString::number(reader.u32())
           : type == "i32"_L1     ? QString::number(reader.i32())
           : type == "f32"_L1     ? QString::number(static_cast<double>(reader.f32()))
           : type == "f64"_L1     ? QString::number(reader.f64())
           : type == "3 bytes"_L1 ? QString::fromLatin1(reader.bytes(3))
                                  : QString::fromLatin1(reader.countedBytes());
}

/// A file that ends earlier than it said, as one that is being copied.
class ShortDevice final : public QBuffer
{
public:
    using QBuffer::QBuffer;
    [[nodiscard]] qint64 size() const override { return QBuffer::size() + 100; }
};

} // namespace

class TestByteReader final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads();
    void piecewiseAsFromMemory();
    void fileShorterThanItSaid();
};

void TestByteReader::reads()
{
    // What is read, and where the reader stands then; from memory and from a file alike.
    const auto read = [](const char *type, const QByteArray &hex) {
        QByteArray bytes = QByteArray::fromHex(hex);
        QBuffer device(&bytes);
        QStringList results;
        if (device.open(QIODevice::ReadOnly)) {
            for (ByteReader reader : {ByteReader(bytes), ByteReader(device)}) {
                results.append(readAs(reader, QLatin1StringView(type)));
                results.back() += u" %1"_s.arg(reader.position());
            }
        }
        results.removeDuplicates();
        return results.join(u" or "_s);
    };
    const QString out = QString::fromLatin1(outOfRangeText());
    QCOMPARE(read("u8", ""), u"0 0"_s);
    QCOMPARE(read("u8", "ff"), u"255 1"_s);
    QCOMPARE(read("u32", "010203"), u"0 0"_s);
    QCOMPARE(read("u32", "01020384"), u"2214789633 4"_s);
    QCOMPARE(read("u32", "0102038405"), u"2214789633 4"_s);
    QCOMPARE(read("i32", "feffffff"), u"-2 4"_s);
    QCOMPARE(read("f32", "0000c0bf"), u"-1.5 4"_s);
    QCOMPARE(read("f64", "000000000000f8"), u"0 0"_s);
    QCOMPARE(read("f64", "000000000000f8bf"), u"-1.5 8"_s);
    QCOMPARE(read("3 bytes", "4142"), out + u" 0");
    QCOMPARE(read("3 bytes", "414243"), u"ABC 3"_s);
    QCOMPARE(read("text", ""), u" 0"_s);
    QCOMPARE(read("text", "0041"), u" 1"_s);
    QCOMPARE(read("text", "024d"), out + u" 1");
    QCOMPARE(read("text", "ff" + QByteArray(510, '4')), QString(255, u'D') + u" 256");
}

// The file is fetched in pieces of 4 kB; nothing may be lost or doubled where they meet.
void TestByteReader::piecewiseAsFromMemory()
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
        fromDevice.seek(2);
        QCOMPARE(fromDevice.u8(), static_cast<quint8>(bytes[2]));
        fromDevice.skip(100000);
        QVERIFY(fromDevice.atEnd());
        QCOMPARE(fromDevice.take(10).size(), 0);
    }
}

void TestByteReader::fileShorterThanItSaid()
{
    QByteArray bytes("\x01\x02\x03\x04\x05", 5);
    ShortDevice device(&bytes);
    QVERIFY(device.open(QIODevice::ReadOnly));
    ByteReader reader(device);
    QCOMPARE(reader.left(), 105);
    QCOMPARE(reader.u32(), 0x04030201U);
    QCOMPARE(reader.u32(), 0U);
    QCOMPARE(reader.left(), 1);
    QCOMPARE(reader.u8(), 5);
    QVERIFY(reader.atEnd());
}

QTEST_GUILESS_MAIN(TestByteReader)
#include "tst_bytereader.moc"
