#include "OrderEdit.h"

#include "OrderItemEditDlg.h"
#include "ui_OrderEditLayout.h"

#include "base/Interaction.h"
#include "base/ui/EnterLikeTab.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/FieldBinding.h"
#include "masterdata/ui/MasterBrowses.h"
#include "orders/OrderBasicData.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QAbstractTableModel>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLocale>
#include <QPlainTextEdit>

// The items grid: name, quantity, unit, price and line total of each item.
class OrderItemModel : public QAbstractTableModel
{
public:
    enum class Column { Name, Quantity, Unit, Price, LineTotal, Count };

    explicit OrderItemModel(QObject* parent) : QAbstractTableModel(parent) {}

    void setOrder(const Order* order)
    {
        beginResetModel();
        m_order = order;
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() || !m_order ? 0 : int(m_order->items.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : int(Column::Count);
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || !m_order)
            return {};
        const OrderItem& item = m_order->items.at(index.row());
        const auto column = Column(index.column());
        if (role == Qt::TextAlignmentRole && column != Column::Name && column != Column::Unit)
            return QVariant(Qt::AlignRight | Qt::AlignVCenter);
        if (role != Qt::DisplayRole)
            return {};
        const QLocale locale;
        switch (column) {
        case Column::Name:
            return item.name;
        case Column::Quantity:
            return locale.toString(item.qty, 'g', 12);
        case Column::Unit:
            return item.unit;
        case Column::Price:
            return locale.toString(item.price, 'f', m_order->unitPriceDecimals);
        case Column::LineTotal:
            return locale.toString(item.totals.net, 'f', m_order->linePrintingDecimals);
        case Column::Count:
            break;
        }
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        switch (Column(section)) {
        case Column::Name:
            return OrderEdit::tr("Name");
        case Column::Quantity:
            return OrderEdit::tr("Quantity");
        case Column::Unit:
            return OrderEdit::tr("Unit");
        case Column::Price:
            return OrderEdit::tr("Price");
        case Column::LineTotal:
            return OrderEdit::tr("Line Total");
        case Column::Count:
            break;
        }
        return {};
    }

private:
    const Order* m_order = nullptr;
};

namespace {

QVariant IdData(std::optional<qint64> id)
{
    return id ? QVariant(*id) : QVariant();
}

OrderEdit::InvoicePrinter& InstalledPrinter()
{
    static OrderEdit::InvoicePrinter printer;
    return printer;
}

bool RunItemDialog(const Order& order, OrderItem& item, Interaction& interaction, QWidget* parent)
{
    OrderItemEditDlg dlg(order, item, interaction, parent);
    if (dlg.exec() != QDialog::Accepted)
        return false;
    item = dlg.item();
    return true;
}

} // namespace

OrderEdit::OrderEdit(const Order& order, Interaction& interaction, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::OrderEditLayout>()), m_order(order),
      m_interaction(interaction), m_items(new OrderItemModel(this))
{
    m_ui->setupUi(this);
    setWindowTitle(order.id == 0 ? tr("Create order") : tr("Edit order"));
    m_ui->m_insert_item->setText(tr("Insert %1").arg(tr("order item")));
    m_itemEditor = [this](const Order& o, OrderItem& item, QWidget* parent) {
        return RunItemDialog(o, item, m_interaction, parent);
    };
    m_ui->m_items->setModel(m_items);
    m_ui->m_items->verticalHeader()->hide();
    m_ui->m_items->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_ui->m_items->setEditTriggers(QAbstractItemView::NoEditTriggers);
    fillCombos();

    EnterLikeTab::markFieldButton(m_ui->m_find_partner);
    connect(m_ui->m_partner_name, &RecordFinder::picked, this, &OrderEdit::partnerPicked);
    connect(m_ui->m_find_partner, &QPushButton::clicked, this, &OrderEdit::findPartner);
    connect(m_ui->m_paymentmethod_id, &QComboBox::activated, this, &OrderEdit::paymentMethodChosen);
    connect(m_ui->m_currency_id, &QComboBox::activated, this, &OrderEdit::currencyChosen);
    connect(m_ui->m_novatreason_id, &QComboBox::activated, this, &OrderEdit::noVatReasonChosen);
    connect(m_ui->m_partner_lang_id, &QComboBox::activated, this, &OrderEdit::languageChosen);
    connect(m_ui->m_no_vat, &QCheckBox::toggled, this, [this] {
        m_order.noVat = m_ui->m_no_vat->isChecked();
        showTotals();
    });
    connect(m_ui->m_mail_is_same, &QCheckBox::toggled, this, &OrderEdit::mailIsSameToggled);
    connect(m_ui->m_insert_item, &QPushButton::clicked, this, &OrderEdit::insertItem);
    connect(m_ui->m_edit_item, &QPushButton::clicked, this, &OrderEdit::editItem);
    connect(m_ui->m_delete_item, &QPushButton::clicked, this, &OrderEdit::deleteItem);
    connect(m_ui->m_items, &QAbstractItemView::doubleClicked, this, &OrderEdit::editItem);
    connect(m_ui->m_print_preview, &QPushButton::clicked, this, &OrderEdit::printPreview);
    connect(m_ui->m_print, &QPushButton::clicked, this, &OrderEdit::print);
    connect(m_ui->m_buttons, &QDialogButtonBox::accepted, this, &OrderEdit::accept);
    connect(m_ui->m_buttons, &QDialogButtonBox::rejected, this, &OrderEdit::reject);
    showOrder();
    if (m_order.issued())
        setViewOnly();
}

OrderEdit::~OrderEdit() = default;

void OrderEdit::fillCombos()
{
    FillMasterCombo(m_ui->m_partner_country_id, MasterTable::Country, true);
    FillMasterCombo(m_ui->m_mail_country_id, MasterTable::Country, true);
    FillMasterCombo(m_ui->m_partner_lang_id, MasterTable::Lang, true);
    FillMasterCombo(m_ui->m_paymentmethod_id, MasterTable::PaymentMethod, true);
    FillMasterCombo(m_ui->m_currency_id, MasterTable::Currency, true);
    FillMasterCombo(m_ui->m_novatreason_id, MasterTable::NoVatReason, true);
}

void OrderEdit::showOrder()
{
    const Order& o = m_order;
    m_ui->m_partner_name->setPicked(o.partnerId, o.partnerName);
    m_ui->m_partner_code->setText(o.partnerCode);
    m_ui->m_partner_zip->setText(o.partnerZip);
    m_ui->m_partner_city->setText(o.partnerCity);
    m_ui->m_partner_address->setText(o.partnerAddress);
    SelectComboId(m_ui->m_partner_country_id, IdData(o.partnerCountryId));
    m_ui->m_partner_tax_no->setText(o.partnerTaxNo);
    m_ui->m_partner_eu_tax_no->setText(o.partnerEuTaxNo);
    SelectComboId(m_ui->m_partner_lang_id, o.langId ? QVariant(o.langId) : QVariant());
    m_ui->m_partner_other_data->setPlainText(o.partnerOtherData);

    SelectComboId(m_ui->m_paymentmethod_id, IdData(o.paymentMethodId));
    m_ui->m_paymentmethod_paid->setChecked(o.paymentMethodPaid);
    m_ui->m_date_shipped->setDate(o.dateShipped);
    m_ui->m_date_payment_due->setDate(o.datePaymentDue);
    m_ui->m_consolidated_invoice->setChecked(o.consolidated);
    SelectComboId(m_ui->m_currency_id, IdData(o.currencyId));
    if (o.currencyRate > 0.0)
        m_ui->m_currency_rate->setValue(std::optional<double>(o.currencyRate));
    else
        m_ui->m_currency_rate->clear();
    {
        const QSignalBlocker block(m_ui->m_no_vat);
        m_ui->m_no_vat->setChecked(o.noVat);
    }
    SelectComboId(m_ui->m_novatreason_id, IdData(o.noVatReasonId));
    m_ui->m_subject->setText(o.subject);
    m_ui->m_invoice_no_str->setText(o.invoiceNoStr);

    {
        const QSignalBlocker block(m_ui->m_mail_is_same);
        m_ui->m_mail_is_same->setChecked(o.mailIsSame);
    }
    m_ui->m_mail_name->setText(o.mailName);
    m_ui->m_mail_zip->setText(o.mailZip);
    m_ui->m_mail_city->setText(o.mailCity);
    m_ui->m_mail_address->setText(o.mailAddress);
    SelectComboId(m_ui->m_mail_country_id, IdData(o.mailCountryId));
    mailIsSameToggled();

    m_ui->m_comment_text->setPlainText(o.commentText);
    m_ui->m_verified->setChecked(o.verified);
    m_items->setOrder(&m_order);
    showTotals();
}

// An issued order is shown, never changed: every field is read-only and only printing is left.
void OrderEdit::setViewOnly()
{
    setWindowTitle(tr("View invoice"));
    for (QLineEdit* field : findChildren<QLineEdit*>())
        field->setReadOnly(true);
    for (QPlainTextEdit* field : findChildren<QPlainTextEdit*>())
        field->setReadOnly(true);
    for (QWidget* control :
         {static_cast<QWidget*>(m_ui->m_find_partner), static_cast<QWidget*>(m_ui->m_insert_item),
          static_cast<QWidget*>(m_ui->m_edit_item), static_cast<QWidget*>(m_ui->m_delete_item)})
        control->setEnabled(false);
    for (QComboBox* combo : findChildren<QComboBox*>())
        combo->setEnabled(false);
    for (QCheckBox* check : findChildren<QCheckBox*>())
        check->setEnabled(false);
    m_ui->m_buttons->setStandardButtons(QDialogButtonBox::Close);
}

void OrderEdit::showTotals()
{
    OrderFill::recalcTotals(m_order);
    const QLocale locale;
    const int decimals = m_order.invoicePrintingDecimals;
    m_ui->m_total_net->setText(locale.toString(m_order.totals.net, 'f', decimals));
    m_ui->m_total_vat->setText(locale.toString(m_order.totals.vat, 'f', decimals));
    m_ui->m_total_gross->setText(locale.toString(m_order.totals.gross, 'f', decimals));
}

void OrderEdit::readFields()
{
    Order& o = m_order;
    o.partnerName = m_ui->m_partner_name->text().trimmed();
    o.partnerZip = m_ui->m_partner_zip->text().trimmed();
    o.partnerCity = m_ui->m_partner_city->text().trimmed();
    o.partnerAddress = m_ui->m_partner_address->text().trimmed();
    o.partnerCountryId = RowId(m_ui->m_partner_country_id->currentData());
    o.partnerCountryName =
        o.partnerCountryId ? m_ui->m_partner_country_id->currentText() : QString();
    o.partnerTaxNo = m_ui->m_partner_tax_no->text().trimmed();
    o.partnerEuTaxNo = m_ui->m_partner_eu_tax_no->text().trimmed();
    o.partnerOtherData = m_ui->m_partner_other_data->toPlainText();

    o.dateShipped = m_ui->m_date_shipped->date();
    o.datePaymentDue = m_ui->m_date_payment_due->date();
    o.consolidated = m_ui->m_consolidated_invoice->isChecked();
    o.currencyRate = m_ui->m_currency_rate->value().value_or(0.0);
    o.noVat = m_ui->m_no_vat->isChecked();
    o.subject = m_ui->m_subject->text();

    o.mailIsSame = m_ui->m_mail_is_same->isChecked();
    o.mailName = m_ui->m_mail_name->text().trimmed();
    o.mailZip = m_ui->m_mail_zip->text().trimmed();
    o.mailCity = m_ui->m_mail_city->text().trimmed();
    o.mailAddress = m_ui->m_mail_address->text().trimmed();
    o.mailCountryId = RowId(m_ui->m_mail_country_id->currentData());
    o.mailCountryName = o.mailCountryId ? m_ui->m_mail_country_id->currentText() : QString();

    o.commentText = m_ui->m_comment_text->toPlainText();
    o.verified = m_ui->m_verified->isChecked();
}

const Order& OrderEdit::order()
{
    readFields();
    OrderFill::recalcTotals(m_order);
    return m_order;
}

void OrderEdit::report(const Result& r, const QStringList& notes)
{
    if (!r && !r.message().isEmpty())
        m_interaction.error(r.message());
    for (const QString& note : notes)
        m_interaction.exclamation(note);
}

void OrderEdit::partnerPicked(qint64 id)
{
    readFields();
    QStringList notes;
    const Result r = OrderFill::partner(m_order, id, &notes);
    report(r, notes);
    showOrder();
}

void OrderEdit::findPartner()
{
    if (const std::optional<qint64> id = ChooseMasterRow(MasterTable::Partner, this))
        partnerPicked(*id);
}

void OrderEdit::paymentMethodChosen()
{
    readFields();
    if (const std::optional<qint64> id = RowId(m_ui->m_paymentmethod_id->currentData())) {
        QStringList notes;
        const Result r = OrderFill::paymentMethod(m_order, *id, &notes);
        report(r, notes);
    } else {
        m_order.paymentMethodId.reset();
    }
    showOrder();
}

void OrderEdit::currencyChosen()
{
    readFields();
    if (const std::optional<qint64> id = RowId(m_ui->m_currency_id->currentData()))
        report(OrderFill::currency(m_order, *id));
    else
        m_order.currencyId.reset();
    showOrder();
}

void OrderEdit::noVatReasonChosen()
{
    readFields();
    report(OrderFill::noVatReason(m_order, RowId(m_ui->m_novatreason_id->currentData())));
    showOrder();
}

void OrderEdit::languageChosen()
{
    readFields();
    QStringList notes;
    const Result r = OrderFill::language(
        m_order, RowId(m_ui->m_partner_lang_id->currentData()).value_or(0), &notes);
    report(r, notes);
    showOrder();
}

void OrderEdit::mailIsSameToggled()
{
    const bool separate = !m_ui->m_mail_is_same->isChecked();
    for (QWidget* field :
         {static_cast<QWidget*>(m_ui->m_mail_name), static_cast<QWidget*>(m_ui->m_mail_zip),
          static_cast<QWidget*>(m_ui->m_mail_city), static_cast<QWidget*>(m_ui->m_mail_address),
          static_cast<QWidget*>(m_ui->m_mail_country_id)})
        field->setEnabled(separate);
}

int OrderEdit::currentRow() const
{
    const QModelIndex index = m_ui->m_items->currentIndex();
    return index.isValid() ? index.row() : -1;
}

bool OrderEdit::editItemAt(int row)
{
    if (m_order.issued())
        return false;
    readFields();
    OrderItem item = row < 0 ? OrderItem() : m_order.items.at(row);
    if (!m_itemEditor(m_order, item, this))
        return false;
    if (row < 0)
        m_order.items.append(item);
    else
        m_order.items[row] = item;
    m_items->setOrder(&m_order);
    showTotals();
    const int shown = row < 0 ? int(m_order.items.size()) - 1 : row;
    m_ui->m_items->setCurrentIndex(m_items->index(shown, 0));
    return true;
}

void OrderEdit::insertItem()
{
    editItemAt(-1);
}

void OrderEdit::editItem()
{
    const int row = currentRow();
    if (row < 0) {
        m_interaction.exclamation(tr("Select an order item to edit"));
        return;
    }
    editItemAt(row);
}

void OrderEdit::deleteItem()
{
    const int row = currentRow();
    if (row < 0) {
        m_interaction.exclamation(tr("Select an order item to delete"));
        return;
    }
    if (!m_interaction.askYesNo(tr("Do you really want to delete the selected item ?")))
        return;
    m_order.items.removeAt(row);
    m_items->setOrder(&m_order);
    showTotals();
}

void OrderEdit::setInvoicePrinter(InvoicePrinter printer)
{
    InstalledPrinter() = std::move(printer);
}

// Printing issues the invoice: the order is checked and saved first, as OK would, and once it
// has its number the editor closes, for an issued order is never changed.
void OrderEdit::printInvoice(bool preview)
{
    readFields();
    if (m_order.items.isEmpty()) {
        m_interaction.exclamation(tr("It is not allowed to print an invoice without items."));
        return;
    }
    const InvoicePrinter& printer = InstalledPrinter();
    if (!printer) {
        m_interaction.info(tr("The invoice can not be printed yet."));
        return;
    }
    // An issued invoice is printed again from its frozen copy; nothing is saved.
    if (m_order.issued()) {
        if (Result r = printer(m_order.id, preview, m_interaction, this);
            !r && !r.message().isEmpty())
            m_interaction.error(r.message());
        return;
    }
    if (!checkOrder())
        return;
    if (Result r = OrderStore::save(m_order); !r) {
        m_interaction.error(r.message());
        return;
    }
    const Result printed = printer(m_order.id, preview, m_interaction, this);
    if (!printed && !printed.message().isEmpty())
        m_interaction.error(printed.message());
    Order stored;
    if (OrderStore::load(m_order.id, stored) && stored.issued()) {
        m_order = stored;
        m_issued = true;
        QDialog::accept();
    }
}

void OrderEdit::printPreview()
{
    printInvoice(true);
}

void OrderEdit::print()
{
    printInvoice(false);
}

bool OrderEdit::checkOrder()
{
    readFields();
    if (Result r = OrderFill::checkOrder(m_order, m_interaction); !r) {
        if (!r.message().isEmpty())
            m_interaction.exclamation(r.message());
        m_ui->m_date_payment_due->setDate(m_order.datePaymentDue);
        return false;
    }
    m_ui->m_date_payment_due->setDate(m_order.datePaymentDue);
    if (Result r = OrderBasicData::partner(m_order, m_interaction); !r) {
        m_interaction.error(r.message());
        return false;
    }
    m_ui->m_partner_name->setPicked(m_order.partnerId, m_order.partnerName);
    m_ui->m_partner_code->setText(m_order.partnerCode);
    OrderFill::recalcTotals(m_order);
    return true;
}

void OrderEdit::accept()
{
    if (m_order.issued()) {
        reject();
        return;
    }
    if (checkOrder())
        QDialog::accept();
}
