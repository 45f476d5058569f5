// Plain row writes of the webshop imports: lookups by code and inserts or updates by id, every
// value bound. They run inside the caller's transaction.
#pragma once

#include "base/Result.h"
#include "masterdata/TableStore.h"

#include <optional>

// The id of the row whose codeColumn equals code, none when there is none; false when the
// query fails.
bool FindByCode(const char* table, const char* idColumn, const char* codeColumn,
                const QString& code, std::optional<qint64>& id);

// Updates the row of id with the columns of row, or inserts it and sets id; false on failure.
bool WriteRow(const char* table, const char* idColumn, const Record& row,
              std::optional<qint64>& id);

// The row of a child table under parentId and key (a price per currency, a translation per
// language): updated when there is one, inserted otherwise. A failed lookup fails with the
// message "load", a failed write with an empty message.
Result WriteChildRow(const char* table, const char* parentColumn, qint64 parentId,
                     const char* keyColumn, qint64 key, const Record& values);
