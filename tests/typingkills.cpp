// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "typingkills.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <random>
#include <vector>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QProcess>
#include <QTextEdit>
#include <QTimer>

#include <library/informationwriter.h>
#include <session/sessionfile.h>
#include <session/sessionrewrite.h>
#include <stats/sessioninfos.h>

namespace zuno::test {

using namespace Qt::StringLiterals;

namespace {

// Programs that are typed into at the same time.
constexpr std::size_t AtOnce = 16;
constexpr qint64 KeptFor = 2000; // ms

// The same clock for all programs.
qint64 now()
{
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(since).count();
}

void type(QWidget &field, const QString &text)
{
    const auto press = [&field](int key, Qt::KeyboardModifiers with, const QString &letter) {
        QKeyEvent event(QEvent::KeyPress, key, with, letter);
        QApplication::sendEvent(&field, &event);
    };
    press(Qt::Key_A, Qt::ControlModifier, {});
    for (const QChar letter : text)
        press(letter.unicode(), Qt::NoModifier, letter);
}

/// One program that is typed into.
class Typist
{
public:
    Typist(const QByteArray &recording, QString path, qint64 lifetime)
        : m_recording(recording)
        , m_path(std::move(path))
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(recording) != recording.size())
            std::abort();
        file.close();
        m_program.start(QCoreApplication::applicationFilePath(), {u"type"_s, m_path});
        m_program.waitForReadyRead();
        m_end = now() + lifetime;
    }
    [[nodiscard]] bool isDue() const { return now() >= m_end; }

    /// Kills it. The milliseconds for which the oldest number that is not in the file had been
    /// typed; -1 when the file is not whole.
    qint64 kill()
    {
        const qint64 killed = now();
        m_program.kill();
        m_program.waitForFinished();
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            return -1;
        const QByteArray bytes = file.readAll();
        const OpenedSession opened = decodeSession(bytes, m_path);
        const OpenedSession original = decodeSession(m_recording, m_path);
        if (!opened.session || !isWhole(bytes, *opened.session, *original.session))
            return -1;
        const qint64 written = opened.session->notes().toLongLong();
        qint64 age = 0;
        while (m_program.canReadLine()) {
            const QByteArrayList line = m_program.readLine().trimmed().split(' ');
            if (line.value(0).toLongLong() > written)
                age = std::max(age, killed - line.value(1).toLongLong());
        }
        return age;
    }

private:
    /// But for the notes it is the recording, to the byte.
    [[nodiscard]] bool isWhole(const QByteArray &bytes, const Session &session,
                               Session &original) const
    {
        original.setNotes(session.notes());
        return bytes == m_recording || bytes == rewritten(m_recording, original);
    }

    const QByteArray &m_recording;
    QString m_path;
    QProcess m_program;
    qint64 m_end = 0;
};

} // namespace

int typeForEver(const QString &path)
{
    InformationWriter writer;
    SessionInfos page(writer, u"en"_s);
    auto *notes = page.findChild<QTextEdit *>(u"te_infos"_s);
    const OpenedSession opened = openSession(path);
    page.showSession(opened.session.get());
    int number = 0;
    QTimer keys;
    QObject::connect(&keys, &QTimer::timeout, [&] {
        type(*notes, QString::number(++number));
        std::printf("%d %lld\n", number, static_cast<long long>(now()));
        std::fflush(stdout);
    });
    keys.start(40);
    return QApplication::exec();
}

int killWhileTyping(const QString &recording, const QString &folder, int kills)
{
    QFile file(recording);
    if (!file.open(QIODevice::ReadOnly) || !QDir().mkpath(folder))
        return 2;
    const QByteArray bytes = file.readAll();
    std::mt19937 random(7);
    std::vector<std::unique_ptr<Typist>> typists;
    int started = 0;
    int harmed = 0;
    int late = 0;
    qint64 oldest = 0;
    while (started < kills || !typists.empty()) {
        while (started < kills && typists.size() < AtOnce) {
            const QString path = folder + u"/%1.ra1"_s.arg(started++);
            typists.push_back(std::make_unique<Typist>(bytes, path, random() % 5000));
        }
        std::erase_if(typists, [&](const std::unique_ptr<Typist> &typist) {
            if (!typist->isDue())
                return false;
            const qint64 age = typist->kill();
            harmed += age < 0 ? 1 : 0;
            late += age > KeptFor ? 1 : 0;
            oldest = std::max(oldest, age);
            return true;
        });
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    std::printf(
        "%d kills, %d files harmed, %d times more than two seconds lost (at most %lld ms)\n", kills,
        harmed, late, static_cast<long long>(oldest));
    return harmed == 0 && late == 0 ? 0 : 1;
}

} // namespace zuno::test
