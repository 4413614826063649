// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QTest>

#include <session/recording/storedtext.h>

using namespace zuno;
using namespace Qt::StringLiterals;

class TestStoredText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void storable()
    {
        const QList<std::pair<QString, QString>> rows {
            {u"Brno ~ \t2 \"x\""_s, u"Brno ~ \t2 \"x\""_s},
            {u"Straße GROẞ"_s, u"Strasse GROSS"_s},
            {u"ø Ø ł Ł đ Đ"_s, u"o O l L d D"_s},
            {u"æ Æ œ Œ"_s, u"ae AE oe OE"_s},
            {u"ı İ i I"_s, u"i I i I"_s},
            {u"éèêëÉ ñ ü Å ç ž ő"_s, u"eeeeE n u A c z o"_s},
            {u"ﬁ ² … Ａ １"_s, u"fi 2 ... A 1"_s},
            {u"鈴鹿 Сочи A"_s, u"  A"_s},
            {u"a\U0001F3CDb\U0001D400"_s, u"abA"_s},
            {QString(256, u'x'), QString(255, u'x')},
            {QString(128, u'ß'), QString(255, u's')},
            {QString(300, u'\u0301') + u"end"_s, u"end"_s},
        };
        for (const auto &[text, stored] : rows) {
            QCOMPARE(storableText(text), stored);
            QCOMPARE(storableText(stored), stored);
        }
    }

    void encodes()
    {
        const auto set = [](StoredText stored, const QString &text) {
            stored.set(text);
            return stored.encoded();
        };
        const StoredText accent = StoredText::fromFile("Fête");
        const StoredText latin = StoredText::fromFile("M\xe9xico");
        QCOMPARE(set({}, u"abc"_s), QByteArray("\3abc"));
        QCOMPARE(set(accent, u""_s), QByteArray("\0", 1));
        QCOMPARE(accent.encoded(), QByteArray("\5Fête"));
        QCOMPARE(set(accent, u"Feta"_s), QByteArray("\4Feta"));
        QCOMPARE(set(latin, latin.text()), QByteArray("\6M\xe9xico"));
        // What does not come from storableText() is counted in characters all the same.
        QCOMPARE(StoredText(u"Fête"_s).encoded(), QByteArray("\4Fête"));
        QCOMPARE(StoredText(QString(256, u'x')).encoded(), "\xff" + QByteArray(255, 'x'));
    }
};

QTEST_GUILESS_MAIN(TestStoredText)
#include "tst_storedtext.moc"
