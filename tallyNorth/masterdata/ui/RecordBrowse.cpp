#include "RecordBrowse.h"

#include "RecordListModel.h"
#include "ui_RecordBrowseLayout.h"

#include "Columns.h"
#include "base/Setup.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/ListView.h"
#include "masterdata/MasterTables.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>

namespace {

// Notes about more matching rows stay this long.
constexpr int kNoteMilliseconds = 4000;

std::function<void(QWidget*, const QString&)>& HelpOpener()
{
    static std::function<void(QWidget*, const QString&)> opener;
    return opener;
}

} // namespace

void RecordBrowse::setHelpOpener(std::function<void(QWidget*, const QString&)> opener)
{
    HelpOpener() = std::move(opener);
}

RecordBrowse::RecordBrowse(const BrowseInfo& info, Mode mode, QWidget* parent)
    : QWidget(parent), m_info(info), m_mode(mode), m_ui(std::make_unique<Ui::RecordBrowseLayout>()),
      m_model(new RecordListModel(info.columns, info.store->info().idColumn, this))
{
    m_ui->setupUi(this);
    m_ui->m_list->setModel(m_model);
    SetUpListView(m_ui->m_list, QAbstractItemView::SingleSelection);
    m_ui->m_new->setText(m_info.newButton.text());
    m_ui->m_ok->setVisible(mode == Mode::Choose);
    m_ui->m_cancel->setVisible(mode != Mode::Page);
    m_ui->m_help->setEnabled(static_cast<bool>(HelpOpener()));
    m_ui->m_search_bar->setVisible(static_cast<bool>(m_info.searchTip));
    m_ui->m_name->setToolTip(m_info.searchTip.text());
    m_ui->m_note->hide();
    m_noteTimer.setSingleShot(true);
    m_noteTimer.setInterval(kNoteMilliseconds);
    connect(&m_noteTimer, &QTimer::timeout, m_ui->m_note, &QLabel::hide);

    connect(m_ui->m_new, &QPushButton::clicked, this, &RecordBrowse::newRow);
    connect(m_ui->m_edit, &QPushButton::clicked, this, &RecordBrowse::editRow);
    connect(m_ui->m_delete, &QPushButton::clicked, this, &RecordBrowse::deleteRow);
    connect(m_ui->m_ok, &QPushButton::clicked, this, &RecordBrowse::choose);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &RecordBrowse::cancelled);
    connect(m_ui->m_help, &QPushButton::clicked, this, &RecordBrowse::openHelp);
    connect(m_ui->m_find, &QPushButton::clicked, this, &RecordBrowse::reload);
    connect(m_ui->m_name, &QLineEdit::returnPressed, this, &RecordBrowse::reload);
    connect(m_ui->m_list, &QTableView::doubleClicked, this, &RecordBrowse::activate);
    m_ui->m_list->installEventFilter(this);

    auto* insert = new QAction(tr("Insert"), this);
    auto* edit = new QAction(tr("Edit"), this);
    auto* remove = new QAction(tr("Delete\tDelete"), this);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    connect(insert, &QAction::triggered, this, &RecordBrowse::newRow);
    connect(edit, &QAction::triggered, this, &RecordBrowse::editRow);
    connect(remove, &QAction::triggered, this, &RecordBrowse::deleteRow);
    m_ui->m_list->addActions({insert, edit, remove});
    m_ui->m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
}

RecordBrowse::~RecordBrowse() = default;

QTableView* RecordBrowse::view() const
{
    return m_ui->m_list;
}

Result RecordBrowse::reload()
{
    const std::optional<qint64> selected = currentId();
    ListQuery query;
    if (m_info.searchTip) {
        query.namePrefix = m_ui->m_name->text().trimmed();
        query.limit = ListRecordLimit();
    }
    RecordPage page;
    const Result r = m_info.store->list(page, query);
    m_model->setRows(page.rows);
    const bool showCodes = Setup::current().flag(Col::SETUP_SHOW_CODE_FIELDS);
    for (int c = 0; c < m_model->columnCount(); ++c)
        m_ui->m_list->setColumnHidden(c, m_model->column(c).code && !showCodes);
    fitColumns();
    if (selected)
        selectId(*selected);
    if (!r)
        interaction().error(r.message());
    else if (page.more)
        showNote(m_info.moreMessage.text());
    return r;
}

// The spare width goes to the name column.
void RecordBrowse::fitColumns()
{
    QHeaderView* header = m_ui->m_list->horizontalHeader();
    int stretch = -1;
    for (int c = 0; c < m_model->columnCount(); ++c)
        if (!header->isSectionHidden(c) &&
            (stretch < 0 || m_model->column(c).column == m_info.store->info().nameColumn))
            stretch = c;
    FitListColumns(m_ui->m_list, stretch, m_fitted);
}

std::optional<qint64> RecordBrowse::currentId() const
{
    const QModelIndexList rows = m_ui->m_list->selectionModel()->selectedRows();
    return rows.isEmpty() ? std::nullopt : m_model->id(rows.first().row());
}

void RecordBrowse::selectId(qint64 id)
{
    const int row = m_model->rowOf(id);
    if (row < 0)
        return;
    m_ui->m_list->selectRow(row);
    m_ui->m_list->scrollTo(m_model->index(row, 0));
}

void RecordBrowse::newRow()
{
    if (const std::optional<qint64> id = m_info.edit(this, std::nullopt, {})) {
        (void)reload();
        selectId(*id);
    }
}

void RecordBrowse::editRow()
{
    const std::optional<qint64> id = currentId();
    if (!id) {
        interaction().exclamation(m_info.selectToEdit.text());
        return;
    }
    // A row deleted meanwhile is reported by the dialog and drops out of the list here.
    m_info.edit(this, id, {});
    (void)reload();
}

void RecordBrowse::deleteRow()
{
    const std::optional<qint64> id = currentId();
    if (!id) {
        interaction().exclamation(m_info.selectToDelete.text());
        return;
    }
    if (const Result r = m_info.store->canRemove(*id); !r) {
        interaction().exclamation(r.message());
        return;
    }
    if (!interaction().askYesNo(m_info.deleteQuestion.text()))
        return;
    if (const Result r = m_info.store->remove(*id); !r)
        interaction().error(r.message());
    (void)reload();
}

void RecordBrowse::choose()
{
    if (const std::optional<qint64> id = currentId())
        Q_EMIT chosen(*id);
    else
        interaction().exclamation(m_info.chooseMessage.text());
}

void RecordBrowse::activate()
{
    if (m_mode == Mode::Choose)
        choose();
    else
        editRow();
}

void RecordBrowse::showNote(const QString& text)
{
    m_ui->m_note->setText(text);
    m_ui->m_note->show();
    m_noteTimer.start();
}

void RecordBrowse::openHelp()
{
    if (HelpOpener())
        HelpOpener()(this, QString::fromLatin1(m_info.helpTopic));
}

bool RecordBrowse::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            activate();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
