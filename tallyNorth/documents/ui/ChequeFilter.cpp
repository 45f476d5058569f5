#include "ChequeFilter.h"

#include "masterdata/ui/RecordFinder.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

ChequeFilter::ChequeFilter(QWidget* parent) : QWidget(parent), m_partner(new PartnerFinder(this))
{
    setObjectName(QStringLiteral("ChequeFilterLayout"));
    m_partner->setObjectName(QStringLiteral("m_partner"));
    m_partner->setToolTip(tr("You can search by the start of partner's name"));
    m_partner->setClearButtonEnabled(true);
    auto* filter = new QPushButton(tr("Filter"), this);
    filter->setObjectName(QStringLiteral("m_filter"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(tr("Filter by partner"), this));
    row->addWidget(m_partner, 1);
    row->addWidget(filter);

    connect(filter, &QPushButton::clicked, this, &ChequeFilter::changed);
    connect(m_partner, &QLineEdit::returnPressed, this, &ChequeFilter::changed);
    connect(m_partner, &PartnerFinder::picked, this, &ChequeFilter::changed);
}

QString ChequeFilter::partner() const
{
    return m_partner->text();
}

void ChequeFilter::setPartner(const QString& text)
{
    m_partner->setPicked(std::nullopt, text);
}
