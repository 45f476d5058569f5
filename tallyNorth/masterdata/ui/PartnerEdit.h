// The partner dialog: billing data, other billing data, mailing address, contact and comment.
#pragma once

#include "RecordEditDlg.h"

namespace Ui {
class PartnerEditLayout;
}

class PartnerEdit : public RecordEditDlg
{
    Q_OBJECT
public:
    PartnerEdit(std::optional<qint64> id, QWidget* parent = nullptr);
    ~PartnerEdit() override;

    // The tax numbers are checked before the row is saved.
    void accept() override;

protected:
    void newRecord(Record& row) override;
    void showRecord(const Record& row) override;

private:
    // With "same as billing" the mailing fields show the billing data and are locked.
    void mirrorMailAddress();
    // A newly picked country brings its invoice language and currency.
    void takeCountryDefaults();

    std::unique_ptr<Ui::PartnerEditLayout> m_ui;
};
