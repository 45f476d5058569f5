#include "OrderList.h"

#include "BankitemEdit.h"
#include "InvoiceCancel.h"
#include "OrderEditCommands.h"
#include "OrderFilter.h"
#include "OrderListModel.h"
#include "OrderPrintHooks.h"

#include "base/Database.h"
#include "base/MessageArgs.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/ListView.h"
#include "masterdata/MasterTables.h"
#include "orders/CancelInvoice.h"
#include "orders/OrderStore.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

OrderList::OrderList(QWidget* parent)
    : ListTab(parent), m_filter(new OrderFilter(this)), m_model(new OrderListModel(this)),
      m_sorted(new QSortFilterProxyModel(this)), m_view(new QTableView(this)),
      m_note(new QLabel(this)), m_more(new QMenu(this))
{
    m_sorted->setSourceModel(m_model);
    m_sorted->setSortRole(OrderListModel::SortRole);
    m_sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_view->setModel(m_sorted);
    m_view->setSortingEnabled(true);
    sortByCreation();
    SetUpListView(m_view);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->installEventFilter(this);
    SetUpListNote(m_note);

    auto* newButton = new QPushButton(tr("New Order"), this);
    auto* editButton = new QPushButton(tr("Edit Order"), this);
    auto* deleteButton = new QPushButton(tr("Delete Order"), this);
    auto* moreButton = new QPushButton(tr("Egyeb muveletek"), this);
    auto* previewButton = new QPushButton(tr("Print Preview"), this);
    auto* printButton = new QPushButton(tr("Print"), this);

    m_more->addAction(tr("Add bank item"), this, &OrderList::addBankItem);
    m_more->addAction(tr("Sztorno"), this, &OrderList::cancelInvoice);
    m_more->addAction(tr("Csekk nyomtatasa"), this, &OrderList::printCheques);
    QAction* clone = m_more->addAction(tr("Clone Order"), this, &OrderList::cloneOrder);
    clone->setToolTip(tr("Create and edit a copy of selected order"));
    clone->setStatusTip(clone->toolTip());
    m_more->setToolTipsVisible(true);
    moreButton->setMenu(m_more);

    connect(newButton, &QPushButton::clicked, this, &OrderList::newOrder);
    connect(editButton, &QPushButton::clicked, this, &OrderList::editOrder);
    connect(deleteButton, &QPushButton::clicked, this, &OrderList::deleteOrders);
    connect(previewButton, &QPushButton::clicked, this, &OrderList::previewOrder);
    connect(printButton, &QPushButton::clicked, this, &OrderList::printOrders);
    connect(m_view, &QTableView::doubleClicked, this, &OrderList::editOrder);
    connect(m_view, &QTableView::customContextMenuRequested, this, &OrderList::showContextMenu);
    connect(m_filter, &OrderFilter::changed, this, &OrderList::reload);

    auto* buttons = new QHBoxLayout;
    for (QPushButton* b : {newButton, editButton, deleteButton, moreButton})
        buttons->addWidget(b);
    buttons->addStretch(1);
    buttons->addWidget(previewButton);
    buttons->addWidget(printButton);

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_filter);
    column->addWidget(m_view, 1);
    column->addWidget(m_note);
    column->addLayout(buttons);
}

OrderList::~OrderList() = default;

void OrderList::reload()
{
    const QList<qint64> selected = selectedIds();
    if (!Database::isOpen()) { // between companies
        m_model->setRows({});
        m_note->hide();
        return;
    }
    OrderListFilter filter = m_filter->filter();
    filter.limit = ListRecordLimit();
    const Result r = m_model->load(filter);
    if (!r)
        interaction().error(r.message());
    m_note->setText(OrderListQuery::moreMessage());
    m_note->setVisible(m_model->more());
    FitListColumns(m_view, int(OrderListModel::Column::PartnerName), m_fitted);
    for (qint64 id : selected)
        selectId(id);
}

QList<qint64> OrderList::selectedIds() const
{
    QList<int> rows;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        rows << m_sorted->mapToSource(index).row();
    std::sort(rows.begin(), rows.end());
    QList<qint64> ids;
    for (int row : rows)
        ids << m_model->row(row).id;
    return ids;
}

void OrderList::selectId(qint64 id)
{
    const int row = m_model->rowOf(id);
    if (row < 0)
        return;
    const QModelIndex index = m_sorted->mapFromSource(m_model->index(row, 0));
    m_view->selectionModel()->select(index,
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_view->scrollTo(index);
}

void OrderList::reloadChanged()
{
    reload();
    Q_EMIT dataChanged();
}

void OrderList::newOrder()
{
    qint64 id = 0;
    if (!OpenOrderEdit(this, 0, &id))
        return;
    m_view->clearSelection();
    reloadChanged();
    selectId(id);
}

void OrderList::editOrder()
{
    const QList<qint64> ids = selectedIds();
    if (ids.size() != 1) {
        interaction().exclamation(tr("Select an order/invoice to edit or view."));
        return;
    }
    if (OpenOrderEdit(this, ids.first()))
        reloadChanged();
}

void OrderList::deleteOrders()
{
    const QList<qint64> ids = selectedIds();
    if (ids.isEmpty()) {
        interaction().exclamation(tr("Select at least an order/invoice to delete."));
        return;
    }
    const QString question = ids.size() == 1
                                 ? tr("Do you really want to delete the selected order/invoice ?")
                                 : FillArgs(tr("Deleting %d orders/invoices.&Are you sure?"),
                                            {QString::number(ids.size())});
    if (!interaction().askYesNo(question))
        return;
    OrderStore::DeleteOutcome outcome;
    const Result r = OrderStore::remove(ids, outcome);
    m_view->clearSelection();
    reloadChanged();
    if (outcome.printed > 0)
        interaction().exclamation(OrderStore::printedMessage(outcome.printed));
    if (!r)
        interaction().error(r.message());
}

void OrderList::cloneOrder()
{
    const QList<qint64> ids = selectedIds();
    if (ids.size() != 1) {
        interaction().exclamation(tr("Select an order/invoice to edit or view."));
        return;
    }
    qint64 newId = 0;
    if (Result r = OrderStore::clone(ids.first(), newId); !r) {
        interaction().error(r.message());
        return;
    }
    m_view->clearSelection();
    reloadChanged();
    selectId(newId);
    if (OpenOrderEdit(this, newId))
        reloadChanged();
}

Result OrderList::cancelRefusal(qint64 orderId)
{
    CancelState state;
    if (Result r = CancelInvoice::state(orderId, state); !r)
        return r;
    switch (state.block) {
    case CancelState::Block::None:
        return Result::success();
    case CancelState::Block::NotInvoice:
        return Result::failure(tr("Invoices, having Invoice No, can only be cancelled."));
    case CancelState::Block::Cancelling:
        return Result::failure(tr("Cancel Invoice can not be cancelled."));
    case CancelState::Block::Cancelled:
        return Result::failure(
            FillArgs(tr("This invoice is cancelled by %s."), {state.cancelledBy}));
    case CancelState::Block::CancelWaiting:
        // A cancelling invoice made earlier and not yet printed: print that one instead.
        return Result::failure(tr("Cancel Invoice not printed."));
    }
    return Result::success();
}

void OrderList::cancelInvoice()
{
    const QList<qint64> ids = selectedIds();
    if (ids.size() != 1) {
        interaction().exclamation(tr("Select an order/invoice to cancel."));
        return;
    }
    if (Result r = cancelRefusal(ids.first()); !r) {
        interaction().exclamation(r.message());
        return;
    }
    const std::optional<qint64> newId = InvoiceCancel::run(ids.first(), interaction(), this);
    if (!newId)
        return;
    m_view->clearSelection();
    reloadChanged();
    selectId(*newId);
}

void OrderList::addBankItem()
{
    const QList<qint64> ids = selectedIds();
    if (ids.size() != 1) {
        interaction().exclamation(tr("Select an order/invoice to add bank item."));
        return;
    }
    // The unpaid total and the paid state change: the unpaid kinds must see it at once.
    if (BankitemEdit::addTo(ids.first(), this, interaction())) {
        reloadChanged();
        selectId(ids.first());
    }
}

void OrderList::printCheques()
{
    const QList<qint64> ids = selectedIds();
    if (ids.isEmpty()) {
        interaction().exclamation(tr("Select at least an order to print."));
        return;
    }
    const ChequePrintHook& hook = CurrentChequePrintHook();
    if (!hook) {
        interaction().exclamation(tr("Printing is not available."));
        return;
    }
    if (const Result r = hook(this, ids); !r && !r.message().isEmpty())
        interaction().error(r.message());
}

void OrderList::printOrders()
{
    const QList<qint64> ids = selectedIds();
    if (ids.isEmpty()) {
        interaction().exclamation(tr("Select at least an order to print."));
        return;
    }
    for (qint64 id : ids) {
        const int row = m_model->rowOf(id);
        if (row >= 0 && !m_model->row(row).verified) {
            interaction().exclamation(
                tr("There are unverified invoices in selection. Verify them before print."));
            return;
        }
    }
    const OrderPrintHooks& hooks = CurrentOrderPrintHooks();
    if (!hooks.print) {
        interaction().exclamation(tr("The invoice can not be printed yet."));
        return;
    }
    const Result r = hooks.print(this, ids);
    reloadChanged();
    if (!r && !r.message().isEmpty())
        interaction().error(r.message());
}

void OrderList::previewOrder()
{
    const QList<qint64> ids = selectedIds();
    if (ids.size() != 1) {
        interaction().exclamation(tr("Select an order to print."));
        return;
    }
    const OrderListRow& row = m_model->row(m_model->rowOf(ids.first()));
    const OrderPrintHooks& hooks = CurrentOrderPrintHooks();
    // An order becomes an invoice only when printed; before that there is nothing frozen to show.
    if (!hooks.preview || row.invoiceNoStr.isEmpty()) {
        interaction().exclamation(tr("The invoice can not be printed yet."));
        return;
    }
    if (Result r = hooks.preview(this, row.id); !r && !r.message().isEmpty())
        interaction().error(r.message());
}

void OrderList::sortByCreation()
{
    // The rows come newest first; dropping the header's sort shows them so again.
    m_view->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
    m_sorted->sort(-1);
}

void OrderList::showContextMenu(const QPoint& pos)
{
    QMenu menu(this);
    menu.addAction(tr("Insert"), this, &OrderList::newOrder);
    menu.addAction(tr("Edit"), this, &OrderList::editOrder);
    menu.addAction(tr("Delete"), this, &OrderList::deleteOrders);
    menu.addSeparator();
    menu.addAction(tr("Sort By Create Order"), this, &OrderList::sortByCreation);
    menu.exec(m_view->viewport()->mapToGlobal(pos));
}

bool OrderList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            editOrder();
            return true;
        }
        if (key == Qt::Key_Delete) {
            deleteOrders();
            return true;
        }
    }
    return ListTab::eventFilter(watched, event);
}
