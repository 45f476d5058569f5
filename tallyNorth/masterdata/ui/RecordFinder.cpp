#include "RecordFinder.h"

#include "RecordListModel.h"

#include "Columns.h"
#include "app/Setup.h"
#include "masterdata/MasterTables.h"

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
    m_store.list(page, {typed, limit > 0 ? static_cast<int>(limit) : kDefaultLimit});
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
