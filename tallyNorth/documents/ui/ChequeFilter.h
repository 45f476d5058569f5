// The filter above the cheque list: the beginning of the payer's name. It says when it changed;
// the list reads it.
#pragma once

#include <QWidget>

class PartnerFinder;

class ChequeFilter : public QWidget
{
    Q_OBJECT
public:
    explicit ChequeFilter(QWidget* parent = nullptr);

    QString partner() const;
    void setPartner(const QString& text);

Q_SIGNALS:
    void changed();

private:
    PartnerFinder* m_partner;
};
