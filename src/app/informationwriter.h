// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>

#include <session/sessionrewrite.h>

namespace zuno {

class Session;

/// Writes the information of sessions into their files, and tells once when that fails: a library
/// on a write-protected card must not complain at every selection.
class InformationWriter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Rewrites the information block of the session's file.
    RewriteResult write(const Session &session);

Q_SIGNALS:
    void written(const zuno::Session &session);
    /// The first failure after a success; @p message is for the rider.
    void failed(const QString &message);

private:
    bool m_told = false;
};

} // namespace zuno
