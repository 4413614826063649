// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include <session/storedtext.h>

using namespace zuno;
using namespace Qt::StringLiterals;

class TestStoredText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storable_data();
    void storable();
    void encodes_data();
    void encodes();
};

void TestStoredText::storable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("ASCII stays") << u"Brno ~ \t2 \"x\""_s << u"Brno ~ \t2 \"x\""_s;
    QTest::newRow("sharp s") << u"Straße GROẞ"_s << u"Strasse GROSS"_s;
    QTest::newRow("stroked letters") << u"ø Ø ł Ł đ Đ"_s << u"o O l L d D"_s;
    QTest::newRow("two in one") << u"æ Æ œ Œ"_s << u"ae AE oe OE"_s;
    QTest::newRow("dotless and dotted i") << u"ı İ i I"_s << u"i I i I"_s;
    QTest::newRow("marks") << u"éèêëÉ ñ ü Å ç ž ő"_s << u"eeeeE n u A c z o"_s;
    QTest::newRow("marks of their own") << u"e\u0301a\u030a"_s << u"ea"_s;
    QTest::newRow("compatibility forms") << u"ﬁ ² … Ａ １"_s << u"fi 2 ... A 1"_s;
    QTest::newRow("other scripts") << u"鈴鹿 Сочи A"_s << u"  A"_s;
    QTest::newRow("outside the first plane") << u"a\U0001F3CDb\U0001D400"_s << u"abA"_s;
    QTest::newRow("half a pair") << QString(QChar(0xd83c)) + u'a' << u"a"_s;
    QTest::newRow("255") << QString(255, u'x') << QString(255, u'x');
    QTest::newRow("256") << QString(256, u'x') << QString(255, u'x');
    QTest::newRow("grows beyond 255") << QString(128, u'ß') << QString(255, u's');
    QTest::newRow("shrinks to 255") << QString(300, u'\u0301') + u"end"_s << u"end"_s;
}

void TestStoredText::storable()
{
    QFETCH(const QString, text);
    QFETCH(const QString, stored);
    QCOMPARE(storableText(text), stored);
    QCOMPARE(storableText(stored), stored);
}

void TestStoredText::encodes_data()
{
    QTest::addColumn<StoredText>("stored");
    QTest::addColumn<QString>("set"); // null: nothing is set
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray latin("M\xe9xico");
    const auto fromFile = StoredText::fromFile(latin);
    const auto withAccent = StoredText::fromFile("Fête");
    QTest::newRow("nothing") << StoredText() << QString() << QByteArray("\0", 1);
    QTest::newRow("set") << StoredText() << u"abc"_s << QByteArray("\3abc");
    QTest::newRow("emptied") << withAccent << u""_s << QByteArray("\0", 1);
    QTest::newRow("read, unchanged") << withAccent << QString() << QByteArray("\5Fête");
    QTest::newRow("read, set to the same") << withAccent << u"Fête"_s << QByteArray("\5Fête");
    QTest::newRow("read, set to another") << withAccent << u"Feta"_s << QByteArray("\4Feta");
    QTest::newRow("another encoding stays") << fromFile << fromFile.text() << "\6" + latin;
    // What does not come from storableText() is counted in characters all the same.
    QTest::newRow("characters, not bytes")
        << StoredText(u"Fête"_s) << QString() << QByteArray("\4Fête");
    QTest::newRow("255") << StoredText(QString(255, u'x')) << QString()
                         << QByteArray(256, 'x').replace(0, 1, "\xff");
    QTest::newRow("256") << StoredText(QString(256, u'x')) << QString()
                         << QByteArray(256, 'x').replace(0, 1, "\xff");
    QTest::newRow("255 bytes read") << StoredText::fromFile(QByteArray(255, '\xc3')) << QString()
                                    << "\xff" + QByteArray(255, '\xc3');
}

void TestStoredText::encodes()
{
    QFETCH(StoredText, stored);
    QFETCH(const QString, set);
    QFETCH(const QByteArray, bytes);
    if (!set.isNull())
        stored.set(set);
    QCOMPARE(stored.encoded(), bytes);
}

QTEST_GUILESS_MAIN(TestStoredText)
#include "tst_storedtext.moc"
