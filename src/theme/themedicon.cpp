// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <theme/themedicon.h>

#include <array>

#include <QIconEngine>
#include <QPainter>

#include <theme/themes.h>

namespace zuno {

namespace {

class Engine final : public QIconEngine
{
public:
    explicit Engine(const QString &file)
        : m_icons {QIcon(QStringLiteral(":/Resources/") + file),
                   QIcon(QStringLiteral(":/Resources/light/") + file)}
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        shown().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return shown().pixmap(size, 1, mode, state);
    }
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        return shown().pixmap(size / scale, scale, mode, state);
    }
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return shown().actualSize(size, mode, state);
    }
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override
    {
        return shown().availableSizes(mode, state);
    }
    bool isNull() override { return shown().isNull(); }
    [[nodiscard]] QIconEngine *clone() const override { return new Engine(*this); }

private:
    [[nodiscard]] const QIcon &shown() const { return m_icons[theme().isDark() ? 0 : 1]; }

    std::array<QIcon, 2> m_icons;
};

} // namespace

QIcon themedIcon(const QString &file)
{
    return QIcon(new Engine(file));
}

} // namespace zuno
