// The product dialog: product data with net and gross price kept in step through the chosen
// VAT key, translations per language, and prices per foreign currency.
#pragma once

#include "RecordEditDlg.h"

namespace Ui {
class ProductEditLayout;
}
class ProductPriceModel;

class ProductEdit : public RecordEditDlg
{
    Q_OBJECT
public:
    ProductEdit(std::optional<qint64> id, QWidget* parent = nullptr);
    ~ProductEdit() override;

    ProductPriceModel* prices() const { return m_prices; }

protected:
    void showRecord(const Record& row) override;
    Result loadChildren(qint64 id) override;
    QList<QList<Record>> childRows() const override;

private:
    double vatPercent() const;
    void netEdited();
    void grossEdited();
    void updateGross();
    void findStatNo();

    std::unique_ptr<Ui::ProductEditLayout> m_ui;
    ProductPriceModel* m_prices;
};
