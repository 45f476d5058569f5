#include "OrderBasicData.h"

#include "Columns.h"
#include "OrderFill.h"
#include "base/Interaction.h"
#include "masterdata/MasterTables.h"

#include <cmath>
#include <functional>

using namespace Col;

namespace {

QString Name(const char* column)
{
    return QString::fromLatin1(column);
}

QVariant IdValue(std::optional<qint64> id)
{
    return id ? QVariant(*id) : QVariant();
}

bool SameText(const QString& a, const QString& b)
{
    return a.trimmed() == b.trimmed();
}

// Within the precision a price is typed with.
bool SameAmount(double a, double b)
{
    return std::abs(a - b) < 1e-9 * std::max(1.0, std::abs(a));
}

void WritePartner(const Order& order, Record& row)
{
    row.insert(Name(PARTNER_NAME), order.partnerName.trimmed());
    row.insert(Name(PARTNER_ZIP), order.partnerZip);
    row.insert(Name(PARTNER_CITY), order.partnerCity);
    row.insert(Name(PARTNER_ADDRESS), order.partnerAddress);
    row.insert(Name(PARTNER_TAX_NO), order.partnerTaxNo);
    row.insert(Name(PARTNER_EU_TAX_NO), order.partnerEuTaxNo);
    row.insert(Name(PARTNER_OTHER_DATA), order.partnerOtherData);
    if (order.partnerCountryId)
        row.insert(Name(PARTNER_COUNTRY_ID), *order.partnerCountryId);
    if (order.langId != 0)
        row.insert(Name(PARTNER_LANG_ID), order.langId);
    row.insert(Name(PARTNER_MAIL_IS_SAME), order.mailIsSame ? "1" : "0");
    if (!order.mailIsSame) {
        row.insert(Name(PARTNER_MAIL_NAME), order.mailName);
        row.insert(Name(PARTNER_MAIL_ZIP), order.mailZip);
        row.insert(Name(PARTNER_MAIL_CITY), order.mailCity);
        row.insert(Name(PARTNER_MAIL_ADDRESS), order.mailAddress);
        row.insert(Name(PARTNER_MAIL_COUNTRY_ID), IdValue(order.mailCountryId));
    }
    CopyMailAddress(row);
}

// The foreign-currency price row of the product, changed or added.
void SetCurrencyPrice(QList<Record>& prices, qint64 currencyId, double price)
{
    for (Record& r : prices) {
        if (r.value(Name(PRODUCTPRICE_CURRENCY_ID)).toLongLong() == currencyId) {
            r.insert(Name(PRODUCTPRICE_PRICE), price);
            return;
        }
    }
    prices.append(
        {{Name(PRODUCTPRICE_CURRENCY_ID), currencyId}, {Name(PRODUCTPRICE_PRICE), price}});
}

void SetTranslation(QList<Record>& rows, qint64 langId, const OrderItem& item)
{
    if (langId == 0)
        return;
    Record* row = nullptr;
    for (Record& r : rows) {
        if (r.value(Name(PRODUCTTRANSLATION_LANG_ID)).toLongLong() == langId)
            row = &r;
    }
    if (!row) {
        rows.append({{Name(PRODUCTTRANSLATION_LANG_ID), langId}});
        row = &rows.last();
    }
    row->insert(Name(PRODUCTTRANSLATION_NAME), item.nameTranslation);
    row->insert(Name(PRODUCTTRANSLATION_COMMENT), item.commentTranslation);
    row->insert(Name(PRODUCTTRANSLATION_UNIT), item.unitTranslation);
}

// A forint order: the product's own price is the one to keep.
bool HomePrice(const Order& order)
{
    return !order.currencyId || *order.currencyId == 0 || order.currencyRate == 1.0;
}

Result WriteProduct(OrderItem& item, const Order& order, std::optional<qint64> id)
{
    const TableStore& store = ProductStore();
    Record row;
    QList<Record> translations;
    QList<Record> prices;
    if (id) {
        if (Result r = store.read(*id, row); !r)
            return r;
        if (Result r = store.readChildren(0, *id, translations); !r)
            return r;
        if (Result r = store.readChildren(1, *id, prices); !r)
            return r;
    }
    row.insert(Name(PRODUCT_NAME), item.name.trimmed());
    row.insert(Name(PRODUCT_COMMENT), item.comment);
    row.insert(Name(PRODUCT_UNIT), item.unit);
    row.insert(Name(PRODUCT_STAT_NO), item.statNo);
    row.insert(Name(PRODUCT_VAT_ID), IdValue(item.vatId));
    if (!id)
        row.remove(Name(PRODUCT_CODE));
    if (HomePrice(order))
        row.insert(Name(PRODUCT_PRICE), item.listPrice);
    else
        SetCurrencyPrice(prices, *order.currencyId, item.listPrice);
    SetTranslation(translations, order.langId, item);
    std::optional<qint64> written = id;
    if (Result r = store.save(row, written, {translations, prices}); !r)
        return r;
    item.productId = written;
    item.productCode = row.value(Name(PRODUCT_CODE)).toString();
    return Result::success();
}

} // namespace

bool OrderBasicData::partnerDiffers(const Order& order, const Order& stored)
{
    if (!SameText(order.partnerName, stored.partnerName) ||
        !SameText(order.partnerZip, stored.partnerZip) ||
        !SameText(order.partnerCity, stored.partnerCity) ||
        !SameText(order.partnerAddress, stored.partnerAddress) ||
        !SameText(order.partnerTaxNo, stored.partnerTaxNo) ||
        !SameText(order.partnerEuTaxNo, stored.partnerEuTaxNo) ||
        !SameText(order.partnerOtherData, stored.partnerOtherData) ||
        order.partnerCountryId != stored.partnerCountryId || order.mailIsSame != stored.mailIsSame)
        return true;
    return !order.mailIsSame && (!SameText(order.mailName, stored.mailName) ||
                                 !SameText(order.mailZip, stored.mailZip) ||
                                 !SameText(order.mailCity, stored.mailCity) ||
                                 !SameText(order.mailAddress, stored.mailAddress) ||
                                 order.mailCountryId != stored.mailCountryId);
}

bool OrderBasicData::productDiffers(const OrderItem& item, const OrderItem& stored)
{
    return !SameText(item.name, stored.name) || !SameText(item.comment, stored.comment) ||
           !SameText(item.unit, stored.unit) || !SameText(item.statNo, stored.statNo) ||
           item.vatId != stored.vatId || !SameText(item.nameTranslation, stored.nameTranslation) ||
           !SameText(item.commentTranslation, stored.commentTranslation) ||
           !SameText(item.unitTranslation, stored.unitTranslation) ||
           !SameAmount(item.listPrice, stored.listPrice);
}

namespace {

// The texts of one kind of basic data's questions.
struct BasicDataQuestions
{
    QString notStored;
    QString changed;
    QString update;
    QString create;
    QString keep;
};

// What the order's copy of a basic-data row asks: to store an unknown row, or to update or
// duplicate a row whose data differ. forget drops the order's link to an unknown row.
Result AskBasicData(Interaction& interaction, const BasicDataQuestions& q, bool known, bool differs,
                    const std::function<void()>& forget, const std::function<Result()>& insert,
                    const std::function<Result()>& update)
{
    if (!known) {
        forget();
        return interaction.askYesNo(q.notStored) ? insert() : Result::success();
    }
    if (!differs)
        return Result::success();
    switch (interaction.choose3(q.changed, q.update, q.create, q.keep)) {
    case Interaction::Choice::First:
        return update();
    case Interaction::Choice::Second:
        return insert();
    case Interaction::Choice::Third:
        break;
    }
    return Result::success();
}

} // namespace

Result OrderBasicData::partner(Order& order, Interaction& interaction)
{
    const TableStore& store = PartnerStore();
    Order stored = order;
    bool known = false;
    if (order.partnerId) {
        Record row;
        known = store.read(*order.partnerId, row).ok() &&
                OrderFill::partner(stored, *order.partnerId).ok();
    }
    const auto insert = [&]() -> Result {
        Record row = NewPartnerDefaults();
        WritePartner(order, row);
        std::optional<qint64> id;
        if (!store.save(row, id))
            return Result::failure(
                tr("Can't insert partner. Probably there is an other partner with the same name."));
        order.partnerId = id;
        order.partnerCode.clear();
        return Result::success();
    };
    const auto update = [&]() -> Result {
        Record row;
        if (!store.read(*order.partnerId, row))
            return Result::failure(
                tr("Can't update partner. Probably this partner does not exist in database."));
        WritePartner(order, row);
        std::optional<qint64> id = order.partnerId;
        if (!store.save(row, id))
            return Result::failure(
                tr("Can't update partner. Probably there is an other partner with the same name."));
        return Result::success();
    };
    const BasicDataQuestions questions{
        tr("This partner is not in basic data yet. Do you want to store it there?"),
        tr("The partner's data has changed. You can update these changes of partner or create a "
           "new partner with this data.&What you want to do?"),
        tr("Update changes of partner"), tr("Create a new partner"),
        tr("Do not save partner data")};
    return AskBasicData(
        interaction, questions, known, known && partnerDiffers(order, stored),
        [&] { order.partnerId.reset(); }, insert, update);
}

Result OrderBasicData::product(OrderItem& item, const Order& order, Interaction& interaction)
{
    OrderItem stored;
    const bool known = item.productId && OrderFill::product(stored, order, *item.productId).ok();
    const auto insert = [&]() -> Result {
        if (!WriteProduct(item, order, std::nullopt))
            return Result::failure(
                tr("Can't insert product. Probably there is an other product with the same name."));
        return Result::success();
    };
    const auto update = [&]() -> Result {
        Record row;
        if (!ProductStore().read(*item.productId, row))
            return Result::failure(
                tr("Can't update product. Probably this product does not exist in database."));
        if (!WriteProduct(item, order, item.productId))
            return Result::failure(
                tr("Can't update product. Probably there is an other product with the same name."));
        return Result::success();
    };
    const BasicDataQuestions questions{
        tr("This product is not in basic data yet. Do you want to store it there?"),
        tr("The product's data has changed. You can update these changes of product or create a "
           "new product with this data.&What you want to do?"),
        tr("Update changes of product"), tr("Create a new product"),
        tr("Do not save product data")};
    return AskBasicData(
        interaction, questions, known, known && productDiffers(item, stored),
        [&] { item.productId.reset(); }, insert, update);
}
