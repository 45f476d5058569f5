// A paged document: a page header and footer repeated on every page and a body flowing between
// them, all QTF. Paints on any paged device (PDF here; printers and the preview in the ui
// library). Lengths are dots, 1/600 inch.
#pragma once

#include "base/Result.h"

#include <QDate>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <memory>
#include <vector>

class QPagedPaintDevice;
class QPainter;
class QTextDocument;

class Report
{
public:
    // The printable area of an A4 page less 2 cm margins.
    static constexpr QSize kDefaultPage = QSize(3968, 6074);
    static constexpr int kDefaultSpacing = 150;

    Report();
    ~Report();
    Report(Report&&) noexcept;
    Report& operator=(Report&&) noexcept;

    // The area the content is laid out in; the paper defaults to A4 for the default area and to
    // the area itself for any other (a cheque is one 4724 x 2125 page).
    void setPageSize(QSize dots);
    QSize pageSize() const { return m_page; }
    void setPaperSize(QSizeF dots);
    QSizeF paperSize() const;
    // Moves the content right and down on the paper (printer alignment), in millimetres.
    void setShift(QPointF millimetres);
    QPointF shift() const { return m_shiftMm; }
    // Space between the header and the body and between the body and the footer.
    void setSpacing(int dots);
    // The date "$$D" stands for; today unless set.
    void setDate(const QDate& date);

    // Header, body and footer of the current section. "$$P" (page number) and "$$D" (date) are
    // replaced in the header and footer of each page.
    void setHeader(const QString& qtf);
    void setFooter(const QString& qtf);
    void setBody(const QString& qtf);
    void appendBody(const QString& qtf);
    // Starts a new section on a new page with its own header, body and footer; its pages are
    // numbered from 1 again (each copy of an invoice is one).
    void newSection();

    int pageCount() const;
    // Why the report cannot be printed; empty when it can.
    QString layoutError() const;
    // The section and its page for a page of the whole report.
    std::pair<int, int> pageOf(int page) const;

    // Paints every page on device, centred on its paper and shifted.
    Result print(QPagedPaintDevice& device) const;
    // Paints one page; painter is in dots with the origin at the page area's top left.
    void paintPage(QPainter& painter, int page) const;
    Result exportPdf(const QString& path, const QString& title = QString()) const;

private:
    struct Section;
    Section& current();
    void layout() const;
    void layoutSection(Section& s) const;
    std::unique_ptr<QTextDocument> headerFooter(const QString& qtf, int page, int pages) const;

    QSize m_page = kDefaultPage;
    QSizeF m_paper;
    QPointF m_shiftMm;
    int m_spacing = kDefaultSpacing;
    QDate m_date;
    mutable std::vector<std::unique_ptr<Section>> m_sections;
    mutable bool m_laidOut = false;
    mutable QString m_error; // why the report cannot be laid out
};
