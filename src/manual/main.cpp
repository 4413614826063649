// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Makes the manual's PDF of its Markdown text.

#include <cstdio>

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QRawFont>
#include <QSaveFile>

#include <manual/manualdocument.h>
#include <manual/pdffile.h>

namespace {

using namespace Qt::StringLiterals;

constexpr QMarginsF Margins(20, 18, 20, 16); // mm
constexpr qreal FooterHeight = 10; // mm
constexpr qreal FooterSize = 8;
constexpr int Resolution = 1200;
constexpr qreal PointsPerInch = 72;
constexpr qreal MillimetresPerInch = 25.4;
constexpr qreal SpaceAboveTarget = 10; // points

void drawFooter(QPainter &painter, const QString &title, int page)
{
    QFont font;
    font.setFamilies({u"DejaVu Sans"_s, u"Segoe UI"_s, u"Helvetica Neue"_s, u"Helvetica"_s});
    font.setPointSizeF(FooterSize);
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    const QRect paper = painter.viewport();
    painter.drawText(paper, Qt::AlignLeft | Qt::AlignBottom, title);
    painter.drawText(paper, Qt::AlignRight | Qt::AlignBottom, QString::number(page));
}

void draw(const zuno::ManualDocument &manual, QPdfWriter &paper)
{
    QPainter painter(&paper);
    // Pictures of windows are full of thin lines and letters.
    painter.setRenderHint(QPainter::LosslessImageRendering);
    const QSizeF size = manual.pages().pageSize();
    for (int page = 0; page < manual.pageCount(); ++page) {
        if (page > 0)
            paper.newPage();
        const QRectF part(QPointF(0, page * size.height()), size);
        painter.save();
        painter.translate(0, -part.top());
        painter.setClipRect(part);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = part;
        context.palette.setColor(QPalette::Text, Qt::black);
        manual.pages().documentLayout()->draw(&painter, context);
        painter.restore();
        if (page > 0)
            drawFooter(painter, manual.title(), page + 1);
    }
}

QList<zuno::PdfPlace> placesIn(const zuno::ManualDocument &manual, const QPdfWriter &paper)
{
    QList<zuno::PdfPlace> places;
    const QPageLayout layout = paper.pageLayout();
    const qreal height = manual.pageHeight();
    for (const qreal y : manual.headingPlaces()) {
        const int page = static_cast<int>(y / height);
        const qreal below = (y - page * height) * PointsPerInch / Resolution;
        places.append({page, layout.fullRectPoints().height() - layout.marginsPoints().top() - below
                                 + SpaceAboveTarget});
    }
    return places;
}

int fail(const QString &what)
{
    std::fprintf(stderr, "zuno-manual: %s\n", qPrintable(what));
    return EXIT_FAILURE;
}

int makeManual(const QString &source, const QString &target)
{
    QFile file(source);
    if (!file.open(QIODevice::ReadOnly))
        return fail(source + u": "_s + file.errorString());

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter paper(&buffer);
    paper.setPageSize(QPageSize(QPageSize::A4));
    paper.setPageMargins(Margins, QPageLayout::Millimeter);
    paper.setResolution(Resolution);
    paper.setCreator(u"ZUNO Analyzer"_s);
    const qreal footer = FooterHeight * Resolution / MillimetresPerInch;
    zuno::ManualDocument manual(QString::fromUtf8(file.readAll()), QFileInfo(source).absolutePath(),
                                QSizeF(paper.width(), paper.height() - footer), &paper);
    for (const QString &fault : manual.faults())
        fail(source + u": "_s + fault);
    if (!manual.faults().isEmpty())
        return EXIT_FAILURE;
    paper.setTitle(manual.title());
    draw(manual, paper);

    const QByteArray pdf = zuno::finishedPdf(buffer.data(), placesIn(manual, paper));
    QSaveFile result(target);
    if (!result.open(QIODevice::WriteOnly) || result.write(pdf) != pdf.size() || !result.commit())
        return fail(target + u": "_s + result.errorString());
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    // It needs letters, but no display.
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    // The fonts go into the file in the order of a hash table.
    QHashSeed::setDeterministicGlobalSeed();
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return fail(u"usage: zuno-manual MANUAL.md MANUAL.pdf"_s);
    if (QRawFont::fromFont(QGuiApplication::font()).fontTable("cmap").isEmpty())
        return fail(u"there are no fonts to write with, such as fonts-dejavu-core"_s);
    return makeManual(arguments[1], arguments[2]);
}
