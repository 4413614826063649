// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <app/ending.h>

#include <array>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <csignal>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace zuno {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array Signals {SIGTERM, SIGINT, SIGHUP};

// A signal's handler may do next to nothing, but it may write into a pipe, whose other end the
// event loop reads.
std::array<int, 2> ends {-1, -1};
int &readEnd = ends[0];
int &writeEnd = ends[1];

void tell(int signal)
{
    const auto byte = static_cast<char>(signal);
    [[maybe_unused]] const ssize_t told = ::write(writeEnd, &byte, 1);
}

void handleSignals(void (*handler)(int))
{
    struct sigaction action
    {
    };
    action.sa_handler = handler;
    // Whoever is told twice means it.
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (const int signal : Signals)
        sigaction(signal, &action, nullptr);
}

} // namespace

Ending::Ending(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Ending::imminent,
            Qt::DirectConnection);
    if (::pipe(ends.data()) != 0)
        return;
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    auto *notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Ending::onSignal);
    handleSignals(tell);
}

Ending::~Ending()
{
    handleSignals(SIG_DFL);
    for (int &end : ends) {
        ::close(end);
        end = -1;
    }
}

void Ending::onSignal()
{
    char signal = 0;
    if (::read(readEnd, &signal, 1) != 1)
        return;
    Q_EMIT imminent();
    // As the system tells of a program that a signal has ended.
    constexpr int EndedBySignal = 128;
    QCoreApplication::exit(EndedBySignal + signal);
}

#else

Ending::Ending(QObject *parent) : QObject(parent)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Ending::imminent,
            Qt::DirectConnection);
}

Ending::~Ending() = default;

void Ending::onSignal() {}

#endif

} // namespace zuno
