#include "DatabaseSelectDlg.h"

#include "CompanyListModel.h"
#include "NewCompanyDlg.h"
#include "ui_DatabaseSelectLayout.h"

#include <QHeaderView>

namespace {

DatabaseSelectDlg::HelpHandler& Help()
{
    static DatabaseSelectDlg::HelpHandler handler;
    return handler;
}

} // namespace

DatabaseSelectDlg::DatabaseSelectDlg(const QList<CompanyEntry>& entries, const QString& dbFolder,
                                     QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::DatabaseSelectLayout>()),
      m_model(new CompanyListModel(entries, this)), m_dbFolder(dbFolder)
{
    m_ui->setupUi(this);
    m_ui->m_list->setModel(m_model);
    m_ui->m_list->horizontalHeader()->setSectionResizeMode(CompanyListModel::Name,
                                                           QHeaderView::Stretch);
    m_ui->m_list->horizontalHeader()->setSectionResizeMode(CompanyListModel::Address,
                                                           QHeaderView::Stretch);
    m_ui->m_list->resizeColumnToContents(CompanyListModel::Zip);
    if (!entries.isEmpty())
        select(0);
    connect(m_ui->m_list, &QAbstractItemView::doubleClicked, this, &QDialog::accept);
    connect(m_ui->m_ok, &QPushButton::clicked, this, [this] {
        if (!selectedPath().isEmpty())
            accept();
    });
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->m_help, &QPushButton::clicked, this, &DatabaseSelectDlg::showHelp);
    connect(m_ui->m_new, &QPushButton::clicked, this, &DatabaseSelectDlg::newCompany);
}

DatabaseSelectDlg::~DatabaseSelectDlg() = default;

QString DatabaseSelectDlg::selectedPath() const
{
    const QModelIndex current = m_ui->m_list->currentIndex();
    return current.isValid() ? current.data(CompanyListModel::PathRole).toString() : QString();
}

std::optional<QString> DatabaseSelectDlg::choose(const QList<CompanyEntry>& entries,
                                                 const QString& dbFolder, QWidget* parent)
{
    DatabaseSelectDlg dlg(entries, dbFolder, parent);
    if (dlg.exec() != QDialog::Accepted || dlg.selectedPath().isEmpty())
        return std::nullopt;
    return dlg.selectedPath();
}

void DatabaseSelectDlg::setHelpHandler(HelpHandler handler)
{
    Help() = std::move(handler);
}

void DatabaseSelectDlg::newCompany()
{
    const QString path = NewCompanyDlg::createCompany(m_dbFolder, this);
    if (!path.isEmpty())
        select(m_model->append(ReadCompanyEntry(path)));
}

void DatabaseSelectDlg::showHelp()
{
    if (Help())
        Help()(this, QStringLiteral("TobbCegKezelese"));
}

void DatabaseSelectDlg::select(int row)
{
    m_ui->m_list->setCurrentIndex(m_model->index(row, CompanyListModel::Name));
    m_ui->m_list->selectRow(row);
}
