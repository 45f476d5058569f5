// The currency dialog: name, abbreviation, the rate labelled with the abbreviation, the bank
// block and the rounding tab.
#pragma once

#include "RecordEditDlg.h"

namespace Ui {
class CurrencyEditLayout;
}

class CurrencyEdit : public RecordEditDlg
{
    Q_OBJECT
public:
    CurrencyEdit(std::optional<qint64> id, QWidget* parent = nullptr);
    ~CurrencyEdit() override;

protected:
    void newRecord(Record& row) override;
    void showRecord(const Record& row) override;

private:
    void updateRateLabel();
    void updateBankFields();

    std::unique_ptr<Ui::CurrencyEditLayout> m_ui;
    QString m_rateLabel;
};
