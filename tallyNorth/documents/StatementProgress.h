// A long statement that the user can watch and stop: while the statement runs, SQLite calls
// back every few thousand steps, and every twentieth of a second the progress window is asked
// whether it was cancelled (which also keeps the window painted). A cancel interrupts the
// statement, which then fails.
#pragma once

#include <QElapsedTimer>
#include <QSqlDatabase>

class Progress;

class StatementProgress
{
public:
    // Watches the statements run on db while it lives; does nothing without a progress or when
    // the session is not SQLite.
    StatementProgress(Progress* progress, const QSqlDatabase& db);
    ~StatementProgress();
    StatementProgress(const StatementProgress&) = delete;
    StatementProgress& operator=(const StatementProgress&) = delete;

    bool cancelled() const { return m_cancelled; }

private:
    static int step(void* self);

    Progress* m_progress;
    void* m_handle = nullptr; // the session's sqlite3 connection
    QElapsedTimer m_clock;
    bool m_cancelled = false;
};
