// The edit dialog of one master-data row. Its controls are bound to the table's columns by
// name (FieldBinding.h); this base loads the row, titles the window "Add ..." or "Edit ...",
// names an empty required field, hides code fields unless SETUP_SHOW_CODE_FIELDS is "1", lets
// Enter move to the next field when SETUP_ENTER_LIKE_TAB is "1", and saves through the store.
#pragma once

#include "BrowseInfo.h"
#include "base/Interaction.h"
#include "base/ui/GuiInteraction.h"

#include <QDialog>
#include <QHash>

#include <memory>

class QTableView;
class TranslationModel;

class RecordEditDlg : public QDialog
{
    Q_OBJECT
public:
    RecordEditDlg(const TableStore& store, std::optional<qint64> id, QWidget* parent = nullptr);
    ~RecordEditDlg() override;

    // Reads the row (or starts a new one from presets); false, with the message shown, when
    // the row is gone.
    bool load(const Record& presets = {});
    std::optional<qint64> id() const { return m_id; }
    // The row as the controls show it.
    Record record() const;

    void setInteraction(Interaction* interaction) { m_interaction.set(interaction); }
    // Checks and saves; the dialog closes only when the row is written.
    void accept() override;

    // Loads the row and runs the dialog; the saved row's id.
    std::optional<qint64> run(const Record& presets = {});

    // Called once the form is set up: binds the controls named after the columns.
    void bindFields(TrText addTitle, TrText editTitle, bool nameInEditTitle);
    // The first child table (translations per language) edited in view.
    void addTranslations(QTableView* view, QList<TrText> headers);
    TranslationModel* translations() const { return m_translations; }

protected:
    QWidget* field(const char* column) const { return m_fields.value(QString::fromLatin1(column)); }
    Interaction& interaction() { return m_interaction.get(); }
    const TableStore& store() const { return m_store; }

    // Values of a new row before the presets.
    virtual void newRecord(Record& row) { Q_UNUSED(row); }
    // After the bound controls show row: the rest of the form.
    virtual void showRecord(const Record& row) { Q_UNUSED(row); }
    // Values that the bound controls do not hold.
    virtual void takeRecord(Record& row) const { Q_UNUSED(row); }
    // Child rows of an existing row; and all of them to save, one list per child table.
    virtual Result loadChildren(qint64 id);
    virtual QList<QList<Record>> childRows() const;

    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    const TableStore& m_store;
    std::optional<qint64> m_id;
    Record m_row;
    QHash<QString, QWidget*> m_fields;
    TrText m_addTitle;
    TrText m_editTitle;
    bool m_nameInTitle = false;
    TranslationModel* m_translations = nullptr;
    WindowInteraction m_interaction{this};
};

// An edit dialog made of a Designer form alone.
template <class Form> class FormEditDlg : public RecordEditDlg
{
public:
    FormEditDlg(const TableStore& store, std::optional<qint64> id, QWidget* parent)
        : RecordEditDlg(store, id, parent)
    {
        m_ui.setupUi(this);
    }
    Form m_ui;
};
