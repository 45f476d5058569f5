// A finder field: typing the beginning of a name lists the rows whose folded name begins with
// the folded text; picking one gives its id, a text that picks none stays plain text.
#pragma once

#include "BrowseInfo.h"

#include <QLineEdit>

#include <memory>

class CurrencyPrices;
class QCompleter;
class RecordListModel;

class RecordFinder : public QLineEdit
{
    Q_OBJECT
public:
    RecordFinder(const TableStore& store, QList<ListColumn> columns, QWidget* parent = nullptr);

    // The picked row; none while the text is typed rather than picked.
    std::optional<qint64> pickedId() const { return m_id; }
    // Shows a row as picked (an order's stored partner), or plain text when id is empty.
    void setPicked(std::optional<qint64> id, const QString& text);
    // Lists the matches of the current text in the drop-down.
    void search();
    RecordListModel* matches() const { return m_model; }
    QCompleter* dropDown() const { return m_completer; }

Q_SIGNALS:
    void picked(qint64 id);

protected:
    // Called before each search, for lookups that the columns use.
    virtual void prepareSearch() {}

private:
    void pick(const QModelIndex& index);

    const TableStore& m_store;
    RecordListModel* m_model;
    QCompleter* m_completer;
    std::optional<qint64> m_id;
};

// Partners by name, with their city.
class PartnerFinder : public RecordFinder
{
    Q_OBJECT
public:
    explicit PartnerFinder(QWidget* parent = nullptr);
};

// Products by name, with the net price and the price in one foreign currency (an order's).
class ProductFinder : public RecordFinder
{
    Q_OBJECT
public:
    explicit ProductFinder(QWidget* parent = nullptr);
    ~ProductFinder() override;

    // The currency of the "Price (%s)" column; the forint shows the net price there too.
    void setCurrency(qint64 currencyId);

protected:
    void prepareSearch() override;

private:
    ProductFinder(std::shared_ptr<CurrencyPrices> prices, QWidget* parent);

    std::shared_ptr<CurrencyPrices> m_prices;
    qint64 m_currencyId = 0;
};
