#include "CurrencyRoundingEditor.h"

#include "ui_CurrencyRoundingLayout.h"

#include "masterdata/MasterTables.h"

CurrencyRoundingEditor::CurrencyRoundingEditor(QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::CurrencyRoundingLayout>())
{
    m_ui->setupUi(this);
    layout()->setContentsMargins(0, 0, 0, 0);
    const std::pair<QSpinBox*, QSpinBox*> pairs[] = {
        {m_ui->m_line_total_printing_decimals, m_ui->m_line_total_rounding_decimals},
        {m_ui->m_invoice_total_printing_decimals, m_ui->m_invoice_total_rounding_decimals},
    };
    for (QSpinBox* box : findChildren<QSpinBox*>())
        box->setRange(0, kMaxCurrencyDecimals);
    // QSpinBox::setMaximum lowers a larger value to the new limit. The printing fields start at
    // the top so that the fields may be filled in any order and still end up capped.
    for (const auto& [printing, rounding] : pairs) {
        printing->setValue(kMaxCurrencyDecimals);
        connect(printing, &QSpinBox::valueChanged, rounding, &QSpinBox::setMaximum);
    }
}

CurrencyRoundingEditor::~CurrencyRoundingEditor() = default;
