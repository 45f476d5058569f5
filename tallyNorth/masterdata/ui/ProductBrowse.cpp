#include "ProductBrowse.h"

#include "ProductEdit.h"

#include "Columns.h"
#include "base/MessageArgs.h"
#include "base/SqlValue.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ProductPrices.h"

#include <memory>

using namespace Col;

namespace {

// Prices in the list's second currency, read once for each load.
ComputedColumn ListPriceColumn()
{
    auto prices = std::make_shared<CurrencyPrices>();
    if (const std::optional<qint64> currency = ListPriceCurrency())
        (void)prices->load(*currency);
    return {[prices](const Record& row) { return PriceIn(*prices, row); },
            PriceInHeader(prices->currency().abbreviation)};
}

} // namespace

QString PriceInHeader(const QString& abbreviation)
{
    return FillArgs(QCoreApplication::translate("ProductTable", "Price (%s)"), {abbreviation});
}

QVariant PriceIn(const CurrencyPrices& prices, const Record& product)
{
    const std::optional<qint64> id = RowId(product.value(QString::fromLatin1(PRODUCT_ID)));
    const QVariant net = product.value(QString::fromLatin1(PRODUCT_PRICE));
    if (!id || IsNullValue(net))
        return {};
    const std::optional<double> price = prices.price(*id, ToNumber(net));
    return price ? QVariant(*price) : QVariant();
}

const BrowseInfo& ProductBrowseInfo()
{
    static const BrowseInfo info{
        .store = &ProductStore(),
        .title = TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Products")},
        .newButton = TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "&New Product")},
        .selectToEdit =
            TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Select a product to edit.")},
        .selectToDelete = TrText{"ProductTable",
                                 QT_TRANSLATE_NOOP("ProductTable", "Select a product to delete.")},
        .deleteQuestion =
            TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Do you really want to delete "
                                                                     "the selected product?")},
        .chooseMessage = TrText{"ProductTable",
                                QT_TRANSLATE_NOOP("ProductTable", "You have to select a product.")},
        .helpTopic = "Termekek",
        .columns =
            {{TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Code")}, PRODUCT_CODE,
              true},
             {TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Name")}, PRODUCT_NAME},
             {TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Stat No")},
              PRODUCT_STAT_NO},
             {TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Unit")}, PRODUCT_UNIT},
             {TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Price")}, PRODUCT_PRICE},
             {{}, nullptr, false, {}, [] { return PriceInHeader({}); }, ListPriceColumn}},
        .edit =
            [](QWidget* parent, std::optional<qint64> id, const Record& presets) {
                ProductEdit dlg(id, parent);
                return dlg.run(presets);
            },
        .searchTip = TrText{"ProductTable",
                            QT_TRANSLATE_NOOP("ProductTable", "Type in first characters of product "
                                                              "name and press Enter to find")},
        .moreMessage = TrText{"ProductTable",
                              QT_TRANSLATE_NOOP("ProductTable",
                                                "There are more matching products then displayed. "
                                                "Try more specific filter.")},
    };
    return info;
}
