#include "ChequeList.h"

#include "ChequeEdit.h"
#include "ChequeFilter.h"
#include "ChequeListModel.h"
#include "ChequePrinter.h"

#include "Columns.h"
#include "base/Database.h"
#include "base/Setup.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/ListView.h"
#include "masterdata/MasterTables.h"
#include "orders/ChequeStore.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
using Column = ChequeListModel::Column;
} // namespace

ChequeList::ChequeList(QWidget* parent)
    : ListTab(parent), m_toolbar(new QToolBar(this)), m_filter(new ChequeFilter(this)),
      m_model(new ChequeListModel(this)), m_view(new QTableView(this)), m_note(new QLabel(this))
{
    m_view->setModel(m_model);
    SetUpListView(m_view);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->installEventFilter(this);
    SetUpListNote(m_note);
    m_filter->hide();

    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_toolbar->addAction(tr("Insert"), this, &ChequeList::insertCheque);
    m_toolbar->addAction(tr("Edit"), this, &ChequeList::editCheque);
    m_toolbar->addAction(tr("Delete"), this, &ChequeList::deleteCheques);
    m_toolbar->addSeparator();
    QAction* filter = m_toolbar->addAction(tr("Filter"));
    filter->setCheckable(true);
    filter->setToolTip(tr("Filter list of cheques"));
    QAction* refresh = m_toolbar->addAction(tr("Refresh"), this, &ChequeList::reload);
    refresh->setToolTip(tr("Refresh list of cheques"));
    m_toolbar->addSeparator();
    m_toolbar->addAction(tr("Csekkek nyomtatasa"), this, &ChequeList::printCheques);

    connect(filter, &QAction::toggled, this, [this](bool on) {
        m_filter->setVisible(on);
        if (!on && !m_filter->partner().isEmpty()) {
            m_filter->setPartner(QString());
            reload();
        }
    });
    connect(m_filter, &ChequeFilter::changed, this, &ChequeList::reload);
    connect(m_view, &QTableView::doubleClicked, this, &ChequeList::editCheque);
    connect(m_view, &QTableView::customContextMenuRequested, this, &ChequeList::showContextMenu);

    auto* column = new QVBoxLayout(this);
    column->addWidget(m_toolbar);
    column->addWidget(m_filter);
    column->addWidget(m_view, 1);
    column->addWidget(m_note);
}

ChequeList::~ChequeList() = default;

void ChequeList::reload()
{
    const QList<qint64> selected = selectedIds();
    if (!Database::isOpen()) { // between companies
        m_model->setRows({});
        m_note->hide();
        return;
    }
    m_view->setColumnHidden(int(Column::Code), !Setup::current().flag(Col::SETUP_SHOW_CODE_FIELDS));
    const Result r = m_model->load({m_filter->partner(), ListRecordLimit()});
    if (!r)
        interaction().error(r.message());
    m_note->setText(ChequeStore::moreMessage());
    m_note->setVisible(m_model->more());
    FitListColumns(m_view, int(Column::PartnerName), m_fitted);
    for (qint64 id : selected)
        selectId(id);
}

QList<qint64> ChequeList::selectedIds() const
{
    QList<int> rows;
    for (const QModelIndex& index : m_view->selectionModel()->selectedRows())
        rows << index.row();
    std::sort(rows.begin(), rows.end());
    QList<qint64> ids;
    for (int row : rows)
        ids << m_model->row(row).id;
    return ids;
}

void ChequeList::selectId(qint64 id)
{
    const int row = m_model->rowOf(id);
    if (row < 0)
        return;
    m_view->selectionModel()->select(m_model->index(row, 0),
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_view->setCurrentIndex(m_model->index(row, int(Column::InvoiceNo)));
}

void ChequeList::insertCheque()
{
    if (ChequeEdit::edit(0, this))
        reload();
}

void ChequeList::editCheque()
{
    const QList<qint64> ids = selectedIds();
    if (ids.isEmpty())
        return;
    if (ChequeEdit::edit(ids.first(), this))
        reload();
}

void ChequeList::deleteCheques()
{
    const QList<qint64> ids = selectedIds();
    if (ids.isEmpty()) {
        interaction().exclamation(tr("Valassza ki a torlendo csekket!"));
        return;
    }
    if (!interaction().askYesNo(ChequeStore::deleteQuestion(int(ids.size()))))
        return;
    ChequeStore::Removal removal;
    const Result r = ChequeStore::remove(ids, removal);
    reload();
    if (!r) {
        interaction().error(r.message());
        return;
    }
    if (removal.refused > 0)
        interaction().exclamation(ChequeStore::refusedMessage(removal.refused));
}

void ChequeList::printCheques()
{
    int printed = 0;
    const Result r = ChequePrinter::run(selectedIds(), interaction(), this, printed);
    reload();
    if (!r && !r.message().isEmpty())
        interaction().exclamation(r.message());
}

void ChequeList::showContextMenu(const QPoint& pos)
{
    QMenu menu(this);
    menu.addAction(tr("Insert"), this, &ChequeList::insertCheque);
    menu.addAction(tr("Edit"), this, &ChequeList::editCheque);
    menu.addAction(tr("Delete\tDelete"), this, &ChequeList::deleteCheques);
    menu.exec(m_view->viewport()->mapToGlobal(pos));
}

bool ChequeList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Delete) {
            deleteCheques();
            return true;
        }
        if (key->key() == Qt::Key_Insert) {
            insertCheque();
            return true;
        }
    }
    return ListTab::eventFilter(watched, event);
}
