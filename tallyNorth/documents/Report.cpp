#include "Report.h"

#include "QtfReader.h"
#include "QtfTextDocument.h"

#include "base/DateText.h"
#include "base/MessageArgs.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QFile>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <cmath>

namespace {

constexpr double kDotsPerMm = 600 / 25.4;
constexpr double kPageBottomMargin = 20;
// A4 in dots.
constexpr QSizeF kA4 = QSizeF(210 * kDotsPerMm, 297 * kDotsPerMm);

double Height(const QTextDocument* doc)
{
    return doc ? doc->documentLayout()->documentSize().height() : 0;
}

// Top and bottom of a top-level block or table in the laid-out body.
struct Item
{
    QTextBlock block;
    QTextFrame* frame = nullptr;
    double top = 0;
    double bottom = 0;
    double firstLineBottom = 0;
    bool keep = false;
    bool keepNext = false;
};

QList<Item> TopLevelItems(QTextDocument& doc)
{
    QList<Item> items;
    QAbstractTextDocumentLayout* layout = doc.documentLayout();
    for (auto it = doc.rootFrame()->begin(); !it.atEnd(); ++it) {
        Item item;
        if (QTextFrame* frame = it.currentFrame()) {
            const QRectF r = layout->frameBoundingRect(frame);
            item.frame = frame;
            item.top = r.top();
            item.bottom = item.firstLineBottom = r.bottom();
            item.keep = frame->frameFormat().property(QtfProperty::Keep).toBool();
        } else {
            const QTextBlock b = it.currentBlock();
            if (b.blockFormat().hasProperty(QtfProperty::Filler))
                continue;
            const QRectF r = layout->blockBoundingRect(b);
            item.block = b;
            item.top = r.top();
            item.bottom = r.bottom();
            const QTextLayout* tl = b.layout();
            item.firstLineBottom =
                tl && tl->lineCount() > 0 ? r.top() + tl->lineAt(0).rect().bottom() : r.bottom();
            item.keep = b.blockFormat().property(QtfProperty::Keep).toBool();
            item.keepNext = b.blockFormat().property(QtfProperty::KeepNext).toBool();
        }
        items << item;
    }
    return items;
}

void BreakBefore(const Item& item)
{
    if (item.frame) {
        QTextFrameFormat f = item.frame->frameFormat();
        f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        item.frame->setFrameFormat(f);
    } else {
        QTextCursor cursor(item.block);
        QTextBlockFormat f = cursor.blockFormat();
        f.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        cursor.setBlockFormat(f);
    }
}

// Qt knows no "keep together" or "keep with next": such items that end up split by a page end
// get a page break before them, until the layout settles.
void ApplyKeeps(QTextDocument& doc, double pageHeight)
{
    const double epsilon = 0.5;
    const auto page = [&](double y) { return int(std::floor((y + epsilon) / pageHeight)); };
    const auto atTop = [&](double y) { return y - page(y) * pageHeight < epsilon + 1; };
    for (int round = 0; round < 20; ++round) {
        const QList<Item> items = TopLevelItems(doc);
        qsizetype target = -1;
        for (qsizetype i = 0; i < items.size() && target < 0; ++i) {
            const Item& item = items.at(i);
            if (item.keep && page(item.top) != page(item.bottom - 1) &&
                item.bottom - item.top <= pageHeight && !atTop(item.top))
                target = i;
            if (item.keepNext && i + 1 < items.size() &&
                page(item.top) != page(items.at(i + 1).firstLineBottom - 1)) {
                qsizetype start = i;
                while (start > 0 && items.at(start - 1).keepNext &&
                       page(items.at(start - 1).top) == page(item.top))
                    --start;
                const Item& first = items.at(start);
                if (!atTop(first.top) && items.at(i + 1).firstLineBottom - first.top <= pageHeight)
                    target = start;
            }
        }
        if (target < 0 || target == 0)
            return;
        BreakBefore(items.at(target));
        doc.documentLayout()->documentSize(); // lays out again
    }
}

// The first row of a top-level table whose lines a page end divides: Qt would print it in two
// parts. Rows taller than most of a page are left to be divided.
std::pair<int, int> SplitRow(QTextDocument& doc, double pageHeight)
{
    QAbstractTextDocumentLayout* layout = doc.documentLayout();
    const auto page = [&](double y) { return int(std::floor(y / pageHeight)); };
    int index = -1;
    for (QTextFrame* frame : doc.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (!table)
            continue;
        ++index;
        for (int r = table->format().headerRowCount(); r < table->rows(); ++r) {
            double top = 1e300;
            double bottom = -1e300;
            for (int c = 0; c < table->columns(); ++c) {
                const QTextTableCell cell = table->cellAt(r, c);
                if (cell.row() != r || cell.column() != c || cell.rowSpan() > 1)
                    continue;
                for (QTextBlock b = doc.findBlock(cell.firstPosition());
                     b.isValid() && b.position() <= cell.lastPosition(); b = b.next()) {
                    const QRectF rect = layout->blockBoundingRect(b);
                    if (rect.height() <= 0)
                        continue;
                    top = std::min(top, rect.top());
                    bottom = std::max(bottom, rect.bottom());
                }
            }
            if (top < bottom && page(top) != page(bottom - 1) && bottom - top < pageHeight * 0.8)
                return {index, r};
        }
    }
    return {-1, -1};
}

// Cuts a top-level table before row: the rest, under a copy of the header rows, becomes a
// table of its own that starts a page. A table cut at its first row moves to the next page
// whole. False when there is nothing left to change.
bool SplitTable(Qtf::Document& doc, int tableIndex, int row)
{
    int index = -1;
    for (qsizetype i = 0; i < doc.blocks.size(); ++i) {
        if (!doc.blocks[i].isTable() || ++index != tableIndex)
            continue;
        Qtf::Table& first = *doc.blocks[i].table;
        if (row <= first.format.headerRows || row == 0) {
            const bool moved = doc.blocks[i].pageBreak || first.format.pageBreak || i == 0;
            doc.blocks[i].pageBreak = true;
            return !moved;
        }
        auto rest = std::make_shared<Qtf::Table>();
        rest->format = first.format;
        rest->format.before = 0;
        first.format.after = 0;
        const int header = std::min<int>(first.format.headerRows, row);
        rest->rows = first.rows.mid(0, header) + first.rows.mid(row);
        first.rows.resize(row);
        for (int r = 0; r < int(first.rows.size()); ++r) {
            for (Qtf::Cell& c : first.rows[r])
                c.format.vspan = std::min(c.format.vspan, int(first.rows.size()) - r - 1);
        }
        // Cells that a span from above the cut covered are plain empty cells now.
        QSet<qint64> covered;
        const int columns = rest->columns();
        for (int r = 0; r < int(rest->rows.size()); ++r) {
            for (int c = 0; c < int(rest->rows[r].size()); ++c) {
                Qtf::Cell& cell = rest->rows[r][c];
                cell.covered = covered.contains(qint64(r) * columns + c);
                for (int dr = 0; !cell.covered && dr <= cell.format.vspan; ++dr) {
                    for (int dc = 0; dc <= cell.format.hspan; ++dc)
                        covered.insert(qint64(r + dr) * columns + c + dc);
                }
            }
        }
        Qtf::Block block;
        block.table = rest;
        block.pageBreak = true;
        doc.blocks.insert(i + 1, block);
        return true;
    }
    return false;
}

QString Substitute(QString qtf, int page, const QDate& date)
{
    qtf.replace(QLatin1String("$$P"), QString::number(page));
    qtf.replace(QLatin1String("$$D"), FormatDate(date));
    return qtf;
}

} // namespace

struct Report::Section
{
    QString header;
    QString footer;
    QString body;
    // Laid out:
    QString usedHeader;
    QString usedFooter;
    std::unique_ptr<QTextDocument> doc;
    double headerHeight = 0;
    double footerHeight = 0;
    double bodyTop = 0;
    double bodyHeight = 0;
    int pages = 1;
};

Report::Report() = default;
Report::~Report() = default;
Report::Report(Report&&) noexcept = default;
Report& Report::operator=(Report&&) noexcept = default;

void Report::setPageSize(QSize dots)
{
    m_page = QSize(std::clamp(dots.width(), 100, 100000), std::clamp(dots.height(), 100, 100000));
    m_laidOut = false;
}

void Report::setPaperSize(QSizeF dots)
{
    m_paper = dots;
}

QSizeF Report::paperSize() const
{
    if (m_paper.isValid() && !m_paper.isEmpty())
        return m_paper;
    return m_page == kDefaultPage ? kA4 : QSizeF(m_page);
}

void Report::setShift(QPointF millimetres)
{
    m_shiftMm = millimetres;
}

void Report::setSpacing(int dots)
{
    m_spacing = std::max(0, dots);
    m_laidOut = false;
}

void Report::setDate(const QDate& date)
{
    m_date = date;
    m_laidOut = false;
}

Report::Section& Report::current()
{
    if (m_sections.empty())
        m_sections.push_back(std::make_unique<Section>());
    m_laidOut = false;
    return *m_sections.back();
}

void Report::setHeader(const QString& qtf)
{
    current().header = qtf;
}

void Report::setFooter(const QString& qtf)
{
    current().footer = qtf;
}

void Report::setBody(const QString& qtf)
{
    current().body = qtf;
}

void Report::appendBody(const QString& qtf)
{
    current().body += qtf;
}

void Report::newSection()
{
    m_sections.push_back(std::make_unique<Section>());
    m_laidOut = false;
}

std::unique_ptr<QTextDocument> Report::headerFooter(const QString& qtf, int page, int pages) const
{
    if (qtf.isEmpty())
        return nullptr;
    QtfLayout layout;
    layout.units = QtfUnits::Dots;
    layout.width = m_page.width();
    layout.pageNumber = page;
    layout.pageCount = pages;
    const QDate date = m_date.isValid() ? m_date : QDate::currentDate();
    return QtfToTextDocument(Substitute(qtf, page, date), layout);
}

void Report::layoutSection(Section& s) const
{
    QtfLayout layout;
    layout.units = QtfUnits::Dots;
    layout.width = m_page.width();
    Qtf::Document body = ReadQtf(s.body);
    s.usedHeader = s.header.isEmpty() ? body.header : s.header;
    s.usedFooter = s.footer.isEmpty() ? body.footer : s.footer;
    // Heights are measured with the widest page number.
    s.headerHeight = Height(headerFooter(s.usedHeader, 10000, 10000).get());
    s.footerHeight = Height(headerFooter(s.usedFooter, 10000, 10000).get());
    if (s.headerHeight + s.footerHeight > m_page.height() * 4 / 5) {
        s.usedHeader.clear();
        s.usedFooter.clear();
        s.headerHeight = s.footerHeight = 0;
    }
    s.bodyTop = s.usedHeader.isEmpty() ? 0 : s.headerHeight + m_spacing;
    const double bottom = s.usedFooter.isEmpty() ? 0 : s.footerHeight + m_spacing;
    s.bodyHeight = std::max(m_page.height() - s.bodyTop - bottom, m_page.height() / 5.0);
    // Each round moves one table row that a page end would cut in two to the next page.
    for (int round = 0; round < 500; ++round) {
        s.doc = MakeTextDocument(body, layout);
        // Qt stretches the last table row before a page break down to the page's bottom
        // margin: a small one keeps that row's bottom line on the page.
        QTextFrameFormat root = s.doc->rootFrame()->frameFormat();
        root.setBottomMargin(kPageBottomMargin);
        s.doc->rootFrame()->setFrameFormat(root);
        s.doc->setPageSize(QSizeF(m_page.width(), s.bodyHeight));
        ApplyKeeps(*s.doc, s.bodyHeight);
        const auto [table, row] = SplitRow(*s.doc, s.bodyHeight);
        if (table < 0)
            break;
        if (!SplitTable(body, table, row))
            break;
    }
    s.pages = std::max(1, s.doc->pageCount());
}

void Report::layout() const
{
    if (m_laidOut)
        return;
    if (m_sections.empty())
        m_sections.push_back(std::make_unique<Section>());
    for (auto& s : m_sections)
        layoutSection(*s);
    m_laidOut = true;
}

int Report::pageCount() const
{
    layout();
    int pages = 0;
    for (const auto& s : m_sections)
        pages += s->pages;
    return pages;
}

std::pair<int, int> Report::pageOf(int page) const
{
    layout();
    for (int i = 0; i < int(m_sections.size()); ++i) {
        if (page < m_sections[i]->pages)
            return {i, page};
        page -= m_sections[i]->pages;
    }
    return {-1, -1};
}

void Report::paintPage(QPainter& painter, int page) const
{
    const auto [index, local] = pageOf(page);
    if (index < 0)
        return;
    const Section& s = *m_sections[index];
    const double width = m_page.width();
    painter.save();
    if (auto header = headerFooter(s.usedHeader, local + 1, s.pages)) {
        header->drawContents(&painter);
        PaintQtfExtras(painter, *header, QRectF(0, 0, width, s.headerHeight));
    }
    if (auto footer = headerFooter(s.usedFooter, local + 1, s.pages)) {
        painter.save();
        painter.translate(0, m_page.height() - s.footerHeight);
        footer->drawContents(&painter);
        PaintQtfExtras(painter, *footer, QRectF(0, 0, width, s.footerHeight));
        painter.restore();
    }
    // Content wider than the page may spill sideways, never onto the next page's part.
    painter.translate(0, s.bodyTop);
    painter.setClipRect(QRectF(-width, 0, 3 * width, s.bodyHeight), Qt::IntersectClip);
    painter.translate(0, -local * s.bodyHeight);
    QAbstractTextDocumentLayout::PaintContext context;
    // Qt also draws what only touches the clip's edge: the next page's first line.
    context.clip = QRectF(-width, local * s.bodyHeight, 3 * width, s.bodyHeight - 0.5);
    context.palette.setColor(QPalette::Text, Qt::black);
    s.doc->documentLayout()->draw(&painter, context);
    PaintQtfExtras(painter, *s.doc, context.clip);
    painter.restore();
}

Result Report::print(QPagedPaintDevice& device) const
{
    const int pages = pageCount();
    QPainter painter;
    if (!painter.begin(&device))
        return Result::failure(QCoreApplication::translate("Report", "Unable to start printing."));
    const QPageLayout pl = device.pageLayout();
    const double scale = device.logicalDpiX() / 600.0;
    const QSizeF paper = pl.fullRect(QPageLayout::Inch).size() * 600;
    const QPointF paintOrigin = pl.paintRect(QPageLayout::Inch).topLeft() * 600;
    const QPointF origin((paper.width() - m_page.width()) / 2,
                         (paper.height() - m_page.height()) / 2);
    for (int i = 0; i < pages; ++i) {
        if (i > 0 && !device.newPage())
            return Result::failure(
                QCoreApplication::translate("Report", "Unable to start printing."));
        painter.save();
        painter.scale(scale, scale);
        painter.translate(origin + m_shiftMm * kDotsPerMm - paintOrigin);
        paintPage(painter, i);
        painter.restore();
    }
    painter.end();
    return Result::success();
}

Result Report::exportPdf(const QString& path, const QString& title) const
{
    // Messages are QTF: the path is data.
    const QString failed = FillArgs(
        QCoreApplication::translate("Report", "Unable to write file %s."), {QtfEscape(path)});
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Result::failure(failed);
    {
        QPdfWriter writer(&file);
        writer.setResolution(600);
        writer.setCreator(QCoreApplication::applicationName());
        writer.setTitle(title);
        const QSizeF paper = paperSize() / 600.0;
        const QPageSize size(paper, QPageSize::Inch, QString(), QPageSize::ExactMatch);
        writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, QMarginsF()));
        const Result r = print(writer);
        if (!r)
            return r;
    }
    if (file.error() != QFileDevice::NoError || !file.flush())
        return Result::failure(failed);
    return Result::success();
}
