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
        .title = TN("ProductTable", "Products"),
        .newButton = TN("ProductTable", "&New Product"),
        .selectToEdit = TN("ProductTable", "Select a product to edit."),
        .selectToDelete = TN("ProductTable", "Select a product to delete."),
        .deleteQuestion = TN("ProductTable", "Do you really want to delete the selected product?"),
        .chooseMessage = TN("ProductTable", "You have to select a product."),
        .helpTopic = "Termekek",
        .columns = {{TN("ProductTable", "Code"), PRODUCT_CODE, true},
                    {TN("ProductTable", "Name"), PRODUCT_NAME},
                    {TN("ProductTable", "Stat No"), PRODUCT_STAT_NO},
                    {TN("ProductTable", "Unit"), PRODUCT_UNIT},
                    {TN("ProductTable", "Price"), PRODUCT_PRICE}},
        .edit =
            [](QWidget* parent, std::optional<qint64> id, const Record& presets) {
                FormEditDlg<Ui::ProductEditLayout> dlg(ProductStore(), id, parent);
                dlg.bindFields(TN("ProductTable", "Add Product"),
                               TN("ProductTable", "Edit Product"), false);
                return dlg.run(presets);
            },
        .searchTip =
            TN("ProductTable", "Type in first characters of product name and press Enter to find"),
        .moreMessage =
            TN("ProductTable",
               "There are more matching products then displayed. Try more specific filter."),
    };
    return info;
}
