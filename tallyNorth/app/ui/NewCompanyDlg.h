// The data of a new company: name, tax number and address. Checking and creating the file is
// the core's CreateCompany.
#pragma once

#include "app/CompanyCreate.h"

#include <QDialog>

#include <memory>

namespace Ui {
class NewCompanyLayout;
}

class NewCompanyDlg : public QDialog
{
    Q_OBJECT

public:
    explicit NewCompanyDlg(const NewCompany& company, QWidget* parent = nullptr);
    ~NewCompanyDlg() override;

    NewCompany company() const;

private:
    std::unique_ptr<Ui::NewCompanyLayout> m_ui;
};
