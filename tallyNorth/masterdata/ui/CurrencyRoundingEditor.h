// The five decimals of a currency. Lowering a printing decimals field lowers its rounding field
// with it, so that a total is never rounded to more decimals than it is printed with. The
// currency dialog and the setup window (the forint's rules) both use it.
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class CurrencyRoundingLayout;
}

class CurrencyRoundingEditor : public QWidget
{
    Q_OBJECT
public:
    explicit CurrencyRoundingEditor(QWidget* parent = nullptr);
    ~CurrencyRoundingEditor() override;

private:
    std::unique_ptr<Ui::CurrencyRoundingLayout> m_ui;
};
