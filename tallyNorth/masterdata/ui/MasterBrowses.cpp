#include "MasterBrowses.h"

#include "CountryEdit.h"
#include "CurrencyEdit.h"
#include "FieldBinding.h"
#include "PartnerEdit.h"
#include "ProductBrowse.h"
#include "RecordBrowseDlg.h"
#include "ui_LangEditLayout.h"
#include "ui_NoVatReasonEditLayout.h"
#include "ui_PaymentMethodEditLayout.h"
#include "ui_StatNoEditLayout.h"
#include "ui_VatEditLayout.h"

#include "base/ui/EnterLikeTab.h"

#include "Columns.h"
#include "masterdata/MasterTables.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QPushButton>

using namespace Col;

namespace {

const TrText kSelectToEdit =
    TrText{"RecordBrowse", QT_TRANSLATE_NOOP("RecordBrowse", "Select a record to edit.")};
const TrText kSelectToDelete =
    TrText{"RecordBrowse", QT_TRANSLATE_NOOP("RecordBrowse", "Select a record to delete.")};

template <class Form>
EditFunction FormEdit(const TableStore& (*store)(), TrText add, TrText edit, bool nameInTitle,
                      QList<TrText> translationHeaders = {})
{
    return [=](QWidget* parent, std::optional<qint64> id, const Record& presets) {
        FormEditDlg<Form> dlg(store(), id, parent);
        if constexpr (requires { dlg.m_ui.m_translations; })
            dlg.addTranslations(dlg.m_ui.m_translations, translationHeaders);
        dlg.bindFields(add, edit, nameInTitle);
        return dlg.run(presets);
    };
}

template <class Dlg> EditFunction DialogEdit()
{
    return [](QWidget* parent, std::optional<qint64> id, const Record& presets) {
        Dlg dlg(id, parent);
        return dlg.run(presets);
    };
}

// The partner list's payment method: the names are read once for each load.
ComputedColumn PaymentMethodColumn()
{
    QHash<qint64, QString> names;
    // A failed read leaves the column empty; the list's own query reports the database error.
    (void)PaymentMethodStore().names(names);
    return {[names](const Record& partner) -> QVariant {
        const std::optional<qint64> id =
            RowId(partner.value(QString::fromLatin1(PARTNER_PAYMENTMETHOD_ID)));
        return id ? names.value(*id) : QString();
    }};
}

const BrowseInfo& VatBrowse()
{
    static const BrowseInfo info{
        .store = &VatStore(),
        .title = TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "VAT keys")},
        .newButton = TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "&New VAT key")},
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TrText{"VatTable",
                   QT_TRANSLATE_NOOP("VatTable",
                                     "Do you really want to delete the selected VAT key?")},
        .chooseMessage =
            TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "You have to select a VAT key.")},
        .helpTopic = "AFAKulcsok",
        .columns = {{TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "Code")}, VAT_CODE, true},
                    {TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "Name")}, VAT_NAME},
                    {TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "Percent")}, VAT_PERCENT}},
        .edit = FormEdit<Ui::VatEditLayout>(
            VatStore, TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "Add VAT")},
            TrText{"VatTable", QT_TRANSLATE_NOOP("VatTable", "Edit VAT:")}, true),
    };
    return info;
}

const BrowseInfo& CurrencyBrowse()
{
    static const BrowseInfo info{
        .store = &CurrencyStore(),
        .title = TrText{"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "Currencies")},
        .newButton = TrText{"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "&New Currency")},
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TrText{"CurrencyTable",
                   QT_TRANSLATE_NOOP("CurrencyTable",
                                     "Do you really want to delete the selected Currency?")},
        .chooseMessage =
            TrText{"CurrencyTable",
                   QT_TRANSLATE_NOOP("CurrencyTable", "You have to select a currency.")},
        .helpTopic = "ProgramKezelese",
        .columns = {{TrText{"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "Name")},
                     CURRENCY_NAME},
                    {TrText{"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "Abbreviation")},
                     CURRENCY_ABBREVIATION},
                    {TrText{"CurrencyTable", QT_TRANSLATE_NOOP("CurrencyTable", "Rate")},
                     CURRENCY_RATE}},
        .edit = DialogEdit<CurrencyEdit>(),
    };
    return info;
}

const BrowseInfo& PaymentMethodBrowse()
{
    static const BrowseInfo info{
        .store = &PaymentMethodStore(),
        .title = TrText{"PaymentMethodTable",
                        QT_TRANSLATE_NOOP("PaymentMethodTable", "Payment Methods")},
        .newButton = TrText{"PaymentMethodTable",
                            QT_TRANSLATE_NOOP("PaymentMethodTable", "&New Payment Method")},
        .selectToEdit =
            TrText{"PaymentMethodTable",
                   QT_TRANSLATE_NOOP("PaymentMethodTable", "Select a payment metod to edit.")},
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TrText{"PaymentMethodTable",
                   QT_TRANSLATE_NOOP("PaymentMethodTable",
                                     "Do you really want to delete the selected payment method?")},
        .chooseMessage =
            TrText{"PaymentMethodTable",
                   QT_TRANSLATE_NOOP("PaymentMethodTable", "You have to select a payment method.")},
        .helpTopic = "FizetesiModok",
        .columns =
            {{TrText{"PaymentMethodTable", QT_TRANSLATE_NOOP("PaymentMethodTable", "Code")},
              PAYMENTMETHOD_CODE, true},
             {TrText{"PaymentMethodTable", QT_TRANSLATE_NOOP("PaymentMethodTable", "Name")},
              PAYMENTMETHOD_NAME},
             {TrText{"PaymentMethodTable", QT_TRANSLATE_NOOP("PaymentMethodTable", "Due Days")},
              PAYMENTMETHOD_DUE_DAYS},
             {TrText{"PaymentMethodTable", QT_TRANSLATE_NOOP("PaymentMethodTable", "Comment")},
              PAYMENTMETHOD_COMMENT_TEXT}},
        .edit = FormEdit<Ui::PaymentMethodEditLayout>(
            PaymentMethodStore,
            TrText{"PaymentMethodTable",
                   QT_TRANSLATE_NOOP("PaymentMethodTable", "Add Payment Method")},
            TrText{"PaymentMethodTable",
                   QT_TRANSLATE_NOOP("PaymentMethodTable", "Edit Payment Method")},
            false,
            {TrText{"PaymentMethodTable", QT_TRANSLATE_NOOP("PaymentMethodTable", "Name")},
             TrText{"PaymentMethodTable", QT_TRANSLATE_NOOP("PaymentMethodTable", "Comment")}}),
    };
    return info;
}

const BrowseInfo& NoVatReasonBrowse()
{
    static const BrowseInfo info{
        .store = &NoVatReasonStore(),
        .title =
            TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "No VAT Reasons")},
        .newButton = TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "&New")},
        .selectToEdit =
            TrText{"NoVatReasonTable",
                   QT_TRANSLATE_NOOP("NoVatReasonTable", "Select a no vat reason to edit.")},
        .selectToDelete =
            TrText{"NoVatReasonTable",
                   QT_TRANSLATE_NOOP("NoVatReasonTable", "Select a no vat reason to delete.")},
        .deleteQuestion =
            TrText{"NoVatReasonTable",
                   QT_TRANSLATE_NOOP("NoVatReasonTable",
                                     "Do you really want to delete the no vat reason?")},
        .chooseMessage =
            TrText{"NoVatReasonTable",
                   QT_TRANSLATE_NOOP("NoVatReasonTable", "You have to select a no vat reason.")},
        .helpTopic = "AFAMentessegOkok",
        .columns = {{TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "Code")},
                     NOVATREASON_CODE, true},
                    {TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "Name")},
                     NOVATREASON_NAME},
                    {TrText{"NoVatReasonTable",
                            QT_TRANSLATE_NOOP("NoVatReasonTable", "Text To Invoice")},
                     NOVATREASON_TEXT}},
        .edit = FormEdit<Ui::NoVatReasonEditLayout>(
            NoVatReasonStore,
            TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "Add No VAT Reason")},
            TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "Edit No VAT Reason")},
            false,
            {TrText{"NoVatReasonTable", QT_TRANSLATE_NOOP("NoVatReasonTable", "Text To Invoice")}}),
    };
    return info;
}

const BrowseInfo& StatNoBrowse()
{
    static const BrowseInfo info{
        .store = &StatNoStore(),
        .title = TrText{"StatNoTable", QT_TRANSLATE_NOOP("StatNoTable", "Often Used Stat Numbers")},
        .newButton = TrText{"StatNoTable", QT_TRANSLATE_NOOP("StatNoTable", "&New Stat No")},
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TrText{"StatNoTable",
                   QT_TRANSLATE_NOOP("StatNoTable",
                                     "Do you really want to delete the selected Stat No?")},
        .chooseMessage = TrText{"StatNoTable",
                                QT_TRANSLATE_NOOP("StatNoTable", "You have to select a stat no.")},
        .helpTopic = "VtszSzjSzamok",
        .columns = {{TrText{"StatNoTable", QT_TRANSLATE_NOOP("StatNoTable", "Stat No")},
                     STATNO_STAT_NO},
                    {TrText{"StatNoTable", QT_TRANSLATE_NOOP("StatNoTable", "Name")}, STATNO_NAME}},
        .edit = FormEdit<Ui::StatNoEditLayout>(
            StatNoStore, TrText{"StatNoTable", QT_TRANSLATE_NOOP("StatNoTable", "Add Stat No")},
            TrText{"StatNoTable", QT_TRANSLATE_NOOP("StatNoTable", "Edit Stat No:")}, true),
    };
    return info;
}

const BrowseInfo& LangBrowse()
{
    static const BrowseInfo info{
        .store = &LangStore(),
        .title = TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "Languages")},
        .newButton = TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "&New Language")},
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TrText{"LangTable",
                   QT_TRANSLATE_NOOP("LangTable",
                                     "Do you really want to delete the selected Language?")},
        .chooseMessage =
            TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "You have to select a language.")},
        .helpTopic = "ProgramKezelese",
        .columns = {{TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "Code")}, LANG_CODE},
                    {TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "Name")}, LANG_NAME}},
        .edit = FormEdit<Ui::LangEditLayout>(
            LangStore, TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "Add Language")},
            TrText{"LangTable", QT_TRANSLATE_NOOP("LangTable", "Edit Language:")}, true),
    };
    return info;
}

const BrowseInfo& CountryBrowse()
{
    static const BrowseInfo info{
        .store = &CountryStore(),
        .title = TrText{"CountryTable", QT_TRANSLATE_NOOP("CountryTable", "Countries")},
        .newButton = TrText{"CountryTable", QT_TRANSLATE_NOOP("CountryTable", "&New Country")},
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TrText{"CountryTable",
                   QT_TRANSLATE_NOOP("CountryTable",
                                     "Do you really want to delete the selected Country?")},
        .chooseMessage = TrText{"CountryTable",
                                QT_TRANSLATE_NOOP("CountryTable", "You have to select a country.")},
        .helpTopic = "ProgramKezelese",
        .columns = {{TrText{"CountryTable", QT_TRANSLATE_NOOP("CountryTable", "Country Name")},
                     COUNTRY_NAME},
                    {TrText{"CountryTable",
                            QT_TRANSLATE_NOOP("CountryTable", "International Code")},
                     COUNTRY_INTERNATIONAL_CODE},
                    {TrText{"CountryTable", QT_TRANSLATE_NOOP("CountryTable", "Name In Addresses")},
                     COUNTRY_NAME_ON_MAILS}},
        .edit = DialogEdit<CountryEdit>(),
    };
    return info;
}

const BrowseInfo& PartnerBrowse()
{
    static const BrowseInfo info{
        .store = &PartnerStore(),
        .title = TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Partners")},
        .newButton = TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "&New Partner")},
        .selectToEdit =
            TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Select a partner to edit.")},
        .selectToDelete = TrText{"PartnerTable",
                                 QT_TRANSLATE_NOOP("PartnerTable", "Select a partner to delete.")},
        .deleteQuestion =
            TrText{"PartnerTable",
                   QT_TRANSLATE_NOOP("PartnerTable",
                                     "Do you really want to delete the selected partner?")},
        .chooseMessage = TrText{"PartnerTable",
                                QT_TRANSLATE_NOOP("PartnerTable", "You have to select a partner.")},
        .helpTopic = "Partnerek",
        .columns = {{TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Code")},
                     PARTNER_CODE, true},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Name")},
                     PARTNER_NAME},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "ZIP")}, PARTNER_ZIP},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "City")},
                     PARTNER_CITY},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Address")},
                     PARTNER_ADDRESS},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Other Data")},
                     PARTNER_OTHER_DATA},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Payment Method")},
                     nullptr,
                     false,
                     {},
                     {},
                     PaymentMethodColumn},
                    {TrText{"PartnerTable", QT_TRANSLATE_NOOP("PartnerTable", "Due Days")},
                     PARTNER_PAYMENT_DUE_DAYS}},
        .edit = DialogEdit<PartnerEdit>(),
        .searchTip =
            TrText{"PartnerTable",
                   QT_TRANSLATE_NOOP(
                       "PartnerTable",
                       "Type in first characters of partner name and press Enter to find")},
        .moreMessage =
            TrText{
                "PartnerTable",
                QT_TRANSLATE_NOOP(
                    "PartnerTable",
                    "There are more matching partners then displayed. Try more specific filter.")},
    };
    return info;
}

} // namespace

const BrowseInfo& MasterBrowseInfo(MasterTable table)
{
    switch (table) {
    case MasterTable::Vat:
        return VatBrowse();
    case MasterTable::Currency:
        return CurrencyBrowse();
    case MasterTable::PaymentMethod:
        return PaymentMethodBrowse();
    case MasterTable::NoVatReason:
        return NoVatReasonBrowse();
    case MasterTable::StatNo:
        return StatNoBrowse();
    case MasterTable::Lang:
        return LangBrowse();
    case MasterTable::Country:
        return CountryBrowse();
    case MasterTable::Partner:
        return PartnerBrowse();
    case MasterTable::Product:
        return ProductBrowseInfo();
    }
    Q_UNREACHABLE();
}

void OpenMasterBrowse(MasterTable table, QWidget* parent)
{
    RecordBrowseDlg dlg(MasterBrowseInfo(table), RecordBrowse::Mode::Manage, parent);
    dlg.exec();
}

std::optional<qint64> ChooseMasterRow(MasterTable table, QWidget* parent)
{
    RecordBrowseDlg dlg(MasterBrowseInfo(table), RecordBrowse::Mode::Choose, parent);
    if (dlg.exec() != QDialog::Accepted)
        return std::nullopt;
    return dlg.chosenId();
}

std::optional<qint64> EditMasterRow(MasterTable table, QWidget* parent, std::optional<qint64> id,
                                    const Record& presets)
{
    return MasterBrowseInfo(table).edit(parent, id, presets);
}

ListTab* CreateMasterTab(MasterTable table, QWidget* parent)
{
    return new RecordBrowseTab(MasterBrowseInfo(table), parent);
}

void FillMasterCombo(QComboBox* combo, MasterTable table, bool allowEmpty)
{
    (void)FillCombo(combo, *MasterBrowseInfo(table).store, allowEmpty);
    // No second language means a Hungarian-only invoice; a blank entry would not say so.
    if (allowEmpty && table == MasterTable::Lang)
        combo->setItemText(0, QCoreApplication::translate("LangTable", "(Hungarian only)"));
}

void LinkChooser(QPushButton* button, QComboBox* combo, MasterTable table, bool allowEmpty)
{
    EnterLikeTab::markFieldButton(button);
    QObject::connect(button, &QPushButton::clicked, combo, [=] {
        const std::optional<qint64> chosen = ChooseMasterRow(table, button->window());
        FillMasterCombo(combo, table, allowEmpty);
        if (chosen)
            SelectComboId(combo, *chosen);
    });
}
