// What an operation did: success, or the message the user must see (with the database's
// error text and the failed statement where there are any).
#pragma once

#include <QString>

class [[nodiscard]] Result
{
public:
    static Result success() { return Result(); }
    static Result failure(QString message, QString sqlError = {}, QString statement = {})
    {
        Result r;
        r.m_ok = false;
        r.m_message = std::move(message);
        r.m_sqlError = std::move(sqlError);
        r.m_statement = std::move(statement);
        return r;
    }

    bool ok() const { return m_ok; }
    explicit operator bool() const { return m_ok; }
    const QString& message() const { return m_message; }
    const QString& sqlError() const { return m_sqlError; }
    const QString& statement() const { return m_statement; }

private:
    bool m_ok = true;
    QString m_message;
    QString m_sqlError;
    QString m_statement;
};
