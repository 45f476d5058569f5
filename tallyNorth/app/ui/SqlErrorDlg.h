// The dialog that reports a failed statement and offers to run it again.
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class SqlErrorLayout;
}

class SqlErrorDlg : public QDialog
{
    Q_OBJECT

public:
    SqlErrorDlg(const QString& error, const QString& statement, QWidget* parent = nullptr);
    ~SqlErrorDlg() override;

    // Accepted means "Retry".
    static bool askRetry(const QString& error, const QString& statement, QWidget* parent);

private:
    std::unique_ptr<Ui::SqlErrorLayout> m_ui;
};
