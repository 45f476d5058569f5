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

    // Asks for the new company's data until its file is made in dbFolder or the user cancels;
    // a refusal (an existing tax number, an empty name...) is shown and the data kept for a
    // correction. The new file's path, empty when cancelled.
    static QString createCompany(const QString& dbFolder, QWidget* parent);

private:
    std::unique_ptr<Ui::NewCompanyLayout> m_ui;
};
