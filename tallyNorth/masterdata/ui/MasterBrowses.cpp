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

#include "Columns.h"
#include "masterdata/MasterTables.h"

#include <QComboBox>
#include <QPushButton>

using namespace Col;

// A source text of context c, marked for translation.
#define TN(c, text)                                                                                \
    TrText                                                                                         \
    {                                                                                              \
        c, QT_TRANSLATE_NOOP(c, text)                                                              \
    }

namespace {

const TrText kSelectToEdit = TN("RecordBrowse", "Select a record to edit.");
const TrText kSelectToDelete = TN("RecordBrowse", "Select a record to delete.");

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

// Payment method names for the partner list, read before each load.
QHash<qint64, QString>& PaymentMethodNames()
{
    static QHash<qint64, QString> names;
    return names;
}

QVariant ConvertPaymentmethod(const Record& partner)
{
    const std::optional<qint64> id =
        RowId(partner.value(QString::fromLatin1(PARTNER_PAYMENTMETHOD_ID)));
    return id ? PaymentMethodNames().value(*id) : QString();
}

const BrowseInfo& VatBrowse()
{
    static const BrowseInfo info{
        .store = &VatStore(),
        .title = TN("VatTable", "VAT keys"),
        .newButton = TN("VatTable", "&New VAT key"),
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion = TN("VatTable", "Do you really want to delete the selected VAT key?"),
        .chooseMessage = TN("VatTable", "You have to select a VAT key."),
        .helpTopic = "AFAKulcsok",
        .columns = {{TN("VatTable", "Code"), VAT_CODE, true},
                    {TN("VatTable", "Name"), VAT_NAME},
                    {TN("VatTable", "Percent"), VAT_PERCENT}},
        .edit = FormEdit<Ui::VatEditLayout>(VatStore, TN("VatTable", "Add VAT"),
                                            TN("VatTable", "Edit VAT:"), true),
    };
    return info;
}

const BrowseInfo& CurrencyBrowse()
{
    static const BrowseInfo info{
        .store = &CurrencyStore(),
        .title = TN("CurrencyTable", "Currencies"),
        .newButton = TN("CurrencyTable", "&New Currency"),
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TN("CurrencyTable", "Do you really want to delete the selected Currency?"),
        .chooseMessage = TN("CurrencyTable", "You have to select a currency."),
        .helpTopic = "ProgramKezelese",
        .columns = {{TN("CurrencyTable", "Name"), CURRENCY_NAME},
                    {TN("CurrencyTable", "Abbreviation"), CURRENCY_ABBREVIATION},
                    {TN("CurrencyTable", "Rate"), CURRENCY_RATE}},
        .edit = DialogEdit<CurrencyEdit>(),
    };
    return info;
}

const BrowseInfo& PaymentMethodBrowse()
{
    static const BrowseInfo info{
        .store = &PaymentMethodStore(),
        .title = TN("PaymentMethodTable", "Payment Methods"),
        .newButton = TN("PaymentMethodTable", "&New Payment Method"),
        .selectToEdit = TN("PaymentMethodTable", "Select a payment metod to edit."),
        .selectToDelete = kSelectToDelete,
        .deleteQuestion =
            TN("PaymentMethodTable", "Do you really want to delete the selected payment method?"),
        .chooseMessage = TN("PaymentMethodTable", "You have to select a payment method."),
        .helpTopic = "FizetesiModok",
        .columns = {{TN("PaymentMethodTable", "Code"), PAYMENTMETHOD_CODE, true},
                    {TN("PaymentMethodTable", "Name"), PAYMENTMETHOD_NAME},
                    {TN("PaymentMethodTable", "Due Days"), PAYMENTMETHOD_DUE_DAYS},
                    {TN("PaymentMethodTable", "Comment"), PAYMENTMETHOD_COMMENT_TEXT}},
        .edit = FormEdit<Ui::PaymentMethodEditLayout>(
            PaymentMethodStore, TN("PaymentMethodTable", "Add Payment Method"),
            TN("PaymentMethodTable", "Edit Payment Method"), false,
            {TN("PaymentMethodTable", "Name"), TN("PaymentMethodTable", "Comment")}),
    };
    return info;
}

const BrowseInfo& NoVatReasonBrowse()
{
    static const BrowseInfo info{
        .store = &NoVatReasonStore(),
        .title = TN("NoVatReasonTable", "No VAT Reasons"),
        .newButton = TN("NoVatReasonTable", "&New"),
        .selectToEdit = TN("NoVatReasonTable", "Select a no vat reason to edit."),
        .selectToDelete = TN("NoVatReasonTable", "Select a no vat reason to delete."),
        .deleteQuestion = TN("NoVatReasonTable", "Do you really want to delete the no vat reason?"),
        .chooseMessage = TN("NoVatReasonTable", "You have to select a no vat reason."),
        .helpTopic = "AFAMentessegOkok",
        .columns = {{TN("NoVatReasonTable", "Code"), NOVATREASON_CODE, true},
                    {TN("NoVatReasonTable", "Name"), NOVATREASON_NAME},
                    {TN("NoVatReasonTable", "Text To Invoice"), NOVATREASON_TEXT}},
        .edit = FormEdit<Ui::NoVatReasonEditLayout>(
            NoVatReasonStore, TN("NoVatReasonTable", "Add No VAT Reason"),
            TN("NoVatReasonTable", "Edit No VAT Reason"), false,
            {TN("NoVatReasonTable", "Text To Invoice")}),
    };
    return info;
}

const BrowseInfo& StatNoBrowse()
{
    static const BrowseInfo info{
        .store = &StatNoStore(),
        .title = TN("StatNoTable", "Often Used Stat Numbers"),
        .newButton = TN("StatNoTable", "&New Stat No"),
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion = TN("StatNoTable", "Do you really want to delete the selected Stat No?"),
        .chooseMessage = TN("StatNoTable", "You have to select a stat no."),
        .helpTopic = "VtszSzjSzamok",
        .columns = {{TN("StatNoTable", "Stat No"), STATNO_STAT_NO},
                    {TN("StatNoTable", "Name"), STATNO_NAME}},
        .edit = FormEdit<Ui::StatNoEditLayout>(StatNoStore, TN("StatNoTable", "Add Stat No"),
                                               TN("StatNoTable", "Edit Stat No:"), true),
    };
    return info;
}

const BrowseInfo& LangBrowse()
{
    static const BrowseInfo info{
        .store = &LangStore(),
        .title = TN("LangTable", "Languages"),
        .newButton = TN("LangTable", "&New Language"),
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion = TN("LangTable", "Do you really want to delete the selected Language?"),
        .chooseMessage = TN("LangTable", "You have to select a language."),
        .helpTopic = "ProgramKezelese",
        .columns = {{TN("LangTable", "Code"), LANG_CODE}, {TN("LangTable", "Name"), LANG_NAME}},
        .edit = FormEdit<Ui::LangEditLayout>(LangStore, TN("LangTable", "Add Language"),
                                             TN("LangTable", "Edit Language:"), true),
    };
    return info;
}

const BrowseInfo& CountryBrowse()
{
    static const BrowseInfo info{
        .store = &CountryStore(),
        .title = TN("CountryTable", "Countries"),
        .newButton = TN("CountryTable", "&New Country"),
        .selectToEdit = kSelectToEdit,
        .selectToDelete = kSelectToDelete,
        .deleteQuestion = TN("CountryTable", "Do you really want to delete the selected Country?"),
        .chooseMessage = TN("CountryTable", "You have to select a country."),
        .helpTopic = "ProgramKezelese",
        .columns = {{TN("CountryTable", "Country Name"), COUNTRY_NAME},
                    {TN("CountryTable", "International Code"), COUNTRY_INTERNATIONAL_CODE},
                    {TN("CountryTable", "Name In Addresses"), COUNTRY_NAME_ON_MAILS}},
        .edit = DialogEdit<CountryEdit>(),
    };
    return info;
}

const BrowseInfo& PartnerBrowse()
{
    static const BrowseInfo info{
        .store = &PartnerStore(),
        .title = TN("PartnerTable", "Partners"),
        .newButton = TN("PartnerTable", "&New Partner"),
        .selectToEdit = TN("PartnerTable", "Select a partner to edit."),
        .selectToDelete = TN("PartnerTable", "Select a partner to delete."),
        .deleteQuestion = TN("PartnerTable", "Do you really want to delete the selected partner?"),
        .chooseMessage = TN("PartnerTable", "You have to select a partner."),
        .helpTopic = "Partnerek",
        .columns = {{TN("PartnerTable", "Code"), PARTNER_CODE, true},
                    {TN("PartnerTable", "Name"), PARTNER_NAME},
                    {TN("PartnerTable", "ZIP"), PARTNER_ZIP},
                    {TN("PartnerTable", "City"), PARTNER_CITY},
                    {TN("PartnerTable", "Address"), PARTNER_ADDRESS},
                    {TN("PartnerTable", "Other Data"), PARTNER_OTHER_DATA},
                    {TN("PartnerTable", "Payment Method"), nullptr, false, ConvertPaymentmethod},
                    {TN("PartnerTable", "Due Days"), PARTNER_PAYMENT_DUE_DAYS}},
        .edit = DialogEdit<PartnerEdit>(),
        .searchTip =
            TN("PartnerTable", "Type in first characters of partner name and press Enter to find"),
        .moreMessage =
            TN("PartnerTable",
               "There are more matching partners then displayed. Try more specific filter."),
        .beforeLoad = [] { PaymentMethodStore().names(PaymentMethodNames()); },
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
    FillCombo(combo, *MasterBrowseInfo(table).store, allowEmpty);
}

void LinkChooser(QPushButton* button, QComboBox* combo, MasterTable table, bool allowEmpty)
{
    QObject::connect(button, &QPushButton::clicked, combo, [=] {
        const std::optional<qint64> chosen = ChooseMasterRow(table, button->window());
        FillMasterCombo(combo, table, allowEmpty);
        if (chosen)
            SelectComboId(combo, *chosen);
    });
}
