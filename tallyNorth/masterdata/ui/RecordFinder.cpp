#include "RecordFinder.h"

#include "ProductBrowse.h"
#include "RecordListModel.h"

#include "Columns.h"
#include "base/Setup.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ProductPrices.h"

#include <QCompleter>
#include <QHeaderView>
#include <QTableView>

namespace {

// Without a usable SETUP_RECORD_LIMIT the drop-down still stops somewhere.
constexpr int kDefaultLimit = 100;

} // namespace

RecordFinder::RecordFinder(const TableStore& store, QList<ListColumn> columns, QWidget* parent)
    : QLineEdit(parent), m_store(store),
      m_model(new RecordListModel(std::move(columns), store.info().idColumn, this)),
      m_completer(new QCompleter(this))
{
    auto* popup = new QTableView;
    popup->setSelectionBehavior(QAbstractItemView::SelectRows);
    popup->verticalHeader()->hide();
    popup->horizontalHeader()->setStretchLastSection(true);
    popup->setMinimumWidth(420);
    m_completer->setPopup(popup);
    m_completer->setModel(m_model);
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setWidget(this);
    connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            &RecordFinder::pick);
    connect(this, &QLineEdit::textEdited, this, [this] {
        m_id.reset();
        search();
    });
}

void RecordFinder::setPicked(std::optional<qint64> id, const QString& text)
{
    setText(text);
    m_id = id;
}

void RecordFinder::search()
{
    const QString typed = text().trimmed();
    if (typed.isEmpty()) {
        m_model->setRows({});
        m_completer->popup()->hide();
        return;
    }
    prepareSearch();
    const qint64 limit = Setup::current().integer(Col::SETUP_RECORD_LIMIT);
    RecordPage page;
    (void)m_store.list(page, {typed, limit > 0 ? static_cast<int>(limit) : kDefaultLimit});
    m_model->setRows(page.rows);
    if (page.rows.isEmpty()) {
        m_completer->popup()->hide();
        return;
    }
    m_completer->complete();
    auto* view = static_cast<QTableView*>(m_completer->popup());
    view->resizeColumnsToContents();
}

void RecordFinder::pick(const QModelIndex& index)
{
    const std::optional<qint64> id = RowId(index.data(RecordListModel::IdRole));
    if (!id)
        return;
    const int row = m_model->rowOf(*id);
    setText(m_model->row(row).value(QString::fromLatin1(m_store.info().nameColumn)).toString());
    m_id = id;
    Q_EMIT picked(*id);
}

PartnerFinder::PartnerFinder(QWidget* parent)
    : RecordFinder(
          PartnerStore(),
          {{{"PartnerFinder", QT_TRANSLATE_NOOP("PartnerFinder", "Name")}, Col::PARTNER_NAME},
           {{"PartnerFinder", QT_TRANSLATE_NOOP("PartnerFinder", "City")}, Col::PARTNER_CITY}},
          parent)
{
}

ProductFinder::ProductFinder(QWidget* parent)
    : ProductFinder(std::make_shared<CurrencyPrices>(), parent)
{
}

// The columns share the prices with the finder, which loads them before each search.
ProductFinder::ProductFinder(std::shared_ptr<CurrencyPrices> prices, QWidget* parent)
    : RecordFinder(
          ProductStore(),
          {{{"ProductFinder", QT_TRANSLATE_NOOP("ProductFinder", "Name")}, Col::PRODUCT_NAME},
           {{"ProductFinder", QT_TRANSLATE_NOOP("ProductFinder", "Price")}, Col::PRODUCT_PRICE},
           {{},
            nullptr,
            false,
            [prices](const Record& row) { return PriceIn(*prices, row); },
            [prices] { return PriceInHeader(prices->currency().abbreviation); }}},
          parent),
      m_prices(std::move(prices))
{
}

ProductFinder::~ProductFinder() = default;

void ProductFinder::setCurrency(qint64 currencyId)
{
    m_currencyId = currencyId;
}

void ProductFinder::prepareSearch()
{
    (void)m_prices->load(m_currencyId);
}
