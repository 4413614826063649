// SPDX-FileCopyrightText: 2026 The ZUNO Analyzer developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <manual/manualdocument.h>

#include <algorithm>
#include <array>

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFont>
#include <QImage>
#include <QPaintDevice>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QTextList>
#include <QTextTable>

namespace zuno {

namespace {

using namespace Qt::StringLiterals;

constexpr qreal TextSize = 9.5;
constexpr qreal CodeSize = 8.5;
constexpr qreal CaptionSize = 8;
// By level, from the title on.
constexpr std::array HeadingSizes {28.0, 17.0, 12.0, 10.0};
constexpr std::array SpaceAbove {0.0, 26.0, 16.0, 12.0};
constexpr std::array SpaceBelow {6.0, 8.0, 5.0, 4.0};
constexpr qreal ParagraphSpace = 6;
constexpr qreal Indent = 22;
// What pixels in text formats are counted in, and what pixels of a picture are on paper.
constexpr qreal ScreenResolution = 96;
constexpr qreal PictureResolution = 170;
// No picture fills a page.
constexpr qreal MaximumHeight = 480;
constexpr int DeepestListed = 3;
// Rows of a table that is kept on one page.
constexpr int ShortTable = 12;
// Lines of a paragraph that is kept on one page.
constexpr int ShortParagraph = 4;

const QColor Ink(0x20, 0x20, 0x20);
const QColor Accent(0x14, 0x64, 0xa1);
const QColor Grey(0x66, 0x66, 0x66);
const QColor CodeGround(0xf0, 0xf2, 0xf4);
const QColor HeadGround(0xe2, 0xe8, 0xee);

const QString ContentsMark = u"[TOC]"_s;
// What stands for a page number until it is known.
const QString PageMark = u"\t000"_s;

QString linkTo(qsizetype heading)
{
    return u'#' + QString::number(heading);
}

// As GitHub makes them.
QString anchorOf(const QString &heading)
{
    QString anchor;
    const QString lower = heading.toLower();
    for (const QChar character : lower) {
        if (character.isLetterOrNumber() || character == u'-' || character == u'_')
            anchor += character;
        else if (character == u' ')
            anchor += u'-';
    }
    return anchor;
}

int levelOf(const QTextBlock &block)
{
    return block.blockFormat().headingLevel();
}

bool isCode(const QTextBlock &block)
{
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
}

bool isPicture(const QTextBlock &block)
{
    return block.text() == QString(QChar::ObjectReplacementCharacter);
}

// Comments before the text say who may copy it, which is no part of it.
QString withoutComment(const QString &markdown)
{
    const QString text = markdown.trimmed();
    return text.startsWith(u"<!--"_s) ? text.mid(text.indexOf(u"-->"_s) + 3) : text;
}

QTextTable *tableOf(const QTextBlock &block)
{
    return QTextCursor(block).currentTable();
}

bool staysWithNext(const QTextBlock &block)
{
    const QTextBlock next = block.next();
    if (!next.isValid())
        return false;
    const bool isAnnounced
        = next.textList() != nullptr || isCode(next) || isPicture(next) || tableOf(next) != nullptr;
    const QTextTable *table = tableOf(block);
    return levelOf(block) > 0 || isPicture(block) || (isCode(block) && isCode(next))
           || (table != nullptr && table == tableOf(next) && table->rows() <= ShortTable)
           || (block.text().endsWith(u':') && isAnnounced);
}

// Whether a part of it is as bad as nothing.
bool isWhole(const QTextBlock &block)
{
    return isCode(block) || isPicture(block) || isPicture(block.previous())
           || tableOf(block) != nullptr;
}

void format(const QTextBlock &block, const QTextCharFormat &format)
{
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
    cursor.mergeBlockCharFormat(format);
}

void format(const QTextBlock &block, const QTextBlockFormat &format)
{
    QTextCursor(block).mergeBlockFormat(format);
}

void breakBefore(const QTextBlock &block)
{
    if (QTextTable *table = tableOf(block)) {
        QTextTableFormat onNewPage = table->format();
        onNewPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        table->setFormat(onNewPage);
        return;
    }
    QTextBlockFormat onNewPage;
    onNewPage.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    format(block, onNewPage);
}

} // namespace

ManualDocument::ManualDocument(const QString &markdown, const QString &folder,
                               const QSizeF &pageSize, QPaintDevice *device)
    : m_device(device)
    , m_pageSize(pageSize)
    , m_folder(folder)
    , m_width(pageSize.width() * ScreenResolution / device->logicalDpiX())
{
    QFont font;
    font.setFamilies({u"DejaVu Sans"_s, u"Segoe UI"_s, u"Helvetica Neue"_s, u"Helvetica"_s});
    font.setPointSizeF(TextSize);
    m_document.setDefaultFont(font);
    m_document.setUndoRedoEnabled(false);
    m_document.setDocumentMargin(0);
    m_document.setIndentWidth(Indent);
    m_document.setMarkdown(withoutComment(markdown));

    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        if (levelOf(block) > 0)
            styleHeading(block, levelOf(block));
        else if (isCode(block))
            styleCode(block);
        else
            styleText(block);
    }
    if (m_title.isEmpty())
        m_faults.append(u"no title"_s);
    styleTables();
    styleLinks();
    placePictures();
    insertContents();

    do
        layOut();
    while (breakGroup());
    fillContents();
    layOut();
}

void ManualDocument::styleHeading(const QTextBlock &block, int level)
{
    const auto i = std::min<std::size_t>(static_cast<std::size_t>(level), HeadingSizes.size()) - 1;
    const Heading heading {block.text(), anchorOf(block.text()), level, block};
    QTextBlockFormat space;
    space.setTopMargin(SpaceAbove[i]);
    space.setBottomMargin(SpaceBelow[i]);
    format(block, space);
    // The size that Markdown gives it is relative, and would win.
    QTextCharFormat letters;
    letters.setFontPointSize(HeadingSizes[i]);
    letters.setFontWeight(QFont::Bold);
    letters.setForeground(Accent);
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.setCharFormat(letters);
    cursor.setBlockCharFormat(letters);
    const bool announcesContents = block.next().text() == ContentsMark;
    if (level == 1)
        m_title = heading.text;
    else if (!announcesContents)
        m_headings.append(heading);
}

void ManualDocument::styleCode(const QTextBlock &block)
{
    QTextBlockFormat ground;
    ground.setBackground(CodeGround);
    ground.setTopMargin(0);
    ground.setBottomMargin(isCode(block.next()) ? 0 : ParagraphSpace + 2);
    ground.setNonBreakableLines(false);
    format(block, ground);
    QTextCharFormat letters;
    letters.setFontFamilies({u"DejaVu Sans Mono"_s, u"Consolas"_s, u"Menlo"_s});
    letters.setFontPointSize(CodeSize);
    format(block, letters);
}

void ManualDocument::styleText(const QTextBlock &block)
{
    QTextBlockFormat space;
    const bool isInList = block.textList() != nullptr;
    const bool isInTable = tableOf(block) != nullptr;
    space.setTopMargin(0);
    const bool isInner = isInList && block.next().textList() == block.textList();
    space.setBottomMargin(isInTable ? 0 : isInner ? ParagraphSpace / 2 : ParagraphSpace);
    space.setLineHeight(isInTable ? 110 : 118, QTextBlockFormat::ProportionalHeight);
    format(block, space);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (!fragment.charFormat().fontFixedPitch())
            continue;
        QTextCharFormat letters;
        letters.setFontFamilies({u"DejaVu Sans Mono"_s, u"Consolas"_s, u"Menlo"_s});
        letters.setFontPointSize(CodeSize);
        QTextCursor cursor(&m_document);
        cursor.setPosition(fragment.position());
        cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(letters);
    }
}

void ManualDocument::styleTables()
{
    const QList<QTextFrame *> frames = m_document.rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (table == nullptr)
            continue;
        QTextTableFormat lines = table->format();
        lines.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        lines.setBorder(1);
        lines.setBorderCollapse(true);
        lines.setBorderBrush(Grey);
        lines.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        lines.setCellSpacing(0);
        lines.setCellPadding(4);
        lines.setTopMargin(4);
        lines.setBottomMargin(12);
        lines.setHeaderRowCount(1);
        table->setFormat(lines);
        for (int column = 0; column < table->columns(); ++column) {
            QTextTableCell cell = table->cellAt(0, column);
            QTextCharFormat head = cell.format();
            head.setBackground(HeadGround);
            cell.setFormat(head);
            QTextCharFormat bold;
            bold.setFontWeight(QFont::Bold);
            format(cell.firstCursorPosition().block(), bold);
        }
    }
}

void ManualDocument::styleLinks()
{
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (!it.fragment().charFormat().anchorHref().isEmpty())
                styleLink(it.fragment());
        }
    }
}

void ManualDocument::styleLink(const QTextFragment &link)
{
    QTextCharFormat letters;
    letters.setForeground(Accent);
    letters.setFontUnderline(false);
    const QString target = link.charFormat().anchorHref();
    if (target.startsWith(u'#')) {
        const auto heading
            = std::find_if(m_headings.cbegin(), m_headings.cend(), [&target](const Heading &known) {
                  return known.anchor == target.mid(1);
              });
        if (heading == m_headings.cend())
            m_faults.append(u"a link leads nowhere: "_s + target);
        letters.setAnchorHref(linkTo(heading - m_headings.cbegin()));
    }
    QTextCursor cursor(&m_document);
    cursor.setPosition(link.position());
    cursor.setPosition(link.position() + link.length(), QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(letters);
}

void ManualDocument::placePictures()
{
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        if (!isPicture(block))
            continue;
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
        placePicture(cursor);
    }
}

void ManualDocument::placePicture(QTextCursor &cursor)
{
    QTextImageFormat picture = cursor.charFormat().toImageFormat();
    const QString caption = picture.stringProperty(QTextFormat::ImageAltText);
    const QImage image(QDir(m_folder).filePath(picture.name()));
    if (image.isNull()) {
        m_faults.append(u"no picture: "_s + picture.name());
        return;
    }
    const qreal onPaper = ScreenResolution / PictureResolution;
    QSizeF size = QSizeF(image.size()) * onPaper;
    if (size.width() > m_width || size.height() > MaximumHeight)
        size.scale(m_width, MaximumHeight, Qt::KeepAspectRatio);
    m_document.addResource(QTextDocument::ImageResource, QUrl(picture.name()), image);
    picture.setWidth(size.width());
    picture.setHeight(size.height());
    cursor.setCharFormat(picture);

    QTextBlockFormat place;
    place.setAlignment(Qt::AlignHCenter);
    place.setTopMargin(ParagraphSpace);
    place.setBottomMargin(3);
    place.setLineHeight(0, QTextBlockFormat::SingleHeight);
    cursor.mergeBlockFormat(place);
    cursor.movePosition(QTextCursor::EndOfBlock);
    QTextBlockFormat below;
    below.setAlignment(Qt::AlignHCenter);
    below.setBottomMargin(12);
    QTextCharFormat letters;
    letters.setFontPointSize(CaptionSize);
    letters.setForeground(Grey);
    cursor.insertBlock(below, letters);
    cursor.insertText(caption);
}

// With places for the page numbers, which are known when everything is laid out.
void ManualDocument::insertContents()
{
    QTextCursor cursor = m_document.find(ContentsMark);
    if (cursor.isNull())
        return;
    const QTextBlock after = cursor.block().next();
    cursor.removeSelectedText();
    bool isFirst = true;
    for (qsizetype i = 0; i < m_headings.size(); ++i) {
        const Heading &heading = m_headings[i];
        if (heading.level > DeepestListed)
            continue;
        QTextBlockFormat line;
        const bool isChapter = heading.level == 2;
        line.setTopMargin(isChapter ? 5 : 0);
        line.setIndent(isChapter ? 0 : 1);
        const qreal end = m_width - (isChapter ? 0 : Indent) - 1;
        line.setTabPositions({QTextOption::Tab(end, QTextOption::RightTab)});
        QTextCharFormat letters;
        letters.setAnchor(true);
        letters.setAnchorHref(linkTo(i));
        letters.setForeground(Ink);
        letters.setFontWeight(isChapter ? QFont::Bold : QFont::Normal);
        if (isFirst)
            cursor.setBlockFormat(line);
        else
            cursor.insertBlock(line);
        isFirst = false;
        cursor.insertText(heading.text + PageMark, letters);
    }
    if (after.isValid())
        breakBefore(after);
}

void ManualDocument::fillContents()
{
    for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next()) {
        if (!block.text().endsWith(PageMark))
            continue;
        const QTextCharFormat letters = block.begin().fragment().charFormat();
        const Heading &heading = m_headings[letters.anchorHref().mid(1).toInt()];
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::EndOfBlock);
        cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor,
                            static_cast<int>(PageMark.size()));
        cursor.insertText(u'\t' + QString::number(pageOf(placeOf(heading.block.blockNumber())) + 1),
                          letters);
    }
}

void ManualDocument::layOut()
{
    m_pages.reset(m_document.clone());
    m_pages->documentLayout()->setPaintDevice(m_device);
    m_pages->setPageSize(m_pageSize);
}

// Qt has no such property for blocks, so the first of a group that is not on one page goes to the
// next one by itself. False when every group is on one page.
bool ManualDocument::breakGroup()
{
    for (QTextBlock first = m_document.begin(); first.isValid(); first = first.next()) {
        QTextBlock last = first;
        while (staysWithNext(last))
            last = last.next();
        const QTextBlock end = m_pages->findBlockByNumber(last.blockNumber());
        const bool endsWhole = isWhole(last) || end.layout()->lineCount() <= ShortParagraph;
        const qreal bottom = m_pages->documentLayout()->blockBoundingRect(end).bottom() - 1;
        const qreal to = endsWhole ? bottom : placeOf(last.blockNumber());
        if (pageOf(placeOf(first.blockNumber())) != pageOf(to) && m_broken != first.blockNumber()) {
            m_broken = first.blockNumber();
            breakBefore(first);
            return true;
        }
        first = last;
    }
    return false;
}

qreal ManualDocument::placeOf(int number) const
{
    const QTextBlock block = m_pages->findBlockByNumber(number);
    const qreal top = m_pages->documentLayout()->blockBoundingRect(block).top();
    // A block begins where the one before ends, even when its first line is on the next page.
    return block.layout()->lineCount() > 0 ? top + block.layout()->lineAt(0).y() : top;
}

int ManualDocument::pageOf(qreal place) const
{
    return static_cast<int>(place / m_pageSize.height());
}

QList<qreal> ManualDocument::headingPlaces() const
{
    QList<qreal> places;
    for (const Heading &heading : m_headings)
        places.append(placeOf(heading.block.blockNumber()));
    return places;
}

} // namespace zuno
