// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QBuffer>
#include <QTemporaryFile>
#include <QTest>

#include <session/sessionbuffer.h>

#include "builders.h"

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

QString readAs(ByteReader &reader, const QString &type)
{
    if (type == u"u8")
        return QString::number(reader.u8());
    if (type == u"u32")
        return QString::number(reader.u32());
    if (type == u"i32")
        return QString::number(reader.i32());
    if (type == u"f32")
        return QString::number(static_cast<double>(reader.f32()));
    if (type == u"f64")
        return QString::number(reader.f64());
    return QString::fromLatin1(type == u"3 bytes" ? reader.bytes(3) : reader.countedBytes());
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
    void reads_data();
    void reads();
    void piecewiseAsFromMemory();
    void fileShorterThanItSaid();
    void writes();
};

void TestByteReader::reads_data()
{
    QTest::addColumn<QByteArray>("hex");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("value");
    QTest::addColumn<int>("position");
    const QString out = QString::fromLatin1(outOfRangeText());
    QTest::newRow("u8, none") << QByteArray() << u"u8"_s << u"0"_s << 0;
    QTest::newRow("u8, one") << QByteArray("ff") << u"u8"_s << u"255"_s << 1;
    QTest::newRow("u32, 3 bytes") << QByteArray("010203") << u"u32"_s << u"0"_s << 0;
    QTest::newRow("u32, 4 bytes") << QByteArray("01020384") << u"u32"_s << u"2214789633"_s << 4;
    QTest::newRow("u32, 5 bytes") << QByteArray("0102038405") << u"u32"_s << u"2214789633"_s << 4;
    QTest::newRow("i32, 3 bytes") << QByteArray("ffffff") << u"i32"_s << u"0"_s << 0;
    QTest::newRow("i32, negative") << QByteArray("feffffff") << u"i32"_s << u"-2"_s << 4;
    QTest::newRow("f32, 3 bytes") << QByteArray("0000c0") << u"f32"_s << u"0"_s << 0;
    QTest::newRow("f32, 4 bytes") << QByteArray("0000c0bf") << u"f32"_s << u"-1.5"_s << 4;
    QTest::newRow("f64, 7 bytes") << QByteArray("000000000000f8") << u"f64"_s << u"0"_s << 0;
    QTest::newRow("f64, 8 bytes") << QByteArray("000000000000f8bf") << u"f64"_s << u"-1.5"_s << 8;
    QTest::newRow("bytes, one less") << QByteArray("4142") << u"3 bytes"_s << out << 0;
    QTest::newRow("bytes, enough") << QByteArray("414243") << u"3 bytes"_s << u"ABC"_s << 3;
    QTest::newRow("text, no length") << QByteArray() << u"text"_s << QString() << 0;
    QTest::newRow("text, empty") << QByteArray("0041") << u"text"_s << QString() << 1;
    QTest::newRow("text, one less") << QByteArray("024d") << u"text"_s << out << 1;
    QTest::newRow("text, enough") << QByteArray("024d41") << u"text"_s << u"MA"_s << 3;
    QTest::newRow("text, the longest")
        << QByteArray("ff") + QByteArray(510, '4') << u"text"_s << QString(255, u'D') << 256;
}

void TestByteReader::reads()
{
    QFETCH(const QByteArray, hex);
    QFETCH(const QString, type);
    QFETCH(const QString, value);
    QFETCH(const int, position);
    QByteArray bytes = QByteArray::fromHex(hex);
    QBuffer device(&bytes);
    QVERIFY(device.open(QIODevice::ReadOnly));
    for (ByteReader reader : {ByteReader(bytes), ByteReader(device)}) {
        QCOMPARE(readAs(reader, type), value);
        QCOMPARE(reader.position(), position);
        QCOMPARE(reader.left(), bytes.size() - position);
    }
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

void TestByteReader::writes()
{
    SessionBuffer buffer("abcdef");
    QCOMPARE(buffer.u8(), 'a');
    buffer.setWritePosition(2);
    buffer.replace('C');
    QCOMPARE(buffer.writePosition(), 3);
    QCOMPARE(buffer.bytes(3), QByteArray("bCd"));
    buffer.truncate();
    QCOMPARE(buffer.data(), QByteArray("abC"));
    QVERIFY(buffer.atEnd());
    buffer.append("xy");
    buffer.replace('z');
    QCOMPARE(buffer.data(), QByteArray("abCxyz"));
    QCOMPARE(buffer.writePosition(), 6);
    QCOMPARE(buffer.countedBytes().size(), outOfRangeText().size());
    buffer.setWritePosition(100);
    QCOMPARE(buffer.writePosition(), 6);
}

QTEST_GUILESS_MAIN(TestByteReader)
#include "tst_bytereader.moc"
