// The invoice labels (TR_... keys) in every invoice language, from ORDERLABELTRANSLATION.
// Hungarian, language 0, is the legal language and always printed; the partner's language,
// when it is another one, is printed beside it. There is no fallback between languages.
#pragma once

#include "base/Result.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <utility>

class LabelTranslations
{
public:
    static constexpr int Hungarian = 0;

    // Reads every row of the current database; on failure the store is left empty.
    Result load();

    // The text stored for exactly this key and language, else the empty text.
    QString get(const QString& key, int language) const;
    // "translation / Hungarian", or the Hungarian text alone when the language (NULL or
    // Hungarian itself) has none of its own; the empty text without a Hungarian text.
    QString bilingual(const QString& key, const QVariant& language) const;

    // The TR.* placeholders of a template, in key order: TR_BILL_TO gives TR.BILL.TO. Keys
    // without a Hungarian text are left out.
    QList<std::pair<QString, QString>> placeholders(const QVariant& language) const;
    // Sets those placeholders in map, replacing values already there.
    void fillPlaceholders(QMap<QString, QString>& map, const QVariant& language) const;

    QStringList keys() const { return m_texts.keys(); }
    void set(const QString& key, int language, const QString& text);

    // Replaces every foreign row of the database by this store's non-empty foreign texts, in one
    // transaction. The Hungarian rows are the shipped ones and are never written here.
    Result saveForeign() const;
    // The invoice languages of the language table besides Hungarian: id and name, by id.
    static Result languages(QList<std::pair<int, QString>>& out);

    // The labels of the open company; to be reloaded when a database is opened and after the
    // label editor saves.
    static LabelTranslations& current();

private:
    QString foreignText(const QString& key, const QVariant& language) const;
    static QString join(const QString& translation, const QString& hungarian);

    QMap<QString, QMap<int, QString>> m_texts;
};

// Has the labels of every company read when it is opened (see CompanyHooks.h).
void InstallLabelLoading();
