// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QDesktopServices>
#include <QFile>
#include <QMainWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QVBoxLayout>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include <base/settings.h>
#include <maps/page/mapviewcontroller.h>
#include <maps/page/mapwebpage.h>
#include <maps/page/pagesettings.h>

namespace zuno::test {

namespace {

/// In the map service's place: answers every request with the same script, or not at all.
class Service final : public QTcpServer
{
public:
    explicit Service(const std::optional<QByteArray> &script)
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this, script] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [socket, script] {
                const QByteArray request = socket->readAll();
                if (!script || !request.contains("\r\n\r\n"))
                    return;
                socket->write("HTTP/1.1 200 OK\r\nContent-Type: text/javascript\r\n"
                              "Connection: close\r\nContent-Length: "
                              + QByteArray::number(script->size()) + "\r\n\r\n" + *script);
                socket->disconnectFromHost();
            });
        });
    }

    [[nodiscard]] QString address() const
    {
        return QStringLiteral("http://127.0.0.1:%1/").arg(serverPort());
    }
};

/// Keeps what the page asked for besides the program's own resources, allowed or not.
class Interceptor final : public QWebEngineUrlRequestInterceptor
{
public:
    void interceptRequest(QWebEngineUrlRequestInfo &info) override
    {
        const QUrl url = info.requestUrl();
        if (url.scheme() != u"qrc")
            asked << url.toString();
    }

    QStringList asked;
};

QByteArray standIn()
{
    QFile file(QStringLiteral(ZUNO_MAP_STAND_IN));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString point(double lng, double lat, double acceleration = 0.0, int speed = 0)
{
    return QStringLiteral(R"({"dataCoordX":%1,"dataCoordY":%2,"dataAccelXPHComputed":%3,)"
                          R"("dataSpeed":%4})")
        .arg(lng)
        .arg(lat)
        .arg(acceleration)
        .arg(speed);
}

/// Five samples on a line to the east, of which the fourth has no position, and the closing one.
QString lap(double north = 0.0)
{
    const QStringList line {point(0, north, 0.5),  point(0.001, north, -1), point(0.002, north, 1),
                            point(3.4e38, 3.4e38), point(0.003, north, -2), point(0, north, 0.5)};
    return QStringLiteral(R"({"lapPoints":[%1],"maxSpeeds":[%2],"minSpeeds":[%3],"landmarks":[)"
                          R"({"lat":0,"lng":0},{"lat":1,"lng":1},{"lat":null,"lng":1},)"
                          R"({"lat":2,"lng":2}],"accelMax":1,"decelMax":-2,"isComplete":true})")
        .arg(line.join(u','), point(0, north, 0, 201), point(0.001, north, 0, 57));
}

/// What the program says about such a lap: rising from black to white, with two corners.
QString scene()
{
    return QStringLiteral(
        R"({"mode":"gain","speedFactor":0.5,"values":[0,0.5,1,null,1],"stops":["#000000","#ffffff"],"colours":)"
        R"({"map":"#101010","road":"#202020","roadEdge":"#303030","casing":"#404040",)"
        R"("text":"#ffffff","secondText":"#cccccc","card":"#505050","edge":"#606060",)"
        R"("lap1":"#0000ff","lap2":"#ff8000","neutral":"#707070"},"signs":[)"
        R"({"lat":0,"lng":0.001,"dx":0,"dy":1,"label":"1","value":"+0.41","colour":"#ff8000",)"
        R"("ink":"#ff8000","weight":0.41,"optional":false,"zone":3},)"
        R"({"lat":0,"lng":0.002,"dx":0,"dy":1,"label":"2","value":"+0.01","colour":"#606060",)"
        R"("ink":"#ffffff","weight":0.01,"optional":false,"zone":4},)"
        R"({"lat":0,"lng":0.003,"dx":0,"dy":1,"label":"P1","value":"","colour":"#606060",)"
        R"("ink":"#cccccc","weight":-1,"optional":true,"zone":-1}],)"
        R"("gates":[{"lat":0,"lng":0,"heading":90,"isStart":true},)"
        R"({"lat":0,"lng":0.003,"heading":90,"isStart":false}],)"
        R"("acts":[{"lat":0,"lng":0.0015,"isBraking":true,"isOther":false}],)"
        R"("legend":{"from":"gaining","to":"losing","other":"reference, lap 6",)"
        R"("brakes":"brakes","gas":"on the gas","offline":"Offline map"}})");
}

/// Samples from (46, 6) to the east, of which the last has no position.
Points stretch()
{
    Points points(3);
    points[0].dataCoordY = points[1].dataCoordY = 46;
    points[0].dataCoordX = 6;
    points[1].dataCoordX = 6.01;
    points[2].dataCoordX = points[2].dataCoordY = NoFixCoordinate;
    return points;
}

/// Its outline goes there and back.
MapDraft draft(double firstPoint = 6.01)
{
    const QGeoCoordinate start(46, 6);
    return {{}, {start, {46, 6.01}, start}, start, {{46, firstPoint}, start}, 12};
}

QString call(const char *function, const QStringList &texts)
{
    return QString::fromLatin1(function) + u"('" + texts.join(u"','") + u"')";
}

} // namespace

class TestMapPage : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    /// Stands in for the desktop's browser.
    void browse(const QUrl &url) { m_browsed << url.toString(); }

private Q_SLOTS:
    void initTestCase();
    void serviceAddress();
    void startsWithoutService_data();
    void startsWithoutService();
    void drawsLaps_data();
    void drawsLaps();
    void gradient();
    void markers();
    void cursors();
    void centres();
    void options();
    void drawsScene();
    void sceneOptions_data();
    void sceneOptions();
    void drawsRide();
    void placesSigns_data();
    void placesSigns();
    void fillsItsView();
    void picksSamples();
    void drawsWhatCameEarly();
    void releasesWhatItDrew();
    void policy_data();
    void policy();
    void isClosed_data();
    void isClosed();
    void guardsWithoutPolicy();
    void refusesPermissions();
    void hasOneObject();
    void opensLinksOutside();
    void editsDraft();
    void ignoresWhatCannotBe();
    void dragsOnBuiltInMap();

private:
    /// Loads the page anew, with that script in the map service's place, and waits for it.
    void load(const std::optional<QByteArray> &script, const QByteArray &key = "a-key");
    /// Loads that page again, with a script that runs before its own.
    void loadAgain(const QString &script);
    QVariant run(const QString &script);
    QByteArray text(const QString &script) { return run(script).toString().toUtf8(); }
    /// Runs an expression over the stand-in's shapes and gives its values, joined.
    QByteArray shapes(const char *what, const char *condition = "true");

    Interceptor m_interceptor;
    QStringList m_browsed;
    std::unique_ptr<Service> m_service;
    std::unique_ptr<QMainWindow> m_window;
    MapViewController *m_view = nullptr;
};

void TestMapPage::initTestCase()
{
    QWebEngineProfile::defaultProfile()->setUrlRequestInterceptor(&m_interceptor);
}

void TestMapPage::load(const std::optional<QByteArray> &script, const QByteArray &key)
{
    qputenv("ZUNO_MAP_KEY", key);
    m_interceptor.asked.clear();
    m_service = std::make_unique<Service>(script);
    qputenv("ZUNO_MAP_SERVICE", m_service->address().toUtf8());
    m_window = std::make_unique<QMainWindow>();
    auto *content = new QWidget;
    content->setLayout(new QVBoxLayout);
    m_window->setCentralWidget(content);
    m_window->resize(900, 700);
    m_window->show();
    m_view = new MapViewController(m_window.get());
    QSignalSpy ready(m_view, &MapViewController::mapReady);
    m_view->init(m_window.get(), content->layout());
    QVERIFY(ready.wait(20000));
}

void TestMapPage::loadAgain(const QString &script)
{
    QWebEngineScript first;
    first.setInjectionPoint(QWebEngineScript::DocumentCreation);
    first.setWorldId(QWebEngineScript::MainWorld);
    first.setSourceCode(script);
    m_view->page()->scripts().insert(first);
    QSignalSpy ready(m_view, &MapViewController::mapReady);
    m_view->view()->reload();
    QVERIFY(ready.wait(20000));
}

QVariant TestMapPage::run(const QString &script)
{
    std::optional<QVariant> result;
    m_view->page()->runJavaScript(script, [&result](const QVariant &value) { result = value; });
    [&result] { QTRY_VERIFY(result.has_value()); }();
    return result.value_or(QVariant());
}

QByteArray TestMapPage::shapes(const char *what, const char *condition)
{
    return text(QStringLiteral("shapes.filter(s => %2).map(s => %1).join(' ')")
                    .arg(QString::fromLatin1(what), QString::fromLatin1(condition)));
}

void TestMapPage::serviceAddress()
{
    qunsetenv("ZUNO_MAP_KEY");
    qunsetenv("ZUNO_MAP_SERVICE");
    QCOMPARE(mapServiceAddress(), QString());
    QCOMPARE(qstrlen(ZUNO_MAP_KEY_PLACEHOLDER), 39U);
    qputenv("ZUNO_MAP_KEY", "a&b=c");
    QCOMPARE(mapServiceAddress(), QStringLiteral(ZUNO_MAP_SERVICE "?key=a%26b%3Dc"));
}

void TestMapPage::startsWithoutService_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("answers");
    QTest::addColumn<QByteArray>("note");

    QTest::newRow("no answer") << QByteArray() << false << QByteArray("does not answer");
    QTest::newRow("not a library") << QByteArray("}") << true << QByteArray("cannot be reached");
    QTest::newRow("refused before the start")
        << standIn() + "gm_authFailure();" << true << QByteArray("refuses the key");
    QTest::newRow("refused later")
        << standIn() + "setTimeout(gm_authFailure, 500);" << true << QByteArray("refuses the key");
}

void TestMapPage::startsWithoutService()
{
    QFETCH(const QByteArray, script);
    QFETCH(const bool, answers);
    QFETCH(const QByteArray, note);

    load(answers ? std::optional(script) : std::nullopt);
    QCOMPARE(m_interceptor.asked, QStringList {mapServiceAddress()});
    QSignalSpy drawn(m_view, &MapViewController::lapDrawn);
    m_view->initOnlineMap({}, 0);
    run(call("drawOneLap", {lap()}));
    QTRY_VERIFY(run(QStringLiteral("map?.leaflet && firstLines.length")).toInt() == 3);
    QTRY_VERIFY(!drawn.isEmpty());
    const QByteArray shown = text(QStringLiteral("document.getElementById('note').innerText"));
    QVERIFY2(shown.contains(note), shown);
    // The whole lap is in sight, and a library that comes now finds its place taken.
    const QString inSight
        = QStringLiteral("map.leaflet.getBounds().contains([[0, 0], [0, 0.003]])");
    QVERIFY(run(inSight).toBool());
    m_window->resize(530, 700);
    QTRY_VERIFY(run(QStringLiteral("innerWidth")).toInt() < 530);
    QTRY_VERIFY(run(inSight).toBool());
    run(QString::fromUtf8(standIn()));
    QVERIFY(run(QStringLiteral("new google.maps.Map(document.createElement('div'), "
                               "{center: {lat: 0, lng: 0}}).leaflet !== undefined"))
                .toBool());
}

void TestMapPage::drawsLaps_data()
{
    QTest::addColumn<QString>("compareGradient");
    QTest::addColumn<bool>("twoLaps");
    QTest::addColumn<QByteArray>("lines");

    // Number of points, weight and opacity of each line; the second lap's come first. The sample
    // without a position is in none.
    const QByteArray first = "2/5/1 2/5/1 2/5/1";
    const QByteArray second = "2/3/1 2/3/1 2/3/1 2/3/1 ";
    QTest::newRow("one lap") << QStringLiteral("false") << false << first;
    QTest::newRow("two laps, plain")
        << QStringLiteral("false") << true << QByteArray("4/5/0.7 4/4/0.7");
    QTest::newRow("two laps, nothing set") << QString() << true << QByteArray("4/5/0.7 4/4/0.7");
    QTest::newRow("two laps, gradient") << QStringLiteral("true") << true << second + first;
}

void TestMapPage::drawsLaps()
{
    QFETCH(const QString, compareGradient);
    QFETCH(const bool, twoLaps);
    QFETCH(const QByteArray, lines);

    load(standIn());
    run(call("initMap", {QStringLiteral("46.1°, -6.2°")}));
    QCOMPARE(text(QStringLiteral("JSON.stringify(map.options)")),
             R"({"zoom":16,"center":{"lat":46.1,"lng":-6.2},"mapTypeId":"satellite",)"
             R"("streetViewControl":false,"disableDoubleClickZoom":true})");
    run(call("setOptions", {QStringLiteral(R"({"minMax":"","landmarks":"","compareGradient":"%1"})")
                                .arg(compareGradient)}));
    // Drawn twice, what was drawn before has gone.
    for (int i = 0; i < 2; ++i)
        run(twoLaps ? call("drawTwoLaps", {lap(), lap(1)}) : call("drawOneLap", {lap()}));
    const char *line = "s.constructor.name === 'Polyline'";
    QCOMPARE(shapes("`${s.path.length}/${s.strokeWeight}/${s.strokeOpacity}`", line), lines);
    if (twoLaps && compareGradient != u"true")
        QCOMPARE(shapes("s.path[0].lat + s.strokeColor", line), "1#FF0000 0#00FF00");
    QCOMPARE(shapes("s.label.text", "s.visible && s.label"),
             twoLaps ? "P1 P2 Start" : "57 201 P1 P2 Start");
    run(call("drawOneLap", {lap()}));
    QCOMPARE(shapes("`${s.path.length}/${s.strokeWeight}/${s.strokeOpacity}`", line),
             "2/5/1 2/5/1 2/5/1");
}

void TestMapPage::gradient()
{
    const QList<std::pair<double, QByteArray>> colours {
        {0.0, "#646400"},  {1.0, "#00ff00"},  {0.5, "#32b200"},   {0.99, "#01fd00"},
        {-2.0, "#ff0000"}, {-1.0, "#b23200"}, {-0.02, "#666300"},
    };
    for (const auto &[acceleration, colour] : colours)
        QCOMPARE(text(QStringLiteral("gradientColour(%1, {accelMax: 1, decelMax: -2})")
                          .arg(acceleration)),
                 colour);
    QCOMPARE(text(QStringLiteral("gradientColour(0, {accelMax: 0, decelMax: 0})")), "#646400");
    run(call("initMap", {QStringLiteral("0°, 0°")}) + u';' + call("drawOneLap", {lap()}));
    QCOMPARE(shapes("s.strokeColor", "s.path"), "#32b200 #b23200 #00ff00");
}

void TestMapPage::markers()
{
    const char *parts = "`${s.icon.url} ${s.icon.anchor.x},${s.icon.anchor.y} "
                        "${s.icon.labelOrigin.x},${s.icon.labelOrigin.y} "
                        "${s.label.text}/${s.label.color}`";
    QCOMPARE(shapes(parts, "s.label"),
             "min_speed_marker.png 16,32 16,11 57/white max_speed_marker.png 16,32 16,11 201/white "
             "landmark.png 16,48 25,18 P1/while landmark.png 16,48 25,18 P2/while "
             "landmarkGreen.png 16,48 25,18 Start/while");
}

void TestMapPage::cursors()
{
    const char *cursor = "s.icon && !s.label && s.visible";
    const char *what = "`${s.icon.url}@${s.position.lng},${s.icon.anchor.x}`";
    run(call("drawCursor", {point(0.001, 0)}));
    QCOMPARE(shapes(what, cursor), "target.png@0.001,12");
    run(call("drawTwoLaps", {lap(), lap(1)}));
    QCOMPARE(shapes(what, cursor), "rabbit.png@0.001,16");
    run(call("drawSecondCursor", {point(0.002, 1)}));
    run(call("drawSecondCursor", {point(0.003, 1)}));
    run(call("drawCursor", {point(0.002, 0)}));
    run(call("drawCursor", {point(3.4e38, 0)}));
    QCOMPARE(shapes(what, cursor), "rabbit.png@0.002,16 turtle.png@0.003,16");
    QCOMPARE(text(QStringLiteral("map.calls.join()")), "center 0 0.001,center 0 0.002");
    run(call("drawOneLap", {lap()}));
    QCOMPARE(shapes(what, cursor), "target.png@0.002,12");
}

void TestMapPage::centres()
{
    run(QStringLiteral("map.calls = [];") + call("centerMap", {QStringLiteral("-1.5°, 2°")}));
    run(call("drawOneLap", {lap()}));
    QCOMPARE(text(QStringLiteral("map.calls.join()")), "center -1.5 2");
    m_view->initOnlineMap({}, -1);
    m_view->showStretch(stretch());
    QTRY_COMPARE(text(QStringLiteral("map.calls.join()")), QByteArray("fit 46/6 46/6.01"));
}

void TestMapPage::options()
{
    const QTemporaryDir root;
    const Settings settings(root.path());
    settings.setValues({{Setting::ShowPartielsPoints, false}, {Setting::ShowLocalMinMax, true}});
    QSignalSpy sent(&m_view->page()->connector(), &JSConnector::setOptions);
    m_view->setOptions(settings.path(SettingsFile::Analyzer));
    QCOMPARE(sent.value(0).value(0).toString().toUtf8(),
             R"({"minMax":"true","landmarks":"false","compareGradient":"true"})");
    QTRY_COMPARE(shapes("s.label.text", "s.visible && s.label"), QByteArray("57 201"));
    run(call("setOptions", {QStringLiteral(R"({"minMax":"false","landmarks":"true"})")}));
    QCOMPARE(shapes("s.label.text", "s.visible && s.label"), "P1 P2 Start");
}

void TestMapPage::drawsScene()
{
    load(standIn());
    run(call("initMap", {QStringLiteral("0°, 0°")}));
    run(call("drawTwoLaps", {lap(), lap(1)}) + u';' + call("drawScene", {scene()}));
    // The other lap dashed below, then the line in its colours on a casing.
    QCOMPARE(shapes("`${s.strokeWeight}${s.strokeColor}${s.icons ? 'dashed' : ''}`", "s.path"),
             "5#404040 3#ff8000dashed 7#404040 5#000000 5#808080 5#ffffff");
    QCOMPARE(shapes("s.label.text", "s.label && s.zIndex < 1004"), "+0.41 1 +0.01 2");
    // Of two places for one sign of a speed the more outstanding speed has it.
    QCOMPARE(text(QStringLiteral("speedSigns({...firstLap, maxSpeeds: [100, 200, 150].map((v) => "
                                 "({...firstLap.maxSpeeds[0], dataSpeed: v})), minSpeeds: []}, "
                                 "scene).sort((a, b) => b.weight - a.weight).at(-1).label")),
             "\u219175");
    // The way that is ridden, at the line.
    QCOMPARE(shapes("s.icon.rotation", "s.zIndex === 501"), "90");
    QCOMPARE(
        text(QStringLiteral("document.getElementById('line').innerText.replace(/\\s+/g, ' ')")),
        "gaining losing reference, lap 6 brakes on the gas 200 m");
    // A click on a sign, and the cursor as a dot.
    QSignalSpy picked(m_view, &MapViewController::zonePicked);
    run(QStringLiteral("shapes.find(s => s.label?.text === '2').click()"));
    QTRY_COMPARE(picked.value(0).value(0).toInt(), 4);
    run(call("drawCursor", {point(0.002, 0)}) + u';' + call("drawSecondCursor", {point(0.001, 1)}));
    QCOMPARE(shapes("`${s.icon.fillColor}@${s.position.lng}`", "s.zIndex > 99999"),
             "#0000ff@0.002 #ff8000@0.001");
    run(call("drawOneLap", {lap()}));
    QCOMPARE(shapes("s.icons", "s.icons"), "");
    // Taken back, everything is as without it.
    run(call("drawScene", {QStringLiteral("{}")}));
    QCOMPARE(shapes("`${s.path.length}/${s.strokeWeight}`", "s.path"), "2/5 2/5 2/5");
    QCOMPARE(shapes("s.label.text", "s.visible && s.label"), "57 201 P1 P2 Start");
}

void TestMapPage::sceneOptions_data()
{
    QTest::addColumn<bool>("twoLaps");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("labels");
    QTest::addColumn<QByteArray>("gates");
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("legend");

    // The speeds in the unit of the scene, which is half of km/h.
    const auto row = [](const char *name, bool twoLaps, const char *options, const char *labels,
                        const char *gates, const char *line, const char *legend) {
        QTest::newRow(name) << twoLaps << u'{' + QString::fromLatin1(options) + u'}'
                            << QByteArray(labels) << QByteArray(gates) << QByteArray(line)
                            << QByteArray(legend);
    };
    constexpr auto Everything = "+0.41 1 +0.01 2 P1 \u2191101 \u219329";
    constexpr auto Coloured = "#000000 #808080 #ffffff";
    row("standard", true, "", Everything, "4 2", Coloured, "gaining");
    row("everything", true, R"("minMax":"true","landmarks":"true","compareGradient":"true")",
        Everything, "4 2", Coloured, "gaining");
    row("no speeds", true, R"("minMax":"false")", "+0.41 1 +0.01 2 P1", "4 2", Coloured, "gaining");
    row("no section ends", true, R"("landmarks":"false")", "+0.41 1 +0.01 2 \u2191101 \u219329",
        "4", Coloured, "gaining");
    row("one colour a lap", true, R"("compareGradient":"false")", Everything, "4 2", "#0000ff",
        "first lap");
    row("one lap", false, R"("compareGradient":"false")", Everything, "4 2", Coloured, "gaining");
}

void TestMapPage::sceneOptions()
{
    QFETCH(const bool, twoLaps);
    QFETCH(const QString, options);
    load(standIn());
    run(call("initMap", {QStringLiteral("0°, 0°")}) + u';'
        + (twoLaps ? call("drawTwoLaps", {lap(), lap(1)}) : call("drawOneLap", {lap()})) + u';'
        + call("drawScene", {scene()}) + u';' + call("setOptions", {options}));
    QTEST(shapes("s.label.text", "s.label"), "labels");
    QTEST(shapes("s.icon.strokeWeight", "s.zIndex === 500"), "gates");
    QTEST(shapes("s.strokeColor", "s.path && !s.icons && s.strokeWeight === 5")
              .replace(twoLaps ? "#404040 " : "", ""),
          "line");
    QTEST(text(QStringLiteral("document.querySelector('#line .text').textContent")), "legend");
}

// A whole session comes with the scene; a click means the sample of the recording.
void TestMapPage::drawsRide()
{
    QString ride = scene();
    ride.insert(1, QStringLiteral(R"("path":[[0,0],[0,0.001],[0,0.002],[null,null],[0,0.003]],)"
                                  R"("step":10,)"));
    run(call("drawScene", {ride}));
    // It stays where no lap is said to be there.
    run(call("drawOneLap", {QStringLiteral(R"({"lapPoints":[],"landmarks":[]})")}));
    QCOMPARE(shapes("s.path.length", "s.path"), "4 2 2 2");
    QSignalSpy picked(m_view, &MapViewController::samplePicked);
    run(QStringLiteral("map.click({latLng: new google.maps.LatLng(0, 0.0021)})"));
    QTRY_COMPARE(picked.value(0).value(0).toInt(), 20);
    run(call("drawScene", {QStringLiteral("{}")}));
}

void TestMapPage::placesSigns_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QByteArray>("placed");

    // A straight line to the right, signs above it; each told by its middle, "n" for its number
    // alone, "-" for none.
    const auto row
        =
            [](const char *name, const char *wishes, const char *bounds, const char *placed) {
                QTest::newRow(name)
                    << QStringLiteral(
                           "const wish = (x, more) => ({x, y: 0, dx: 0, dy: -1, w: 60, small: 20,"
                           " h: 20, weight: 0, optional: false, ...more});"
                           "const track = [...Array(100).keys()].map((i) => ({x: 4 * i, y: 0}));"
                           "placeSigns(%1, track, 5, %2).map((p) => p === null ? '-' : "
                           "`${Math.round(p.box.x)},${Math.round(p.box.y)}"
                           "${p.isWhole ? '' : 'n'}${p.leader ? 'l' : ''}`).join(' ')")
                           .arg(QString::fromLatin1(wishes), QString::fromLatin1(bounds))
                    << QByteArray(placed);
            };
    row("alone", "[wish(200)]", "null", "200,-23");
    row("side by side", "[wish(200), wish(270)]", "null", "200,-23 270,-23");
    row("the larger one first", "[wish(200), wish(230, {weight: 1})]", "null", "161,-23l 230,-23");
    row("below, for lack of room", "[wish(200)]", "{left: 0, right: 400, top: -20, bottom: 99}",
        "200,23");
    row("its number only", "[wish(200)]", "{left: 185, right: 215, top: -99, bottom: 99}",
        "200,-23n");
    row("never dropped", "[wish(200), wish(200)]", "{left: 189, right: 211, top: -34, bottom: 9}",
        "200,-23n 200,0n");
    row("dropped when it may", "[wish(200), wish(200, {optional: true, farthest: 13})]",
        "{left: 189, right: 211, top: -34, bottom: 9}", "200,-23n -");
    row("beside a button", "[wish(200)]", "null, [{x: 200, y: -30, w: 90, h: 30}]", "289,-24l");
    row("no leader over the line", "[wish(200, {y: 12})]", "null", "200,35");
    row("rather than without its value", "[wish(200, {y: 12})]",
        "{left: 0, right: 400, top: -99, bottom: 30}", "200,-23l");
    row("out of sight", "[wish(500)]", "{left: 0, right: 400, top: -99, bottom: 99}", "-");
}

void TestMapPage::placesSigns()
{
    QFETCH(const QString, script);
    QFETCH(const QByteArray, placed);
    QCOMPARE(text(u'{' + script + u'}'), placed);
}

// Whatever the size of the view, a lap fills it; the view stays while the cursor is in sight.
void TestMapPage::fillsItsView()
{
    qputenv("ZUNO_MAP_KEY", "");
    load({});
    m_view->initOnlineMap({}, -1);
    run(call("drawOneLap", {lap()}) + u';' + call("drawScene", {scene()}));
    const QString width
        = QStringLiteral("(map.leaflet.latLngToContainerPoint([0, 0.003]).x"
                         " - map.leaflet.latLngToContainerPoint([0, 0]).x) / innerWidth");
    for (const QSize &size : {QSize(900, 700), QSize(530, 420), QSize(760, 330)}) {
        m_window->resize(size);
        QTRY_VERIFY(std::abs(run(QStringLiteral("innerWidth")).toInt() - size.width()) < 60);
        QTRY_VERIFY2(run(width).toDouble() > 0.7, text(width).constData());
    }
    const QString centre = QStringLiteral("map.leaflet.getCenter().lng.toFixed(4)");
    const QByteArray before = text(centre);
    run(call("drawCursor", {point(0.0029, 0)}));
    QCOMPARE(text(centre), before);
    run(call("drawCursor", {point(0.01, 0)}));
    QCOMPARE(text(centre), "0.0100");
    QCOMPARE(text(QStringLiteral("document.getElementById('note').offsetHeight")), "0");
    // The road is as wide as in metres, at any zoom.
    run(QStringLiteral("map.leaflet.setZoom(20, {animate: false})"));
    QTRY_VERIFY(run(QStringLiteral("roadLines[1].line.options.weight > 70")).toBool());
    // A double click shows the whole lap again, and nothing zooms besides.
    QVERIFY(run(width).toDouble() > 1);
    run(QStringLiteral("map.leaflet.getContainer().dispatchEvent("
                       "new MouseEvent('dblclick', {bubbles: true, clientX: 90, clientY: 90}))"));
    QTRY_VERIFY2(run(width).toDouble() < 1, text(width).constData());
    QVERIFY(!run(QStringLiteral("map.leaflet.doubleClickZoom.enabled()")).toBool());
    // A lap without positions is none, at any zoom, and the next one is drawn again.
    run(call("drawOneLap",
             {QStringLiteral(R"({"lapPoints":[],"maxSpeeds":[],"minSpeeds":[],"landmarks":[]})")}));
    run(QStringLiteral("map.leaflet.setZoom(16, {animate: false})"));
    QSignalSpy drawn(m_view, &MapViewController::lapDrawn);
    run(call("drawOneLap", {lap()}));
    QTRY_VERIFY(!drawn.isEmpty());
}

void TestMapPage::picksSamples()
{
    load(standIn());
    run(call("initMap", {QStringLiteral("0°, 0°")}) + u';' + call("drawOneLap", {lap()}));
    QSignalSpy picked(m_view, &MapViewController::samplePicked);
    const auto click = [this](double lat, double lng) {
        run(QStringLiteral("map.click({latLng: new google.maps.LatLng(%1, %2)})")
                .arg(lat)
                .arg(lng));
    };
    click(0.01, 0.0021); // a kilometre off the line
    click(0.0001, 0.0029);
    QTRY_COMPARE(picked.size(), 1);
    QCOMPARE(picked[0][0].toInt(), 4);
}

void TestMapPage::drawsWhatCameEarly()
{
    load(standIn());
    Q_EMIT m_view->page()->connector().drawTwoLaps(lap(), lap(1));
    QTRY_VERIFY(run(QStringLiteral("secondLap !== null")).toBool());
    QCOMPARE(shapes("s.path.length"), QByteArray());
    m_view->centerMap(nullptr);
    QVERIFY(!m_view->isReady());
    m_view->initOnlineMap({}, -1);
    QTRY_COMPARE(shapes("s.path.length", "s.path"), QByteArray("4 4"));
    QCOMPARE(text(QStringLiteral("JSON.stringify(map.options.center)")), R"({"lat":0,"lng":0})");
}

void TestMapPage::releasesWhatItDrew()
{
    load({}, {});
    m_view->initOnlineMap({}, -1);
    const auto layers = [this] {
        return text(QStringLiteral("Object.keys(map.leaflet._layers).length + ' '"
                                   "+ document.querySelectorAll('*').length"));
    };
    run(call("drawOneLap", {lap()}));
    const QByteArray before = layers();
    run(QStringLiteral("for (let i = 0; i < 50; ++i) {%1; %2}")
            .arg(call("drawTwoLaps", {lap(), lap(1)}), call("drawOneLap", {lap()})));
    QCOMPARE(layers(), before);
}

void TestMapPage::policy_data()
{
    QTest::addColumn<QString>("service");
    QTest::addColumn<QString>("url");
    QTest::addColumn<bool>("allowed");

    const QString none;
    const auto service = QStringLiteral("https://maps.googleapis.com/maps/api/js?key=1");
    const auto test = QStringLiteral("http://localhost:8080/js");
    const auto row = [](const QString &from, const char *url, bool allowed) {
        QTest::addRow("%s for %s", url, qPrintable(from))
            << from << QString::fromLatin1(url) << allowed;
    };
    row(none, "qrc:/Resources/script.js", true);
    row(none, "https://maps.googleapis.com/maps/api/js", false);
    row(none, "file:///etc/passwd", false);
    row(service, "https://maps.googleapis.com/maps/api/js", true);
    row(service, "https://khms0.googleapis.com/kh?v=1", true);
    row(service, "https://maps.gstatic.com/a.png", true);
    row(service, "https://maps.gstatic.com:444/a.png", false);
    row(service, "http://maps.googleapis.com/maps/api/js", false);
    row(service, "https://evilgoogleapis.com/", false);
    row(service, "https://www.google.com.example.org/", false);
    row(service, "https://www.google.com@example.org/", false);
    row(service, "ws://maps.googleapis.com/", false);
    row(service, "file://maps.googleapis.com/etc/passwd", false);
    row(test, "http://localhost:8080/other", true);
    row(test, "http://localhost:8081/js", false);
    row(test, "http://127.0.0.1:8080/js", false);
    // Its key would go through the network for everybody to read.
    row(QStringLiteral("http://example.org/js"), "http://example.org/js", false);
    row(QStringLiteral("https://example.org/js"), "https://example.org/js", true);
}

void TestMapPage::policy()
{
    QFETCH(const QString, service);
    QFETCH(const QString, url);
    QFETCH(const bool, allowed);
    QCOMPARE(PagePolicy(QUrl(service)).allows(QUrl(url)), allowed);
}

void TestMapPage::isClosed_data()
{
    QTest::addColumn<bool>("hasKey");
    QTest::newRow("without a key") << false;
    QTest::newRow("with one") << true;
}

// What a hostile script would try, with another server on this computer and with a rider's file.
void TestMapPage::isClosed()
{
    QFETCH(const bool, hasKey);
    Service elsewhere {QByteArray("ran = true")};
    QSignalSpy reached(&elsewhere, &QTcpServer::newConnection);
    const QTemporaryDir folder;
    QFile secret(folder.filePath(QStringLiteral("ride.js")));
    QVERIFY(secret.open(QIODevice::WriteOnly) && secret.write("ran = true") > 0);
    secret.close();

    load(standIn(), hasKey ? "a-key" : "");
    m_interceptor.asked.clear();
    const QUrl page = m_view->page()->url();
    QSignalSpy downloads(m_view->page()->profile(), &QWebEngineProfile::downloadRequested);
    for (const QString &place : {elsewhere.address(), QStringLiteral("https://www.example.com/"),
                                 QUrl::fromLocalFile(secret.fileName()).toString()}) {
        run(QStringLiteral("ran = false; where = '%1'").arg(place));
        for (const char *attack :
             {"fetch(where).then(() => ran = true, () => 0)", "navigator.sendBeacon(where, 'x')",
              "new Image().src = where", "new WebSocket(where.replace(/^[a-z]*/, 'ws'))",
              "const request = new XMLHttpRequest(); request.open('GET', where); request.send()",
              "location.href = where", "location.replace(where)", "if (open(where)) ran = true",
              "if (open()) ran = true", "new Worker(where)", "import(where)"})
            run(QStringLiteral("try { %1 } catch { } 0").arg(QString::fromLatin1(attack)));
        // An attribute without a value gets the place.
        for (const char *element :
             {"script src", "iframe src", "img src", "object data", "embed src", "video src",
              "link rel=stylesheet href", "link rel=prefetch href",
              "link rel=preload as=script href", "a href", "a target=_blank href",
              "a download href", "form action", "base href"})
            run(QStringLiteral("{ const [kind, ...words] = '%1'.split(' ');"
                               "const element = document.createElement(kind);"
                               "for (const [name, value] of words.map((word) => word.split('=')))"
                               "element.setAttribute(name, value ?? where);"
                               "document.body.append(element);"
                               "(element.submit ?? element.click).call(element); } 0")
                    .arg(QString::fromLatin1(element)));
    }
    if (!hasKey)
        run(QStringLiteral("try { eval('ran = true') } catch { } 0"));
    QTest::qWait(1000);
    QVERIFY(reached.isEmpty());
    QVERIFY(downloads.isEmpty());
    QCOMPARE(m_interceptor.asked.filter(QRegularExpression(QStringLiteral("^(http|file)"))),
             QStringList());
    QCOMPARE(run(QStringLiteral("ran")).toBool(), false);
    QCOMPARE(m_view->page()->url(), page);
}

// Also when the page's own policy were gone.
void TestMapPage::guardsWithoutPolicy()
{
    Service elsewhere {QByteArray()};
    QSignalSpy reached(&elsewhere, &QTcpServer::newConnection);
    load(standIn());
    loadAgain(QStringLiteral("zunoPage.policy = 'img-src *'"));
    run(QStringLiteral("outcome = ''; const image = new Image();"
                       "image.onload = image.onerror = (event) => outcome = event.type;"
                       "image.src = '%1'; 0")
            .arg(elsewhere.address()));
    QTRY_COMPARE(text(QStringLiteral("outcome")), QByteArray("error"));
    QVERIFY(m_interceptor.asked.contains(elsewhere.address()));
    QVERIFY(reached.isEmpty());
}

void TestMapPage::refusesPermissions()
{
    load(standIn());
    const auto outcome = [this](const char *wish) {
        run(QStringLiteral("outcome = ''; %1; 0").arg(QString::fromLatin1(wish)));
        [this] { QTRY_VERIFY(text(QStringLiteral("outcome")) != ""); }();
        return text(QStringLiteral("outcome"));
    };
    QCOMPARE(outcome("navigator.geolocation.getCurrentPosition(() => outcome = 'given',"
                     "(error) => outcome = `refused ${error.code}`)"),
             "refused 1");
    QCOMPARE(outcome("Notification.requestPermission().then((answer) => outcome = answer)"),
             "denied");
    QCOMPARE(outcome("alert('?'); outcome = `${confirm('?')} ${prompt('?')}`"), "false null");
}

// Whatever runs in the page finds these names on the channel and no others.
void TestMapPage::hasOneObject()
{
    QCOMPARE(text(QStringLiteral(
                 "outcome = ''; new QWebChannel(qt.webChannelTransport, (channel) => {"
                 "outcome = Object.keys(channel.objects).join() + ': ' +"
                 "Object.entries(channel.objects.jsConnector)"
                 ".filter(([name, value]) => typeof value === 'function' && !name.includes('('))"
                 ".map(([name]) => name).sort().join(); }); ''")),
             QByteArray());
    QTRY_COMPARE(text(QStringLiteral("outcome")),
                 QByteArray("jsConnector: connected,deleteLater,propertyUpdate,signalEmitted,"
                            "textFromJs,unwrapProperties,unwrapQObject"));
    // The one that is inherited does nothing to what is not the page's own.
    run(QStringLiteral("connector.deleteLater(); 0"));
    QSignalSpy picked(m_view, &MapViewController::samplePicked);
    run(QStringLiteral("tell({ event: 'picked', index: 3 }); 0"));
    QTRY_COMPARE(picked.size(), 1);
}

// A link of the service that the rider clicks; a script cannot do so.
void TestMapPage::opensLinksOutside()
{
    load(standIn());
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "browse");
    const QUrl page = m_view->page()->url();
    for (const char *address : {"https://www.example.org/", "https://www.google.com/terms"}) {
        run(QStringLiteral("document.body.innerHTML = '<a id=link target=_blank href=\"%1\">"
                           "<div id=map></div></a>'; document.getElementById('link').click(); 0")
                .arg(QString::fromLatin1(address)));
        QTRY_VERIFY(
            run(QStringLiteral("document.elementFromPoint(100, 100).id === 'map'")).toBool());
        QTest::mouseClick(m_view->view()->focusProxy(), Qt::LeftButton, {}, {100, 100});
    }
    QTRY_COMPARE(m_browsed, QStringList {QStringLiteral("https://www.google.com/terms")});
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
    QCOMPARE(m_view->page()->url(), page);
}

void TestMapPage::editsDraft()
{
    load(standIn());
    m_view->initOnlineMap({}, -1);
    run(call("drawOneLap", {lap()}));
    m_view->editPath(stretch());
    QSignalSpy sent(&m_view->page()->connector(), &JSConnector::editDraft);
    m_view->editDraft(draft(), 0, {1});
    m_view->editDraft(draft(), 0, {1});
    QVERIFY(!sent.value(1).value(0).toString().contains(u"outline"));
    QTRY_COMPARE(shapes("s.label.text", "s.label"), QByteArray("Start 1 2!"));
    QCOMPARE(shapes("`${s.path.length}/${s.strokeWeight}`", "s.path"), "2/1 3/4");
    QCOMPARE(shapes("s.radius", "s.radius"), "24 12 12");
    // The answers to a drag move the gate and leave the mouse its marker until it lets go.
    QSignalSpy moved(m_view, &MapViewController::pointMoved);
    run(QStringLiteral("const at = (lat, lng) => ({latLng: new google.maps.LatLng(lat, lng)});"
                       "const sign = shapes.find(s => s.label?.text === '1');"
                       "sign.dragstart(); sign.drag(at(46, 6.02)); sign.drag(at(46, 6.03))"));
    QTRY_COMPARE(moved.value(0).value(1).value<QGeoCoordinate>(), QGeoCoordinate(46, 6.03));
    m_view->editDraft(draft(6.005), StartPointNumber);
    QTRY_COMPARE(shapes("s.center.lng", "s.radius"), QByteArray("6 6.005 6"));
    QCOMPARE(run(QStringLiteral("sign.position.lng")).toDouble(), 6.01);
    run(QStringLiteral("sign.dragend(at(46, 6.04))"));
    QTRY_VERIFY(moved.size() == 2 && moved[1][2].toBool());
    QCOMPARE(run(QStringLiteral("sign.position.lng")).toDouble(), 6.005);
    // 111 m from the line, whose gate is twice as wide as the gate size.
    QSignalSpy resized(m_view, &MapViewController::gateResized);
    run(QStringLiteral("gateHandle.dragstart(); gateHandle.dragend(at(46.001, 6))"));
    QTRY_COMPARE(qRound(resized.value(0).value(0).toDouble()), 56);
}

void TestMapPage::ignoresWhatCannotBe()
{
    QSignalSpy moved(m_view, &MapViewController::pointMoved);
    QSignalSpy selected(m_view, &MapViewController::pointSelected);
    QSignalSpy resized(m_view, &MapViewController::gateResized);
    QSignalSpy clicked(m_view, &MapViewController::trackClicked);
    // Of each kind the last one is right.
    for (const char *message :
         {R"("pointMoved","lat":46,"lng":6,"point":2)",
          R"("pointMoved","lat":91,"lng":6,"point":1)",
          R"("pointMoved","lat":46,"lng":6,"point":1)", R"("pointSelected","point":-2)",
          R"("pointSelected","point":-1)", R"("gateResized","metres":0)",
          R"("gateResized","metres":5)", R"("trackClicked","lat":46,"lng":6)",
          R"("trackClicked","lat":46,"lng":6,"metresPerPixel":2)"})
        m_view->page()->connector().textFromJs(u"{\"event\":" + QString::fromUtf8(message) + u'}');
    for (const QSignalSpy *spy : {&moved, &selected, &resized, &clicked})
        QCOMPARE(spy->size(), 1);
    m_view->endEditing();
    QTRY_COMPARE(shapes("s.label.text", "s.label"), QByteArray("57 201 P1 P2 Start"));
}

void TestMapPage::dragsOnBuiltInMap()
{
    load({}, {});
    m_view->editPath(stretch());
    m_view->editDraft(draft());
    // A page that is loaded again has everything again.
    loadAgain(QStringLiteral("refused = 0; document.addEventListener('securitypolicyviolation',"
                             "() => ++refused)"));
    QTRY_COMPARE(run(QStringLiteral("signs.length + edited.outline.length")).toInt(), 6);
    QSignalSpy moved(m_view, &MapViewController::pointMoved);
    const QString sign = QStringLiteral("map.leaflet.latLngToContainerPoint([46, 6.01]).");
    const QPoint from(run(sign + u'x').toInt(), run(sign + u'y').toInt());
    QWidget *surface = m_view->view()->focusProxy();
    QTest::mousePress(surface, Qt::LeftButton, {}, from);
    const auto at = [&] { return moved.value(moved.size() - 1).value(1).value<QGeoCoordinate>(); };
    QTest::mouseMove(surface, from + QPoint(-10, 10));
    QTRY_VERIFY(at().isValid());
    QTest::mouseMove(surface, from + QPoint(-50, 50));
    QTRY_VERIFY(at().latitude() < 46 && at().longitude() < 6.01);
    QTest::mouseRelease(surface, Qt::LeftButton, {}, from + QPoint(-50, 50));
    QTRY_VERIFY(moved.last()[2].toBool());
    QTRY_COMPARE(run(QStringLiteral("signs[1].marker.marker.getLatLng().lng")).toDouble(), 6.01);
    // The page itself does nothing that it may not do.
    QCOMPARE(run(QStringLiteral("refused")).toInt(), 0);
}

} // namespace zuno::test

QTEST_MAIN(zuno::test::TestMapPage)
#include "tst_mappage.moc"
