// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QUrl>

#include <app/aboutwidget.h>
#include <app/configurationwidget.h>
#include <app/downloadinprogress.h>
#include <app/settings.h>
#include <maps/mapswidget.h>
#include <session/session.h>

using namespace zuno;

namespace {

struct Box
{
    const char *name;
    const char *text;
    Setting setting;
    const char *key;
};

constexpr std::array Boxes {
    Box {"cb_lapType", "Lap type", Setting::ShowLapType, "showLapType"},
    Box {"cb_cumulateTime", "Cumulate time", Setting::ShowCumulatedTime, "showCumulatedTime"},
    Box {"cb_maxSpeed", "Max speed", Setting::ShowMaxSpeed, "showMaxSpeed"},
    Box {"cb_minSpeed", "Min Speed", Setting::ShowMinSpeed, "showMinSpeed"},
    Box {"cb_angleLeft", "Angle left", Setting::ShowAngleLeft, "showAngleLeft"},
    Box {"cb_angleRight", "Angle right", Setting::ShowAngleRight, "showAngleRight"},
    Box {"cb_accel", "Accel", Setting::ShowAccel, "showAccel"},
    Box {"cb_decel", "Decel", Setting::ShowDecel, "showDecel"},
    Box {"cb_minFrontSusp", "Min front suspension", Setting::ShowMinFrontSusp, "showMinFrontSusp"},
    Box {"cb_maxFrontSusp", "Max front suspension", Setting::ShowMaxFrontSusp, "showMaxFrontSusp"},
    Box {"cb_minRearSusp", "Min rear suspension", Setting::ShowMinRearSusp, "showMinRearSusp"},
    Box {"cb_maxRearSusp", "Max rear suspension", Setting::ShowMaxRearSusp, "showMaxRearSusp"},
    Box {"cb_partiels", "Sectors", Setting::ShowPartiels, "showPartiels"},
    Box {"cb_displayMinMax", "Show local min/max speed", Setting::ShowLocalMinMax,
         "showLocalMinMax"},
    Box {"cb_showPartiels", "Show sectors points", Setting::ShowPartielsPoints,
         "showPartielsPoints"},
    Box {"cb_gradientCompare", "Use gradient lap comparison", Setting::UseGradientCompare,
         "useGradientCompare"},
};

// In the order in which the file holds them.
const char *const AfterFirstStart = "[General]\n"
                                    "showAccel=true\n"
                                    "showAngleLeft=true\n"
                                    "showAngleRight=true\n"
                                    "showCumulatedTime=true\n"
                                    "showDecel=true\n"
                                    "showLapType=true\n"
                                    "showLocalMinMax=true\n"
                                    "showMaxFrontSusp=false\n"
                                    "showMaxRearSusp=false\n"
                                    "showMaxSpeed=true\n"
                                    "showMinFrontSusp=false\n"
                                    "showMinRearSusp=false\n"
                                    "showMinSpeed=true\n"
                                    "showPartiels=true\n"
                                    "showPartielsPoints=true\n"
                                    "useGradientCompare=true\n";

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? file.readAll() : QByteArray();
}

template<typename Widget>
Widget *child(const QWidget &parent, const char *name)
{
    auto *found = parent.findChild<Widget *>(QString::fromLatin1(name));
    if (found == nullptr)
        qFatal("no %s", name);
    return found;
}

/// The boxes that are checked, by name.
QStringList checkedBoxes(const QWidget &dialog)
{
    QStringList names;
    for (const Box &box : Boxes) {
        if (child<QCheckBox>(dialog, box.name)->isChecked())
            names.append(QString::fromLatin1(box.name));
    }
    return names;
}

/// Settings in a folder of their own.
class Fixture
{
public:
    [[nodiscard]] const Settings &settings() const { return m_settings; }
    [[nodiscard]] QString path() const { return m_settings.path(SettingsFile::Analyzer); }
    /// Written at once: key by key takes its time on a slow disk.
    void startWith(const QByteArray &text) const
    {
        QDir().mkpath(QFileInfo(path()).path());
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly | QIODevice::Text) || file.write(text) < 0)
            qFatal("cannot write %s", qPrintable(path()));
    }

private:
    QTemporaryDir m_folder;
    Settings m_settings {m_folder.path()};
};

/// Maps of the given names, in their order.
class Maps
{
public:
    explicit Maps(const QStringList &names)
    {
        for (const QString &name : names) {
            m_owned.push_back(std::make_unique<Map>());
            m_owned.back()->setName(name);
            m_list.append(m_owned.back().get());
        }
    }
    [[nodiscard]] const QList<const Map *> &list() const { return m_list; }
    [[nodiscard]] const Map *at(qsizetype index) const { return m_list.at(index); }

private:
    std::vector<std::unique_ptr<Map>> m_owned;
    QList<const Map *> m_list;
};

const QStringList ThreeNames {QStringLiteral("/Alcarras.map"), QStringLiteral("/it/Mugello.map"),
                              QStringLiteral("/Alcarras.MAP")};

/// Takes the links that would start a browser or a mail program.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher()
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::setUrlHandler(scheme, this, "take");
    }
    ~UrlCatcher() override
    {
        for (const QString &scheme : m_schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList urls;

public Q_SLOTS:
    void take(const QUrl &url) { urls.append(url.toString()); }

private:
    const QStringList m_schemes {QStringLiteral("https"), QStringLiteral("http"),
                                 QStringLiteral("mailto")};
};

bool show(QDialog &dialog)
{
    dialog.show();
    dialog.activateWindow();
    return QTest::qWaitForWindowActive(&dialog);
}

} // namespace

class TestDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsBox_data();
    void settingsBox();
    void settingsRewriteAll();
    void settingsKeyboard_data();
    void settingsKeyboard();
    void mapsSelection_data();
    void mapsSelection();
    void mapsFollowSession();
    void mapsChoice_data();
    void mapsChoice();
    void mapsAutoDetect();
    void mapsWithoutSession();
    void mapsReplaced();
    void mapsTextIsPlain();
    void mapsLongName();
    void aboutLinks_data();
    void aboutLinks();
    void aboutLinksByKeyboard_data();
    void aboutLinksByKeyboard();
    void progressCancel_data();
    void progressCancel();
    void progressOutlivesNoMainWindow();
    void progressValue_data();
    void progressValue();
    void progressDeletedOnCancel();
};

void TestDialogs::settingsBox_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(Boxes.size()); ++row)
        QTest::newRow(Boxes.at(size_t(row)).name) << row;
}

/// One box and its key, both ways: a key mixed up with another shows in either direction.
void TestDialogs::settingsBox()
{
    QFETCH(int, row);
    const Box &box = Boxes.at(size_t(row));
    const Fixture fixture;
    fixture.startWith(AfterFirstStart);
    const QStringList before = checkedBoxes(ConfigurationWidget(fixture.settings()));
    const QString name = QString::fromLatin1(box.name);
    const bool wasOn = before.contains(name);

    ConfigurationWidget dialog(fixture.settings());
    auto *checkBox = child<QCheckBox>(dialog, box.name);
    QCOMPARE(checkBox->text(), QString::fromLatin1(box.text));
    QCOMPARE(child<QGroupBox>(dialog, "gb_columns")->isAncestorOf(checkBox), row < 13);
    checkBox->click();
    dialog.accept();
    dialog.storeValues();

    const QByteArray line = QByteArray(box.key) + (wasOn ? "=false\n" : "=true\n");
    const QByteArray text = contents(fixture.path());
    QVERIFY2(text.contains(line), text.constData());
    for (const Box &other : Boxes) {
        const bool isOn = before.contains(QString::fromLatin1(other.name));
        QCOMPARE(fixture.settings().isOn(other.setting), (&other == &box) != isOn);
    }

    QStringList expected;
    for (const Box &other : Boxes) {
        const QString otherName = QString::fromLatin1(other.name);
        if ((otherName == name) != before.contains(otherName))
            expected.append(otherName);
    }
    QCOMPARE(checkedBoxes(ConfigurationWidget(fixture.settings())), expected);
}

/// Accepting without a change writes every key, those included that the file lacked.
void TestDialogs::settingsRewriteAll()
{
    const Fixture fixture;
    ConfigurationWidget dialog(fixture.settings());
    QVERIFY(!QFile::exists(fixture.path()));
    dialog.accept();
    dialog.storeValues();
    QCOMPARE(contents(fixture.path()), QByteArray(AfterFirstStart));
}

void TestDialogs::settingsKeyboard_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("Enter") << Qt::Key_Return << true;
    QTest::newRow("Enter on the keypad") << Qt::Key_Enter << true;
    QTest::newRow("Escape") << Qt::Key_Escape << false;
}

/// Focus starts at the first box, the boxes are reached in the order of the form, and a
/// rejected dialog leaves the file alone.
void TestDialogs::settingsKeyboard()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, accepted);
    const Fixture fixture;
    fixture.startWith(AfterFirstStart);
    const QByteArray before = contents(fixture.path());

    ConfigurationWidget dialog(fixture.settings());
    QVERIFY(show(dialog));
    for (const Box &box : Boxes) {
        QVERIFY(dialog.focusWidget() != nullptr);
        QCOMPARE(dialog.focusWidget()->objectName(), QString::fromLatin1(box.name));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    child<QWidget>(dialog, "cb_lapType")->setFocus();
    QTest::keyClick(dialog.focusWidget(), key);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result() == QDialog::Accepted, accepted);
    QCOMPARE(contents(fixture.path()), before);
}

void TestDialogs::mapsSelection_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("sessionMap"); // position in the list; -1: none, -2: not of the list
    QTest::addColumn<int>("index");
    QTest::newRow("first") << ThreeNames << 0 << 1;
    QTest::newRow("second") << ThreeNames << 1 << 2;
    QTest::newRow("last") << ThreeNames << 2 << 3;
    QTest::newRow("no map shows the first") << ThreeNames << -1 << 1;
    QTest::newRow("not of the list shows the first") << ThreeNames << -2 << 1;
    QTest::newRow("no maps show the empty item") << QStringList() << -1 << 0;
    QTest::newRow("foreign map, no maps") << QStringList() << -2 << 0;
}

void TestDialogs::mapsSelection()
{
    QFETCH(QStringList, names);
    QFETCH(int, sessionMap);
    QFETCH(int, index);
    const Maps maps(names);
    const Map foreign;
    Session session(QStringLiteral("ride/one.ra1"));
    session.setMap(sessionMap >= 0 ? maps.at(sessionMap) : sessionMap == -2 ? &foreign : nullptr);

    const MapsWidget dialog(maps.list(), &session);
    const auto *combo = child<QComboBox>(dialog, "cb_otherMap");
    QStringList items;
    for (int item = 0; item < combo->count(); ++item)
        items.append(combo->itemText(item));
    QCOMPARE(items, QStringList(QString()) + names);
    QCOMPARE(combo->currentIndex(), index);
    QCOMPARE(child<QLabel>(dialog, "lb_session")->text(),
             QStringLiteral("Choose other Map for session : one.ra1"));
}

/// Showing another map is no choice of the rider's: nothing is emitted.
void TestDialogs::mapsFollowSession()
{
    const Maps maps(ThreeNames);
    Session session(QStringLiteral("one.ra1"));
    session.setMap(maps.at(0));
    QList<const Map *> twice = maps.list();
    twice.append(maps.at(0));
    MapsWidget dialog(twice, &session);
    const QSignalSpy spy(&dialog, &MapsWidget::mapChanged);
    const auto *combo = child<QComboBox>(dialog, "cb_otherMap");
    QCOMPARE(combo->currentIndex(), 4);
    session.setMap(maps.at(2));
    QCOMPARE(combo->currentIndex(), 3);
    session.setMap(nullptr);
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(spy.count(), 0);
}

void TestDialogs::mapsChoice_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("chosen"); // -1: nothing is emitted
    QTest::newRow("the empty item") << ThreeNames << 0 << -1;
    QTest::newRow("the first") << ThreeNames << 1 << 0;
    QTest::newRow("the one it has") << ThreeNames << 2 << 1;
    QTest::newRow("differs in case only") << ThreeNames << 3 << 2;
    QTest::newRow("equal names, the last wins")
        << QStringList {QStringLiteral("/a.map"), QStringLiteral("/b.map"),
                        QStringLiteral("/a.map")}
        << 1 << 2;
    QTest::newRow("no maps") << QStringList() << 0 << -1;
}

void TestDialogs::mapsChoice()
{
    QFETCH(QStringList, names);
    QFETCH(int, item);
    QFETCH(int, chosen);
    const Maps maps(names);
    Session session(QStringLiteral("one.ra1"));
    session.setMap(maps.list().value(1));
    MapsWidget dialog(maps.list(), &session);
    QVERIFY(show(dialog));
    auto *combo = child<QComboBox>(dialog, "cb_otherMap");
    QCOMPARE(dialog.focusWidget(), combo);

    // Chosen as with the keyboard: the list opened, walked and closed.
    const QSignalSpy spy(&dialog, &MapsWidget::mapChanged);
    combo->showPopup();
    QWidget *list = combo->findChild<QAbstractItemView *>();
    QVERIFY(QTest::qWaitForWindowExposed(list->window()));
    QTest::keyClick(list, Qt::Key_Home);
    for (int row = 0; row < item; ++row)
        QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);

    QCOMPARE(combo->currentIndex(), item);
    QCOMPARE(spy.count(), chosen < 0 ? 0 : 1);
    if (chosen >= 0) {
        QCOMPARE(spy.at(0).at(0).value<QList<const Map *>>(), QList<const Map *> {maps.at(chosen)});
        QCOMPARE(spy.at(0).at(1).toInt(), 1);
    }
    QVERIFY(dialog.isVisible());
    QTest::keyClick(combo, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(!dialog.isVisible());
}

void TestDialogs::mapsAutoDetect()
{
    const Maps maps(ThreeNames);
    Session session(QStringLiteral("one.ra1"));
    MapsWidget dialog(maps.list(), &session);
    const QSignalSpy found(&dialog, &MapsWidget::autoFindMap);
    const QSignalSpy changed(&dialog, &MapsWidget::mapChanged);
    child<QPushButton>(dialog, "pb_autoDetectMap")->click();
    QCOMPARE(found.count(), 1);
    QCOMPARE(changed.count(), 0);
}

void TestDialogs::mapsWithoutSession()
{
    const Maps maps(ThreeNames);
    MapsWidget dialog(maps.list(), nullptr);
    const QSignalSpy found(&dialog, &MapsWidget::autoFindMap);
    QCOMPARE(child<QLabel>(dialog, "lb_session")->text(), QStringLiteral("No session loaded"));
    QCOMPARE(child<QComboBox>(dialog, "cb_otherMap")->count(), 4);
    QCOMPARE(child<QComboBox>(dialog, "cb_otherMap")->currentIndex(), 0);
    child<QPushButton>(dialog, "pb_autoDetectMap")->click();
    QCOMPARE(found.count(), 0);
}

/// The maps folder may change while the dialog is open; maps and sessions are then replaced.
void TestDialogs::mapsReplaced()
{
    auto oldMaps = std::make_unique<Maps>(ThreeNames);
    auto oldSession = std::make_unique<Session>(QStringLiteral("one.ra1"));
    MapsWidget dialog(oldMaps->list(), oldSession.get());

    const Maps maps({QStringLiteral("/new.map"), QStringLiteral("/other.map")});
    Session session(QStringLiteral("two.ra1"));
    session.setMap(maps.at(1));
    dialog.setMaps(maps.list(), &session);
    auto *combo = child<QComboBox>(dialog, "cb_otherMap");
    QCOMPARE(combo->currentText(), QStringLiteral("/other.map"));
    QCOMPARE(child<QLabel>(dialog, "lb_session")->text(),
             QStringLiteral("Choose other Map for session : two.ra1"));

    combo->setCurrentIndex(0);
    oldSession->setMap(maps.at(0));
    QCOMPARE(combo->currentIndex(), 0);
    oldSession.reset();
    oldMaps.reset();
    session.setMap(maps.at(0));
    QCOMPARE(combo->currentText(), QStringLiteral("/new.map"));

    dialog.setMaps(maps.list(), nullptr);
    QCOMPARE(child<QPushButton>(dialog, "pb_autoDetectMap")->isEnabled(), false);
    dialog.setMaps(maps.list(), &session);
    QCOMPARE(child<QPushButton>(dialog, "pb_autoDetectMap")->isEnabled(), true);
}

/// Markup in a file's name takes as much room as its letters do: it is not rendered.
void TestDialogs::mapsTextIsPlain()
{
    Session marked(QStringLiteral("<b>a<br>%1&amp;.ra1"));
    Session plain(QStringLiteral("(b)a(br)%1&amp;.ra1"));
    const MapsWidget markedDialog({}, &marked);
    const MapsWidget plainDialog({}, &plain);
    const auto *label = child<WrappedLabel>(markedDialog, "lb_session");
    QCOMPARE(label->text(), QStringLiteral("Choose other Map for session : <b>a<br>%1&amp;.ra1"));
    QCOMPARE(label->heightForWidth(10'000),
             child<WrappedLabel>(plainDialog, "lb_session")->heightForWidth(10'000));

    const Maps maps({QStringLiteral("/<i>fast</i>.map")});
    const MapsWidget dialog(maps.list(), &plain);
    QTextDocument toolTip;
    toolTip.setHtml(child<QComboBox>(dialog, "cb_otherMap")->toolTip());
    QCOMPARE(toolTip.toPlainText(), QStringLiteral("/<i>fast</i>.map"));
}

/// A name without a blank wraps: the dialog stays narrower than a screen, and the name is whole.
void TestDialogs::mapsLongName()
{
    const Maps maps({u'/' + QString(200, u'm') + QStringLiteral(".map")});
    Session session(QString(200, u'W') + QStringLiteral(".ra1"));
    MapsWidget dialog(maps.list(), &session);
    QVERIFY(show(dialog));
    const auto *label = child<WrappedLabel>(dialog, "lb_session");
    const int letter = label->fontMetrics().horizontalAdvance(u'W');
    QVERIFY2(label->width() < 60 * letter, qPrintable(QString::number(label->width())));
    const int lines = 200 * letter / label->width();
    QVERIFY2(label->height() >= lines * label->fontMetrics().height(),
             qPrintable(QString::number(label->height())));
}

void TestDialogs::aboutLinks_data()
{
    const auto link = [](const char *address) {
        return QStringLiteral("<a href=\"%1\">%1</a>").arg(QString::fromLatin1(address));
    };
    QTest::addColumn<QString>("language"); // null: none stored
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << "en" << link(ZUNO_WEB_SITE_EN);
    QTest::newRow("French") << "fr" << link(ZUNO_WEB_SITE);
    QTest::newRow("German") << "de" << ZUNO_WEB_SITE;
    QTest::newRow("English of a country") << "en_GB" << ZUNO_WEB_SITE;
    QTest::newRow("none") << QString() << ZUNO_WEB_SITE;
}

void TestDialogs::aboutLinks()
{
    QFETCH(QString, language);
    QFETCH(QString, text);
    const Fixture fixture;
    if (!language.isNull())
        fixture.settings().setValue(Setting::Language, language);
    AboutWidget dialog(fixture.settings());
    const auto *webSite = child<QLabel>(dialog, "lb_webSite");
    const auto *mail = child<QLabel>(dialog, "lb_mail");
    QCOMPARE(webSite->text(), text);
    const QString address = QStringLiteral(ZUNO_MAIL);
    QCOMPARE(mail->text(), QStringLiteral("<a href=\"mailto:%1\">%1</a>").arg(address));
    for (const QLabel *label : {webSite, mail}) {
        QCOMPARE(label->textFormat(), Qt::RichText);
        QVERIFY(label->openExternalLinks());
        QVERIFY(label->textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse));
    }

    // A glance at the box, closed with Enter.
    QVERIFY(show(dialog));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    QVERIFY(!dialog.isVisible());
}

void TestDialogs::aboutLinksByKeyboard_data()
{
    const QString mail = u"mailto:" + QStringLiteral(ZUNO_MAIL);
    QTest::addColumn<QString>("language");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QStringList>("urls");
    QTest::newRow("forwards") << "fr" << Qt::Key_Tab
                              << QStringList {QStringLiteral(ZUNO_WEB_SITE), mail};
    QTest::newRow("backwards") << "fr" << Qt::Key_Backtab
                               << QStringList {mail, QStringLiteral(ZUNO_WEB_SITE)};
    QTest::newRow("past a text without a link") << "de" << Qt::Key_Tab << QStringList {mail};
    QTest::newRow("backwards past it") << "de" << Qt::Key_Backtab << QStringList {mail};
}

/// Each link is one press of a key away and opens with Enter, which leaves the box open; then
/// the focus is back at the button.
void TestDialogs::aboutLinksByKeyboard()
{
    QFETCH(QString, language);
    QFETCH(Qt::Key, key);
    QFETCH(QStringList, urls);
    const Fixture fixture;
    fixture.settings().setValue(Setting::Language, language);
    AboutWidget dialog(fixture.settings());
    QVERIFY(show(dialog));
    UrlCatcher catcher;
    for (qsizetype stop = 0; stop < urls.size(); ++stop) {
        QTest::keyClick(dialog.focusWidget(), key);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    }
    QCOMPARE(catcher.urls, urls);
    QVERIFY(dialog.isVisible());
    QTest::keyClick(dialog.focusWidget(), key);
    QCOMPARE(dialog.focusWidget(), child<QWidget>(dialog, "pb_close"));
}

using Action = std::function<void(DownloadInProgress &)>;
Q_DECLARE_METATYPE(Action)

void TestDialogs::progressCancel_data()
{
    const auto press = [](Qt::Key key) {
        return Action(
            [key](DownloadInProgress &window) { QTest::keyClick(window.focusWidget(), key); });
    };
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("cancels");
    QTest::addColumn<bool>("visible");
    QTest::newRow("button") << Action([](DownloadInProgress &window) {
        child<QPushButton>(window, "pb_cancel")->click();
    }) << 1 << true;
    QTest::newRow("button by keyboard") << press(Qt::Key_Space) << 1 << true;
    QTest::newRow("Escape") << press(Qt::Key_Escape) << 1 << false;
    QTest::newRow("close button") << Action([](DownloadInProgress &window) { window.close(); }) << 1
                                  << false;
    // The window may open under the hands of a rider who is typing.
    QTest::newRow("Enter by accident") << press(Qt::Key_Return) << 0 << true;
    QTest::newRow("hidden by its owner")
        << Action([](DownloadInProgress &window) { window.hide(); }) << 0 << false;
}

void TestDialogs::progressCancel()
{
    QFETCH(Action, action);
    QFETCH(int, cancels);
    QFETCH(bool, visible);
    DownloadInProgress window;
    QVERIFY(show(window));
    const QSignalSpy spy(&window, &DownloadInProgress::cancelUpdate);

    action(window);
    QCOMPARE(spy.count(), cancels);
    for (const QList<QVariant> &arguments : spy)
        QCOMPARE(arguments.at(0).toBool(), true);
    QCOMPARE(window.isVisible(), visible);
}

/// The program ends with its main window; a window of this kind does not keep it alive.
void TestDialogs::progressOutlivesNoMainWindow()
{
    QWidget mainWindow;
    mainWindow.show();
    DownloadInProgress window;
    QVERIFY(show(window));
    QTimer::singleShot(0, &mainWindow, &QWidget::close);
    QTimer::singleShot(5000, &mainWindow, [] { QCoreApplication::exit(1); });
    QCOMPARE(QCoreApplication::exec(), 0);
}

void TestDialogs::progressValue_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("shown");
    QTest::newRow("start") << 0 << 0;
    QTest::newRow("under way") << 42 << 42;
    QTest::newRow("done") << 100 << 100;
    QTest::newRow("length of the download unknown") << -730 << 0;
    QTest::newRow("more than expected") << 133 << 100;
}

void TestDialogs::progressValue()
{
    QFETCH(int, percent);
    QFETCH(int, shown);
    DownloadInProgress window;
    window.setProgress(50);
    window.setProgress(percent);
    QCOMPARE(child<QProgressBar>(window, "progressBar")->value(), shown);
}

void TestDialogs::progressDeletedOnCancel()
{
    auto *window = new DownloadInProgress;
    QVERIFY(show(*window));
    const QPointer<DownloadInProgress> guard(window);
    connect(window, &DownloadInProgress::cancelUpdate, window, [window] { delete window; });
    QTest::keyClick(window, Qt::Key_Escape);
    QVERIFY(guard.isNull());
}

QTEST_MAIN(TestDialogs)
#include "tst_dialogs.moc"
