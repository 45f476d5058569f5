// What makes one table's list window: its store, texts, columns and edit dialog. The generic
// RecordBrowse shows any table from one of these (MasterBrowses.cpp has them all).
#pragma once

#include "masterdata/TableStore.h"

#include <QCoreApplication>
#include <QVariant>

#include <functional>
#include <optional>

class QWidget;

// A source text with its translation context.
struct TrText
{
    const char* context = nullptr;
    const char* source = nullptr;

    QString text() const
    {
        return source ? QCoreApplication::translate(context, source) : QString();
    }
    explicit operator bool() const { return source != nullptr; }
};

// A column computed from what is read once for each load of the list (another table's names,
// prices in another currency): the value of a row, and the header when it depends on the load.
struct ComputedColumn
{
    std::function<QVariant(const Record&)> value;
    QString header = {};
};

struct ListColumn
{
    TrText header;
    const char* column = nullptr; // the shown column
    bool code = false;            // shown only when SETUP_SHOW_CODE_FIELDS is "1"
    std::function<QVariant(const Record&)> value = {}; // a computed value instead of column
    std::function<QString()> headerText = {};          // a header built at run time
    std::function<ComputedColumn()> load = {};         // called by the list's model on each load
};

// Opens the edit dialog on a row (none: a new row with the given presets); the saved row's id.
using EditFunction = std::function<std::optional<qint64>(QWidget* parent, std::optional<qint64> id,
                                                         const Record& presets)>;

struct BrowseInfo
{
    const TableStore* store;
    TrText title;
    TrText newButton;
    TrText selectToEdit;
    TrText selectToDelete;
    TrText deleteQuestion;
    TrText chooseMessage; // confirming the choice with nothing selected
    const char* helpTopic;
    QList<ListColumn> columns;
    EditFunction edit;
    // Partners and products: the "&Name" search and the record limit with its note.
    TrText searchTip = {};
    TrText moreMessage = {};
};
