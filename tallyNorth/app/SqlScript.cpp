#include "SqlScript.h"

#include "base/Interaction.h"
#include "base/SqlStatement.h"

#include <QCoreApplication>
#include <QFile>

QStringList SplitSqlScript(const QString& script)
{
    QStringList statements;
    QString current;
    QChar quote;
    bool lineComment = false;
    for (qsizetype i = 0; i < script.size(); ++i) {
        const QChar c = script.at(i);
        if (lineComment) {
            if (c == u'\n')
                lineComment = false;
            continue;
        }
        if (!quote.isNull()) {
            current += c;
            if (c == quote)
                quote = QChar();
            continue;
        }
        if (c == u'-' && i + 1 < script.size() && script.at(i + 1) == u'-') {
            lineComment = true;
            continue;
        }
        if (c == u'\'' || c == u'"')
            quote = c;
        if (c == u';') {
            const QString s = current.trimmed();
            if (!s.isEmpty())
                statements << s;
            current.clear();
            continue;
        }
        current += c;
    }
    const QString rest = current.trimmed();
    if (!rest.isEmpty())
        statements << rest;
    return statements;
}

QString LoadSqlScript(const QString& resource)
{
    QFile f(resource);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(f.readAll());
}

QString SqlScriptSection(const QString& script, const QString& name)
{
    const QString marker = QLatin1String("-- [") + name + QLatin1String("]\n");
    qsizetype start = script.indexOf(marker);
    if (start < 0)
        return {};
    start += marker.size();
    const qsizetype end = script.indexOf(QLatin1String("\n-- ["), start);
    return script.mid(start, end < 0 ? -1 : end - start + 1);
}

Result ExecSqlScript(const QString& script, Interaction* interaction, const QSqlDatabase& db)
{
    const QStringList statements = SplitSqlScript(script);
    // Every script of the program has statements: none means a missing resource or section,
    // which must not pass for a schema that was made or upgraded.
    if (statements.isEmpty())
        return Result::failure(QCoreApplication::translate("SqlScript", "Missing SQL script."));
    for (const QString& text : statements) {
        for (;;) {
            SqlStatement st(text, {}, db);
            if (st.exec())
                break;
            if (interaction && interaction->sqlError(st.errorText(), text))
                continue;
            return st.failure(st.errorText());
        }
    }
    return Result::success();
}
