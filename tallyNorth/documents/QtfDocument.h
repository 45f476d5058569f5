// A QTF text as read: blocks of paragraphs and tables with their formats, lengths in dots
// (1/600 inch). The reader builds it; the rich-text and plain-text writers walk it.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>

#include <memory>

namespace Qtf {

enum class Face { Sans, Serif, Mono, Gui, Symbol, Named };

struct CharFormat
{
    Face face = Face::Sans;
    QString faceName;       // Face::Named only
    int height = 100;       // dots; 100 dots is 12 pt
    bool guiHeight = false; // the height that matches the GUI font on screen
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;
    bool superscript = false;
    bool subscript = false;
    bool capitals = false;
    bool dashed = false;
    bool noAntialias = false;
    QColor ink = QColor(0, 0, 0);
    QColor paper = QColor(Qt::transparent);
    QString link;
    QString indexEntry;
    QString language;

    bool operator==(const CharFormat&) const = default;
};

enum class Align { Left, Center, Right, Justify };

struct TabStop
{
    enum class Kind { Left, Right, Center };
    int pos = 0;
    Kind kind = Kind::Left;
    char fill = 0;          // 0, '.', '-' or '_'
    bool fromRight = false; // pos measured from the right edge

    bool operator==(const TabStop&) const = default;
};

enum class Bullet { None, Round, WhiteRound, Box, WhiteBox, Text };
enum class LineSpacing { Single, OneFifteen, OneHalf, Double };

struct ParaFormat
{
    Align align = Align::Left;
    int leftMargin = 0;
    int rightMargin = 0;
    int indent = 0;
    int before = 0;
    int after = 0;
    bool pageBreak = false;
    bool keep = false;
    bool keepNext = false;
    bool orphan = false;
    LineSpacing spacing = LineSpacing::Single;
    int rulerHeight = 0;
    QColor rulerColor = QColor(0, 0, 0);
    int rulerStyle = 0; // 0 solid, 1 dotted, 2 dashed
    int tabSize = 296;
    QList<TabStop> tabs;
    Bullet bullet = Bullet::None;
    QString numbering; // up to 8 level formats of "-10aAiI"
    bool restartNumbering = false;
    QString numberBefore;
    QString numberAfter;
    QString label;

    bool operator==(const ParaFormat&) const = default;
};

struct Format
{
    CharFormat chr;
    ParaFormat para;
};

// One piece of a paragraph: text in one format, an embedded object or a field.
struct Run
{
    enum class Kind { Text, Object, Field };
    Kind kind = Kind::Text;
    QString text; // Text; the field's parameter for Field
    CharFormat format;
    QString type; // object or field type
    int cx = 0;   // object size in dots
    int cy = 0;
    bool keepRatio = false;
    int lower = 0; // dots below the baseline
    QByteArray data;
};

struct Paragraph
{
    ParaFormat format;
    CharFormat endFormat; // gives the height of an empty paragraph
    QList<Run> runs;
    bool error = false; // carries the reader's error text

    QString text() const;
};

struct Table;

struct Block
{
    Paragraph paragraph;
    std::shared_ptr<Table> table; // set for a table block
    bool pageBreak = false;       // a table starting on a new page

    bool isTable() const { return bool(table); }
};

enum class VAlign { Top, Center, Bottom };

struct CellFormat
{
    VAlign valign = VAlign::Center;
    int border[4] = {0, 0, 0, 0}; // left, top, right, bottom
    int margin[4] = {25, 15, 25, 15};
    QColor background = QColor(255, 255, 255);
    QColor borderColor = QColor(0, 0, 0);
    int minHeight = 0;
    int hspan = 0; // extra columns
    int vspan = 0; // extra rows
    bool keep = false;
    bool round = false;
};

struct Cell
{
    CellFormat format;
    QList<Block> blocks;
    bool covered = false; // part of another cell's span
};

struct TableFormat
{
    QList<int> widths; // column shares, summing to 10000
    int leftIndent = 0;
    int rightIndent = 0;
    int before = 0;
    int after = 0;
    int frame = 10;
    QColor frameColor = QColor(0, 0, 0);
    int grid = 4;
    QColor gridColor = QColor(0, 0, 0);
    int headerRows = 0;
    bool keep = false;
    bool pageBreak = false;
    bool legacy = false; // "++" table
};

struct Table
{
    TableFormat format;
    QList<QList<Cell>> rows;

    int columns() const { return int(format.widths.size()); }
};

struct Document
{
    QList<Block> blocks;
    QString header; // "^H" and "^F" texts, QTF themselves
    QString footer;
    QString error; // "ERROR: reason: source" when reading stopped early
    // Source offsets of each "&" right after a "]" that closed paragraph codes: "[= Title]&"
    // is left aligned, a trap for template authors.
    QList<qsizetype> lostParagraphFormats;
};

} // namespace Qtf
