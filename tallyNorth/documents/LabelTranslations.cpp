#include "LabelTranslations.h"

#include "base/CompanyHooks.h"

#include "Columns.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QCoreApplication>

Result LabelTranslations::load()
{
    m_texts.clear();
    SqlStatement st(QStringLiteral("select %1, %2, %3 from %4")
                        .arg(QLatin1StringView(Col::ORDERLABELTRANSLATION_LANG_ID),
                             QLatin1StringView(Col::ORDERLABELTRANSLATION_KEY),
                             QLatin1StringView(Col::ORDERLABELTRANSLATION_TEXT),
                             QLatin1StringView(Tbl::ORDERLABELTRANSLATION)));
    if (!st.exec())
        return st.failure(QCoreApplication::translate(
            "LabelTranslations", "Unable to load invoice label translations."));
    while (st.next()) {
        if (IsNullValue(st.value(Col::ORDERLABELTRANSLATION_LANG_ID)) ||
            IsNullValue(st.value(Col::ORDERLABELTRANSLATION_KEY)))
            continue;
        set(st.value(Col::ORDERLABELTRANSLATION_KEY).toString(),
            int(ToInteger(st.value(Col::ORDERLABELTRANSLATION_LANG_ID))),
            st.value(Col::ORDERLABELTRANSLATION_TEXT).toString());
    }
    return Result::success();
}

Result LabelTranslations::saveForeign() const
{
    const auto failed = [] {
        return QCoreApplication::translate("LabelTranslations", "Unable to save data.");
    };
    SqlTransaction transaction;
    SqlStatement clear(Sql("delete from %1 where %2 <> ?",
                           {Tbl::ORDERLABELTRANSLATION, Col::ORDERLABELTRANSLATION_LANG_ID}),
                       {Hungarian});
    if (!clear.exec())
        return clear.failure(failed());
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        for (auto text = it.value().cbegin(); text != it.value().cend(); ++text) {
            if (text.key() == Hungarian || text.value().isEmpty())
                continue;
            SqlStatement insert(
                Sql("insert into %1 (%2, %3, %4) values (?, ?, ?)",
                    {Tbl::ORDERLABELTRANSLATION, Col::ORDERLABELTRANSLATION_LANG_ID,
                     Col::ORDERLABELTRANSLATION_KEY, Col::ORDERLABELTRANSLATION_TEXT}),
                {text.key(), it.key(), text.value()});
            if (!insert.exec())
                return insert.failure(failed());
        }
    }
    if (!transaction.commit())
        return Result::failure(failed() + u'&' + transaction.errorText());
    return Result::success();
}

Result LabelTranslations::languages(QList<std::pair<int, QString>>& out)
{
    out.clear();
    SqlStatement st(Sql("select %1, %2 from %3 where %1 <> ? order by %1",
                        {Col::LANG_ID, Col::LANG_NAME, Tbl::LANG}),
                    {Hungarian});
    if (!st.exec())
        return st.failure(QCoreApplication::translate(
            "LabelTranslations", "Unable to load invoice label translations."));
    while (st.next())
        out.append({int(ToInteger(st.value(Col::LANG_ID))), st.value(Col::LANG_NAME).toString()});
    return Result::success();
}

QString LabelTranslations::get(const QString& key, int language) const
{
    return m_texts.value(key).value(language);
}

QString LabelTranslations::bilingual(const QString& key, const QVariant& language) const
{
    const QString hungarian = get(key, Hungarian);
    if (hungarian.isEmpty())
        return hungarian;
    return join(foreignText(key, language), hungarian);
}

QList<std::pair<QString, QString>> LabelTranslations::placeholders(const QVariant& language) const
{
    QList<std::pair<QString, QString>> out;
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        const QString hungarian = it.value().value(Hungarian);
        if (hungarian.isEmpty())
            continue;
        QString name = it.key();
        name.replace(u'_', u'.');
        out.append({name, join(foreignText(it.key(), language), hungarian)});
    }
    return out;
}

QString LabelTranslations::foreignText(const QString& key, const QVariant& language) const
{
    // Hungarian is printed once: its own text is never the translation beside it.
    if (IsNullValue(language) || ToInteger(language) == Hungarian)
        return {};
    return get(key, int(ToInteger(language)));
}

QString LabelTranslations::join(const QString& translation, const QString& hungarian)
{
    if (translation.isEmpty())
        return hungarian;
    return translation + QStringLiteral(" / ") + hungarian;
}

void LabelTranslations::fillPlaceholders(QMap<QString, QString>& map,
                                         const QVariant& language) const
{
    for (const auto& [name, value] : placeholders(language))
        map.insert(name, value);
}

void LabelTranslations::set(const QString& key, int language, const QString& text)
{
    m_texts[key][language] = text;
}

LabelTranslations& LabelTranslations::current()
{
    static LabelTranslations labels;
    return labels;
}

void InstallLabelLoading()
{
    // Invoices are printed with the labels of the company they are issued in.
    SetCompanyOpenedHook(QStringLiteral("labels"),
                         [] { return LabelTranslations::current().load(); });
}
