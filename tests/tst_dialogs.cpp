// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <memory>

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <app/aboutwidget.h>
#include <app/configurationwidget.h>
#include <app/downloadinprogress.h>
#include <app/settings.h>
#include <maps/mapswidget.h>
#include <session/session.h>

using namespace zuno;
using namespace Qt::StringLiterals;

namespace {

template<typename Widget>
Widget &child(const QWidget &parent, const char *name)
{
    auto *found = parent.findChild<Widget *>(QString::fromLatin1(name));
    if (found == nullptr)
        qFatal("no %s", name);
    return *found;
}

bool show(QDialog &dialog)
{
    dialog.show();
    dialog.activateWindow();
    return QTest::qWaitForWindowActive(&dialog);
}

/// Takes the links that would start a browser or a mail program.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher()
    {
        for (const char *scheme : {"https", "mailto"})
            QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "take");
    }
    ~UrlCatcher() override
    {
        for (const char *scheme : {"https", "mailto"})
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
    }
    QStringList urls;

public Q_SLOTS:
    void take(const QUrl &url) { urls.append(url.toString()); }
};

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settings();
    void maps();
    void mapChosen();
    void mapsReplaced();
    void aboutLinks();
    void progressCancel();
};

// One box and its key, both ways: a key mixed up with another shows in either direction.
void TestDialogs::settings()
{
    constexpr std::array Boxes {
        std::pair("cb_accel", Setting::ShowAccel),
        std::pair("cb_angleLeft", Setting::ShowAngleLeft),
        std::pair("cb_angleRight", Setting::ShowAngleRight),
        std::pair("cb_cumulateTime", Setting::ShowCumulatedTime),
        std::pair("cb_decel", Setting::ShowDecel),
        std::pair("cb_displayMinMax", Setting::ShowLocalMinMax),
        std::pair("cb_gradientCompare", Setting::UseGradientCompare),
        std::pair("cb_lapType", Setting::ShowLapType),
        std::pair("cb_maxFrontSusp", Setting::ShowMaxFrontSusp),
        std::pair("cb_maxRearSusp", Setting::ShowMaxRearSusp),
        std::pair("cb_maxSpeed", Setting::ShowMaxSpeed),
        std::pair("cb_minFrontSusp", Setting::ShowMinFrontSusp),
        std::pair("cb_minRearSusp", Setting::ShowMinRearSusp),
        std::pair("cb_minSpeed", Setting::ShowMinSpeed),
        std::pair("cb_partiels", Setting::ShowPartiels),
        std::pair("cb_showPartiels", Setting::ShowPartielsPoints),
    };
    const QTemporaryDir folder;
    const Settings settings(folder.path());
    for (const auto &[name, changed] : Boxes) {
        // Without a file the boxes show what a first start has; all of it is written.
        QFile::remove(settings.path(SettingsFile::Analyzer));
        ConfigurationWidget dialog(settings);
        child<QCheckBox>(dialog, name).click();
        dialog.accept();
        QVERIFY(!QFile::exists(settings.path(SettingsFile::Analyzer)));
        dialog.storeValues();
        const ConfigurationWidget again(settings);
        for (const auto &[other, setting] : Boxes) {
            const bool isOn = (setting == changed) == QByteArray(other).endsWith("Susp");
            QVERIFY2(settings.isOn(setting) == isOn, name);
            QVERIFY2(child<QCheckBox>(again, other).isChecked() == isOn, name);
        }
    }
}

// -1: a session without a map, -2: a map not of the list.
void TestDialogs::maps()
{
    std::array<Map, 4> maps;
    for (Map &map : maps)
        map.setName(u"/%1.map"_s.arg(&map - maps.data()));
    const QList<const Map *> list {&maps[0], &maps[1], &maps[2], &maps[0]};
    for (const auto &[map, index] :
         {std::pair(1, 2), std::pair(0, 4), std::pair(-1, 1), std::pair(-2, 1)}) {
        Session session(u"ride/<b>one.ra1"_s);
        session.setMap(map >= 0 ? &maps.at(size_t(map)) : map == -2 ? &maps[3] : nullptr);
        const MapsWidget dialog(list, &session);
        const auto &box = child<QComboBox>(dialog, "cb_otherMap");
        QCOMPARE(box.count(), 5);
        QCOMPARE(box.itemText(0), QString());
        QCOMPARE(box.currentIndex(), index);
        QCOMPARE(child<QLabel>(dialog, "lb_session").text(),
                 u"Choose other Map for session : <b>one.ra1"_s);
    }
    MapsWidget nothing(list, nullptr);
    QCOMPARE(child<QLabel>(nothing, "lb_session").text(), u"No session loaded"_s);
    QCOMPARE(child<QComboBox>(nothing, "cb_otherMap").currentIndex(), 0);
    QVERIFY(!child<QPushButton>(nothing, "pb_autoDetectMap").isEnabled());
}

// Of maps of the same name the last is meant; showing another map is no choice of the rider's.
void TestDialogs::mapChosen()
{
    std::array<Map, 3> maps;
    for (Map &map : maps)
        map.setName(&map == &maps[1] ? u"/b.map"_s : u"/a.map"_s);
    Session session(u"one.ra1"_s);
    session.setMap(&maps[1]);
    MapsWidget dialog({&maps[0], &maps[1], &maps[2]}, &session);
    const QSignalSpy changed(&dialog, &MapsWidget::mapChanged);
    const QSignalSpy found(&dialog, &MapsWidget::autoFindMap);
    session.setMap(&maps[0]);
    session.setMap(nullptr);
    auto &box = child<QComboBox>(dialog, "cb_otherMap");
    QCOMPARE(box.currentIndex(), 1);
    QVERIFY(show(dialog));
    QTest::keyClick(&box, Qt::Key_Home); // The empty item.
    child<QPushButton>(dialog, "pb_autoDetectMap").click();
    QCOMPARE(changed.count(), 0);
    QCOMPARE(found.count(), 1);
    QTest::keyClick(&box, Qt::Key_Down);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed[0][0].value<QList<const Map *>>(), QList<const Map *> {&maps[2]});
    QCOMPARE(changed[0][1].toInt(), 1);
}

// The maps folder may change while the dialog is open; maps and sessions are then replaced.
void TestDialogs::mapsReplaced()
{
    Map old;
    Map map;
    map.setName(u"/new.map"_s);
    auto oldSession = std::make_unique<Session>(u"one.ra1"_s);
    MapsWidget dialog({&old}, oldSession.get());
    Session session(u"two.ra1"_s);
    dialog.setMaps({&old, &map}, &session);
    oldSession->setMap(&map);
    QCOMPARE(child<QComboBox>(dialog, "cb_otherMap").currentIndex(), 1);
    oldSession.reset();
    session.setMap(&map);
    QCOMPARE(child<QComboBox>(dialog, "cb_otherMap").currentText(), u"/new.map"_s);
    dialog.setMaps({}, nullptr);
    QVERIFY(!child<QPushButton>(dialog, "pb_autoDetectMap").isEnabled());
}

// Each link is one press of a key away and opens with Enter, which leaves the box open.
void TestDialogs::aboutLinks()
{
    const QString mail = u"mailto:" + QStringLiteral(ZUNO_MAIL);
    UrlCatcher catcher;
    for (const auto &[language, sites] :
         {std::pair(u"en"_s, QStringList {QStringLiteral(ZUNO_WEB_SITE_EN)}),
          std::pair(u"fr"_s, QStringList {QStringLiteral(ZUNO_WEB_SITE)}),
          std::pair(u"de"_s, QStringList {})}) { // The address is plain text.
        const QTemporaryDir folder;
        const Settings settings(folder.path());
        settings.setValue(Setting::Language, language);
        AboutWidget dialog(settings);
        QVERIFY(show(dialog));
        catcher.urls.clear();
        for (qsizetype stop = 0; stop <= sites.size(); ++stop) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        }
        QCOMPARE(catcher.urls, sites + QStringList {mail});
        QVERIFY(dialog.isVisible());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        QVERIFY(!dialog.isVisible());
    }
}

// The window may open under the hands of a rider who is typing: Enter cancels nothing.
void TestDialogs::progressCancel()
{
    for (const auto &[key, cancels, isVisible] :
         {std::tuple(Qt::Key_Space, 1, true), std::tuple(Qt::Key_Escape, 1, false),
          std::tuple(Qt::Key_Return, 0, true), std::tuple(Qt::Key_unknown, 1, false)}) {
        DownloadInProgress window;
        QVERIFY(show(window));
        const QSignalSpy spy(&window, &DownloadInProgress::cancelUpdate);
        if (key == Qt::Key_unknown)
            window.close();
        else
            QTest::keyClick(window.focusWidget(), key);
        QCOMPARE(spy.count(), cancels);
        QCOMPARE(window.isVisible(), isVisible);
    }
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
