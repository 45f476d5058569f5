// A database connection of its own on another company file, closed and removed when it goes out
// of scope: reading or creating a company must not disturb the current session.
#pragma once

#include <QSqlDatabase>
#include <QString>
#include <optional>

class ScopedConnection
{
public:
    enum class Mode { ReadOnly, ReadWrite };

    ScopedConnection(const QString& path, Mode mode);
    ~ScopedConnection();
    ScopedConnection(const ScopedConnection&) = delete;
    ScopedConnection& operator=(const ScopedConnection&) = delete;

    bool isOpen() const;
    QSqlDatabase db() const;
    QString errorText() const { return m_error; }

private:
    QString m_name;
    QString m_error;
};
