// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <manual/pdffile.h>

namespace zuno {

namespace {

constexpr char LinkBegin[] = "/A <<\n/Type /Action\n/S /URI\n/URI (#";
constexpr char LinkEnd[] = ")\n>>";

// The file has a table of where its objects stand, so nothing may move: what is written instead is
// filled up with blanks.
void overwrite(QByteArray &pdf, qsizetype from, qsizetype size, const QByteArray &by)
{
    if (by.size() <= size)
        pdf.replace(from, size, by.leftJustified(size, ' '));
}

// The numbers of the pages' objects, from "/Kids \n[\n6 0 R\n19 0 R\n]".
QList<QByteArray> pageObjects(const QByteArray &pdf)
{
    const qsizetype from = pdf.indexOf('[', pdf.lastIndexOf("/Kids")) + 1;
    const QByteArray kids = pdf.mid(from, pdf.indexOf(']', from) - from).simplified();
    QList<QByteArray> objects;
    const QList<QByteArray> words = kids.split(' ');
    for (qsizetype i = 0; i + 2 < words.size(); i += 3)
        objects.append(words[i]);
    return objects;
}

} // namespace

QByteArray finishedPdf(QByteArray pdf, const QList<PdfPlace> &places)
{
    const qsizetype date = pdf.indexOf("/CreationDate");
    if (date >= 0)
        overwrite(pdf, date, pdf.indexOf(')', date) + 1 - date, {});

    const QList<QByteArray> pages = pageObjects(pdf);
    for (qsizetype at = pdf.indexOf(LinkBegin); at >= 0; at = pdf.indexOf(LinkBegin, at + 1)) {
        const qsizetype number = at + static_cast<qsizetype>(sizeof(LinkBegin)) - 1;
        const qsizetype end = pdf.indexOf(LinkEnd, number);
        const PdfPlace place = places.value(pdf.mid(number, end - number).toInt());
        const QByteArray target = "/Dest [" + pages.value(place.page) + " 0 R /FitH "
                                  + QByteArray::number(qRound(place.height)) + ']';
        overwrite(pdf, at, end + static_cast<qsizetype>(sizeof(LinkEnd)) - 1 - at, target);
    }
    return pdf;
}

} // namespace zuno
