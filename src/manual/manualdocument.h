// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <memory>

#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

class QPaintDevice;
class QTextCursor;
class QTextFragment;

namespace zuno {

/// A manual, written in Markdown and laid out on pages.
///
/// The text is what GitHub shows, with two additions: the paragraph "[TOC]" is replaced by a table
/// of contents, and the text of a picture becomes the line below it. The first heading is the
/// title. Headings, and lines that announce a list or an example, stay with what follows them.
class ManualDocument
{
public:
    /// Lays out @p markdown on pages of @p pageSize, in pixels of @p device, which must outlive
    /// this. Pictures are looked for below @p folder.
    ManualDocument(const QString &markdown, const QString &folder, const QSizeF &pageSize,
                   QPaintDevice *device);

    [[nodiscard]] const QString &title() const { return m_title; }
    [[nodiscard]] int pageCount() const { return m_pages->pageCount(); }
    /// In pixels of the device.
    [[nodiscard]] qreal pageHeight() const { return m_pages->pageSize().height(); }
    /// Pictures that cannot be read, links that lead to no heading, a missing title; one line each.
    [[nodiscard]] const QStringList &faults() const { return m_faults; }
    [[nodiscard]] const QTextDocument &pages() const { return *m_pages; }

    /// Where the headings stand, from the top of the first page on, in pixels of the device. Links
    /// to "#0", "#1" and so on mean these.
    [[nodiscard]] QList<qreal> headingPlaces() const;

private:
    void styleHeading(const QTextBlock &block, int level);
    void styleCode(const QTextBlock &block);
    void styleText(const QTextBlock &block);
    void styleTables();
    void styleLinks();
    void styleLink(const QTextFragment &link);
    void placePictures();
    void placePicture(QTextCursor &cursor);
    void insertContents();
    void fillContents();
    void layOut();
    [[nodiscard]] bool breakGroup();
    [[nodiscard]] qreal placeOf(int number) const;
    [[nodiscard]] int pageOf(qreal place) const;

    struct Heading
    {
        QString text;
        QString anchor;
        int level = 0;
        QTextBlock block;
    };

    // The text, which is never laid out itself, and a copy that is: when something changes in a
    // text that is laid out on pages, Qt mixes up what stood there before.
    QTextDocument m_document;
    std::unique_ptr<QTextDocument> m_pages;
    QPaintDevice *m_device;
    QSizeF m_pageSize;
    QString m_folder;
    QString m_title;
    QStringList m_faults;
    QList<Heading> m_headings;
    // The width of the text, in the pixels of a screen, as text formats have it.
    qreal m_width = 0;
    // The group that was broken last: one that is longer than a page stays as it is.
    int m_broken = -1;
};

} // namespace zuno
