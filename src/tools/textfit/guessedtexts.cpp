// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <tools/textfit/guessedtexts.h>

#include <QAbstractItemView>
#include <QLabel>

namespace zuno {

namespace {

QString nameOf(const QWidget &part)
{
    return part.objectName().isEmpty() ? QString::fromLatin1(part.metaObject()->className())
                                       : part.objectName();
}

void lookAt(const QString &toolTip, const QString &where, QStringList &found)
{
    if (toolTip.contains(MarkupInNames) && Qt::mightBeRichText(toolTip))
        found.append(QStringLiteral("the tool tip of %1 is markup: %2").arg(where, toolTip));
}

// What stands in the model's first level is enough: one level is filled as all others.
void lookAt(const QAbstractItemView &view, QStringList &found)
{
    const QAbstractItemModel *model = view.model();
    if (model == nullptr)
        return;
    const QModelIndex root = view.rootIndex();
    for (int column = 0; column < model->columnCount(root); ++column) {
        lookAt(model->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString(), nameOf(view),
               found);
        for (int row = 0; row < model->rowCount(root); ++row)
            lookAt(model->index(row, column, root).data(Qt::ToolTipRole).toString(), nameOf(view),
                   found);
    }
}

} // namespace

QStringList guessedTexts(const QWidget &window)
{
    QStringList found;
    const auto parts = window.findChildren<const QWidget *>();
    for (const QWidget *part : parts) {
        lookAt(part->toolTip(), nameOf(*part), found);
        const auto *label = qobject_cast<const QLabel *>(part);
        // Qt's own tool tip, which is looked at where it is set.
        const bool isTip = part->windowType() == Qt::ToolTip;
        if (label != nullptr && label->textFormat() == Qt::AutoText && !isTip)
            found.append(QStringLiteral("%1 guesses whether \"%2\" is markup")
                             .arg(nameOf(*label), label->text()));
        if (const auto *view = qobject_cast<const QAbstractItemView *>(part))
            lookAt(*view, found);
    }
    return found;
}

} // namespace zuno
