#include "RecordEditDlg.h"

#include "FieldBinding.h"
#include "TranslationModel.h"

#include "Columns.h"
#include "base/Setup.h"
#include "base/ui/GuiInteraction.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTabBar>
#include <QTableView>

RecordEditDlg::RecordEditDlg(const TableStore& store, std::optional<qint64> id, QWidget* parent)
    : QDialog(parent), m_store(store), m_id(id)
{
}

RecordEditDlg::~RecordEditDlg() = default;

void RecordEditDlg::bindFields(TrText addTitle, TrText editTitle, bool nameInEditTitle)
{
    m_addTitle = addTitle;
    m_editTitle = editTitle;
    m_nameInTitle = nameInEditTitle;
    for (const char* column : m_store.info().columns) {
        if (QWidget* w = FindField(this, column))
            m_fields.insert(QString::fromLatin1(column), w);
    }
    const bool showCodes = Setup::current().flag(Col::SETUP_SHOW_CODE_FIELDS);
    for (const char* column : m_store.info().codeColumns) {
        if (QWidget* w = field(column))
            SetFieldVisible(w, showCodes);
    }
    if (auto* buttons = findChild<QDialogButtonBox*>(QStringLiteral("m_buttons"))) {
        connect(buttons, &QDialogButtonBox::accepted, this, &RecordEditDlg::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &RecordEditDlg::reject);
    }
}

void RecordEditDlg::addTranslations(QTableView* view, QList<TrText> headers)
{
    m_translations = new TranslationModel(m_store.info().children.at(0), std::move(headers), this);
    (void)m_translations->loadLanguages();
    view->setModel(m_translations);
    view->verticalHeader()->hide();
    // Every column at least as wide as its header, the last one taking what is left: sharing
    // the width evenly clipped the longest header on both sides.
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view->horizontalHeader()->setStretchLastSection(true);
    view->setEditTriggers(QAbstractItemView::AllEditTriggers);
}

Result RecordEditDlg::loadChildren(qint64 id)
{
    if (!m_translations)
        return Result::success();
    QList<Record> rows;
    const Result r = m_store.readChildren(0, id, rows);
    m_translations->setRows(rows);
    return r;
}

QList<QList<Record>> RecordEditDlg::childRows() const
{
    if (!m_translations)
        return {};
    return {m_translations->rows()};
}

// Typing starts in the first field shown, not on the tab bar of a tabbed dialog.
void RecordEditDlg::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (focusWidget() && !qobject_cast<QTabBar*>(focusWidget()))
        return;
    for (QWidget* w = nextInFocusChain(); w != this; w = w->nextInFocusChain()) {
        // The tab widget hands its focus to its bar; buttons are not fields.
        if (w->focusProxy() || qobject_cast<QTabBar*>(w) || qobject_cast<QAbstractButton*>(w))
            continue;
        if (w->isVisibleTo(this) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)) {
            w->setFocus();
            return;
        }
    }
}

std::optional<qint64> RecordEditDlg::run(const Record& presets)
{
    if (!load(presets) || exec() != QDialog::Accepted)
        return std::nullopt;
    return m_id;
}

bool RecordEditDlg::load(const Record& presets)
{
    m_row.clear();
    if (m_id) {
        Result r = m_store.read(*m_id, m_row);
        if (r)
            r = loadChildren(*m_id);
        if (!r) {
            interaction().exclamation(r.message());
            return false;
        }
    } else {
        newRecord(m_row);
        m_row.insert(presets);
    }
    for (auto it = m_fields.cbegin(); it != m_fields.cend(); ++it)
        SetFieldValue(it.value(), m_row.value(it.key()));
    showRecord(m_row);
    const QString name = m_row.value(QString::fromLatin1(m_store.info().nameColumn)).toString();
    setWindowTitle(!m_id ? m_addTitle.text()
                         : m_editTitle.text() + (m_nameInTitle ? u' ' + name : QString()));
    return true;
}

Record RecordEditDlg::record() const
{
    Record row = m_row;
    for (auto it = m_fields.cbegin(); it != m_fields.cend(); ++it)
        row.insert(it.key(), FieldValue(it.value()));
    takeRecord(row);
    return row;
}

void RecordEditDlg::accept()
{
    Record row = record();
    if (m_store.info().prepare)
        m_store.info().prepare(row);
    if (const std::optional<RequiredField> missing = m_store.missing(row)) {
        interaction().exclamation(m_store.text(missing->message));
        if (QWidget* w = field(missing->column))
            RevealField(w);
        return;
    }
    std::optional<qint64> id = m_id;
    if (const Result r = m_store.save(row, id, childRows()); !r) {
        interaction().exclamation(r.message());
        return;
    }
    m_id = id;
    m_row = row;
    QDialog::accept();
}

void RecordEditDlg::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QWidget* focus = focusWidget();
    if (enter && event->modifiers() == Qt::NoModifier &&
        Setup::current().flag(Col::SETUP_ENTER_LIKE_TAB) &&
        !qobject_cast<const QAbstractButton*>(focus)) {
        focusNextChild();
        return;
    }
    QDialog::keyPressEvent(event);
}
