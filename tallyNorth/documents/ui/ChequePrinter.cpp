#include "ChequePrinter.h"

#include "ReportPrinter.h"

#include "documents/Report.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

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
    : QDialog(parent),
      m_all(new QRadioButton(tr("Minden csekket nyomtat, amik meg nem voltak nyomtatva"), this)),
      m_print_selected_only(new QRadioButton(tr("Csak a kivalasztott csekkeket nyomtatja"), this))
{
    setObjectName(QStringLiteral("ChequePrinterLayout"));
    setWindowTitle(tr("Csekknyomtatas modja"));
    m_all->setObjectName(QStringLiteral("m_all"));
    m_print_selected_only->setObjectName(QStringLiteral("m_print_selected_only"));
    m_print_selected_only->setEnabled(anySelected);
    setMode(anySelected ? ChequePrintMode::SelectedOnly : ChequePrintMode::AllUnprinted);

    auto* group = new QGroupBox(tr("Csekknyomtatas modja"), this);
    auto* options = new QVBoxLayout(group);
    options->addWidget(m_all);
    options->addWidget(m_print_selected_only);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* print = buttons->addButton(tr("Print"), QDialogButtonBox::AcceptRole);
    print->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(group);
    column->addWidget(buttons);
}

ChequePrintMode ChequePrinter::mode() const
{
    return m_print_selected_only->isChecked() ? ChequePrintMode::SelectedOnly
                                              : ChequePrintMode::AllUnprinted;
}

void ChequePrinter::setMode(ChequePrintMode mode)
{
    (mode == ChequePrintMode::SelectedOnly ? m_print_selected_only : m_all)->setChecked(true);
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
