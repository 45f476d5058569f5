// A list of items, each with a check box: the choice of payment methods whose invoices are set
// unpaid during an upgrade, and any other "tick the ones that apply" question.
#pragma once

#include <QDialog>
#include <QList>

#include <memory>

namespace Ui {
class CheckItemsLayout;
}

class CheckItemsDlg : public QDialog
{
    Q_OBJECT

public:
    CheckItemsDlg(const QString& title, const QString& itemCaption, const QString& checkCaption,
                  const QStringList& items, QWidget* parent = nullptr);
    ~CheckItemsDlg() override;

    QList<bool> checked() const;

private:
    std::unique_ptr<Ui::CheckItemsLayout> m_ui;
};
