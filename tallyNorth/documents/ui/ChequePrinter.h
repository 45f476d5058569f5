// "Csekknyomtatas modja": prints every cheque not printed yet, or only the ones selected in the
// list. The cheques go to a printer chosen first, so a cancelled choice marks none printed.
#pragma once

#include "base/Result.h"
#include "documents/ChequePrinting.h"
#include "documents/InvoiceIssue.h"

#include <QDialog>

#include <memory>

class Interaction;

namespace Ui {
class ChequePrinterLayout;
}

// Pages on a printer the person chooses, or in the print preview. A cancelled printer choice
// gives a failure with an empty message.
class ChequePrinterOutput : public InvoiceOutput
{
public:
    ChequePrinterOutput(bool preview, QWidget* parent) : m_preview(preview), m_parent(parent) {}
    Result output(const Report& report, const QString& title) override;

private:
    bool m_preview;
    QWidget* m_parent;
};

class ChequePrinter : public QDialog
{
    Q_OBJECT
public:
    explicit ChequePrinter(bool anySelected, QWidget* parent = nullptr);
    ~ChequePrinter() override;

    ChequePrintMode mode() const;
    void setMode(ChequePrintMode mode);

    // Asks for the mode and prints; printed receives the count. A cancelled dialog or printer
    // choice gives a failure with an empty message.
    static Result run(const QList<qint64>& selected, Interaction& interaction, QWidget* parent,
                      int& printed);

private:
    std::unique_ptr<Ui::ChequePrinterLayout> m_ui;
};
