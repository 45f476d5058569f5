#include "CountryEdit.h"

#include "FieldBinding.h"
#include "MasterBrowses.h"
#include "ui_CountryEditLayout.h"

#include "Columns.h"
#include "base/SqlValue.h"
#include "masterdata/MasterTables.h"

using namespace Col;

CountryEdit::CountryEdit(std::optional<qint64> id, QWidget* parent)
    : RecordEditDlg(CountryStore(), id, parent), m_ui(std::make_unique<Ui::CountryEditLayout>())
{
    m_ui->setupUi(this);
    FillMasterCombo(m_ui->m_lang_id, MasterTable::Lang, true);
    FillMasterCombo(m_ui->m_currency_id, MasterTable::Currency, false);
    LinkChooser(m_ui->m_languages, m_ui->m_lang_id, MasterTable::Lang, true);
    LinkChooser(m_ui->m_currencies, m_ui->m_currency_id, MasterTable::Currency, false);
    bindFields({"CountryTable", QT_TRANSLATE_NOOP("CountryTable", "Add Country")},
               {"CountryTable", QT_TRANSLATE_NOOP("CountryTable", "Edit Country:")}, true);
}

CountryEdit::~CountryEdit() = default;

void CountryEdit::newRecord(Record& row)
{
    row.insert(QString::fromLatin1(COUNTRY_CURRENCY_ID), 0);
}
