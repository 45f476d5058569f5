#include "ProductEdit.h"

#include "MasterBrowses.h"
#include "ProductPriceModel.h"
#include "ui_ProductEditLayout.h"

#include "Columns.h"
#include "base/RoundDecimals.h"
#include "base/SqlValue.h"
#include "base/ui/EnterLikeTab.h"
#include "masterdata/MasterTables.h"

#include <QHeaderView>

using namespace Col;

ProductEdit::ProductEdit(std::optional<qint64> id, QWidget* parent)
    : RecordEditDlg(ProductStore(), id, parent), m_ui(std::make_unique<Ui::ProductEditLayout>()),
      m_prices(new ProductPriceModel(this))
{
    m_ui->setupUi(this);
    FillMasterCombo(m_ui->m_vat_id, MasterTable::Vat, true);
    LinkChooser(m_ui->m_find_vat, m_ui->m_vat_id, MasterTable::Vat, true);
    addTranslations(m_ui->m_translations,
                    {{"ProductEdit", QT_TRANSLATE_NOOP("ProductEdit", "Product Name Translations")},
                     {"ProductEdit", QT_TRANSLATE_NOOP("ProductEdit", "Comment Translations")},
                     {"ProductEdit", QT_TRANSLATE_NOOP("ProductEdit", "Unit Translations")}});
    (void)m_prices->loadCurrencies();
    m_ui->m_prices->setModel(m_prices);
    m_ui->m_prices->verticalHeader()->hide();
    m_ui->m_prices->horizontalHeader()->setStretchLastSection(true);
    m_ui->m_prices->setEditTriggers(QAbstractItemView::AllEditTriggers);
    connect(m_prices, &ProductPriceModel::notANumber, this, [this](const QString& text) {
        interaction().exclamation(
            QCoreApplication::translate("ProductEdit", "\"%1\" is not a price: type a number.")
                .arg(text));
    });

    connect(m_ui->m_price, &QLineEdit::textEdited, this, &ProductEdit::netEdited);
    connect(m_ui->m_gross_price, &QLineEdit::textEdited, this, &ProductEdit::grossEdited);
    connect(m_ui->m_vat_id, &QComboBox::currentIndexChanged, this, &ProductEdit::updateGross);
    EnterLikeTab::markFieldButton(m_ui->m_find_stat_no);
    connect(m_ui->m_find_stat_no, &QPushButton::clicked, this, &ProductEdit::findStatNo);
    bindFields({"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Add Product")},
               {"ProductTable", QT_TRANSLATE_NOOP("ProductTable", "Edit Product")}, false);
}

ProductEdit::~ProductEdit() = default;

double ProductEdit::vatPercent() const
{
    const std::optional<qint64> vat = RowId(m_ui->m_vat_id->currentData());
    Record row;
    if (!vat || !VatStore().read(*vat, row))
        return 0;
    return ToNumber(row.value(QString::fromLatin1(VAT_PERCENT)));
}

void ProductEdit::showRecord(const Record& row)
{
    Q_UNUSED(row);
    updateGross();
}

// The net price is what is stored; the gross follows it unless the user types the gross.
void ProductEdit::netEdited()
{
    updateGross();
}

void ProductEdit::grossEdited()
{
    const std::optional<double> gross = m_ui->m_gross_price->value();
    m_ui->m_price->setValue(gross ? std::optional<double>(GrossToNet(*gross, vatPercent()))
                                  : std::nullopt);
    m_prices->setNetPrice(m_ui->m_price->value());
}

void ProductEdit::updateGross()
{
    const std::optional<double> net = m_ui->m_price->value();
    m_ui->m_gross_price->setValue(net ? std::optional<double>(NetToGross(*net, vatPercent()))
                                      : std::nullopt);
    m_prices->setNetPrice(net);
}

void ProductEdit::findStatNo()
{
    const std::optional<qint64> id = ChooseMasterRow(MasterTable::StatNo, this);
    Record row;
    if (id && StatNoStore().read(*id, row))
        m_ui->m_stat_no->setText(row.value(QString::fromLatin1(STATNO_STAT_NO)).toString());
}

Result ProductEdit::loadChildren(qint64 id)
{
    if (Result r = RecordEditDlg::loadChildren(id); !r)
        return r;
    QList<Record> rows;
    const Result r = store().readChildren(static_cast<int>(ProductChild::Prices), id, rows);
    m_prices->setRows(rows);
    return r;
}

QList<QList<Record>> ProductEdit::childRows() const
{
    QList<QList<Record>> children = RecordEditDlg::childRows();
    children << m_prices->rows();
    return children;
}
