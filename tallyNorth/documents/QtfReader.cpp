#include "QtfReader.h"

#include <QHash>
#include <QImage>
#include <QSet>

#include <algorithm>
#include <cstring>
#include <optional>

using namespace Qtf;

namespace {

// Limits that keep hostile input from exhausting the stack or memory; real documents stay far
// below them.
constexpr int kMaxTableDepth = 12; // Qt lays nested tables out in time doubling per level
constexpr int kMaxColumns = 200;
constexpr qint64 kNumberLimit = 1000000;
constexpr int kMaxObjectSize = 100000;

bool IsDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

int HexValue(QChar c)
{
    if (IsDigit(c))
        return c.unicode() - '0';
    if (c >= u'a' && c <= u'f')
        return c.unicode() - 'a' + 10;
    if (c >= u'A' && c <= u'F')
        return c.unicode() - 'A' + 10;
    return -1;
}

struct FlowState
{
    QList<Block>* out = nullptr;
    Paragraph para;
    bool open = true; // false right after a table: "&" then starts no empty paragraph
    int depth = 0;    // table nesting
};

class Parser
{
public:
    Parser(const QString& text, bool message) : m_s(text), m_message(message)
    {
        const qsizetype nul = m_s.indexOf(QChar(0));
        if (nul >= 0)
            m_s.truncate(nul);
    }

    Document run()
    {
        m_pending = m_fmt;
        FlowState top;
        top.out = &m_doc.blocks;
        parseFlow(top, Mode::Top);
        if (top.open || top.out->isEmpty())
            emitParagraph(top);
        return std::move(m_doc);
    }

private:
    enum class Mode { Top, Table, Legacy };
    enum class Stop { End, CellEnd, CellNext, TableEnd, RowEnd, LegacyEnd, Error };

    bool atEnd() const { return m_pos >= m_s.size(); }
    QChar cur() const { return atEnd() ? QChar() : m_s.at(m_pos); }
    QChar next() const { return m_pos + 1 < m_s.size() ? m_s.at(m_pos + 1) : QChar(); }
    QChar take() { return atEnd() ? QChar() : m_s.at(m_pos++); }

    Stop parseFlow(FlowState& f, Mode mode);
    bool parseSpecial(FlowState& f, Mode mode, Stop* stop);
    void addText(FlowState& f, const QString& text);
    void addLiteralRun(FlowState& f);
    void finishParagraph(FlowState& f);
    void emitParagraph(FlowState& f);
    void raw(FlowState& f);
    void pageBreak(FlowState& f);
    void object(FlowState& f);
    void field(FlowState& f);
    void unicode(FlowState& f);
    void styleDefinition();
    Stop table(FlowState& f);
    Stop legacyTable(FlowState& f);
    Stop cell(FlowState& f, Cell& target, Mode mode);
    void startTable(FlowState& f);
    void afterTable(FlowState& f, bool open);

    void parseCodes();
    bool parseCharCode(QChar c);
    bool parseParaCode(QChar c);
    void parseTabStop();
    void parseTableCodes(TableFormat& table, CellFormat& cell);
    void parseCellSide(CellFormat& cell, int side);
    void applyStyle(const Format& style);

    qint64 readNumber(bool allowNegative = false);
    int readInt(int low, int high, bool allowNegative = false);
    QColor readColor();
    QString readUntil(QChar end);
    QString readSection();

    void fail(const QString& reason, qsizetype at);

    QString m_s;
    qsizetype m_pos = 0;
    Document m_doc;
    Format m_fmt;
    Format m_pending;
    QList<Format> m_stack;
    QHash<int, Format> m_styles;
    QHash<QString, int> m_styleNames;
    bool m_pageBreakNext = false;
    bool m_failed = false;
    // How many tables deep the last table read is, and the deepest inside the one being read.
    int m_lastTableHeight = 0;
    int m_innerTableHeight = 0;
    // Where the last "]" ended and whether the blocks it closed held paragraph codes.
    qsizetype m_closedAt = -1;
    bool m_lostParagraph = false;
    // Messages: the lenient reading of QtfMessage().
    bool m_message = false;
    FlowState* m_flow = nullptr;
};

Parser::Stop Parser::parseFlow(FlowState& f, Mode mode)
{
    FlowState* outer = m_flow;
    m_flow = &f;
    Stop stop = Stop::End;
    while (!atEnd() && !m_failed) {
        const ushort u = cur().unicode();
        if (u == 1) {
            raw(f);
        } else if (u == '\n' && m_message) {
            ++m_pos;
            finishParagraph(f);
        } else if (u < 32) {
            ++m_pos;
        } else if (!parseSpecial(f, mode, &stop)) {
            addLiteralRun(f);
        } else if (stop != Stop::End) {
            break;
        }
    }
    m_flow = outer;
    return m_failed ? Stop::Error : stop;
}

// Handles a command at the current position; false when the character is plain text.
bool Parser::parseSpecial(FlowState& f, Mode mode, Stop* stop)
{
    const QChar c = cur();
    const QChar n = next();
    const bool inTable = mode != Mode::Top;
    switch (c.unicode()) {
    case '[':
        ++m_pos;
        m_stack.append(m_fmt);
        parseCodes();
        m_pending = m_fmt;
        return true;
    case ']':
        if (m_stack.isEmpty() && m_message)
            return false;
        if (m_stack.isEmpty()) {
            fail(QStringLiteral("Unmatched ']'"), m_pos);
            return true;
        }
        {
            Format closed = m_stack.takeLast();
            std::swap(closed, m_fmt);
            // "]]&": the codes of any of the blocks closed right before the "&" are lost.
            m_lostParagraph =
                (m_closedAt == m_pos && m_lostParagraph) || !(closed.para == m_fmt.para);
            m_closedAt = ++m_pos;
            return true;
        }
    case '&':
        if (m_closedAt == m_pos && m_lostParagraph)
            m_doc.lostParagraphFormats.append(m_pos);
        ++m_pos;
        finishParagraph(f);
        return true;
    case '_':
        if (m_message)
            return false;
        ++m_pos;
        addText(f, QString(QChar(0xA0)));
        return true;
    case '\\':
        if (m_message)
            return false;
        [[fallthrough]];
    case '`':
        ++m_pos;
        if (!atEnd())
            addText(f, QString(take()));
        return true;
    case '-':
        if (n == u'|') {
            m_pos += 2;
            addText(f, QStringLiteral("\t"));
            return true;
        }
        if (n != u'-' || (!inTable && m_message))
            return false;
        if (!inTable) {
            fail(QStringLiteral("Not in table"), m_pos);
            return true;
        }
        m_pos += 2;
        *stop = mode == Mode::Legacy ? Stop::RowEnd : Stop::CellNext;
        return true;
    case ':':
    case '|':
        if (n != c || (!inTable && m_message))
            return false;
        if (!inTable) {
            fail(QStringLiteral("Not in table"), m_pos);
            return true;
        }
        m_pos += 2;
        *stop = c == u':' && mode == Mode::Table ? Stop::CellEnd : Stop::CellNext;
        return true;
    case '}':
        // Outside a table "}}" means nothing; it is kept as text.
        if (n != u'}' || mode != Mode::Table)
            return false;
        m_pos += 2;
        *stop = Stop::TableEnd;
        return true;
    case '{':
        if (n == u'{') {
            const Stop s = table(f);
            if (s == Stop::Error)
                *stop = Stop::Error;
            return true;
        }
        if (n == u':') {
            field(f);
            return true;
        }
        return false;
    case '+':
        if (n != u'+')
            return false;
        if (mode == Mode::Legacy) {
            m_pos += 2;
            *stop = Stop::LegacyEnd;
            return true;
        }
        legacyTable(f);
        return true;
    case '^':
        if (n == u'^') {
            m_pos += 2;
            pageBreak(f);
            return true;
        }
        if (n == u'H' || n == u'F') {
            m_pos += 2;
            (n == u'H' ? m_doc.header : m_doc.footer) = readSection();
            return true;
        }
        return false;
    case '@':
        if (n == u'@') {
            object(f);
            return true;
        }
        if (n == u'$') {
            unicode(f);
            return true;
        }
        return false;
    case '$':
        if (n != u'$')
            return false;
        styleDefinition();
        return true;
    default:
        return false;
    }
}

// Plain characters up to the next one that may be a command, as one run.
void Parser::addLiteralRun(FlowState& f)
{
    static const QString specials = QStringLiteral("[]&_`\\-:|}{+^@$");
    const qsizetype start = m_pos++;
    while (!atEnd()) {
        const QChar c = cur();
        if (c.unicode() < 32 || specials.contains(c))
            break;
        ++m_pos;
    }
    addText(f, m_s.mid(start, m_pos - start));
}

void Parser::addText(FlowState& f, const QString& text)
{
    m_pending = m_fmt;
    f.open = true;
    QList<Run>& runs = f.para.runs;
    if (!runs.isEmpty() && runs.last().kind == Run::Kind::Text && runs.last().format == m_fmt.chr) {
        runs.last().text += text;
        return;
    }
    Run run;
    run.text = text;
    run.format = m_fmt.chr;
    runs.append(run);
}

// "&": the paragraph takes the format in effect now. Right after a table it only opens the
// next paragraph.
void Parser::finishParagraph(FlowState& f)
{
    m_pending = m_fmt;
    if (!f.open) {
        f.open = true;
        return;
    }
    emitParagraph(f);
}

void Parser::emitParagraph(FlowState& f)
{
    Block block;
    block.paragraph = std::move(f.para);
    block.paragraph.format = m_pending.para;
    block.paragraph.endFormat = m_pending.chr;
    if (f.depth == 0 && m_pageBreakNext) {
        block.paragraph.format.pageBreak = true;
        m_pageBreakNext = false;
    }
    f.out->append(block);
    f.para = Paragraph();
    f.open = true;
    m_pending = m_fmt;
}

// Byte 1 opens a section of literal text closed by the next byte 1.
void Parser::raw(FlowState& f)
{
    ++m_pos;
    QString text;
    while (!atEnd()) {
        const QChar c = take();
        if (c.unicode() == 1)
            break;
        if (c == u'\n') {
            if (!text.isEmpty())
                addText(f, text);
            text.clear();
            finishParagraph(f);
        } else if (c == u'\t') {
            text += c;
        } else if (c.unicode() >= 32) {
            text += c;
        }
    }
    if (!text.isEmpty())
        addText(f, text);
}

void Parser::pageBreak(FlowState& f)
{
    finishParagraph(f);
    m_pageBreakNext = true;
}

// "@@type:cx&cy" or "@@type:cx*cy", an optional "/lower", then the data.
void Parser::object(FlowState& f)
{
    const qsizetype start = m_pos;
    m_pos += 2;
    if (cur() == u'#') {
        // A reference to an object in memory: meaningless in a file.
        ++m_pos;
        while (!atEnd() && (cur().isLetterOrNumber() || cur() == u'_'))
            ++m_pos;
        return;
    }
    Run run;
    run.kind = Run::Kind::Object;
    run.format = m_fmt.chr;
    run.type = readUntil(u':');
    run.cx = readInt(0, kMaxObjectSize);
    if (m_failed)
        return;
    const QChar sep = take();
    if (sep != u'&' && sep != u'*') {
        fail(QStringLiteral("Invalid object size"), start);
        return;
    }
    run.keepRatio = sep == u'&';
    run.cy = readInt(0, kMaxObjectSize);
    if (!m_failed && cur() == u'/') {
        ++m_pos;
        run.lower = readInt(-int(kNumberLimit), int(kNumberLimit), true);
    }
    if (m_failed)
        return;
    while (!atEnd() && cur().unicode() < 32)
        ++m_pos;
    if (cur() == u'(') {
        ++m_pos;
        run.data = QByteArray::fromBase64(readUntil(u')').toLatin1());
    } else if (cur() == u'`') {
        ++m_pos;
        QString text;
        while (!atEnd()) {
            const QChar c = take();
            if (c == u'`') {
                if (cur() != u'`')
                    break;
                ++m_pos;
            }
            text += c;
        }
        run.data = text.toUtf8();
    } else {
        // The obsolete 7-bit packing: skipped.
        while (!atEnd() && cur().unicode() >= 128)
            ++m_pos;
    }
    if (m_failed)
        return;
    m_pending = m_fmt;
    f.open = true;
    f.para.runs.append(run);
}

// "{:type:param:}"
void Parser::field(FlowState& f)
{
    m_pos += 2;
    Run run;
    run.kind = Run::Kind::Field;
    run.format = m_fmt.chr;
    run.type = readUntil(u':');
    const qsizetype end = m_s.indexOf(QLatin1String(":}"), m_pos);
    if (m_failed || end < 0) {
        if (!m_failed)
            fail(QStringLiteral("Unexpected end of text"), m_pos);
        return;
    }
    run.text = m_s.mid(m_pos, end - m_pos);
    m_pos = end + 2;
    m_pending = m_fmt;
    f.open = true;
    f.para.runs.append(run);
}

// "@$20AC;" inserts that code point; control characters are dropped.
void Parser::unicode(FlowState& f)
{
    m_pos += 2;
    char32_t value = 0;
    int digits = 0;
    while (!atEnd() && HexValue(cur()) >= 0 && digits < 8) {
        value = value * 16 + char32_t(HexValue(take()));
        ++digits;
    }
    if (cur() == u';')
        ++m_pos;
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (digits > 0 && value >= 32 && value <= 0x10FFFF && !surrogate)
        addText(f, QString::fromUcs4(&value, 1));
}

// "$$N,next#uuid:name" inside a block records the block's format as style N.
void Parser::styleDefinition()
{
    m_pos += 2;
    const int number = readInt(0, int(kNumberLimit));
    if (m_failed)
        return;
    if (cur() == u',') {
        ++m_pos;
        readNumber();
    }
    if (cur() == u'#') {
        ++m_pos;
        while (HexValue(cur()) >= 0)
            ++m_pos;
    }
    QString name;
    if (cur() == u':') {
        ++m_pos;
        const qsizetype start = m_pos;
        while (!atEnd() && cur() != u']')
            ++m_pos;
        name = m_s.mid(start, m_pos - start);
    }
    m_styles.insert(number, m_fmt);
    if (!name.isEmpty())
        m_styleNames.insert(name, number);
    // The default style also becomes the format outside its definition block.
    if (number == 0) {
        if (m_stack.isEmpty())
            m_pending = m_fmt;
        else
            m_stack.last() = m_fmt;
    }
}

void Parser::startTable(FlowState& f)
{
    // Text before a table is a paragraph of its own.
    if (f.open && !f.para.runs.isEmpty())
        emitParagraph(f);
}

Parser::Stop Parser::table(FlowState& f)
{
    // "}}{{": the table just read goes into the first cell of this one.
    const bool nest = m_pos >= 2 && m_s.at(m_pos - 1) == u'}' && m_s.at(m_pos - 2) == u'}' &&
                      !f.open && f.para.runs.isEmpty() && !f.out->isEmpty() &&
                      f.out->last().isTable();
    const int nestedHeight = nest ? m_lastTableHeight : 0;
    m_pos += 2;
    if (f.depth + nestedHeight >= kMaxTableDepth) {
        fail(QStringLiteral("Too deeply nested tables"), m_pos - 2);
        return Stop::Error;
    }
    std::optional<Block> nested;
    if (nest)
        nested = f.out->takeLast();
    const int outerInnerHeight = m_innerTableHeight;
    m_innerTableHeight = nestedHeight;
    startTable(f);
    auto table = std::make_shared<Table>();
    TableFormat& tf = table->format;
    QList<qint64> shares;
    for (;;) {
        shares << (IsDigit(cur()) ? std::max<qint64>(readNumber(), 0) : 1);
        if (cur() != u':' || shares.size() >= kMaxColumns)
            break;
        ++m_pos;
    }
    qint64 total = 0;
    for (qint64 s : std::as_const(shares))
        total += s;
    if (total <= 0) {
        shares.fill(1);
        total = shares.size();
    }
    qint64 sum = 0;
    int previous = 0;
    for (qint64 s : std::as_const(shares)) {
        sum += s;
        const int edge = int((sum * 20000 / total + 1) / 2);
        tf.widths << edge - previous;
        previous = edge;
    }
    const int columns = int(tf.widths.size());

    CellFormat cellFormat;
    // An error in a cell's codes shows in that cell.
    FlowState codes;
    const auto readCodes = [&] {
        FlowState* outer = m_flow;
        m_flow = &codes;
        parseTableCodes(tf, cellFormat);
        m_flow = outer;
    };
    readCodes();
    m_pending = m_fmt;

    QSet<qint64> covered;
    int row = 0;
    int col = 0;
    Stop stop = Stop::CellNext;
    while (stop == Stop::CellEnd || stop == Stop::CellNext) {
        if (col == 0)
            table->rows.append(QList<Cell>());
        Cell c;
        c.format = cellFormat;
        c.format.hspan = std::min(c.format.hspan, columns - col - 1);
        c.covered = covered.contains(qint64(row) * columns + col);
        if (!c.covered) {
            for (int dr = 0; dr <= c.format.vspan; ++dr) {
                for (int dc = 0; dc <= c.format.hspan; ++dc) {
                    if (dr || dc)
                        covered.insert(qint64(row + dr) * columns + col + dc);
                }
            }
        }
        if (codes.para.error) {
            codes.out = &c.blocks;
            emitParagraph(codes);
            stop = Stop::Error;
        } else {
            FlowState inner;
            inner.depth = f.depth + 1;
            stop = cell(inner, c, Mode::Table);
        }
        if (nested) {
            c.blocks.prepend(*nested);
            c.blocks.first().pageBreak = false;
            nested.reset();
        }
        if (c.covered) {
            c.blocks = {Block()};
            c.format.hspan = c.format.vspan = 0;
        }
        table->rows.last().append(c);
        if (++col == columns) {
            col = 0;
            ++row;
        }
        // Spans and the keep/rounded marks belong to one cell; the rest carries on.
        cellFormat.hspan = cellFormat.vspan = 0;
        cellFormat.keep = cellFormat.round = false;
        if (stop == Stop::CellEnd)
            readCodes();
        if (m_failed && !codes.para.error)
            stop = Stop::Error;
    }
    while (col > 0 && col < columns) {
        Cell c;
        c.format = cellFormat;
        c.blocks = {Block()};
        c.covered = covered.contains(qint64(row) * columns + col);
        table->rows.last().append(c);
        ++col;
    }
    const int rows = int(table->rows.size());
    for (int r = 0; r < rows; ++r) {
        for (Cell& c : table->rows[r])
            c.format.vspan = std::min(c.format.vspan, rows - r - 1);
    }
    tf.headerRows = std::min(tf.headerRows, rows);

    Block block;
    block.table = table;
    if (f.depth == 0 && m_pageBreakNext) {
        block.pageBreak = true;
        m_pageBreakNext = false;
    }
    f.out->append(block);
    afterTable(f, false);
    m_lastTableHeight = m_innerTableHeight + 1;
    m_innerTableHeight = std::max(outerInnerHeight, m_lastTableHeight);
    return stop == Stop::Error ? Stop::Error : Stop::End;
}

// "++ a || b -- c || d ++": the old table syntax, read but never written.
Parser::Stop Parser::legacyTable(FlowState& f)
{
    m_pos += 2;
    if (f.depth >= kMaxTableDepth) {
        fail(QStringLiteral("Too deeply nested tables"), m_pos - 2);
        return Stop::Error;
    }
    startTable(f);
    auto table = std::make_shared<Table>();
    table->format.legacy = true;
    table->format.grid = 10;
    table->rows.append(QList<Cell>());
    Stop stop = Stop::CellNext;
    while (stop == Stop::CellNext || stop == Stop::RowEnd) {
        Cell c;
        FlowState inner;
        inner.depth = f.depth + 1;
        stop = cell(inner, c, Mode::Legacy);
        table->rows.last().append(c);
        if (stop == Stop::RowEnd)
            table->rows.append(QList<Cell>());
    }
    qsizetype columns = 1;
    for (const QList<Cell>& r : std::as_const(table->rows))
        columns = std::max(columns, r.size());
    columns = std::min<qsizetype>(columns, kMaxColumns);
    for (QList<Cell>& r : table->rows) {
        r.resize(std::min(r.size(), columns));
        while (r.size() < columns) {
            Cell c;
            c.blocks = {Block()};
            r.append(c);
        }
    }
    int previous = 0;
    for (qsizetype i = 1; i <= columns; ++i) {
        const int edge = int((i * 20000 / columns + 1) / 2);
        table->format.widths << edge - previous;
        previous = edge;
    }
    Block block;
    block.table = table;
    f.out->append(block);
    afterTable(f, true);
    return stop == Stop::Error ? Stop::Error : Stop::End;
}

// The flow after a table: a paragraph that holds an error message stays open.
void Parser::afterTable(FlowState& f, bool open)
{
    if (!f.para.error) {
        f.para = Paragraph();
        f.open = open;
    }
    m_pending = m_fmt;
}

Parser::Stop Parser::cell(FlowState& inner, Cell& target, Mode mode)
{
    inner.out = &target.blocks;
    const Stop stop = parseFlow(inner, mode);
    if (inner.open || target.blocks.isEmpty())
        emitParagraph(inner);
    m_pending = m_fmt;
    return stop;
}

void Parser::parseCodes()
{
    while (!atEnd() && !m_failed) {
        const QChar c = take();
        if (c == u' ' || c == u'\n')
            return;
        if (c.unicode() < 32 || c == u';')
            continue;
        if (!parseCharCode(c))
            parseParaCode(c);
    }
}

bool Parser::parseCharCode(QChar c)
{
    CharFormat& f = m_fmt.chr;
    static const int heights[] = {50, 67, 84, 100, 134, 167, 200, 234, 300, 400};
    if (IsDigit(c)) {
        f.height = heights[c.unicode() - '0'];
        f.guiHeight = false;
        return true;
    }
    switch (c.unicode()) {
    case '*':
        f.bold = !f.bold;
        break;
    case '/':
        f.italic = !f.italic;
        break;
    case '_':
        f.underline = !f.underline;
        break;
    case '-':
        f.strikeout = !f.strikeout;
        break;
    case '`':
        f.superscript = !f.superscript;
        break;
    case ',':
        f.subscript = !f.subscript;
        break;
    case 'c':
        f.capitals = !f.capitals;
        break;
    case 'd':
        f.dashed = !f.dashed;
        break;
    case 'T':
        f.noAntialias = !f.noAntialias;
        break;
    case '+':
        f.height = readInt(1, 10000);
        f.guiHeight = false;
        break;
    case 'A':
        f.face = Face::Sans;
        break;
    case 'R':
        f.face = Face::Serif;
        break;
    case 'C':
        f.face = Face::Mono;
        break;
    case 'G':
        f.face = Face::Gui;
        break;
    case 'g':
        f.face = Face::Gui;
        f.guiHeight = true;
        break;
    case 'S':
        f.face = Face::Symbol;
        break;
    case '.': {
        static const Face faces[] = {Face::Gui, Face::Serif, Face::Sans, Face::Mono};
        const int index = readInt(0, int(kNumberLimit));
        f.face = index < 4 ? faces[index] : Face::Sans;
        break;
    }
    case '!': {
        const QString name = readUntil(u'!');
        const QString folded = name.toLower();
        if (folded == QLatin1String("arial") || folded.isEmpty())
            f.face = Face::Sans;
        else if (folded == QLatin1String("times new roman"))
            f.face = Face::Serif;
        else if (folded == QLatin1String("courier new") || folded == QLatin1String("courier"))
            f.face = Face::Mono;
        else {
            f.face = Face::Named;
            f.faceName = name;
        }
        break;
    }
    case '@':
        f.ink = readColor();
        break;
    case '$':
        f.paper = readColor();
        break;
    case '^':
        f.link = readUntil(u'^');
        break;
    case 'I':
        f.indexEntry = readUntil(u';');
        break;
    case '{':
        readUntil(u'}');
        break; // only UTF-8 is read
    case '%':
        if (cur() == u'-' || cur() == u'%') {
            f.language = take() == u'%' ? QStringLiteral("EN-US") : QString();
        } else {
            f.language = m_s.mid(m_pos, 5);
            m_pos = std::min(m_pos + 5, m_s.size());
        }
        break;
    case 's':
        if (cur() == u'"') {
            ++m_pos;
            applyStyle(m_styles.value(m_styleNames.value(readUntil(u'"'), 0)));
        } else {
            applyStyle(m_styles.value(readInt(0, int(kNumberLimit))));
        }
        break;
    default:
        return false;
    }
    return true;
}

bool Parser::parseParaCode(QChar c)
{
    ParaFormat& p = m_fmt.para;
    switch (c.unicode()) {
    case '<':
        p.align = Align::Left;
        break;
    case '=':
        p.align = Align::Center;
        break;
    case '>':
        p.align = Align::Right;
        break;
    case '#':
        p.align = Align::Justify;
        break;
    case 'l':
        p.leftMargin = readInt(-100000, 100000, true);
        break;
    case 'r':
        p.rightMargin = readInt(-100000, 100000, true);
        break;
    case 'i':
        p.indent = readInt(-100000, 100000, true);
        break;
    case 'b':
        p.before = readInt(-100000, 100000, true);
        break;
    case 'a':
        p.after = readInt(-100000, 100000, true);
        break;
    case 'P':
        p.pageBreak = !p.pageBreak;
        break;
    case 'k':
        p.keep = !p.keep;
        break;
    case 'K':
        p.keepNext = !p.keepNext;
        break;
    case 'Q':
        p.orphan = !p.orphan;
        break;
    case 'F':
        break; // "first on page": no visible effect known
    case 'p':
        switch (take().unicode()) {
        case 'n':
            p.spacing = LineSpacing::Single;
            break;
        case 'w':
            p.spacing = LineSpacing::OneFifteen;
            break;
        case 'h':
            p.spacing = LineSpacing::OneHalf;
            break;
        case 'd':
            p.spacing = LineSpacing::Double;
            break;
        default:
            break;
        }
        break;
    case 'H':
        p.rulerHeight = readInt(0, 10000);
        break;
    case 'h':
        p.rulerColor = readColor();
        break;
    case 'L':
        p.rulerStyle = readInt(0, 2);
        break;
    case 't':
        if (cur() == u'P') {
            // A page header and footer from here on: not supported, skipped whole.
            ++m_pos;
            readSection();
            readSection();
        } else {
            p.tabSize = readInt(1, 100000);
        }
        break;
    case '~':
        parseTabStop();
        break;
    case 'o':
        p.bullet = Bullet::Round;
        p.indent = 150;
        break;
    case 'O':
        switch (take().unicode()) {
        case '0':
            p.bullet = Bullet::Round;
            break;
        case '1':
            p.bullet = Bullet::WhiteRound;
            break;
        case '2':
            p.bullet = Bullet::Box;
            break;
        case '3':
            p.bullet = Bullet::WhiteBox;
            break;
        case '9':
            p.bullet = Bullet::Text;
            break;
        default:
            p.bullet = Bullet::None;
            break;
        }
        break;
    case 'N': {
        static const QString levelCodes = QStringLiteral("-10aAiI");
        p.numbering.clear();
        while (p.numbering.size() < 8 && !atEnd() && levelCodes.contains(cur()))
            p.numbering += take();
        p.restartNumbering = cur() == u'!';
        if (p.restartNumbering)
            ++m_pos;
        break;
    }
    case 'n':
        p.numberBefore = readUntil(u';');
        break;
    case 'm':
        p.numberAfter = readUntil(u';');
        break;
    case ':':
        p.label = readUntil(u':');
        break;
    default:
        return false; // unknown codes are ignored
    }
    return true;
}

// "~" [<>=] [.-_] [>] N, or "~~" to clear the stops.
void Parser::parseTabStop()
{
    ParaFormat& p = m_fmt.para;
    if (cur() == u'~') {
        ++m_pos;
        p.tabs.clear();
        return;
    }
    TabStop stop;
    if (cur() == u'<' || cur() == u'>' || cur() == u'=') {
        const QChar k = take();
        stop.kind = k == u'>'   ? TabStop::Kind::Right
                    : k == u'=' ? TabStop::Kind::Center
                                : TabStop::Kind::Left;
    }
    if (cur() == u'.' || cur() == u'-' || cur() == u'_')
        stop.fill = char(take().unicode());
    if (cur() == u'>') {
        ++m_pos;
        stop.fromRight = true;
    }
    stop.pos = readInt(0, 100000);
    if (p.tabs.size() < 64)
        p.tabs.append(stop);
}

void Parser::parseTableCodes(TableFormat& t, CellFormat& cell)
{
    while (!atEnd() && !m_failed) {
        const qsizetype at = m_pos;
        const QChar c = take();
        switch (c.unicode()) {
        case ' ':
        case '\n':
            return;
        case ';':
            break;
        case '<':
            t.leftIndent = readInt(0, 100000);
            break;
        case '>':
            t.rightIndent = readInt(0, 100000);
            break;
        case 'B':
            t.before = readInt(0, 100000);
            break;
        case 'A':
            t.after = readInt(0, 100000);
            break;
        case 'f':
            t.frame = readInt(0, 1000);
            break;
        case 'F':
            t.frameColor = readColor();
            break;
        case 'g':
            t.grid = readInt(0, 1000);
            break;
        case 'G':
            t.gridColor = readColor();
            break;
        case 'h':
            t.headerRows = readInt(0, 1000);
            break;
        case '~':
            t.frame = t.grid = 0;
            break;
        case 'K':
            t.keep = true;
            break;
        case 'P':
            t.pageBreak = true;
            break;
        case 'T':
            readSection();
            readSection();
            break;
        case '^':
            cell.valign = VAlign::Top;
            break;
        case '=':
            cell.valign = VAlign::Center;
            break;
        case 'v':
            cell.valign = VAlign::Bottom;
            break;
        case 'l':
            parseCellSide(cell, 0);
            break;
        case 't':
            parseCellSide(cell, 1);
            break;
        case 'r':
            parseCellSide(cell, 2);
            break;
        case 'b':
            parseCellSide(cell, 3);
            break;
        case 'a':
            parseCellSide(cell, 4);
            break;
        case '@':
            cell.background = readColor();
            break;
        case 'R':
            cell.borderColor = readColor();
            break;
        case 'H':
            cell.minHeight = readInt(0, 100000);
            break;
        case '-':
            cell.hspan = readInt(0, kMaxColumns);
            break;
        case '|':
            cell.vspan = readInt(0, 100000);
            break;
        case 'k':
            cell.keep = true;
            break;
        case 'o':
            cell.round = true;
            break;
        case '*':
            t.frame = t.grid = 0;
            std::fill(std::begin(cell.border), std::end(cell.border), 0);
            std::fill(std::begin(cell.margin), std::end(cell.margin), 0);
            break;
        case '!':
            cell = CellFormat();
            break;
        default:
            if (c.unicode() >= 32)
                fail(QStringLiteral("Invalid cell format"), at);
            break;
        }
    }
}

// "border/margin", "border" or "/margin" for one side (0-3) or all four (4).
void Parser::parseCellSide(CellFormat& cell, int side)
{
    int border = -1;
    int margin = -1;
    if (IsDigit(cur()))
        border = readInt(0, 10000);
    if (cur() == u'/') {
        ++m_pos;
        margin = readInt(0, 100000);
    } else if (border < 0) {
        readNumber(); // reports the missing number
        return;
    }
    for (int s = 0; s < 4; ++s) {
        if (side != 4 && s != side)
            continue;
        if (border >= 0)
            cell.border[s] = border;
        if (margin >= 0)
            cell.margin[s] = margin;
    }
}

void Parser::applyStyle(const Format& style)
{
    const QString language = m_fmt.chr.language;
    const bool pageBreak = m_fmt.para.pageBreak;
    m_fmt = style;
    m_fmt.chr.language = language;
    m_fmt.para.pageBreak = pageBreak;
}

qint64 Parser::readNumber(bool allowNegative)
{
    const qsizetype at = m_pos;
    bool negative = false;
    if (allowNegative && cur() == u'-') {
        negative = true;
        ++m_pos;
    }
    if (!IsDigit(cur())) {
        fail(QStringLiteral("Expected number"), at);
        return 0;
    }
    qint64 value = 0;
    while (IsDigit(cur()))
        value = std::min(value * 10 + (take().unicode() - '0'), kNumberLimit);
    return negative ? -value : value;
}

int Parser::readInt(int low, int high, bool allowNegative)
{
    return int(std::clamp<qint64>(readNumber(allowNegative), low, high));
}

// One character, "(r.g.b)" or "(v)" for a grey.
QColor Parser::readColor()
{
    if (atEnd()) {
        fail(QStringLiteral("Unexpected end of text"), m_pos);
        return QColor();
    }
    const QChar c = take();
    if (c != u'(')
        return QtfColor(c);
    QList<int> values;
    while (!m_failed && values.size() < 3) {
        values << readInt(0, 255);
        if (cur() != u'.')
            break;
        ++m_pos;
    }
    if (!m_failed && take() != u')')
        fail(QStringLiteral("Invalid color"), m_pos - 1);
    if (values.size() == 3)
        return QColor(values[0], values[1], values[2]);
    const int v = values.value(0);
    return QColor(v, v, v);
}

QString Parser::readUntil(QChar end)
{
    const qsizetype found = m_s.indexOf(end, m_pos);
    if (found < 0) {
        fail(QStringLiteral("Unexpected end of text"), m_pos);
        return QString();
    }
    const QString text = m_s.mid(m_pos, found - m_pos);
    m_pos = found + 1;
    return text;
}

// A nested QTF text closed by "^^" (a backtick escapes the next character).
QString Parser::readSection()
{
    const qsizetype start = m_pos;
    while (!atEnd()) {
        if (cur() == u'`') {
            m_pos = std::min(m_pos + 2, m_s.size());
            continue;
        }
        if (cur() == u'^' && next() == u'^') {
            m_pos += 2;
            return m_s.mid(start, m_pos - 2 - start);
        }
        ++m_pos;
    }
    return m_s.mid(start);
}

void Parser::fail(const QString& reason, qsizetype at)
{
    if (m_failed)
        return;
    m_failed = true;
    const QString message = QStringLiteral("ERROR: ") + reason + QStringLiteral(": ") +
                            m_s.mid(std::clamp<qsizetype>(at, 0, m_s.size()), 20);
    m_doc.error = message;
    if (!m_flow)
        return;
    Run run;
    run.text = message;
    run.format = m_fmt.chr;
    run.format.bold = true;
    run.format.underline = true;
    run.format.ink = QColor(255, 0, 0);
    m_flow->para.runs.append(run);
    m_flow->para.error = true;
    m_flow->open = true;
}

void AppendPlainText(const QList<Block>& blocks, bool tabs, QStringList& lines);

void AppendTableText(const Table& table, bool tabs, QStringList& lines)
{
    for (const QList<Cell>& row : table.rows) {
        QStringList cells;
        for (const Cell& c : row) {
            if (c.covered)
                continue;
            QStringList cellLines;
            AppendPlainText(c.blocks, tabs, cellLines);
            cells << cellLines.join(u'\n');
        }
        const bool oneLine = std::none_of(cells.cbegin(), cells.cend(),
                                          [](const QString& s) { return s.contains(u'\n'); });
        if (tabs && oneLine)
            lines << cells.join(u'\t');
        else
            lines << cells;
    }
}

void AppendPlainText(const QList<Block>& blocks, bool tabs, QStringList& lines)
{
    for (const Block& b : blocks) {
        if (b.isTable())
            AppendTableText(*b.table, tabs, lines);
        else
            lines << b.paragraph.text();
    }
}

} // namespace

QString Qtf::Paragraph::text() const
{
    QString out;
    for (const Run& r : runs) {
        if (r.kind == Run::Kind::Text)
            out += r.text;
    }
    return out;
}

Qtf::Document ReadQtf(const QString& qtf)
{
    return Parser(qtf, false).run();
}

Qtf::Document ReadQtfMessage(const QString& message)
{
    return Parser(message, true).run();
}

QString PlainText(const QList<Qtf::Block>& blocks, bool tabs)
{
    QStringList lines;
    AppendPlainText(blocks, tabs, lines);
    return lines.join(u'\n');
}

QString QtfToPlainText(const QString& qtf, bool tabs)
{
    return PlainText(ReadQtf(qtf).blocks, tabs);
}

QString QtfEscape(const QString& text)
{
    QString out;
    out.reserve(text.size() + text.size() / 4);
    for (const QChar c : text) {
        const ushort u = c.unicode();
        if (u == '\n')
            out += u'&';
        else if (u == '\t')
            out += QLatin1String("-|");
        else if (u < 32)
            continue;
        else if (u < 128 && u != ' ' && !c.isLetterOrNumber())
            out += u'`' + QString(c);
        else
            out += c;
    }
    return out;
}

QString QtfImageObject(const QByteArray& imageData, double percent)
{
    const QImage image = QImage::fromData(imageData);
    if (image.isNull() || !(percent > 0))
        return QString();
    const auto dpi = [](int dotsPerMeter) {
        return dotsPerMeter > 0 ? dotsPerMeter * 0.0254 : 96.0;
    };
    const double scale = std::min(percent, 10000.0) / 100 * 600;
    const int cx = std::max(1, qRound(image.width() * scale / dpi(image.dotsPerMeterX())));
    const int cy = std::max(1, qRound(image.height() * scale / dpi(image.dotsPerMeterY())));
    return QStringLiteral("@@PNG:%1&%2(%3)")
        .arg(cx)
        .arg(cy)
        .arg(QString::fromLatin1(imageData.toBase64()));
}

QColor QtfColor(QChar code)
{
    struct Named
    {
        const char* codes;
        int r, g, b;
    };
    static constexpr Named colours[] = {
        {"0k", 0, 0, 0},     {"1l", 192, 192, 192}, {"2", 255, 255, 255}, {"3r", 128, 0, 0},
        {"4g", 0, 128, 0},   {"5b", 0, 0, 128},     {"6R", 255, 0, 0},    {"7wL", 224, 224, 224},
        {"8C", 0, 255, 255}, {"9y", 255, 255, 0},   {"c", 0, 128, 128},   {"m", 128, 0, 255},
        {"oO", 128, 128, 0}, {"B", 0, 0, 255},      {"G", 0, 255, 0},     {"K", 128, 128, 128},
        {"M", 255, 0, 255},  {"Y", 255, 255, 192},
    };
    const ushort u = code.unicode();
    if (u == 'n' || u == 'N')
        return QColor(Qt::transparent);
    for (const Named& n : colours) {
        if (u < 128 && std::strchr(n.codes, char(u)))
            return QColor(n.r, n.g, n.b);
    }
    // Other letters are white, anything else red.
    return code.isLetter() && u < 128 ? QColor(255, 255, 255) : QColor(255, 0, 0);
}

QString QtfTopicBody(const QString& topicFile)
{
    if (!topicFile.startsWith(QLatin1String("topic \"")))
        return topicFile;
    const qsizetype end = topicFile.indexOf(QLatin1String("\";"), 7);
    return end < 0 ? QString() : topicFile.mid(end + 2);
}
