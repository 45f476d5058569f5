#include "NewCompanyDlg.h"

#include "base/ui/GuiInteraction.h"
#include "ui_NewCompanyLayout.h"

NewCompanyDlg::NewCompanyDlg(const NewCompany& company, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::NewCompanyLayout>())
{
    m_ui->setupUi(this);
    m_ui->m_name->setText(company.name);
    m_ui->m_tax_no->setText(company.taxNo);
    m_ui->m_zip->setText(company.zip);
    m_ui->m_city->setText(company.city);
    m_ui->m_address->setText(company.address);
    connect(m_ui->m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_ui->m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

NewCompanyDlg::~NewCompanyDlg() = default;

NewCompany NewCompanyDlg::company() const
{
    NewCompany c;
    c.name = m_ui->m_name->text();
    c.taxNo = m_ui->m_tax_no->text();
    c.zip = m_ui->m_zip->text();
    c.city = m_ui->m_city->text();
    c.address = m_ui->m_address->text();
    return c;
}

QString NewCompanyDlg::createCompany(const QString& dbFolder, QWidget* parent)
{
    GuiInteraction interaction(parent);
    NewCompany values;
    for (;;) {
        NewCompanyDlg dlg(values, parent);
        if (dlg.exec() != QDialog::Accepted)
            return {};
        values = dlg.company();
        QString path;
        const Result r = CreateCompany(values, dbFolder, interaction, &path);
        if (r)
            return path;
        interaction.error(r.message());
    }
}
