// QTF as Qt rich text: a QTextDocument for painting pages or showing on screen.
#pragma once

#include "QtfDocument.h"

#include <QColor>
#include <QList>
#include <QRectF>
#include <QTextFormat>

#include <memory>

class QPainter;
class QTextDocument;

// Layout units of the built document. Dots lay a page out at 600 units per inch with font sizes
// in pixels (a 100-dot font is 12 pt on paper); Screen uses the screen's pixels and points.
enum class QtfUnits { Dots, Screen };

struct QtfLayout
{
    QtfUnits units = QtfUnits::Screen;
    int width = 3968;   // text width in dots; also places tab stops measured from the right edge
    int pageNumber = 0; // values of the page-number fields; 0 leaves them empty
    int pageCount = 0;
    // For measuring only: cells top-aligned, so that the top of each table row shows in its
    // cells' first lines, and without the colours only painting needs.
    bool topAlignedCells = false;
    // Lines of top-level tables left to the caller (PaintQtfTableLines): Qt's own collapsed
    // borders cost a lookup of the neighbouring cells for every edge, on every layout and
    // paint. The cells keep the room the lines take.
    bool ownTableLines = false;
};

// The lines around a table cell as drawn: left, top, right, bottom. An inside line is shared
// with the neighbour (the wider one wins) and lies half in each cell; the frame lies inside.
struct QtfCellLines
{
    double width[4] = {};
    QColor color[4];
    bool edge[4] = {};
    // The room a side takes in the cell.
    double room(int side) const { return edge[side] ? width[side] : width[side] / 2; }
};
QtfCellLines CellLines(const Qtf::Table& table, int row, int col);

// The edges of table's columns between left and right, as laid out with ownTableLines.
QList<double> QtfColumnEdges(const Qtf::Table& table, double left, double right);

// Draws the lines of table, laid out with ownTableLines: its columns span left to right and its
// rows end at rowBottoms, the first starting at top.
void PaintQtfTableLines(QPainter& painter, const Qtf::Table& table, double left, double right,
                        double top, const QList<double>& rowBottoms);

// Format properties the builder leaves for painting and paging.
namespace QtfProperty {
enum : int {
    Ruler =
        QTextFormat::UserProperty + 0x5100, // QVariantList: height, colour, style, before, width
    Leaders,  // QVariantList of QPointF(stop position, fill character)
    Filler,   // a block Qt needs around a table, without content or height
    Keep,     // keep the paragraph or table on one page
    KeepNext, // keep the paragraph on the page of the next one
    Spacer,   // the space before a frame's first paragraph, a block of its own
};
}

double QtfUnitsPerDot(QtfUnits units);

std::unique_ptr<QTextDocument> MakeTextDocument(const Qtf::Document& qtf, const QtfLayout& layout);
std::unique_ptr<QTextDocument> QtfToTextDocument(const QString& qtf, const QtfLayout& layout = {});

// Draws what Qt's own layout leaves out: paragraph rulers and tab leaders. clip is in the
// document's coordinates.
void PaintQtfExtras(QPainter& painter, const QTextDocument& document, const QRectF& clip);
