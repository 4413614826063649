// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <functional>
#include <memory>

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <app/update/updateapp.h>
#include <base/settings.h>
#include <widgets/downloadinprogress.h>

#include "updateserver.h"

using namespace zuno;
using namespace zuno::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How a run of the program ends; it quits by itself when it has started the installer.
constexpr int Quit = 0, Told = 1, Cancelled = 2, TooLate = 3;

template<typename Window>
Window *topLevel()
{
    Window *found = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets())
        found = found != nullptr ? found : qobject_cast<Window *>(widget);
    return found;
}

/// Everything that a box says; empty when any of it could be taken for markup.
QString plainTexts(const QWidget &box)
{
    QString texts;
    for (const QLabel *label : box.findChildren<QLabel *>()) {
        if (label->textFormat() != Qt::PlainText)
            return {};
        texts += label->text() + u'\n';
    }
    return texts;
}

/// The most memory that this process has had since forgetPeak(), in KiB.
qint64 peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray all = status.readAll();
    return all.mid(all.indexOf("VmHWM:") + 6).trimmed().split(' ').first().toLongLong();
}

void forgetPeak()
{
    QFile peak(u"/proc/self/clear_refs"_s);
    if (peak.open(QIODevice::WriteOnly))
        peak.write("5");
}

QString logged;

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
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("answer"); // Instead of the document.
        QTest::addColumn<QString>("outcome"); // A part of what the log says.
        const auto row = [](const QByteArray &name, const QByteArray &document, const char *outcome,
                            const QByteArray &answer = {}) {
            QTest::newRow(name.constData()) << document << answer << QString::fromLatin1(outcome);
        };
        const char *const none = "none for this system", *const partly = "does not say all";
        for (const char *version : {"1.6", "2.0.0.0", "1.10", " 1.6 ", "1.6.&lt;b>9&lt;/b>"})
            row(version, release({.version = version}), "asked");
        for (const char *version : {"1.5.9", "1.5.0.0", "2", "beta"})
            row(version, release({.version = version}), "");
        for (const char *version : {"1.4", "0.10", "beta.6", "-2.9"})
            row(version, release({.version = version}), "older");
        const QByteArray newer = release();
        row("no version", release({.version = ""}), none);
        row("malformed", newer.chopped(1), none);
        row("more behind", newer + "<b/>", none);
        row("another program", QByteArray(newer).replace("ZUNO", "Zuno"), none);
        row("another platform", release({.platform = "linux-pdp11"}), none);
        row("no platform", release({.platform = ""}), none);
        row("ours of many", "<a>" + newer + release({.version = "1", .platform = "other"}) + "</a>",
            "asked");
        row("the last", "<a>" + release({.version = "1.4"}) + newer + "</a>", "asked");
        for (const char *size : {"", "0", "-1", "1e3", "12 MB", "99999999999999999999"})
            row(QByteArray("size ") + size, release({.size = size}), partly);
        const QByteArray hash = sha256({});
        const QByteArrayList hashes {
            "",          hash.chopped(2),    hash.chopped(1), hash.toBase64(),
            hash + "00", QByteArray(64, 'x')};
        for (const QByteArray &sha : hashes)
            row("hash " + sha, release({.sha = sha}), partly);
        for (const QByteArray &time : {QByteArray(), inAnHour().chopped(1), QByteArray("soon")})
            row("until " + time, release({.until = time}), partly);
        row("expired", release({.until = inAnHour(-1)}), "expired");
        row("other zone", release({.until = inAnHour(-1).chopped(1) + "-02:00"}), "asked");
        row("unsafe installer", release({.url = Away + "/moved"}), "not safe");
        const QByteArray huge = newer + QByteArray(2 * MiB, ' ');
        row("huge", newer, "", ok(huge));
        row("endless", newer, "", unannounced(huge));
        row("error", newer, "", ok(newer).replace("200 OK", "500 Error"));
        row("dropped", newer, "", ok(newer, 1));
        row("slow", newer, "asked", ok(QByteArray(newer).replace("<list>", "~<list>~")));
        row("silent", newer, "", "~~~~~~");
        row("moved", newer, "asked", movedTo("/moved"));
        row("moved in circles", newer, "", movedTo(InfosPath));
        row("moved away from HTTPS", newer, "", movedTo(Away + "/moved"));
    }

    void check()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, answer);
        QFETCH(QString, outcome);
        Server server;
        document = server.here(document);
        server.answers[InfosPath] = answer.isEmpty() ? ok(document) : answer;
        server.answers["/moved"] = ok(document);
        server.answers[SignaturePath] = ok(m_signer(document));
        const QString said = run(setup(server));
        QVERIFY2(outcome.isEmpty() ? said.isEmpty() : said.contains(outcome), qPrintable(said));
    }

    void signature_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("outcome");
        const QByteArray document = release({.url = "https://updates.example.com/setup"});
        const QByteArray good = m_signer(document);
        const QString refused = u"not the maker's"_s, missing = u"no signature"_s;
        const auto row = [&](const char *name, const QByteArray &answer, const QString &outcome) {
            QTest::newRow(name) << document << answer << outcome;
        };
        row("line end", ok(good + "\r\n"), u"asked"_s);
        row("spare", ok(m_spare(document)), u"asked"_s);
        row("foreign", ok(Signer()(document)), refused);
        row("of another document", ok(m_signer(document + ' ')), refused);
        row("cut", ok(good.left(40)), refused);
        row("garbled", ok("!" + good), refused);
        row("raw", ok(QByteArray::fromBase64(good)), refused);
        row("empty", ok(""), refused);
        row("dropped", ok(good, 1), missing);
        row("huge", ok(good + QByteArray(1000, ' ')), missing);
        row("not found", ok(good).replace("200 OK", "404 No"), missing);
        row("silent", "~~~~~~", missing);
        // What is wrong with a document is not looked at without a signature.
        QTest::newRow("cut document") << document.chopped(9) << ok(good) << refused;
        QTest::newRow("no document") << QByteArray() << ok(good) << refused;
    }

    void signature()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, answer);
        QFETCH(QString, outcome);
        Server server;
        server.answers[InfosPath] = ok(document);
        server.answers[SignaturePath] = answer;
        const QString said = run(setup(server));
        QVERIFY2(said.contains(outcome), qPrintable(said));
    }

    // A setting that is not there counts as on.
    void setups()
    {
        const QTemporaryDir folder;
        const Settings settings(folder.path());
        UpdateSetup configured = UpdateSetup::configured(settings, folder.path());
        QVERIFY(configured.isWanted && !configured.isPackaged);
        QCOMPARE(configured.keys.value(0).size(), 32);
        QVERIFY(QFile(folder.filePath(u"installed-by-package"_s)).open(QIODevice::WriteOnly));
        settings.setValue(Setting::CheckForUpdates, false);
        configured = UpdateSetup::configured(settings, folder.path());
        QVERIFY(!configured.isWanted && configured.isPackaged);

        Server server;
        UpdateSetup unwanted = setup(server);
        unwanted.isWanted = false;
        QCOMPARE(run(unwanted), QString());
        QCOMPARE(server.requests, 0);
    }

    // Nothing is taken for markup, and a host's name is shown as it is asked for.
    void shown()
    {
        for (const bool isPackaged : {false, true}) {
            Server server;
            publish(server, {.version = "1.6.&lt;b>",
                             .url = "https://zun\xc3\xb6.example/setup",
                             .size = "656000000"});
            UpdateSetup wanted = setup(server);
            wanted.isPackaged = isPackaged;
            QString texts;
            qsizetype buttons = 0;
            run(wanted, [&](const QMessageBox &box) {
                texts = plainTexts(box);
                buttons = box.buttons().size();
            });
            QVERIFY(texts.contains(u"1.6.<b>"_s));
            QCOMPARE(texts.contains(u"xn--zun-una.example"_s), !isPackaged);
            QCOMPARE(texts.contains(u"656.0 MB"_s), !isPackaged);
            QCOMPARE(buttons, isPackaged ? 1 : 2);
            QCOMPARE(server.requests, 2);
        }
    }

    // What the makers' script writes is what the program understands.
    void signedByScript()
    {
        if (QStandardPaths::findExecutable(u"bash"_s).isEmpty())
            QSKIP("there is no shell to run the script with");
        const QTemporaryDir folder;
        const auto script = [&folder](const QStringList &arguments) {
            QProcess process;
            process.setWorkingDirectory(folder.path());
            process.start(QStringLiteral(ZUNO_SIGN_UPDATE), arguments);
            process.waitForFinished();
            return process.readAllStandardOutput();
        };
        const auto file = [&folder](const QString &name, QIODevice::OpenMode mode) {
            auto opened = std::make_unique<QFile>(folder.filePath(name));
            opened->open(mode);
            return opened;
        };
        const QByteArray key = script({u"key"_s, u"key.pem"_s});
        file(u"a&b.sh"_s, QIODevice::WriteOnly)->write(Installer);
        const QByteArray item = script(
            {u"item"_s, u"a&b.sh"_s, u"1.6.0.0"_s, zuno::platform(), u"https://x.example/?a&b"_s});
        file(u"_Infos.xml"_s, QIODevice::WriteOnly)->write("<list>\n" + item + "</list>\n");
        script({u"sign"_s, u"key.pem"_s, u"_Infos.xml"_s});
        Server server;
        server.answers[InfosPath] = ok(file(u"_Infos.xml"_s, QIODevice::ReadOnly)->readAll());
        server.answers[SignaturePath]
            = ok(file(u"_Infos.xml.sig"_s, QIODevice::ReadOnly)->readAll());
        QCOMPARE(run({server.url(), {QByteArray::fromBase64(key)}}), u"asked"_s);
    }

    void download_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<qint64>("flood"); // Zeros behind the answer.
        QTest::addColumn<qint64>("size"); // Of the whole, as the document says.
        QTest::addColumn<QString>("saved");
        QTest::addColumn<int>("end");
        const qint64 size = Installer.size();
        const auto row = [size](const char *title, const QByteArray &answer, int end,
                                qint64 more = 0, qint64 flood = 0) {
            const QString saved = end == Quit ? u"Setup.sh"_s : QString();
            QTest::newRow(title) << QByteArray("Setup.sh") << answer << flood << size + more
                                 << saved << end;
        };
        const auto named = [size](const char *name, const QString &saved, int end) {
            QTest::newRow(name) << QByteArray(name) << ok(Installer) << qint64(0) << size << saved
                                << end;
        };
        named("../../up.sh", u"up.sh"_s, Quit);
        named("C:\\Temp\\up.sh", u"up.sh"_s, Quit);
        named("/", QString(), Told);
        named("..", QString(), Told);
        const QByteArray half = QByteArray(Installer).insert(size / 2, "~~~~~~");
        row("moved", movedTo("/moved"), Quit);
        row("moved away", movedTo(Away + "/moved"), Told);
        row("slow", ok(QByteArray(Installer).insert(9, '~')), Quit);
        row("unannounced", unannounced(Installer), Quit);
        row("not found", ok(Installer).replace("200 OK", "404 No"), Told);
        row("exchanged", ok(QByteArray(Installer).replace("touch", "erase")), Told);
        row("dropped", ok(Installer.chopped(1), 1), Told);
        row("silent", "~~~~~~", Told);
        row("stalled", ok(half), Told);
        row("announces more", ok(Installer, 1), Told, 0, 1);
        row("announces less", ok(Installer), Told, 1, 1);
        row("sends more", unannounced(Installer), Told, 0, 1);
        row("sends less", unannounced(Installer), Told, 2, 1);
        row("endless", unannounced(Installer), Told, 0, 656 * MiB);
        row("endless, announced", ok(Installer, 656 * MiB), Told, 0, 656 * MiB);
        row("large", ok(Installer, 64 * MiB), Quit, 64 * MiB, 64 * MiB);
        row("cancelled", ok(QByteArray(2000, 'x') + "~x~~~~~~~", 1999), Cancelled, 4000 - size);
    }

    void download()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, answer);
        QFETCH(qint64, flood);
        QFETCH(qint64, size);
        QFETCH(QString, saved);
        QFETCH(int, end);
        const QTemporaryDir root;
        qputenv("XDG_DATA_HOME", QFile::encodeName(root.path()));
        Server server;
        QCryptographicHash hash(QCryptographicHash::Sha256);
        hash.addData(Installer);
        for (qint64 i = 0; i < (size - Installer.size()) / MiB; ++i)
            hash.addData(QByteArray(MiB, '\0'));
        publish(server,
                {.name = name, .size = QByteArray::number(size), .sha = hash.result().toHex()});
        server.answers["/setup"] = answer;
        server.answers["/moved"] = ok(Installer);
        server.flood = flood;
        UpdateApp app(setup(server));
        // Only what is silent has to wait for it; a busy machine is no silent server.
        app.setTimeout(answer.count('~') > 5 ? 500ms : 30s);
        connect(&app, &UpdateApp::failed, &app, [] { QCoreApplication::exit(Told); });
        QTimer::singleShot(30s, &app, [] { QCoreApplication::exit(TooLate); });
        const QDir temp(root.filePath(u"Temp"_s));
        QTimer hand;
        connect(&hand, &QTimer::timeout, &app, [&temp, end] {
            const auto *window = topLevel<DownloadInProgress>();
            if (auto *box = topLevel<QMessageBox>()) {
                QVERIFY(!temp.exists());
                forgetPeak();
                box->button(QMessageBox::Yes)->click();
            } else if (end == Cancelled && window != nullptr
                       && window->findChild<QProgressBar *>()->value() == 50) {
                QCOMPARE(temp.entryList(QDir::Files | QDir::Hidden | QDir::Executable).size(), 0);
                window->findChild<QPushButton *>()->click();
                QTimer::singleShot(50ms, window, [] { QCoreApplication::exit(Cancelled); });
            }
        });
        hand.start(10ms);
        forgetPeak();
        const qint64 before = peakMemory();
        app.checkForUpdates();
        QCOMPARE(QCoreApplication::exec(), end);
        // The rest of what nobody wants is left at the server, and nothing is gathered in memory.
        const qint64 poured = flood - server.flood;
        QVERIFY2(poured <= std::max(size, 16 * MiB), qPrintable(QString::number(poured)));
        QVERIFY2(peakMemory() - before < 24 * 1024, qPrintable(QString::number(peakMemory())));
        const auto *window = topLevel<DownloadInProgress>();
        QVERIFY(window == nullptr || !window->isVisible());
        // The installer was started: it leaves a file behind.
        const QString left = saved.isEmpty() ? QString() : QString(saved + u' ' + saved + u".ran");
        QTRY_COMPARE(temp.entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' '), left);
        QCOMPARE(QDir(root.path()).entryList(QDir::Files), QStringList());
    }

private:
    [[nodiscard]] UpdateSetup setup(const Server &server) const
    {
        return {server.url(), {m_signer.publicKey(), m_spare.publicKey()}};
    }

    void publish(Server &server, const Said &said) const
    {
        const QByteArray document = server.here(release(said));
        server.answers[InfosPath] = ok(document);
        server.answers[SignaturePath] = ok(m_signer(document));
    }

    /// "asked", or what was logged.
    static QString run(const UpdateSetup &setup,
                       const std::function<void(const QMessageBox &)> &look = {})
    {
        logged.clear();
        const auto before = qInstallMessageHandler(
            [](QtMsgType type, const QMessageLogContext &, const QString &message) {
                if (type == QtCriticalMsg)
                    logged += message;
            });
        UpdateApp app(setup);
        app.setTimeout(700ms);
        app.checkForUpdates();
        const bool isOver = QTest::qWaitFor(
            [&app] { return app.findChildren<QNetworkReply *>().isEmpty(); }, 5000);
        if (auto *box = topLevel<QMessageBox>()) {
            logged += u"asked";
            if (look)
                look(*box);
            // Enter, of a rider who was typing, downloads nothing.
            QTest::keyClick(box, Qt::Key_Return);
        }
        const bool isClosed
            = QTest::qWaitFor([] { return topLevel<QMessageBox>() == nullptr; }, 1000);
        qInstallMessageHandler(before);
        const bool isQuiet = topLevel<DownloadInProgress>() == nullptr;
        return isOver && isClosed && isQuiet ? logged : u"does not end"_s;
    }

    Signer m_signer, m_spare;
};

QTEST_MAIN(TestUpdate)
#include "tst_update.moc"
