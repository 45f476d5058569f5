// The filter above the order list: a date range on one of the order's dates, the partner's name
// and the kind of order. It says when it changed; the list reads it.
#pragma once

#include "orders/OrderListQuery.h"

#include <QWidget>

class DateEdit;
class QComboBox;
class PartnerFinder;

class OrderFilter : public QWidget
{
    Q_OBJECT
public:
    explicit OrderFilter(QWidget* parent = nullptr);

    // The filter as set; limit is left 0.
    OrderListFilter filter() const;
    void setFilter(const OrderListFilter& filter);

    // The label of a kind, or empty for a value outside the eight.
    static QString kindLabel(int kind);

Q_SIGNALS:
    void changed();

private:
    QComboBox* m_dateField;
    DateEdit* m_from;
    DateEdit* m_to;
    PartnerFinder* m_partner; // by name, its drop-down showing the city too
    QComboBox* m_kind;
};
