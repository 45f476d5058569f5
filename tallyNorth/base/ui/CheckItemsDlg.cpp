#include "CheckItemsDlg.h"

#include "ui_CheckItemsLayout.h"

#include <QHeaderView>

CheckItemsDlg::CheckItemsDlg(const QString& title, const QString& itemCaption,
                             const QString& checkCaption, const QStringList& items, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CheckItemsLayout>())
{
    m_ui->setupUi(this);
    setWindowTitle(title);
    QTableWidget* list = m_ui->m_list;
    list->setColumnCount(2);
    list->setHorizontalHeaderLabels({itemCaption, checkCaption});
    list->setRowCount(int(items.size()));
    for (int row = 0; row < items.size(); ++row) {
        list->setItem(row, 0, new QTableWidgetItem(items.at(row)));
        auto* check = new QTableWidgetItem;
        check->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        check->setCheckState(Qt::Unchecked);
        list->setItem(row, 1, check);
    }
    list->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    list->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(m_ui->m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

CheckItemsDlg::~CheckItemsDlg() = default;

QList<bool> CheckItemsDlg::checked() const
{
    QList<bool> states;
    for (int row = 0; row < m_ui->m_list->rowCount(); ++row)
        states << (m_ui->m_list->item(row, 1)->checkState() == Qt::Checked);
    return states;
}
