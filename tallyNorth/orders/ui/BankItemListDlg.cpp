#include "BankItemListDlg.h"

#include "base/DateText.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLocale>
#include <QTableWidget>
#include <QVBoxLayout>

BankItemListDlg::BankItemListDlg(const QList<BankItem>& items, const QString& currency,
                                 int decimals, QWidget* parent)
    : QDialog(parent), m_table(new QTableWidget(int(items.size()), 4, this))
{
    setWindowTitle(tr("Previous Bank Items"));
    m_table->setObjectName(QStringLiteral("items"));
    m_table->setHorizontalHeaderLabels(
        {tr("Record No"), tr("Transfer Date"), tr("Paid"), tr("Comment")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setStretchLastSection(true);
    const QLocale locale;
    for (int row = 0; row < items.size(); ++row) {
        const BankItem& item = items.at(row);
        const QString paid = locale.toString(item.paidTotal, 'f', decimals) + u' ' + currency;
        const QStringList texts = {item.recordNo, FormatDate(item.transferDate), paid.trimmed(),
                                   item.comment};
        for (int column = 0; column < texts.size(); ++column) {
            auto* cell = new QTableWidgetItem(texts.at(column));
            if (column == 2)
                cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_table->setItem(row, column, cell);
        }
    }
    m_table->resizeColumnsToContents();

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(m_table);
    column->addWidget(buttons);
    resize(560, 300);
}
