#include "TranslationModel.h"

#include "Columns.h"
#include "masterdata/MasterTables.h"

TranslationModel::TranslationModel(const ChildTable& table, QList<TrText> headers, QObject* parent)
    : QAbstractTableModel(parent), m_table(table), m_headers(std::move(headers))
{
}

Result TranslationModel::loadLanguages()
{
    RecordPage page;
    const Result r = LangStore().list(page);
    beginResetModel();
    m_languages.clear();
    for (const Record& row : std::as_const(page.rows)) {
        m_languages.append({row.value(QString::fromLatin1(Col::LANG_ID)).toLongLong(),
                            row.value(QString::fromLatin1(Col::LANG_NAME)).toString(),
                            QStringList(m_table.valueColumns.size(), QString())});
    }
    endResetModel();
    return r;
}

void TranslationModel::setRows(const QList<Record>& rows)
{
    const QString key = QString::fromLatin1(m_table.keyColumn);
    for (Language& language : m_languages) {
        for (QString& text : language.texts)
            text.clear();
        for (const Record& row : rows) {
            if (RowId(row.value(key)) != language.id)
                continue;
            for (int c = 0; c < m_table.valueColumns.size(); ++c)
                language.texts[c] =
                    row.value(QString::fromLatin1(m_table.valueColumns.at(c))).toString();
        }
    }
    if (!m_languages.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

QList<Record> TranslationModel::rows() const
{
    QList<Record> rows;
    for (const Language& language : m_languages) {
        Record row{{QString::fromLatin1(m_table.keyColumn), language.id}};
        for (int c = 0; c < m_table.valueColumns.size(); ++c)
            row.insert(QString::fromLatin1(m_table.valueColumns.at(c)), language.texts.at(c));
        rows << row;
    }
    return rows;
}

int TranslationModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_languages.size());
}

int TranslationModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.valueColumns.size()) + 1;
}

QVariant TranslationModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount() ||
        (role != Qt::DisplayRole && role != Qt::EditRole))
        return {};
    const Language& language = m_languages.at(index.row());
    return index.column() == 0 ? language.name : language.texts.at(index.column() - 1);
}

bool TranslationModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.row() >= rowCount() || role != Qt::EditRole ||
        index.column() == 0)
        return false;
    m_languages[index.row()].texts[index.column() - 1] = value.toString();
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

Qt::ItemFlags TranslationModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount())
        return Qt::NoItemFlags;
    const Qt::ItemFlags base = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return index.column() == 0 ? base : base | Qt::ItemIsEditable;
}

QVariant TranslationModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    if (section == 0)
        return tr("Language");
    return section - 1 < m_headers.size() ? m_headers.at(section - 1).text() : QVariant();
}
