// "Select Database/Company": the company databases of the database folder with their name,
// address and tax number; "New company..." adds one.
#pragma once

#include "app/CompanyList.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>

namespace Ui {
class DatabaseSelectLayout;
}
class CompanyListModel;

class DatabaseSelectDlg : public QDialog
{
    Q_OBJECT

public:
    using HelpHandler = std::function<void(QWidget* parent, const QString& topic)>;

    DatabaseSelectDlg(const QList<CompanyEntry>& entries, const QString& dbFolder,
                      QWidget* parent = nullptr);
    ~DatabaseSelectDlg() override;

    // The chosen file's path; empty when nothing is selected.
    QString selectedPath() const;

    // Shows the dialog and returns the chosen file's path, nothing when cancelled.
    static std::optional<QString> choose(const QList<CompanyEntry>& entries,
                                         const QString& dbFolder, QWidget* parent);

    // The help window opens on the multi-company topic; the help system installs the handler.
    static void setHelpHandler(HelpHandler handler);

private:
    void newCompany();
    void showHelp();
    void select(int row);

    std::unique_ptr<Ui::DatabaseSelectLayout> m_ui;
    CompanyListModel* m_model;
    QString m_dbFolder;
};
