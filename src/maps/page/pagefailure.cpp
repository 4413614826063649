// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <maps/page/pagefailure.h>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace zuno {

PageFailure::PageFailure(QWidget *parent) : QWidget(parent)
{
    auto *text = new QLabel(tr("The map has stopped several times, and was left alone. Everything "
                               "else goes on working."),
                            this);
    text->setObjectName(QStringLiteral("lb_mapStopped"));
    text->setTextFormat(Qt::PlainText);
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    auto *again = new QPushButton(tr("Try again"), this);
    again->setObjectName(QStringLiteral("pb_mapAgain"));
    connect(again, &QPushButton::clicked, this, &PageFailure::anotherTryWanted);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addWidget(text);
    layout->addWidget(again, 0, Qt::AlignHCenter);
    layout->addStretch();
}

} // namespace zuno
