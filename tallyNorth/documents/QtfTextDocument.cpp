#include "QtfTextDocument.h"

#include "QtfReader.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextList>
#include <QTextTable>
#include <QUrl>

#include <algorithm>
#include <cmath>

// The resolution Qt lays out screen documents at (the screen's logical DPI).
Q_GUI_EXPORT int qt_defaultDpiY();

using namespace Qtf;

namespace {

QStringList Families(const CharFormat& f)
{
    static const QStringList sans = {QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                                     QStringLiteral("Arimo"), QStringLiteral("DejaVu Sans")};
    static const QStringList serif = {QStringLiteral("Times New Roman"),
                                      QStringLiteral("Liberation Serif"), QStringLiteral("Tinos"),
                                      QStringLiteral("DejaVu Serif")};
    static const QStringList mono = {QStringLiteral("Courier New"),
                                     QStringLiteral("Liberation Mono"), QStringLiteral("Cousine"),
                                     QStringLiteral("DejaVu Sans Mono")};
    switch (f.face) {
    case Face::Serif:
        return serif;
    case Face::Mono:
        return mono;
    case Face::Gui:
        return QGuiApplication::font().families() + sans;
    case Face::Named:
        return QStringList{f.faceName} + sans;
    case Face::Sans:
    case Face::Symbol:
        break;
    }
    return sans;
}

QFont::StyleHint StyleHint(Face face)
{
    switch (face) {
    case Face::Serif:
        return QFont::Serif;
    case Face::Mono:
        return QFont::TypeWriter;
    default:
        return QFont::SansSerif;
    }
}

QTextOption::TabType TabType(TabStop::Kind kind)
{
    switch (kind) {
    case TabStop::Kind::Right:
        return QTextOption::RightTab;
    case TabStop::Kind::Center:
        return QTextOption::CenterTab;
    case TabStop::Kind::Left:
        break;
    }
    return QTextOption::LeftTab;
}

Qt::Alignment Alignment(Align align)
{
    switch (align) {
    case Align::Center:
        return Qt::AlignHCenter;
    case Align::Right:
        return Qt::AlignRight;
    case Align::Justify:
        return Qt::AlignJustify;
    case Align::Left:
        break;
    }
    return Qt::AlignLeft;
}

QString RomanNumber(int n)
{
    static const std::pair<int, const char*> parts[] = {
        {1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"}, {90, "xc"}, {50, "l"},
        {40, "xl"},  {10, "x"},   {9, "ix"},  {5, "v"},    {4, "iv"},  {1, "i"}};
    QString out;
    for (const auto& [value, text] : parts) {
        while (n >= value && out.size() < 32) {
            out += QLatin1String(text);
            n -= value;
        }
    }
    return out;
}

QString LetterNumber(int n)
{
    QString out;
    while (n > 0 && out.size() < 8) {
        out.prepend(QChar(u'a' + (n - 1) % 26));
        n = (n - 1) / 26;
    }
    return out;
}

// Qt looks for the end of a word on every line it breaks the word into: a very long word gets
// an invisible break opportunity every so often.
QString Breakable(const QString& text, int& wordLength)
{
    constexpr int kLongWord = 1000;
    QString out;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isSpace()) {
            wordLength = 0;
        } else if (++wordLength > kLongWord) {
            out += QStringView(text).mid(copied, i - copied);
            out += QChar(0x200B);
            copied = i;
            wordLength = 1;
        }
    }
    if (copied == 0)
        return text;
    out += QStringView(text).mid(copied);
    return out;
}

class Builder
{
public:
    Builder(QTextDocument& doc, const QtfLayout& layout)
        : m_doc(doc), m_layout(layout), m_unit(QtfUnitsPerDot(layout.units))
    {
    }

    void build(const Document& qtf)
    {
        m_doc.setDocumentMargin(0);
        m_doc.setUseDesignMetrics(true);
        QTextOption option = m_doc.defaultTextOption();
        option.setTabStopDistance(296 * m_unit);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_doc.setDefaultTextOption(option);
        m_doc.setDefaultFont(charFormat(CharFormat()).font());
        if (m_layout.width > 0)
            m_doc.setTextWidth(m_layout.width * m_unit);
        // Nothing to undo; in one edit block Qt neither records each insertion nor works out
        // the cursor's line after it (which lays the whole paragraph out every time).
        m_doc.setUndoRedoEnabled(false);
        QTextCursor cursor(&m_doc);
        cursor.beginEditBlock();
        flow(cursor, qtf.blocks, m_layout.width);
        cursor.endEditBlock();
        applyMinHeights();
    }

private:
    void flow(QTextCursor& cursor, const QList<Block>& blocks, double width);
    void paragraph(QTextCursor& cursor, const Paragraph& p, double width, double gap, bool first,
                   bool last);
    void runs(QTextCursor& cursor, const Paragraph& p);
    void table(QTextCursor& cursor, const Block& block, double width, double extraAfter);
    void cell(QTextTable* table, const Table& t, int row, int col, double tableWidth);
    QTextBlockFormat blockFormat(const ParaFormat& f, double width) const;
    QTextCharFormat charFormat(const CharFormat& f) const;
    QTextImageFormat objectFormat(const Run& run);
    QString numberLabel(const ParaFormat& f);
    void markFiller(QTextCursor& cursor);
    void setBlockCharFormat(QTextCursor& cursor, const QTextCharFormat& format);
    void applyMinHeights();
    double units(double dots) const { return dots * m_unit; }
    // The caller draws the lines of top-level tables only.
    bool ownLines() const { return m_layout.ownTableLines && m_depth == 0; }

    // A cell with a minimum height, sized once the document is laid out.
    struct MinHeight
    {
        QTextTable* table = nullptr;
        int row = 0;
        int col = 0;
        double height = 0; // layout units, less the margins
    };

    QTextDocument& m_doc;
    QtfLayout m_layout;
    double m_unit;
    int m_objects = 0;
    int m_counters[8] = {};
    QTextList* m_list = nullptr;
    Bullet m_listBullet = Bullet::None;
    bool m_cellStart = false;
    int m_depth = 0;      // tables around the flow being built
    int m_wordLength = 0; // letters since the last space
    QList<MinHeight> m_minHeights;
};

// The first block of a table cell carries the cell's format as its character format.
void Builder::setBlockCharFormat(QTextCursor& cursor, const QTextCharFormat& format)
{
    if (m_cellStart)
        cursor.mergeBlockCharFormat(format);
    else
        cursor.setBlockCharFormat(format);
    m_cellStart = false;
}

// Qt keeps a block before and after every table; in QTF there is none, so they get no height.
void Builder::markFiller(QTextCursor& cursor)
{
    QTextBlockFormat bf;
    bf.setLineHeight(0, QTextBlockFormat::FixedHeight);
    bf.setProperty(QtfProperty::Filler, true);
    cursor.setBlockFormat(bf);
    QTextCharFormat cf;
    cf.setFontPointSize(0.05);
    setBlockCharFormat(cursor, cf);
}

void Builder::flow(QTextCursor& cursor, const QList<Block>& blocks, double width)
{
    // The cursor stands in an empty block that the first paragraph takes over.
    bool blockFree = true;
    m_list = nullptr;
    for (qsizetype i = 0; i < blocks.size(); ++i) {
        const Block& b = blocks.at(i);
        const Block* next = i + 1 < blocks.size() ? &blocks.at(i + 1) : nullptr;
        if (b.isTable()) {
            if (!blockFree)
                cursor.insertBlock();
            markFiller(cursor);
            // Qt lays out no space above the block after a table: the table keeps it.
            const ParaFormat* following =
                next && !next->isTable() ? &next->paragraph.format : nullptr;
            table(cursor, b, width, following ? following->before + following->rulerHeight : 0);
            m_list = nullptr;
            blockFree = true;
            continue;
        }
        const ParaFormat& f = b.paragraph.format;
        const bool afterTable = i > 0 && blocks.at(i - 1).isTable();
        double gap = 0;
        if (!afterTable)
            gap = f.before + f.rulerHeight + (i > 0 ? blocks.at(i - 1).paragraph.format.after : 0);
        if (!blockFree)
            cursor.insertBlock();
        paragraph(cursor, b.paragraph, width, gap, i == 0, !next || next->isTable());
        // Qt gives an empty block beside a table no height; an empty QTF paragraph has one.
        if (b.paragraph.runs.isEmpty() && (afterTable || (next && next->isTable())))
            cursor.insertText(QString(QChar(0x200B)), charFormat(b.paragraph.endFormat));
        blockFree = false;
    }
    if (blockFree)
        markFiller(cursor);
}

// QTF adds the space after a paragraph to the space before the next; Qt takes the larger one
// and ignores it altogether for the first block of a frame. So the whole gap goes to the top of
// the next paragraph, and a frame's first paragraph gets a spacer line instead.
void Builder::paragraph(QTextCursor& cursor, const Paragraph& p, double width, double gap,
                        bool first, bool last)
{
    const ParaFormat& f = p.format;
    QTextBlockFormat bf = blockFormat(f, width);
    if (first && gap > 0) {
        QTextBlockFormat spacer;
        spacer.setLineHeight(units(gap), QTextBlockFormat::FixedHeight);
        spacer.setPageBreakPolicy(bf.pageBreakPolicy());
        spacer.setProperty(QtfProperty::KeepNext, true);
        spacer.setProperty(QtfProperty::Spacer, true);
        cursor.setBlockFormat(spacer);
        QTextCharFormat tiny;
        tiny.setFontPointSize(0.05);
        setBlockCharFormat(cursor, tiny);
        cursor.insertBlock();
        bf.setPageBreakPolicy(QTextFormat::PageBreak_Auto);
    } else {
        bf.setTopMargin(units(gap));
    }
    if (last)
        bf.setBottomMargin(units(f.after));
    if (f.rulerHeight > 0) {
        bf.setProperty(QtfProperty::Ruler,
                       QVariantList{units(f.rulerHeight), f.rulerColor, f.rulerStyle,
                                    units(f.before), units(width - f.leftMargin - f.rightMargin),
                                    units(f.leftMargin)});
    }
    cursor.setBlockFormat(bf);
    // In a cell's first block that format is the cell's: every property more makes Qt's table
    // layout slower, and a paragraph with text takes its height from the text.
    if (m_cellStart && !p.runs.isEmpty())
        m_cellStart = false;
    else
        setBlockCharFormat(cursor, charFormat(p.endFormat));

    const bool listed = f.bullet != Bullet::None && f.bullet != Bullet::Text;
    if (listed) {
        if (!m_list || m_listBullet != f.bullet) {
            QTextListFormat lf;
            lf.setIndent(0);
            lf.setStyle(f.bullet == Bullet::Round        ? QTextListFormat::ListDisc
                        : f.bullet == Bullet::WhiteRound ? QTextListFormat::ListCircle
                                                         : QTextListFormat::ListSquare);
            m_list = cursor.createList(lf);
            m_listBullet = f.bullet;
        } else {
            m_list->add(cursor.block());
        }
    } else {
        m_list = nullptr;
    }
    if (!f.numbering.isEmpty()) {
        const QString label = numberLabel(f);
        if (!label.isEmpty())
            cursor.insertText(label + QChar(0x2002), charFormat(p.endFormat));
    }
    runs(cursor, p);
}

QTextBlockFormat Builder::blockFormat(const ParaFormat& f, double width) const
{
    QTextBlockFormat bf;
    bf.setAlignment(Alignment(f.align));
    int left = f.leftMargin;
    int indent = f.indent;
    if (f.bullet != Bullet::None || !f.numbering.isEmpty()) {
        // The mark sits in the indent; every line starts after it (with a text bullet only
        // the lines after the first).
        left += f.indent;
        indent = f.bullet == Bullet::Text || !f.numbering.isEmpty() ? -f.indent : 0;
    }
    bf.setLeftMargin(units(left));
    bf.setRightMargin(units(f.rightMargin));
    bf.setTextIndent(units(indent));
    if (f.pageBreak)
        bf.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    if (f.keep)
        bf.setProperty(QtfProperty::Keep, true);
    if (f.keepNext)
        bf.setProperty(QtfProperty::KeepNext, true);
    switch (f.spacing) {
    case LineSpacing::OneFifteen:
        bf.setLineHeight(115, QTextBlockFormat::ProportionalHeight);
        break;
    case LineSpacing::OneHalf:
        bf.setLineHeight(150, QTextBlockFormat::ProportionalHeight);
        break;
    case LineSpacing::Double:
        bf.setLineHeight(200, QTextBlockFormat::ProportionalHeight);
        break;
    case LineSpacing::Single:
        break;
    }

    // Tab stops count from the paragraph's left margin; Qt counts from where each line starts,
    // so the first line's indent is taken off (tabs live in first lines). The leader painter
    // compares the stops with positions in the whole line.
    QList<QTextOption::Tab> tabs;
    // Every stop goes into the leaders list so that painting finds the stop a tab reached.
    QVariantList leaders;
    bool anyLeader = false;
    int last = 0;
    for (const TabStop& t : f.tabs) {
        const double pos = t.fromRight ? width - f.rightMargin - left - t.pos : t.pos;
        tabs << QTextOption::Tab(units(pos - indent), TabType(t.kind));
        leaders << QPointF(units(left + pos), t.fill);
        anyLeader = anyLeader || t.fill;
        last = std::max(last, int(pos));
    }
    if (f.tabSize != 296 && f.tabSize > 0) {
        // Qt has one default tab width per document: a paragraph's own becomes stops.
        for (int pos = f.tabSize; left + pos < width && tabs.size() < 200; pos += f.tabSize) {
            if (pos > last)
                tabs << QTextOption::Tab(units(pos - indent), QTextOption::LeftTab);
        }
    }
    if (!tabs.isEmpty())
        bf.setTabPositions(tabs);
    if (anyLeader)
        bf.setProperty(QtfProperty::Leaders, leaders);
    if (!f.label.isEmpty())
        bf.setProperty(QTextFormat::AnchorName, f.label);
    return bf;
}

QTextCharFormat Builder::charFormat(const CharFormat& f) const
{
    QTextCharFormat cf;
    cf.setFontFamilies(Families(f));
    cf.setFontStyleHint(StyleHint(f.face));
    double dots = f.height;
    if (f.guiHeight) {
        const QFont gui = QGuiApplication::font();
        dots = gui.pointSizeF() > 0 ? gui.pointSizeF() / 0.12 : 75;
    }
    if (m_layout.units == QtfUnits::Dots)
        cf.setProperty(QTextFormat::FontPixelSize, std::max(1, int(std::lround(dots))));
    else
        cf.setFontPointSize(std::max(0.5, dots * 0.12));
    cf.setFontWeight(f.bold ? QFont::Bold : QFont::Normal);
    cf.setFontItalic(f.italic);
    cf.setFontUnderline(f.underline || f.dashed);
    if (f.dashed)
        cf.setUnderlineStyle(QTextCharFormat::DashUnderline);
    cf.setFontStrikeOut(f.strikeout);
    if (f.superscript)
        cf.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
    else if (f.subscript)
        cf.setVerticalAlignment(QTextCharFormat::AlignSubScript);
    if (f.capitals)
        cf.setFontCapitalization(QFont::SmallCaps);
    if (f.noAntialias)
        cf.setFontStyleStrategy(QFont::NoAntialias);
    cf.setForeground(f.ink);
    if (f.paper.alpha() > 0)
        cf.setBackground(f.paper);
    if (!f.link.isEmpty()) {
        cf.setAnchor(true);
        cf.setAnchorHref(f.link);
    }
    return cf;
}

void Builder::runs(QTextCursor& cursor, const Paragraph& p)
{
    m_wordLength = 0;
    for (const Run& r : p.runs) {
        switch (r.kind) {
        case Run::Kind::Text:
            cursor.insertText(Breakable(r.text, m_wordLength), charFormat(r.format));
            break;
        case Run::Kind::Object: {
            QTextImageFormat image = objectFormat(r);
            image.merge(charFormat(r.format));
            cursor.insertImage(image);
            break;
        }
        case Run::Kind::Field: {
            int value = 0;
            if (r.type == QLatin1String("VALUE") && r.text == QLatin1String("PAGENUMBER"))
                value = m_layout.pageNumber;
            else if (r.type == QLatin1String("VALUE") && r.text == QLatin1String("PAGECOUNT"))
                value = m_layout.pageCount;
            if (value > 0)
                cursor.insertText(QString::number(value), charFormat(r.format));
            break;
        }
        }
    }
}

QTextImageFormat Builder::objectFormat(const Run& run)
{
    QImage image;
    if (run.type == QLatin1String("PNG") || run.type == QLatin1String("rawimage"))
        image = QImage::fromData(run.data);
    if (image.isNull()) {
        // What cannot be shown keeps its place as a grey box.
        image = QImage(48, 48, QImage::Format_RGB32);
        image.fill(QColor(224, 224, 224));
        QPainter painter(&image);
        painter.setPen(QColor(128, 128, 128));
        painter.drawRect(0, 0, 47, 47);
    }
    const QString name = QStringLiteral("qtf-object:%1").arg(++m_objects);
    m_doc.addResource(QTextDocument::ImageResource, QUrl(name), image);
    QTextImageFormat f;
    f.setName(name);
    f.setWidth(units(std::max(run.cx, 1)));
    f.setHeight(units(std::max(run.cy, 1)));
    return f;
}

QString Builder::numberLabel(const ParaFormat& f)
{
    int level = int(f.numbering.size()) - 1;
    while (level >= 0 && f.numbering.at(level) == u'-')
        --level;
    if (level < 0)
        return QString();
    if (f.restartNumbering)
        std::fill(std::begin(m_counters), std::end(m_counters), 0);
    ++m_counters[level];
    std::fill(std::begin(m_counters) + level + 1, std::end(m_counters), 0);
    QStringList parts;
    for (int i = 0; i <= level; ++i) {
        const QChar code = f.numbering.at(i);
        const int n = m_counters[i];
        switch (code.unicode()) {
        case '1':
            parts << QString::number(n);
            break;
        case '0':
            parts << QString::number(n - 1);
            break;
        case 'a':
            parts << LetterNumber(n);
            break;
        case 'A':
            parts << LetterNumber(n).toUpper();
            break;
        case 'i':
            parts << RomanNumber(n);
            break;
        case 'I':
            parts << RomanNumber(n).toUpper();
            break;
        default:
            break;
        }
    }
    return f.numberBefore + parts.join(u'.') + f.numberAfter;
}

void Builder::table(QTextCursor& cursor, const Block& block, double width, double extraAfter)
{
    const Table& t = *block.table;
    const int rows = int(t.rows.size());
    const int cols = t.columns();
    if (rows == 0 || cols == 0)
        return;
    const TableFormat& f = t.format;
    QTextTableFormat tf;
    tf.setBorderCollapse(!ownLines());
    tf.setBorder(0);
    tf.setCellPadding(0);
    tf.setCellSpacing(0);
    tf.setLeftMargin(units(f.leftIndent));
    tf.setRightMargin(units(f.rightIndent));
    tf.setTopMargin(units(f.before));
    tf.setBottomMargin(units(f.after + extraAfter));
    tf.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    tf.setAlignment(Qt::AlignLeft);
    QList<QTextLength> widths;
    if (ownLines()) {
        // Where Qt's collapsed borders put the columns.
        const double span = std::max(1.0, width - f.leftIndent - f.rightIndent);
        const QList<double> x = QtfColumnEdges(t, 0, span);
        // The last column takes what Qt's rounding leaves.
        for (int c = 0; c + 1 < cols; ++c)
            widths << QTextLength(QTextLength::PercentageLength, (x[c + 1] - x[c]) * 100 / span);
        widths << QTextLength(QTextLength::VariableLength, 0);
    } else {
        for (int w : f.widths)
            widths << QTextLength(QTextLength::PercentageLength, w / 100.0);
    }
    tf.setColumnWidthConstraints(widths);
    tf.setHeaderRowCount(f.headerRows);
    if (block.pageBreak || f.pageBreak)
        tf.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    if (f.keep)
        tf.setProperty(QtfProperty::Keep, true);

    QTextTable* table = cursor.insertTable(rows, cols, tf);
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < cols; ++c) {
            const Cell& cell = t.rows[r][c];
            if (!cell.covered && (cell.format.hspan > 0 || cell.format.vspan > 0))
                table->mergeCells(r, c, cell.format.vspan + 1, cell.format.hspan + 1);
        }
    }
    const double tableWidth = width - f.leftIndent - f.rightIndent;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < cols; ++c) {
            if (!t.rows[r][c].covered)
                cell(table, t, r, c, tableWidth);
        }
    }
    cursor = table->lastCursorPosition();
    cursor.movePosition(QTextCursor::NextBlock);
}

// Qt draws collapsed borders per cell: a side takes the grid (inside) or frame (outside) line,
// or the cell's own border where that is wider.
void Builder::cell(QTextTable* table, const Table& t, int row, int col, double tableWidth)
{
    const Cell& cell = t.rows[row][col];
    const CellFormat& f = cell.format;
    const TableFormat& tf = t.format;
    const int rows = int(t.rows.size());
    const int cols = t.columns();
    QTextTableCellFormat cf;
    const VAlign valign = m_layout.topAlignedCells ? VAlign::Top : f.valign;
    cf.setVerticalAlignment(valign == VAlign::Top      ? QTextCharFormat::AlignTop
                            : valign == VAlign::Bottom ? QTextCharFormat::AlignBottom
                                                       : QTextCharFormat::AlignMiddle);
    QtfCellLines lines;
    if (ownLines())
        lines = CellLines(t, row, col);
    cf.setLeftPadding(units(f.margin[0] + lines.room(0)));
    cf.setTopPadding(units(f.margin[1] + lines.room(1)));
    cf.setRightPadding(units(f.margin[2] + lines.room(2)));
    cf.setBottomPadding(units(f.margin[3] + lines.room(3)));
    // White cells on the page's white paper need no painting.
    if (f.background.alpha() > 0 && !m_layout.topAlignedCells &&
        (f.background != Qt::white || m_depth > 0 || m_layout.units != QtfUnits::Dots))
        cf.setBackground(f.background);
    const bool edge[4] = {col == 0, row == 0, col + f.hspan >= cols - 1, row + f.vspan >= rows - 1};
    double width[4];
    QColor color[4];
    for (int s = 0; s < 4; ++s) {
        const int line = edge[s] ? tf.frame : tf.grid;
        width[s] = std::max(line, f.border[s]);
        color[s] = f.border[s] > line ? f.borderColor : edge[s] ? tf.frameColor : tf.gridColor;
    }
    // Every property a cell's format holds more slows Qt's table layout down: sides without a
    // line get none, and a document only measured needs no colours.
    for (int s = 0; s < 4; ++s) {
        if (width[s] <= 0 || ownLines())
            continue;
        static constexpr QTextFormat::Property kWidth[4] = {
            QTextFormat::TableCellLeftBorder, QTextFormat::TableCellTopBorder,
            QTextFormat::TableCellRightBorder, QTextFormat::TableCellBottomBorder};
        static constexpr QTextFormat::Property kStyle[4] = {
            QTextFormat::TableCellLeftBorderStyle, QTextFormat::TableCellTopBorderStyle,
            QTextFormat::TableCellRightBorderStyle, QTextFormat::TableCellBottomBorderStyle};
        static constexpr QTextFormat::Property kBrush[4] = {
            QTextFormat::TableCellLeftBorderBrush, QTextFormat::TableCellTopBorderBrush,
            QTextFormat::TableCellRightBorderBrush, QTextFormat::TableCellBottomBorderBrush};
        cf.setProperty(kWidth[s], units(width[s]));
        cf.setProperty(kStyle[s], int(QTextFrameFormat::BorderStyle_Solid));
        if (!m_layout.topAlignedCells)
            cf.setProperty(kBrush[s], QBrush(color[s]));
    }
    QTextTableCell qcell = table->cellAt(row, col);
    qcell.setFormat(cf); // keeps the spans
    int share = 0;
    for (int c = col; c <= std::min(col + f.hspan, cols - 1); ++c)
        share += tf.widths.at(c);
    const double contentWidth = tableWidth * share / 10000.0 - f.margin[0] - f.margin[2];
    QTextCursor cursor = qcell.firstCursorPosition();
    m_cellStart = true;
    ++m_depth;
    flow(cursor, cell.blocks, std::max(contentWidth, 1.0));
    --m_depth;
    m_cellStart = false;

    if (f.minHeight > f.margin[1] + f.margin[3])
        m_minHeights.append({table, row, col, units(f.minHeight - f.margin[1] - f.margin[3])});
}

// Qt knows no minimum cell height: once the content's height is known, the missing height goes
// into the cell's padding on the side its vertical alignment leaves free.
void Builder::applyMinHeights()
{
    if (m_minHeights.isEmpty())
        return;
    QAbstractTextDocumentLayout* layout = m_doc.documentLayout();
    layout->documentSize(); // lays out
    struct Change
    {
        QTextTableCell cell;
        double missing;
    };
    QList<Change> changes;
    for (const MinHeight& m : std::as_const(m_minHeights)) {
        const QTextTableCell cell = m.table->cellAt(m.row, m.col);
        double top = 1e300;
        double bottom = -1e300;
        for (QTextBlock b = m_doc.findBlock(cell.firstPosition());
             b.isValid() && b.position() <= cell.lastPosition(); b = b.next()) {
            const QRectF r = layout->blockBoundingRect(b);
            top = std::min(top, r.top());
            bottom = std::max(bottom, r.bottom());
        }
        const double missing = m.height - std::max(0.0, bottom - top);
        if (missing > 0.01)
            changes.append({cell, missing});
    }
    for (Change& c : changes) {
        QTextTableCellFormat f = c.cell.format().toTableCellFormat();
        switch (f.verticalAlignment()) {
        case QTextCharFormat::AlignTop:
            f.setBottomPadding(f.bottomPadding() + c.missing);
            break;
        case QTextCharFormat::AlignBottom:
            f.setTopPadding(f.topPadding() + c.missing);
            break;
        default:
            f.setTopPadding(f.topPadding() + c.missing / 2);
            f.setBottomPadding(f.bottomPadding() + c.missing / 2);
            break;
        }
        c.cell.setFormat(f);
    }
    // Qt keeps the table's layout after a cell's format changes.
    if (!changes.isEmpty())
        m_doc.markContentsDirty(0, m_doc.characterCount());
}

void DrawLeader(QPainter& painter, char fill, QPointF from, double to, const QFont& font)
{
    const double size = QFontMetricsF(font, painter.device()).height();
    QPen pen(painter.pen().color());
    pen.setWidthF(std::max(size / 16, 0.5));
    pen.setCapStyle(fill == '.' ? Qt::RoundCap : Qt::FlatCap);
    if (fill == '.') {
        pen.setWidthF(std::max(size / 10, 0.5));
        pen.setDashPattern({0.0001, size / 3 / pen.widthF()});
    } else if (fill == '-') {
        pen.setDashPattern({3, 2});
    }
    painter.setPen(pen);
    painter.drawLine(QPointF(from.x() + size / 8, from.y()), QPointF(to - size / 8, from.y()));
}

// Only the lines inside clip are looked at: a paragraph may run over many pages.
void PaintLeaders(QPainter& painter, const QTextBlock& block, const QRectF& rect,
                  const QRectF& clip)
{
    const QVariantList leaders = block.blockFormat().property(QtfProperty::Leaders).toList();
    const QString text = block.text();
    QTextLayout* layout = block.layout();
    QTextBlock::iterator fragment = block.begin();
    for (int l = 0; l < layout->lineCount(); ++l) {
        const QTextLine line = layout->lineAt(l);
        const double top = rect.top() + line.y();
        if (top > clip.bottom())
            break;
        if (top + line.height() < clip.top())
            continue;
        const int end = std::min<int>(line.textStart() + line.textLength(), int(text.size()));
        for (int i = line.textStart(); i < end; ++i) {
            if (text.at(i) != u'\t')
                continue;
            const double x1 = line.cursorToX(i);
            const double x2 = line.cursorToX(i + 1);
            char fill = 0;
            double best = 1e300;
            for (const QVariant& v : leaders) {
                const QPointF stop = v.toPointF();
                if (stop.x() > x1 && stop.x() < best) {
                    best = stop.x();
                    fill = char(stop.y());
                }
            }
            if (!fill || x2 <= x1)
                continue;
            // The tab's own format: fragments come in text order.
            const int position = block.position() + i;
            while (!fragment.atEnd() &&
                   fragment.fragment().position() + fragment.fragment().length() <= position)
                ++fragment;
            if (fragment.atEnd())
                break;
            const QTextCharFormat format = fragment.fragment().charFormat();
            painter.setPen(format.foreground().color());
            const double y = top + line.ascent();
            DrawLeader(painter, fill, QPointF(rect.left() + x1, y), rect.left() + x2,
                       format.font());
        }
    }
}

void PaintRuler(QPainter& painter, const QTextBlock& block, const QRectF& rect)
{
    const QVariantList ruler = block.blockFormat().property(QtfProperty::Ruler).toList();
    if (ruler.size() < 6)
        return;
    const double height = ruler.at(0).toDouble();
    QPen pen(ruler.at(1).value<QColor>());
    pen.setWidthF(height);
    pen.setCapStyle(Qt::FlatCap);
    const int style = ruler.at(2).toInt();
    if (style == 1)
        pen.setStyle(Qt::DotLine);
    else if (style == 2)
        pen.setStyle(Qt::DashLine);
    painter.setPen(pen);
    const double y = rect.top() - ruler.at(3).toDouble() - height / 2;
    const double x = rect.left() + ruler.at(5).toDouble();
    painter.drawLine(QPointF(x, y), QPointF(x + ruler.at(4).toDouble(), y));
}

} // namespace

QtfCellLines CellLines(const Qtf::Table& t, int row, int col)
{
    const CellFormat& f = t.rows[row][col].format;
    const TableFormat& tf = t.format;
    const int rows = int(t.rows.size());
    const int cols = t.columns();
    const int right = col + f.hspan + 1;
    const int below = row + f.vspan + 1;
    QtfCellLines out;
    out.edge[0] = col == 0;
    out.edge[1] = row == 0;
    out.edge[2] = right >= cols;
    out.edge[3] = below >= rows;
    // The neighbour across each side, for the width of a shared line.
    const Cell* next[4] = {
        out.edge[0] ? nullptr : &t.rows[row][col - 1],
        out.edge[1] ? nullptr : &t.rows[row - 1][col],
        out.edge[2] ? nullptr : &t.rows[row][std::min(right, cols - 1)],
        out.edge[3] ? nullptr : &t.rows[std::min(below, rows - 1)][col],
    };
    for (int s = 0; s < 4; ++s) {
        const int line = out.edge[s] ? tf.frame : tf.grid;
        const int own = f.border[s];
        const int other = next[s] ? next[s]->format.border[(s + 2) % 4] : 0;
        out.width[s] = std::max({line, own, other});
        out.color[s] = own > line && own >= other ? f.borderColor
                       : other > line             ? next[s]->format.borderColor
                       : out.edge[s]              ? tf.frameColor
                                                  : tf.gridColor;
    }
    return out;
}

QList<double> QtfColumnEdges(const Qtf::Table& t, double left, double right)
{
    // Half the frame lies outside the columns' shares, as with Qt's collapsed borders.
    const int cols = t.columns();
    const double half = t.format.frame / 2.0;
    const double share = std::max(0.0, right - left - 2 * half);
    QList<double> x(cols + 1);
    int sum = 0;
    for (int c = 0; c <= cols; ++c) {
        x[c] = left + half + share * sum / 10000.0;
        if (c < cols)
            sum += t.format.widths.value(c);
    }
    x[0] = left;
    x[cols] = right;
    return x;
}

void PaintQtfTableLines(QPainter& painter, const Qtf::Table& t, double left, double right,
                        double top, const QList<double>& rowBottoms)
{
    const int rows = std::min(int(t.rows.size()), int(rowBottoms.size()));
    const int cols = t.columns();
    if (rows == 0 || cols == 0)
        return;
    const QList<double> x = QtfColumnEdges(t, left, right);
    const auto rowTop = [&](int r) { return r == 0 ? top : rowBottoms.at(r - 1); };
    // Every cell draws its top and left line, the last row and column their bottom and right.
    std::vector<std::pair<QRgb, QRectF>> lines;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < cols; ++c) {
            const Cell& cell = t.rows[r][c];
            if (cell.covered)
                continue;
            const QtfCellLines l = CellLines(t, r, c);
            const double x0 = x[c];
            const double x1 = x[std::min(c + cell.format.hspan + 1, cols)];
            const double y0 = rowTop(r);
            const double y1 = rowBottoms.at(std::min(r + cell.format.vspan, rows - 1));
            const auto add = [&](int side, const QRectF& rect) {
                if (l.width[side] > 0)
                    lines.emplace_back(l.color[side].rgba(), rect);
            };
            const double w[4] = {l.width[0], l.width[1], l.width[2], l.width[3]};
            add(0, l.edge[0] ? QRectF(x0, y0, w[0], y1 - y0)
                             : QRectF(x0 - w[0] / 2, y0, w[0], y1 - y0));
            add(1, l.edge[1] ? QRectF(x0, y0, x1 - x0, w[1])
                             : QRectF(x0, y0 - w[1] / 2, x1 - x0, w[1]));
            if (l.edge[2])
                add(2, QRectF(x1 - w[2], y0, w[2], y1 - y0));
            if (l.edge[3] || r + cell.format.vspan >= rows - 1)
                add(3, QRectF(x0, y1 - w[3], x1 - x0, w[3]));
        }
    }
    painter.save();
    painter.setPen(Qt::NoPen);
    QList<QRectF> rects;
    for (size_t i = 0; i < lines.size();) {
        const QRgb color = lines[i].first;
        rects.clear();
        for (; i < lines.size() && lines[i].first == color; ++i)
            rects.append(lines[i].second);
        painter.setBrush(QColor::fromRgba(color));
        painter.drawRects(rects.constData(), int(rects.size()));
    }
    painter.restore();
}

double QtfUnitsPerDot(QtfUnits units)
{
    return units == QtfUnits::Dots ? 1.0 : qt_defaultDpiY() / 600.0;
}

std::unique_ptr<QTextDocument> MakeTextDocument(const Qtf::Document& qtf, const QtfLayout& layout)
{
    auto doc = std::make_unique<QTextDocument>();
    Builder(*doc, layout).build(qtf);
    return doc;
}

std::unique_ptr<QTextDocument> QtfToTextDocument(const QString& qtf, const QtfLayout& layout)
{
    return MakeTextDocument(ReadQtf(qtf), layout);
}

void PaintQtfExtras(QPainter& painter, const QTextDocument& document, const QRectF& clip)
{
    QAbstractTextDocumentLayout* layout = document.documentLayout();
    for (QTextBlock b = document.begin(); b.isValid(); b = b.next()) {
        const QTextBlockFormat bf = b.blockFormat();
        const bool ruler = bf.hasProperty(QtfProperty::Ruler);
        const bool leaders = bf.hasProperty(QtfProperty::Leaders);
        if (!ruler && !leaders)
            continue;
        const QRectF rect = layout->blockBoundingRect(b);
        if (!rect.adjusted(0, -rect.height(), 0, 0).intersects(clip))
            continue;
        painter.save();
        if (ruler)
            PaintRuler(painter, b, rect);
        if (leaders)
            PaintLeaders(painter, b, rect, clip);
        painter.restore();
    }
}
