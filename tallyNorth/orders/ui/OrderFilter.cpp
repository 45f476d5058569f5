#include "OrderFilter.h"

#include "base/ui/DateEdit.h"
#include "masterdata/ui/RecordFinder.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

namespace {
constexpr int kKindCount = 9;
constexpr int kTypingPauseMs = 300;
} // namespace

OrderFilter::OrderFilter(QWidget* parent)
    : QWidget(parent), m_dateField(new QComboBox(this)), m_from(new DateEdit(this)),
      m_to(new DateEdit(this)), m_partner(new PartnerFinder(this)), m_kind(new QComboBox(this))
{
    m_dateField->addItem(tr("Filter by date shipped"), int(OrderListFilter::DateField::Shipped));
    m_dateField->addItem(tr("Filter by date created"), int(OrderListFilter::DateField::Created));
    m_dateField->addItem(tr("Filter by payment due"), int(OrderListFilter::DateField::PaymentDue));
    m_kind->addItem(tr("All orders/invoices"));
    for (int kind = 0; kind < kKindCount; ++kind)
        m_kind->addItem(kindLabel(kind), kind);
    m_partner->setPlaceholderText(tr("Partner Name"));
    m_partner->setClearButtonEnabled(true);
    m_from->setObjectName(QStringLiteral("from"));
    m_to->setObjectName(QStringLiteral("to"));
    m_partner->setObjectName(QStringLiteral("partner"));
    m_kind->setObjectName(QStringLiteral("kind"));
    m_dateField->setObjectName(QStringLiteral("dateField"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_dateField);
    row->addWidget(new QLabel(tr("From:"), this));
    row->addWidget(m_from);
    row->addWidget(new QLabel(tr("To:"), this));
    row->addWidget(m_to);
    row->addSpacing(12);
    row->addWidget(new QLabel(tr("Partner:"), this));
    row->addWidget(m_partner, 1);
    row->addSpacing(12);
    row->addWidget(m_kind);

    // Typing in the partner field waits for a pause, so a long list is not read per letter.
    auto* typing = new QTimer(this);
    typing->setSingleShot(true);
    typing->setInterval(kTypingPauseMs);
    connect(typing, &QTimer::timeout, this, &OrderFilter::changed);
    connect(m_partner, &QLineEdit::textEdited, typing, qOverload<>(&QTimer::start));
    connect(m_partner, &QLineEdit::returnPressed, this, [this, typing] {
        typing->stop();
        Q_EMIT changed();
    });
    connect(m_partner, &PartnerFinder::picked, this, [this, typing] {
        typing->stop();
        Q_EMIT changed();
    });
    connect(m_dateField, &QComboBox::activated, this, [this] {
        if (m_from->date().isValid() || m_to->date().isValid())
            Q_EMIT changed();
    });
    connect(m_kind, &QComboBox::activated, this, &OrderFilter::changed);
    connect(m_from, &DateEdit::dateChanged, this, &OrderFilter::changed);
    connect(m_to, &DateEdit::dateChanged, this, &OrderFilter::changed);
}

OrderListFilter OrderFilter::filter() const
{
    OrderListFilter f;
    f.dateField = OrderListFilter::DateField(m_dateField->currentData().toInt());
    f.from = m_from->date();
    f.to = m_to->date();
    f.partner = m_partner->text().trimmed();
    const QVariant kind = m_kind->currentData();
    if (kind.isValid())
        f.kind = kind.toInt();
    return f;
}

void OrderFilter::setFilter(const OrderListFilter& filter)
{
    m_dateField->setCurrentIndex(qMax(0, m_dateField->findData(int(filter.dateField))));
    m_from->setDate(filter.from);
    m_to->setDate(filter.to);
    m_partner->setText(filter.partner);
    m_kind->setCurrentIndex(filter.kind ? qMax(0, m_kind->findData(*filter.kind)) : 0);
}

QString OrderFilter::kindLabel(int kind)
{
    switch (OrderListFilter::Kind(kind)) {
    case OrderListFilter::Kind::NotPrinted:
        return tr("Not printed invoices");
    case OrderListFilter::Kind::Printed:
        return tr("Printed invoices");
    case OrderListFilter::Kind::Unverified:
        return tr("Unverified invoices");
    case OrderListFilter::Kind::Verified:
        return tr("Verified invoices");
    case OrderListFilter::Kind::CancelInvoices:
        return tr("Cancel invoices");
    case OrderListFilter::Kind::Cancelled:
        return tr("Cancelled invoices");
    case OrderListFilter::Kind::Unpaid:
        return tr("Kifizetetlen szamlak");
    case OrderListFilter::Kind::Overdue:
        return tr("Lejart hatarideju szamlak");
    case OrderListFilter::Kind::NotAccepted:
        return tr("Not yet accepted by NAV");
    }
    return {};
}
