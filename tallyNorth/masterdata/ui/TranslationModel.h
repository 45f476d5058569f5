// The rows of a translation tab: one per foreign language, with the texts in that language.
#pragma once

#include "BrowseInfo.h"

#include <QAbstractTableModel>

class TranslationModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    TranslationModel(const ChildTable& table, QList<TrText> headers, QObject* parent = nullptr);

    // One row per language of the LANG table.
    Result loadLanguages();
    // Fills the texts from stored rows (keyed by language id); languages without one stay empty.
    void setRows(const QList<Record>& rows);
    // Every language's row, to be saved (empty ones are not stored).
    QList<Record> rows() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    struct Language
    {
        qint64 id;
        QString name;
        QStringList texts;
    };

    const ChildTable& m_table;
    QList<TrText> m_headers;
    QList<Language> m_languages;
};
