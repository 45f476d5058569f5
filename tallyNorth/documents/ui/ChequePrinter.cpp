#include "ChequePrinter.h"

#include "ReportPrinter.h"
#include "ui_ChequePrinterLayout.h"

#include "documents/Report.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

Result ChequePrinterOutput::output(const Report& report, const QString& title)
{
    if (m_preview) {
        PreviewReport(report, m_parent, title);
        return Result::success();
    }
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, report);
    printer.setDocName(title);
    QPrintDialog dialog(&printer, m_parent);
    if (dialog.exec() != QDialog::Accepted)
        return Result::failure(QString());
    return PrintReport(report, printer);
}

ChequePrinter::ChequePrinter(bool anySelected, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ChequePrinterLayout>())
{
    m_ui->setupUi(this);
    m_ui->m_print_selected_only->setEnabled(anySelected);
    setMode(anySelected ? ChequePrintMode::SelectedOnly : ChequePrintMode::AllUnprinted);
    connect(m_ui->m_print, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

ChequePrinter::~ChequePrinter() = default;

ChequePrintMode ChequePrinter::mode() const
{
    return m_ui->m_print_selected_only->isChecked() ? ChequePrintMode::SelectedOnly
                                                    : ChequePrintMode::AllUnprinted;
}

void ChequePrinter::setMode(ChequePrintMode mode)
{
    (mode == ChequePrintMode::SelectedOnly ? m_ui->m_print_selected_only : m_ui->m_all)
        ->setChecked(true);
}

Result ChequePrinter::run(const QList<qint64>& selected, Interaction& interaction, QWidget* parent,
                          int& printed)
{
    printed = 0;
    ChequePrinter dialog(!selected.isEmpty(), parent);
    if (dialog.exec() != QDialog::Accepted)
        return Result::failure(QString());
    ChequePrinterOutput output(false, parent);
    return ChequePrinting::print(dialog.mode(), selected, output, interaction, QDate::currentDate(),
                                 printed);
}
