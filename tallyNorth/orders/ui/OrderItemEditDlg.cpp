#include "OrderItemEditDlg.h"

#include "ui_OrderItemEditLayout.h"

#include "Columns.h"
#include "base/Interaction.h"
#include "base/RoundDecimals.h"
#include "base/ui/EnterLikeTab.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/FieldBinding.h"
#include "masterdata/ui/MasterBrowses.h"
#include "orders/OrderBasicData.h"
#include "orders/OrderFill.h"

#include <cmath>
#include <limits>

using namespace Col;

namespace {

constexpr double kUnread = std::numeric_limits<double>::quiet_NaN();

// An empty or unreadable number is left for the core's checks to name.
double Typed(const NumberEdit* field)
{
    return field->value().value_or(kUnread);
}

void ShowAmount(NumberEdit* field, double value)
{
    if (std::isfinite(value))
        field->setValue(std::optional<double>(value));
}

QString LanguageName(qint64 langId)
{
    Record row;
    if (langId == 0 || !LangStore().read(langId, row))
        return {};
    return row.value(QString::fromLatin1(LANG_NAME)).toString();
}

} // namespace

OrderItemEditDlg::OrderItemEditDlg(const Order& order, const OrderItem& item,
                                   Interaction& interaction, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::OrderItemEditLayout>()), m_order(order),
      m_item(item), m_interaction(interaction)
{
    m_ui->setupUi(this);
    setWindowTitle(item.id == 0 && !item.productId && item.name.isEmpty() ? tr("New order item")
                                                                          : tr("Edit order item"));
    m_ui->m_discount_type->addItem(tr("Unset"), QVariant());
    m_ui->m_discount_type->addItem(QCoreApplication::translate("DiscountType", "No discount"),
                                   int(DiscountType::NoDiscount));
    m_ui->m_discount_type->addItem(
        QCoreApplication::translate("DiscountType", "Percent from List Price"),
        int(DiscountType::PercentFromListPrice));
    m_ui->m_discount_type->addItem(QCoreApplication::translate("DiscountType", "Special Price"),
                                   int(DiscountType::EnteredPrice));
    FillMasterCombo(m_ui->m_vat_id, MasterTable::Vat, true);
    LinkChooser(m_ui->m_find_vat, m_ui->m_vat_id, MasterTable::Vat, true);
    m_ui->m_name->setCurrency(order.currencyId.value_or(0));

    const QString language = LanguageName(order.langId);
    m_ui->m_name_translation_label->setText(tr("Name In %1").arg(language));
    m_ui->m_comment_translation_label->setText(tr("Comment In %1").arg(language));
    m_ui->m_unit_translation_label->setText(tr("Unit In %1").arg(language));
    for (QWidget* field : {static_cast<QWidget*>(m_ui->m_name_translation),
                           static_cast<QWidget*>(m_ui->m_comment_translation),
                           static_cast<QWidget*>(m_ui->m_unit_translation)})
        SetFieldVisible(field, !language.isEmpty());

    EnterLikeTab::markFieldButton(m_ui->m_find_product);
    EnterLikeTab::markFieldButton(m_ui->m_find_stat_no);
    connect(m_ui->m_name, &RecordFinder::picked, this, &OrderItemEditDlg::chooseProduct);
    connect(m_ui->m_find_product, &QPushButton::clicked, this, &OrderItemEditDlg::findProduct);
    connect(m_ui->m_find_stat_no, &QPushButton::clicked, this, &OrderItemEditDlg::findStatNo);
    connect(m_ui->m_vat_id, &QComboBox::currentIndexChanged, this, &OrderItemEditDlg::vatChosen);
    connect(m_ui->m_list_price, &QLineEdit::textEdited, this, &OrderItemEditDlg::listPriceEdited);
    connect(m_ui->m_list_price_gross, &QLineEdit::textEdited, this,
            &OrderItemEditDlg::listGrossEdited);
    connect(m_ui->m_discount_type, &QComboBox::activated, this, &OrderItemEditDlg::discountChanged);
    connect(m_ui->m_discount_percent, &QLineEdit::textEdited, this,
            &OrderItemEditDlg::discountChanged);
    connect(m_ui->m_price, &QLineEdit::textEdited, this, &OrderItemEditDlg::priceEdited);
    connect(m_ui->m_gross_price, &QLineEdit::textEdited, this, &OrderItemEditDlg::grossPriceEdited);
    connect(m_ui->m_qty, &QLineEdit::textEdited, this, &OrderItemEditDlg::qtyEdited);
    connect(m_ui->m_buttons, &QDialogButtonBox::accepted, this, &OrderItemEditDlg::accept);
    connect(m_ui->m_buttons, &QDialogButtonBox::rejected, this, &OrderItemEditDlg::reject);

    if (!m_item.dateShipped.isValid())
        m_item.dateShipped = order.dateShipped;
    showItem();
}

OrderItemEditDlg::~OrderItemEditDlg() = default;

void OrderItemEditDlg::showItem()
{
    m_ui->m_name->setPicked(m_item.productId, m_item.name);
    m_ui->m_name_translation->setText(m_item.nameTranslation);
    m_ui->m_comment->setText(m_item.comment);
    m_ui->m_comment_translation->setText(m_item.commentTranslation);
    m_ui->m_stat_no->setText(m_item.statNo);
    m_ui->m_date_shipped->setDate(m_item.dateShipped);
    if (m_item.qty != 0.0)
        m_ui->m_qty->setValue(std::optional<double>(m_item.qty));
    m_ui->m_unit->setText(m_item.unit);
    m_ui->m_unit_translation->setText(m_item.unitTranslation);
    {
        const QSignalBlocker block(m_ui->m_vat_id);
        SelectComboId(m_ui->m_vat_id, m_item.vatId ? QVariant(*m_item.vatId) : QVariant());
    }
    m_ui->m_discount_type->setCurrentIndex(
        qMax(0, m_ui->m_discount_type->findData(m_item.discountType ? QVariant(*m_item.discountType)
                                                                    : QVariant())));
    m_ui->m_discount_percent->setValue(std::optional<double>(m_item.discountPercent));
    // A product without any price shows an empty list price, not a price of 0.
    if (m_item.listPrice == 0.0) {
        m_ui->m_list_price->clear();
        m_ui->m_list_price_gross->clear();
    } else {
        ShowAmount(m_ui->m_list_price, m_item.listPrice);
        ShowAmount(m_ui->m_list_price_gross, NetToGross(m_item.listPrice, vatPercent()));
    }
    showPrices();
}

void OrderItemEditDlg::showPrices()
{
    ShowAmount(m_ui->m_price, m_item.price);
    if (std::isfinite(m_item.price))
        m_ui->m_gross_price->setValue(
            std::optional<double>(NetToGross(m_item.price, vatPercent())));
    m_ui->m_total_net->setText(NumberEdit::format(m_item.totals.net));
    m_ui->m_total_vat->setText(NumberEdit::format(m_item.totals.vat));
    m_ui->m_total_gross->setText(NumberEdit::format(m_item.totals.gross));
}

void OrderItemEditDlg::readTexts()
{
    m_item.name = m_ui->m_name->text().trimmed();
    if (!m_ui->m_name->pickedId())
        m_item.productId =
            m_ui->m_name->text().trimmed().isEmpty() ? std::nullopt : m_item.productId;
    m_item.nameTranslation = m_ui->m_name_translation->text();
    m_item.comment = m_ui->m_comment->text();
    m_item.commentTranslation = m_ui->m_comment_translation->text();
    m_item.statNo = m_ui->m_stat_no->text().trimmed();
    m_item.dateShipped = m_ui->m_date_shipped->date();
    m_item.unit = m_ui->m_unit->text();
    m_item.unitTranslation = m_ui->m_unit_translation->text();
}

void OrderItemEditDlg::chooseProduct(qint64 productId)
{
    OrderItem chosen = m_item;
    chosen.qty = Typed(m_ui->m_qty);
    chosen.dateShipped = m_ui->m_date_shipped->date();
    if (Result r = OrderFill::product(chosen, m_order, productId); !r) {
        m_interaction.error(r.message());
        return;
    }
    m_item = chosen;
    showItem();
}

void OrderItemEditDlg::findProduct()
{
    if (const std::optional<qint64> id = ChooseMasterRow(MasterTable::Product, this))
        chooseProduct(*id);
}

void OrderItemEditDlg::findStatNo()
{
    const std::optional<qint64> id = ChooseMasterRow(MasterTable::StatNo, this);
    Record row;
    if (id && StatNoStore().read(*id, row))
        m_ui->m_stat_no->setText(row.value(QString::fromLatin1(STATNO_STAT_NO)).toString());
}

void OrderItemEditDlg::vatChosen()
{
    if (Result r = OrderFill::vat(m_item, RowId(m_ui->m_vat_id->currentData())); !r)
        m_interaction.error(r.message());
    // The net prices stand; their gross pairs follow the new percent.
    if (m_ui->m_list_price->value())
        ShowAmount(m_ui->m_list_price_gross, NetToGross(m_item.listPrice, vatPercent()));
    if (std::isfinite(m_item.price))
        ShowAmount(m_ui->m_gross_price, NetToGross(m_item.price, vatPercent()));
    lineTotals();
}

void OrderItemEditDlg::listPriceEdited()
{
    m_item.listPrice = m_ui->m_list_price->value().value_or(0.0);
    m_ui->m_list_price_gross->setValue(
        std::optional<double>(NetToGross(m_item.listPrice, vatPercent())));
    recalc();
}

void OrderItemEditDlg::listGrossEdited()
{
    m_item.listPrice = GrossToNet(m_ui->m_list_price_gross->value().value_or(0.0), vatPercent());
    m_ui->m_list_price->setValue(std::optional<double>(m_item.listPrice));
    recalc();
}

void OrderItemEditDlg::discountChanged()
{
    recalc();
}

void OrderItemEditDlg::priceEdited()
{
    m_item.price = Typed(m_ui->m_price);
    if (std::isfinite(m_item.price))
        m_ui->m_gross_price->setValue(
            std::optional<double>(NetToGross(m_item.price, vatPercent())));
    lineTotals();
}

void OrderItemEditDlg::grossPriceEdited()
{
    const std::optional<double> gross = m_ui->m_gross_price->value();
    m_item.price = gross ? GrossToNet(*gross, vatPercent()) : kUnread;
    ShowAmount(m_ui->m_price, m_item.price);
    lineTotals();
}

void OrderItemEditDlg::qtyEdited()
{
    lineTotals();
}

// The unit price from list price and discount, then the line.
void OrderItemEditDlg::recalc()
{
    m_item.discountType = m_ui->m_discount_type->currentData().isValid()
                              ? std::optional<int>(m_ui->m_discount_type->currentData().toInt())
                              : std::nullopt;
    m_item.discountPercent = m_ui->m_discount_percent->value().value_or(0.0);
    m_item.qty = m_ui->m_qty->value().value_or(0.0);
    if (!std::isfinite(m_item.price))
        m_item.price = 0.0;
    OrderFill::recalcItem(m_item, m_order);
    showPrices();
}

void OrderItemEditDlg::lineTotals()
{
    const double qty = m_ui->m_qty->value().value_or(0.0);
    const double price = std::isfinite(m_item.price) ? m_item.price : 0.0;
    m_item.totals = CalcLineTotals(price, qty, vatPercent(), m_order.lineDecimals);
    m_ui->m_total_net->setText(NumberEdit::format(m_item.totals.net));
    m_ui->m_total_vat->setText(NumberEdit::format(m_item.totals.vat));
    m_ui->m_total_gross->setText(NumberEdit::format(m_item.totals.gross));
}

void OrderItemEditDlg::accept()
{
    readTexts();
    m_item.qty = Typed(m_ui->m_qty);
    m_item.price = Typed(m_ui->m_price);
    m_item.listPrice = m_ui->m_list_price->value().value_or(0.0);
    m_item.discountPercent = m_ui->m_discount_percent->value().value_or(0.0);
    if (std::isfinite(m_item.qty) && std::isfinite(m_item.price))
        m_item.totals =
            CalcLineTotals(m_item.price, m_item.qty, vatPercent(), m_order.lineDecimals);
    if (Result r = OrderFill::checkItem(m_item); !r) {
        m_interaction.exclamation(r.message());
        return;
    }
    if (Result r = OrderBasicData::product(m_item, m_order, m_interaction); !r) {
        m_interaction.error(r.message());
        return;
    }
    QDialog::accept();
}
