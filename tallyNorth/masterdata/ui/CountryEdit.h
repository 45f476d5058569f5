// The country dialog, with its second invoice language and default currency.
#pragma once

#include "RecordEditDlg.h"

namespace Ui {
class CountryEditLayout;
}

class CountryEdit : public RecordEditDlg
{
    Q_OBJECT
public:
    CountryEdit(std::optional<qint64> id, QWidget* parent = nullptr);
    ~CountryEdit() override;

protected:
    void newRecord(Record& row) override;

private:
    std::unique_ptr<Ui::CountryEditLayout> m_ui;
};
