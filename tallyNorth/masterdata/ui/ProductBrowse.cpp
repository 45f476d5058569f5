#include "ProductBrowse.h"

#include "RecordEditDlg.h"
#include "ui_ProductEditLayout.h"

#include "Columns.h"
#include "masterdata/MasterTables.h"

using namespace Col;

#define TN(c, text)                                                                                \
    TrText                                                                                         \
    {                                                                                              \
        c, QT_TRANSLATE_NOOP(c, text)                                                              \
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
            TrText{"ProductTable",
                   QT_TRANSLATE_NOOP("ProductTable",
                                     "Do you really want to delete the selected product?")},
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
             {TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Price")}, PRODUCT_PRICE}},
        .edit =
            [](QWidget* parent, std::optional<qint64> id, const Record& presets) {
                FormEditDlg<Ui::ProductEditLayout> dlg(ProductStore(), id, parent);
                dlg.bindFields(
                    TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Add Product")},
                    TrText{"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Edit Product")},
                    false);
                return dlg.run(presets);
            },
        .searchTip =
            TrText{"ProductTable",
                   QT_TRANSLATE_NOOP(
                       "ProductTable",
                       "Type in first characters of product name and press Enter to find")},
        .moreMessage =
            TrText{
                "ProductTable",
                QT_TRANSLATE_NOOP(
                    "ProductTable",
                    "There are more matching products then displayed. Try more specific filter.")},
    };
    return info;
}
