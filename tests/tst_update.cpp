// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <app/update/updateapp.h>
#include <widgets/downloadinprogress.h>

using namespace zuno;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QByteArray Here = "http://127.0.0.1:12345";
// Leads to this computer, too, but is no loopback address.
const QByteArray Away = "http://0.0.0.0:12345";
const QByteArray InfosPath = "/downloads/_Infos.xml";
const QByteArray Installer = "#!/bin/sh\ntouch \"$0.ran\"\n";

/// How a run of the program ends; it quits by itself when it has started the installer.
constexpr int Quit = 0, Told = 1, Cancelled = 2, TooLate = 3;

/// A web server on this computer that sends what it was given, byte for byte.
class Server final : public QTcpServer
{
public:
    Server()
    {
        if (!listen(QHostAddress::LocalHost))
            qFatal("cannot listen");
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { answer(socket); });
        });
    }
    [[nodiscard]] QUrl url() const { return QUrl(u"http://127.0.0.1:%1"_s.arg(serverPort())); }

    /// The answers by path; without one the connection stays open and silent. "12345" is the port,
    /// as long as those that a system gives out, and "~" a rest.
    QHash<QByteArray, QByteArray> answers;

private:
    void answer(QTcpSocket *socket) const
    {
        const QByteArray path = socket->readAll().split(' ').value(1);
        if (!answers.contains(path))
            return;
        auto rest = 0ms;
        for (const QByteArray &part : answers[path].split('~')) {
            QTimer::singleShot(rest, socket, [socket, bytes = QByteArray(part), this] {
                socket->write(QByteArray(bytes).replace("12345", QByteArray::number(serverPort())));
            });
            rest += 150ms;
        }
        QTimer::singleShot(rest - 149ms, socket, [socket] { socket->disconnectFromHost(); });
    }
};

/// An answer that announces @p missing more bytes than come.
QByteArray ok(const QByteArray &body, qsizetype missing = 0)
{
    return "HTTP/1.1 200 OK\r\nContent-Length: "
           + QByteArray::number(body.size() - body.count('~') + missing) + "\r\n\r\n" + body;
}

QByteArray movedTo(const QByteArray &url)
{
    return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + url + "\r\n\r\n";
}

QByteArray documentOf(const QByteArray &children)
{
    return R"(<a><item name="Other"><version>9.9</version></item><list><item name="ZUNO Analyzer">)"
           + children + "</item></list></a>";
}

QByteArray release(const QByteArray &version, const QByteArray &url = Here + "/setup",
                   const QByteArray &name = "Setup.sh")
{
    return documentOf("<name>" + name + "</name><version>" + version + "</version><url>" + url
                      + "</url>");
}

template<typename Window>
Window *topLevel()
{
    Window *found = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets())
        found = found != nullptr ? found : qobject_cast<Window *>(widget);
    return found;
}

} // namespace

class TestUpdate final : public QObject
{
    Q_OBJECT

private Q_SLOTS:

    void initTestCase()
    {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        QApplication::setQuitOnLastWindowClosed(false);
        QCoreApplication::setApplicationVersion(u"1.5.0.0"_s);
    }

    void check_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<bool>("isOffered");
        for (const char *version : {"1.6", "2.0.0.0", "0.10", "beta.6", " 1.6 "})
            QTest::newRow(version) << ok(release(version)) << true;
        for (const char *version : {"1.5.9", "1.5.0.0", "1.4", "0.4", "2", "beta.5", ""})
            QTest::newRow(version) << ok(release(version)) << false;
        const QByteArray newer = release("1.6");
        const QByteArray huge = newer + QByteArray(2 << 20, ' ');
        QTest::newRow("malformed") << ok(newer.chopped(1)) << false;
        QTest::newRow("more behind") << ok(newer + "<b/>") << false;
        QTest::newRow("another program") << ok(QByteArray(newer).replace("ZUNO", "Zuno")) << false;
        QTest::newRow("nested") << ok(documentOf("<x><version>0.1</version></x><version>1.6"
                                                 "</version><url>"
                                                 + Here + "</url><version>1</version>"))
                                << true;
        QTest::newRow("the last") << ok("<a>" + release("1.4") + newer + "</a>") << true;
        QTest::newRow("huge") << ok(huge) << false;
        QTest::newRow("endless") << "HTTP/1.1 200 OK\r\n\r\n" + huge << false;
        QTest::newRow("error") << ok(newer).replace("200 OK", "500 Error") << false;
        QTest::newRow("dropped") << ok(newer, 1) << false;
        QTest::newRow("slow") << ok(QByteArray(newer).replace("<list>", "~<list>~")) << true;
        QTest::newRow("silent") << QByteArray() << false;
        QTest::newRow("moved") << movedTo("/moved") << true;
        QTest::newRow("moved in circles") << movedTo(InfosPath) << false;
        QTest::newRow("moved away from HTTPS") << movedTo(Away + "/moved") << false;
        QTest::newRow("unsafe installer") << ok(release("1.6", Away + "/moved")) << false;
    }

    void check()
    {
        QFETCH(QByteArray, answer);
        Server server;
        server.answers["/moved"] = ok(release("1.6"));
        if (!answer.isEmpty())
            server.answers[InfosPath] = answer;
        UpdateApp app(server.url());
        app.setTimeout(500ms);
        const QSignalSpy finished(app.findChild<QNetworkAccessManager *>(),
                                  &QNetworkAccessManager::finished);
        app.checkForUpdates();
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 2000);
        auto *box = topLevel<QMessageBox>();
        QTEST(box != nullptr, "isOffered");
        // Enter, of a rider who was typing, downloads nothing.
        if (box != nullptr)
            QTest::keyClick(box, Qt::Key_Return);
        QTRY_VERIFY(topLevel<QMessageBox>() == nullptr);
        QVERIFY(topLevel<DownloadInProgress>() == nullptr);
    }

    void download_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("saved");
        QTest::addColumn<int>("end");
        const QByteArray good = ok(Installer);
        const QByteArray name = "Setup.sh";
        QTest::newRow("moved") << name << movedTo("/moved") << u"Setup.sh"_s << Quit;
        QTest::newRow("path") << QByteArray("../../up.sh") << good << u"up.sh"_s << Quit;
        QTest::newRow("foreign path")
            << QByteArray("C:\\Temp\\up.sh") << good << u"up.sh"_s << Quit;
        QTest::newRow("no name") << QByteArray() << good << QString() << Told;
        QTest::newRow("dropped") << name << ok(Installer, 1) << QString() << Told;
        QTest::newRow("not found")
            << name << QByteArray(good).replace("200 OK", "404 No") << QString() << Told;
        QTest::newRow("moved away") << name << movedTo(Away + "/moved") << QString() << Told;
        QTest::newRow("cancelled")
            << name << ok(QByteArray(2000, 'x') + "~x~~~~~~~", 1999) << QString() << Cancelled;
    }

    void download()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, answer);
        QFETCH(QString, saved);
        const QTemporaryDir root;
        qputenv("XDG_DATA_HOME", QFile::encodeName(root.path()));
        Server server;
        server.answers[InfosPath] = ok(release("1.6", Here + "/setup", name));
        server.answers["/setup"] = answer;
        server.answers["/moved"] = ok(Installer);
        UpdateApp app(server.url());
        connect(&app, &UpdateApp::failed, &app, [] { QCoreApplication::exit(Told); });
        QTimer::singleShot(5s, &app, [] { QCoreApplication::exit(TooLate); });
        QTimer hand;
        connect(&hand, &QTimer::timeout, &app, [] {
            const auto *window = topLevel<DownloadInProgress>();
            if (auto *box = topLevel<QMessageBox>()) {
                box->button(QMessageBox::Yes)->click();
            } else if (window != nullptr && window->findChild<QProgressBar *>()->value() == 50) {
                window->findChild<QPushButton *>()->click();
                QTimer::singleShot(50ms, window, [] { QCoreApplication::exit(Cancelled); });
            }
        });
        hand.start(10ms);
        app.checkForUpdates();
        QTEST(QCoreApplication::exec(), "end");
        QVERIFY(!topLevel<DownloadInProgress>()->isVisible());
        // The installer was started: it leaves a file behind.
        const QDir temp(root.filePath(u"Temp"_s));
        const QString left = saved.isEmpty() ? QString() : QString(saved + u' ' + saved + u".ran");
        QTRY_COMPARE(temp.entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' '), left);
        QCOMPARE(QDir(root.path()).entryList(QDir::Files), QStringList());
    }
};

QTEST_MAIN(TestUpdate)
#include "tst_update.moc"
