#include "StatementProgress.h"

#include "base/Interaction.h"

#include <QLibrary>
#include <QSqlDriver>
#include <QVariant>

namespace {

using ProgressHandler = void (*)(void*, int, int (*)(void*), void*);

// The driver plugin links the system's SQLite; its handler is looked up there, so that the
// program need not link SQLite itself.
ProgressHandler Handler()
{
    static const auto handler = reinterpret_cast<ProgressHandler>(
        QLibrary::resolve(QStringLiteral("sqlite3"), 0, "sqlite3_progress_handler"));
    return handler;
}

// Virtual machine steps between two calls: well under a millisecond of work.
constexpr int kSteps = 20000;
constexpr qint64 kAskEveryMs = 50;

} // namespace

StatementProgress::StatementProgress(Progress* progress, const QSqlDatabase& db)
    : m_progress(progress)
{
    if (!m_progress || !Handler() || !db.driver())
        return;
    const QVariant handle = db.driver()->handle();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0)
        return;
    m_handle = *static_cast<void* const*>(handle.constData());
    if (!m_handle)
        return;
    m_clock.start();
    Handler()(m_handle, kSteps, &StatementProgress::step, this);
}

StatementProgress::~StatementProgress()
{
    if (m_handle)
        Handler()(m_handle, 0, nullptr, nullptr);
}

int StatementProgress::step(void* self)
{
    auto* p = static_cast<StatementProgress*>(self);
    if (p->m_clock.elapsed() < kAskEveryMs)
        return 0;
    p->m_clock.restart();
    if (p->m_progress->canceled())
        p->m_cancelled = true;
    return p->m_cancelled ? 1 : 0;
}
