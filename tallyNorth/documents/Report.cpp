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
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <optional>

namespace {

constexpr double kDotsPerMm = 600 / 25.4;
// A4 in dots.
constexpr QSizeF kA4 = QSizeF(210 * kDotsPerMm, 297 * kDotsPerMm);

double Height(const QTextDocument* doc)
{
    return doc ? doc->documentLayout()->documentSize().height() : 0;
}

// Rows and paragraphs are laid out in chunks of about this many, each a document of its own:
// Qt's layout coordinates overflow at 2^25 units, and a small document lays out fast.
constexpr int kChunkWeight = 100;
constexpr double kMaxLayoutHeight = 30e6;
// Rows measured apart may differ from their page's own layout by a border's width.
constexpr double kSlack = 12;

// One top-level paragraph or table row as measured.
struct Measured
{
    int block = 0;
    int row = -1; // -1 for a paragraph
    double height = 0;
    double core = 0;      // table row: its height less the room its lines take
    double firstLine = 0; // paragraph: its first line's top below the item's top
    QList<double> cuts;   // paragraph: the bottoms of its lines below the item's top
};

// The header rows that repeat on every page: none when the table is all header.
int HeaderRows(const Qtf::Table& t)
{
    return t.format.headerRows < int(t.rows.size()) ? t.format.headerRows : 0;
}

// The room the lines above and below a row take in its cells; a row's own height, less these,
// is the same wherever the table is cut.
std::pair<double, double> RowRoom(const Qtf::Table& t, int row)
{
    double above = 0;
    double below = 0;
    for (int c = 0; c < int(t.rows.at(row).size()); ++c) {
        const Qtf::Cell& cell = t.rows.at(row).at(c);
        if (cell.covered)
            continue;
        const QtfCellLines lines = CellLines(t, row, c);
        above = std::max(above, lines.room(1));
        if (cell.format.vspan == 0)
            below = std::max(below, lines.room(3));
    }
    return {above, below};
}

// Rows [0, header) and [from, to) of t as a table of their own; the space before and after
// stays with the table's first and last row, spans end at the cut.
std::shared_ptr<Qtf::Table> Slice(const Qtf::Table& t, int header, int from, int to)
{
    auto out = std::make_shared<Qtf::Table>();
    out->format = t.format;
    out->format.headerRows = 0;
    out->format.pageBreak = false;
    out->format.keep = false;
    if (from > HeaderRows(t) || (header == 0 && from > 0))
        out->format.before = 0;
    if (to < int(t.rows.size()))
        out->format.after = 0;
    out->rows = t.rows.mid(0, header) + t.rows.mid(from, to - from);
    const int rows = int(out->rows.size());
    const int columns = out->columns();
    QSet<qint64> covered;
    for (int r = 0; r < rows; ++r) {
        const int last = r < header ? header - 1 : rows - 1;
        for (int c = 0; c < int(out->rows[r].size()); ++c) {
            Qtf::Cell& cell = out->rows[r][c];
            cell.covered = covered.contains(qint64(r) * columns + c);
            if (cell.covered)
                continue;
            cell.format.vspan = std::clamp(cell.format.vspan, 0, last - r);
            for (int dr = 0; dr <= cell.format.vspan; ++dr) {
                for (int dc = 0; dc <= cell.format.hspan; ++dc)
                    covered.insert(qint64(r + dr) * columns + c + dc);
            }
        }
    }
    return out;
}

double TextLength(const Qtf::Paragraph& p)
{
    double n = 0;
    for (const Qtf::Run& r : p.runs)
        n += r.text.size();
    return n;
}

bool IsFiller(const QTextBlock& b)
{
    const QTextBlockFormat f = b.blockFormat();
    return f.hasProperty(QtfProperty::Filler) || f.hasProperty(QtfProperty::Spacer);
}

// The tops of the top-level paragraphs and tables of a laid-out document, a paragraph's space
// block counted with it.
struct TopItem
{
    QTextBlock block;
    QTextTable* table = nullptr;
    double top = 0;
};

QList<TopItem> TopItems(const QTextDocument& doc)
{
    // Walks the root frame's blocks, jumping over each table (Qt's frame iterator looks at
    // every cell on its way).
    QAbstractTextDocumentLayout* layout = doc.documentLayout();
    const QList<QTextFrame*> frames = doc.rootFrame()->childFrames();
    QList<TopItem> items;
    double spacerTop = -1;
    qsizetype next = 0;
    for (QTextBlock b = doc.begin(); b.isValid();) {
        if (next < frames.size() && b.position() >= frames.at(next)->firstPosition()) {
            QTextFrame* frame = frames.at(next++);
            // A table starts where the filler block before it ends (Qt's frame rectangle
            // starts at the first cell's content).
            if (auto* table = qobject_cast<QTextTable*>(frame)) {
                const QTextBlock filler = doc.findBlock(frame->firstPosition() - 1);
                items.append({QTextBlock(), table, layout->blockBoundingRect(filler).bottom()});
            }
            spacerTop = -1;
            b = doc.findBlock(frame->lastPosition() + 1);
            continue;
        }
        if (b.blockFormat().hasProperty(QtfProperty::Spacer)) {
            spacerTop = layout->blockBoundingRect(b).top();
        } else if (!IsFiller(b)) {
            // Qt's block rectangle starts below the space before the paragraph.
            const double top = layout->blockBoundingRect(b).top() - b.blockFormat().topMargin();
            items.append({b, nullptr, spacerTop >= 0 ? spacerTop : top});
            spacerTop = -1;
        }
        b = b.next();
    }
    return items;
}

double LineTop(const QTextBlock& b, int line)
{
    const QTextLayout* tl = b.layout();
    if (!tl || tl->lineCount() == 0)
        return tl ? tl->position().y() : 0;
    return tl->position().y() + tl->lineAt(std::min(line, tl->lineCount() - 1)).y();
}

// A part of the body laid out on its own: whole paragraphs and runs of table rows.
struct ChunkPart
{
    int block = 0;
    int from = 0; // rows [from, to) of a table
    int to = 0;
};

// Measures the parts; false when the chunk is too tall for Qt's layout.
bool MeasureChunk(const Qtf::Document& body, const QList<ChunkPart>& parts, QtfLayout layout,
                  std::vector<Measured>& out)
{
    Qtf::Document chunk;
    for (const ChunkPart& p : parts) {
        Qtf::Block b = body.blocks.at(p.block);
        if (b.isTable())
            b.table = Slice(*b.table, 0, p.from, p.to);
        chunk.blocks.append(b);
    }
    layout.topAlignedCells = true;
    auto doc = MakeTextDocument(chunk, layout);
    QAbstractTextDocumentLayout* docLayout = doc->documentLayout();
    const double end = docLayout->documentSize().height();
    if (end > kMaxLayoutHeight)
        return false;
    const QList<TopItem> items = TopItems(*doc);
    if (items.size() != parts.size())
        return false;
    for (qsizetype i = 0; i < items.size(); ++i) {
        const TopItem& item = items.at(i);
        const ChunkPart& part = parts.at(i);
        const double bottom = i + 1 < items.size() ? items.at(i + 1).top : end;
        if (!item.table) {
            Measured m;
            m.block = part.block;
            m.height = bottom - item.top;
            m.firstLine = LineTop(item.block, 0) - item.top;
            const QTextLayout* tl = item.block.layout();
            for (int l = 0; tl && l < tl->lineCount(); ++l) {
                const QTextLine line = tl->lineAt(l);
                m.cuts.append(tl->position().y() + line.y() + line.height() - item.top);
            }
            if (!m.cuts.isEmpty())
                m.cuts.last() = m.height;
            out.push_back(m);
            continue;
        }
        // Cells are top-aligned here: a row starts where its cells' first lines do, less
        // their top margins and lines.
        QTextTable* table = item.table;
        const Qtf::Table& source = *body.blocks.at(part.block).table;
        const Qtf::Table& slice = *chunk.blocks.at(i).table;
        const int rows = table->rows();
        QList<double> rowTop(rows + 1, 1e300);
        for (int r = 0; r < rows; ++r) {
            for (int c = 0; c < table->columns(); ++c) {
                // Qt's cell geometry calls copy the cell's whole format: the source knows.
                const Qtf::Cell& cell = slice.rows.at(r).at(c);
                if (cell.covered)
                    continue;
                const QTextTableCell qcell = table->cellAt(r, c);
                const QTextBlock b = doc->findBlock(qcell.firstPosition());
                const double pad = cell.format.margin[1] + CellLines(slice, r, c).room(1);
                rowTop[r] = std::min(rowTop[r], docLayout->blockBoundingRect(b).top() - pad);
            }
        }
        // The table's own end: Qt keeps the space after it as its bottom margin.
        rowTop[rows] = bottom - table->format().bottomMargin();
        const double before = part.from == 0 ? source.format.before : 0;
        for (int r = 0; r < rows; ++r) {
            const double own = std::clamp(rowTop[r + 1], rowTop[r], bottom) - rowTop[r];
            const auto [sliceAbove, sliceBelow] = RowRoom(slice, r);
            const auto [above, below] = RowRoom(source, part.from + r);
            Measured m;
            m.block = part.block;
            m.row = part.from + r;
            m.core = std::max(0.0, own - sliceAbove - sliceBelow);
            // The first row carries the space before the table, the last the space after.
            m.height = m.core + above + below + (r == 0 ? before : 0) +
                       (r + 1 == rows ? bottom - rowTop[rows] : 0);
            out.push_back(m);
        }
    }
    return true;
}

// A page's share of one top-level paragraph or table.
struct Piece
{
    int block = 0;
    int from = 0; // table rows [from, to), under the header rows when header is set
    int to = 0;
    bool header = true;
    // Where the page's share of a paragraph or of a row taller than a page starts and ends:
    // from its first line's top (paragraph) or the row's top.
    std::optional<double> cutTop;
    std::optional<double> cutBottom;

    bool sameContent(const Piece& o) const
    {
        return block == o.block && from == o.from && to == o.to && header == o.header;
    }
};

struct Page
{
    QList<Piece> pieces;
};

// Places the measured items on pages of the given height: a table row never split unless it is
// taller than a page, a table's part on every page under its header rows, paragraphs cut
// between lines.
class Paginator
{
public:
    Paginator(const Qtf::Document& body, double height)
        : m_body(body), m_height(std::max(height - kSlack, 1.0))
    {
        m_pages.emplace_back();
    }

    std::vector<Page> run(const std::vector<Measured>& items)
    {
        for (size_t k = 0; k < items.size();) {
            if (items[k].row < 0) {
                paragraph(items, k);
                ++k;
            } else {
                k = table(items, k);
            }
        }
        return std::move(m_pages);
    }

private:
    bool empty() const { return m_pages.back().pieces.isEmpty(); }
    void newPage()
    {
        m_pages.emplace_back();
        m_used = 0;
    }
    void add(const Piece& p) { m_pages.back().pieces.append(p); }

    // The height from items[k] to the end of the first line or row after a run of paragraphs
    // kept with the next.
    double keptHeight(const std::vector<Measured>& items, size_t k) const
    {
        double need = 0;
        for (; k < items.size(); ++k) {
            const Measured& m = items[k];
            if (m.row >= 0) {
                const Qtf::Table& t = *m_body.blocks.at(m.block).table;
                for (size_t j = k;
                     j < items.size() && items[j].block == m.block && items[j].row <= HeaderRows(t);
                     ++j)
                    need += items[j].height;
                return need;
            }
            if (!m_body.blocks.at(m.block).paragraph.format.keepNext)
                return need + (m.cuts.isEmpty() ? m.height : m.cuts.first());
            need += m.height;
        }
        return need;
    }

    void paragraph(const std::vector<Measured>& items, size_t k)
    {
        const Measured& m = items[k];
        const Qtf::ParaFormat& f = m_body.blocks.at(m.block).paragraph.format;
        if ((f.pageBreak || m_body.blocks.at(m.block).pageBreak) && !empty())
            newPage();
        if (!empty()) {
            const bool fits = m_used + m.height <= m_height;
            const double kept = f.keepNext ? keptHeight(items, k) : 0;
            if ((!fits && f.keep && m.height <= m_height) ||
                (f.keepNext && m_used + kept > m_height && kept <= m_height))
                newPage();
        }
        double start = 0;
        for (;;) {
            const double room = m_height - m_used;
            Piece piece;
            piece.block = m.block;
            if (start > 0)
                piece.cutTop = start - m.firstLine;
            if (m.height - start <= room) {
                add(piece);
                m_used += m.height - start;
                return;
            }
            double cut = -1;
            for (double c : m.cuts) {
                if (c > start && c - start <= room)
                    cut = c;
                else if (c > start)
                    break;
            }
            if (cut < 0) {
                if (!empty()) {
                    newPage();
                    continue;
                }
                cut = start + room; // a line taller than the page
            }
            piece.cutBottom = cut - m.firstLine;
            add(piece);
            newPage();
            start = cut;
        }
    }

    size_t table(const std::vector<Measured>& items, size_t k)
    {
        const int block = items[k].block;
        const Qtf::Block& b = m_body.blocks.at(block);
        const Qtf::Table& t = *b.table;
        const int header = HeaderRows(t);
        double headerHeight = 0;
        double total = 0;
        size_t end = k;
        for (; end < items.size() && items[end].block == block && items[end].row >= 0; ++end) {
            total += items[end].height;
            if (items[end].row < header)
                headerHeight += items[end].height;
        }
        if ((b.pageBreak || t.format.pageBreak) && !empty())
            newPage();
        if (t.format.keep && !empty() && m_used + total > m_height && total <= m_height)
            newPage();
        // Rows were measured with grid lines above and below; where the table is cut the
        // frame takes their place.
        const double frame = std::max(0.0, t.format.frame - t.format.grid / 2.0);
        bool startPiece = true;
        for (size_t i = k; i < end; ++i) {
            const Measured& m = items[i];
            if (m.row < header)
                continue;
            const double opening = header == 0 && m.row > 0 ? frame : 0;
            const double closing = m.row + 1 < int(t.rows.size()) ? frame : 0;
            const bool fits =
                m_used + (startPiece ? headerHeight + opening : 0) + m.height + closing <= m_height;
            if (!fits && !empty()) {
                newPage();
                startPiece = true;
            }
            if (startPiece) {
                Piece piece;
                piece.block = block;
                piece.from = piece.to = m.row;
                add(piece);
                m_used += headerHeight + opening;
                startPiece = false;
            }
            if (m_used + m.height + closing > m_height) {
                tallRow(m);
                startPiece = true;
                continue;
            }
            m_pages.back().pieces.last().to = m.row + 1;
            m_used += m.height;
        }
        return end;
    }

    // A row taller than a page under its header: its slices fill pages of their own.
    void tallRow(const Measured& m)
    {
        Piece& first = m_pages.back().pieces.last();
        if (first.to == first.from)
            m_pages.back().pieces.removeLast();
        if (!empty())
            newPage();
        m_used = 0;
        for (double start = 0; start < m.height - 0.5; start += m_height) {
            if (start > 0)
                newPage();
            Piece slice;
            slice.block = m.block;
            slice.from = m.row;
            slice.to = m.row + 1;
            slice.header = false;
            slice.cutTop = start;
            if (m.height - start > m_height)
                slice.cutBottom = start + m_height;
            add(slice);
            m_used = std::min(m.height - start, m_height);
        }
    }

    const Qtf::Document& m_body;
    double m_height;
    double m_used = 0;
    std::vector<Page> m_pages;
};

// The body text of one page.
Qtf::Document PageText(const Qtf::Document& body, const Page& page)
{
    Qtf::Document out;
    for (const Piece& p : page.pieces) {
        Qtf::Block b = body.blocks.at(p.block);
        b.pageBreak = false;
        b.paragraph.format.pageBreak = false;
        if (b.isTable())
            b.table = Slice(*b.table, p.header ? HeaderRows(*b.table) : 0, p.from, p.to);
        out.blocks.append(b);
    }
    return out;
}

// The page's part of a table is drawn row by row from the measured heights: Qt tells no row's
// place.
void PaintTableLines(QPainter& painter, double tableTop, const Qtf::Table& slice,
                     const Qtf::Table& source, const QList<double>& cores, const Piece& piece,
                     double width)
{
    if (cores.isEmpty())
        return;
    const int header = piece.header ? HeaderRows(source) : 0;
    const int rows = int(slice.rows.size());
    const double top = tableTop + slice.format.before;
    QList<double> bottoms;
    bottoms.reserve(rows);
    double y = top;
    for (int r = 0; r < rows; ++r) {
        const int row = r < header ? r : piece.from + r - header;
        const auto [above, below] = RowRoom(slice, r);
        y += cores.value(row) + above + below;
        bottoms.append(y);
    }
    PaintQtfTableLines(painter, slice, slice.format.leftIndent, width - slice.format.rightIndent,
                       top, bottoms);
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
    Qtf::Document text;
    // The height of every table row less the room its lines take, by block and row.
    std::vector<QList<double>> rowCores;
    std::vector<Page> pageList;
    double headerHeight = 0;
    double footerHeight = 0;
    double bodyTop = 0;
    double bodyHeight = 0;
    int pages = 1;
    // The last page's document: the pages of a paragraph longer than a page share it.
    mutable int cachedPage = -1;
    mutable std::unique_ptr<QTextDocument> cached;
    mutable Qtf::Document cachedText;
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
    layout.ownTableLines = true;
    // Page fields are measured at their widest.
    layout.pageNumber = layout.pageCount = 10000;
    s.text = ReadQtf(s.body);
    s.cached.reset();
    s.cachedPage = -1;
    const Qtf::Document& body = s.text;
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

    std::vector<Measured> items;
    QList<ChunkPart> parts;
    double weight = 0;
    const auto measure = [&] {
        if (!parts.isEmpty() && !MeasureChunk(body, parts, layout, items))
            m_error = QCoreApplication::translate(
                "Report", "The report cannot be laid out: a paragraph or table row in it is "
                          "too long.");
        parts.clear();
        weight = 0;
    };
    for (int i = 0; i < int(body.blocks.size()); ++i) {
        const Qtf::Block& b = body.blocks.at(i);
        if (!b.isTable()) {
            parts.append({i, 0, 0});
            weight += 1 + TextLength(b.paragraph) / 2000;
            if (weight >= kChunkWeight)
                measure();
            continue;
        }
        const int rows = int(b.table->rows.size());
        for (int from = 0; from < rows;) {
            const int to = std::min<int>(rows, from + std::max(1, kChunkWeight - int(weight)));
            parts.append({i, from, to});
            weight += to - from;
            from = to;
            if (weight >= kChunkWeight)
                measure();
        }
    }
    measure();
    s.rowCores.assign(body.blocks.size(), {});
    for (const Measured& m : items) {
        if (m.row < 0)
            continue;
        QList<double>& cores = s.rowCores[m.block];
        if (cores.isEmpty())
            cores.resize(body.blocks.at(m.block).table->rows.size());
        cores[m.row] = m.core;
    }
    s.pageList = Paginator(body, s.bodyHeight).run(items);
    s.pages = int(s.pageList.size());
}

void Report::layout() const
{
    if (m_laidOut)
        return;
    if (m_sections.empty())
        m_sections.push_back(std::make_unique<Section>());
    m_error.clear();
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

QString Report::layoutError() const
{
    layout();
    return m_error;
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
    if (local >= int(s.pageList.size()) || s.pageList.at(local).pieces.isEmpty()) {
        painter.restore();
        return;
    }
    const Page& pg = s.pageList.at(local);
    // The pieces of a paragraph over many pages are the same: its document is laid out once.
    const auto samePieces = [&](int other) {
        if (other < 0 || other >= int(s.pageList.size()))
            return false;
        const QList<Piece>& a = s.pageList.at(other).pieces;
        if (a.size() != 1 || pg.pieces.size() != 1)
            return false;
        return a.first().sameContent(pg.pieces.first());
    };
    if (!s.cached || s.cachedPage != local) {
        if (!(s.cached && samePieces(s.cachedPage))) {
            QtfLayout layout;
            layout.units = QtfUnits::Dots;
            layout.width = m_page.width();
            layout.pageNumber = local + 1;
            layout.pageCount = s.pages;
            layout.ownTableLines = true;
            s.cachedText = PageText(s.text, pg);
            s.cached = MakeTextDocument(s.cachedText, layout);
        }
        s.cachedPage = local;
    }
    const QTextDocument& doc = *s.cached;
    const QList<TopItem> items = TopItems(doc);
    // Where a cut piece's part starts and ends in the page's document.
    const auto anchor = [&](const TopItem& item) {
        return item.table ? item.top : LineTop(item.block, 0);
    };
    double shift = 0;
    double height = s.bodyHeight;
    if (!items.isEmpty() && pg.pieces.first().cutTop)
        shift = anchor(items.first()) + *pg.pieces.first().cutTop;
    if (!items.isEmpty() && pg.pieces.last().cutBottom)
        height = std::min(height, anchor(items.last()) + *pg.pieces.last().cutBottom - shift);
    // Content wider than the page may spill sideways, never onto the next page's part.
    painter.translate(0, s.bodyTop);
    painter.setClipRect(QRectF(-width, 0, 3 * width, height), Qt::IntersectClip);
    painter.translate(0, -shift);
    QAbstractTextDocumentLayout::PaintContext context;
    // Qt also draws what only touches the clip's edge: the next line.
    context.clip = QRectF(-width, shift, 3 * width, height - 0.5);
    context.palette.setColor(QPalette::Text, Qt::black);
    doc.documentLayout()->draw(&painter, context);
    PaintQtfExtras(painter, doc, context.clip);
    for (qsizetype i = 0; i < items.size() && i < pg.pieces.size(); ++i) {
        const Piece& piece = pg.pieces.at(i);
        const Qtf::Block& b = s.cachedText.blocks.at(i);
        if (items.at(i).table && b.isTable())
            PaintTableLines(painter, items.at(i).top, *b.table,
                            *s.text.blocks.at(piece.block).table, s.rowCores.at(piece.block), piece,
                            width);
    }
    painter.restore();
}

Result Report::print(QPagedPaintDevice& device) const
{
    const int pages = pageCount();
    if (!m_error.isEmpty())
        return Result::failure(m_error);
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
