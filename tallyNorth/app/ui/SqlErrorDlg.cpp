#include "SqlErrorDlg.h"

#include "ui_SqlErrorLayout.h"

SqlErrorDlg::SqlErrorDlg(const QString& error, const QString& statement, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::SqlErrorLayout>())
{
    m_ui->setupUi(this);
    m_ui->m_error->setPlainText(error);
    m_ui->m_statement->setPlainText(statement);
    connect(m_ui->m_retry, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

SqlErrorDlg::~SqlErrorDlg() = default;

bool SqlErrorDlg::askRetry(const QString& error, const QString& statement, QWidget* parent)
{
    SqlErrorDlg dlg(error, statement, parent);
    return dlg.exec() == QDialog::Accepted;
}
