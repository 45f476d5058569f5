// Printing postal cheques: every cheque is one page the size of the slip, filled from the cheque
// template and shifted by the settings' millimetre offsets to meet the form in the printer.
// Printed cheques are marked with the date, so "all not yet printed" never prints one twice.
#pragma once

#include "base/Result.h"
#include "orders/ChequeStore.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QPointF>
#include <QSize>

class Interaction;
class InvoiceOutput;
class PlaceholderMap;
class QPagedPaintDevice;
class Report;

enum class ChequePrintMode {
    AllUnprinted, // every cheque not printed yet
    SelectedOnly, // the cheques chosen in the list
};

class ChequePrinting
{
    Q_DECLARE_TR_FUNCTIONS(ChequePrinting)

public:
    // 200 mm x 90 mm in report dots (1/600 inch).
    static constexpr QSize kChequePage = QSize(4724, 2125);

    static PlaceholderMap placeholders(const Cheque& cheque);
    // The template filled with a cheque's values, escaped as QTF data.
    static QString fill(const QString& templateQtf, const Cheque& cheque);
    // One page per cheque.
    static Result build(const QList<Cheque>& cheques, const QString& templateQtf, QPointF shiftMm,
                        Report& report);
    // SETUP_CHEQUE_MARGIN_LEFT_MM and SETUP_CHEQUE_MARGIN_TOP_MM of the open company.
    static QPointF settingsShift();

    // Prints the cheques of mode (selected: those ids) with the settings' template and offsets,
    // then marks them printed on today. printed receives how many were printed.
    static Result print(ChequePrintMode mode, const QList<qint64>& selected, InvoiceOutput& output,
                        Interaction& interaction, const QDate& today, int& printed);

    // A cheque with sample data, for trying a template and the offsets on the form.
    static Cheque sampleCheque();
    // The test cheque with the given template and offsets (the setup window's unsaved values),
    // to a PDF or printer output or straight onto a paged device.
    static Result printTest(const QString& templateQtf, QPointF shiftMm, InvoiceOutput& output);
    static Result printTest(const QString& templateQtf, QPointF shiftMm, QPagedPaintDevice& device);
};
