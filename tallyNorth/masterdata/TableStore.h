// The store of one master-data table: list, read, insert, update by id and delete with the
// table's rules. Each table is one TableStore configured by a TableInfo (MasterTables.h).
#pragma once

#include "base/Result.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <optional>

// One row by column name.
using Record = QVariantMap;

// Rows kept with a parent row and written with it: translations per language, prices per
// currency. A row whose values are all empty is not stored.
struct ChildTable
{
    const char* table;
    const char* parentColumn;
    const char* keyColumn;
    QList<const char*> valueColumns;
    const char* saveError; // message (context "TableStore") when writing them fails
};

// Rows of another table that point to a row of this one; while any exist the row is not deleted.
struct Reference
{
    const char* table;
    const char* column;
    // "This VAT key is used by %n product(s).", in the table's translation context.
    const char* message;
    // The column of this table the reference holds; the id column when unset.
    const char* valueColumn = nullptr;
};

struct RequiredField
{
    const char* column;
    const char* message;
};

struct TableInfo
{
    const char* context; // translation context of the messages below
    const char* table;
    const char* idColumn;
    QList<const char*> columns; // kept columns, without the id
    const char* nameColumn;     // the row's name in titles and pick lists
    QString orderBy;
    // Lists sorted by the folded name (Á with A), the home row first: SQLite would put accented
    // letters after Z. For small tables that are read whole.
    bool foldedOrder = false;
    QList<RequiredField> required = {};
    // Optional unique webshop codes, shown only when SETUP_SHOW_CODE_FIELDS is "1"; an empty
    // code is stored as NULL so that many rows may lack one.
    QList<const char*> codeColumns = {};
    std::optional<qint64> homeId = {}; // the row that can not be deleted
    const char* homeMessage = nullptr;
    const char* foldColumn = nullptr; // ..._NAME_ASCII: written from the name, searched by prefix
    QList<ChildTable> children = {};
    const char* removeError = nullptr; // message of a failed delete; a generic one when unset
    QList<Reference> usedBy = {};
    // Besides the codes, columns no two rows may share (compared without case).
    QList<const char*> uniqueColumns = {};
    std::function<void(Record&)> prepare = {}; // the table's rule applied to a row before each save
};

struct ListQuery
{
    QString namePrefix; // matched, folded, against the beginning of the folded name
    int limit = 0;      // 0: every row
};

struct RecordPage
{
    QList<Record> rows;
    bool more = false; // more rows match than the limit let through
};

class TableStore
{
public:
    explicit TableStore(TableInfo info);

    const TableInfo& info() const { return m_info; }
    // A message of this table, translated.
    QString text(const char* source) const;

    Result list(RecordPage& page, const ListQuery& query = {}) const;
    // Id to name of every row, for pick lists and list columns.
    Result names(QHash<qint64, QString>& names) const;
    // A vanished row gives the "maybe it is deleted by an other user" message.
    Result read(qint64 id, Record& row) const;
    // The first required field left empty.
    std::optional<RequiredField> missing(const Record& row) const;
    // Checks the required fields, then inserts (id empty: set to the new id) or updates by id,
    // with the child rows when given (one list per ChildTable), all in one transaction.
    Result save(Record& row, std::optional<qint64>& id,
                const QList<QList<Record>>& children = {}) const;
    Result readChildren(int child, qint64 parentId, QList<Record>& rows) const;
    // Where the row is used, one sentence per referencing table that holds it.
    Result usage(qint64 id, QStringList& uses) const;
    // Refuses the home row with its message, and a row still in use with where it is used.
    Result canRemove(qint64 id) const;
    // Deletes the row and its child rows.
    Result remove(qint64 id) const;

private:
    Result writeRow(Record& row, std::optional<qint64>& id) const;
    // "Unable to save data." with the reason when another row has the same code.
    Result checkUnique(const Record& row, std::optional<qint64> id) const;
    Result writeChildren(int child, qint64 parentId, const QList<Record>& rows) const;
    QString columnList() const;
    void sortFolded(QList<Record>& rows) const;

    TableInfo m_info;
};

// The value of id as a row id; none for NULL or empty.
std::optional<qint64> RowId(const QVariant& id);
