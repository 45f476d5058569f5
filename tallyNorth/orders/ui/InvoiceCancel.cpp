#include "InvoiceCancel.h"

#include "base/DateText.h"
#include "base/Interaction.h"
#include "base/ui/DateEdit.h"
#include "base/ui/HelpLink.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/FieldBinding.h"
#include "masterdata/ui/MasterBrowses.h"
#include "orders/OrderStore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* Shown(const QString& text, const char* name)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1StringView(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QString Amount(double value, const Order& o)
{
    return QLocale().toString(value, 'f', qBound(0, o.invoicePrintingDecimals, 10)) + u' ' +
           o.currencyAbbreviation;
}

} // namespace

InvoiceCancel::InvoiceCancel(const Order& original, Interaction& interaction, QWidget* parent,
                             const QDate& today)
    : QDialog(parent), m_interaction(interaction)
{
    setWindowTitle(tr("Cancel the Invoice"));
    setMinimumWidth(400);

    auto* originalBox = new QGroupBox(tr("Original Invoice Data"));
    auto* shown = new QFormLayout(originalBox);
    shown->addRow(tr("Partner"), Shown(original.partnerName, "m_partner"));
    shown->addRow(tr("Payment Method"), Shown(original.paymentMethodName, "m_paymentmethod"));
    shown->addRow(tr("Date Shipped"),
                  Shown(original.consolidated ? tr("By Items") : FormatDate(original.dateShipped),
                        "m_original_date_shipped"));
    shown->addRow(tr("Date Created"), Shown(FormatDate(original.dateCreated), "m_date_created"));
    shown->addRow(tr("Date Payment Due"),
                  Shown(FormatDate(original.datePaymentDue), "m_original_date_payment_due"));
    shown->addRow(tr("Invoice No"), Shown(original.invoiceNoStr, "m_invoice_no"));
    shown->addRow(tr("Total Net"), Shown(Amount(original.totals.net, original), "m_total_net"));
    shown->addRow(tr("Total VAT"), Shown(Amount(original.totals.vat, original), "m_total_vat"));
    shown->addRow(tr("Total Gross"),
                  Shown(Amount(original.totals.gross, original), "m_total_gross"));

    auto* cancelBox = new QGroupBox(tr("Cancel Invoice Data"));
    auto* edited = new QFormLayout(cancelBox);
    m_dateShipped = new DateEdit;
    m_dateShipped->setObjectName(QStringLiteral("m_date_shipped"));
    m_byItems = new QCheckBox(tr("By Items"));
    m_byItems->setObjectName(QStringLiteral("m_by_items"));
    auto* shippedRow = new QHBoxLayout;
    shippedRow->addWidget(m_dateShipped, 1);
    shippedRow->addWidget(m_byItems);
    edited->addRow(tr("Date Shipped"), shippedRow);
    m_datePaymentDue = new DateEdit;
    m_datePaymentDue->setObjectName(QStringLiteral("m_date_payment_due"));
    edited->addRow(tr("Date Payment Due"), m_datePaymentDue);
    m_paymentMethod = new QComboBox;
    m_paymentMethod->setObjectName(QStringLiteral("m_paymentmethod_id"));
    FillMasterCombo(m_paymentMethod, MasterTable::PaymentMethod, true);
    edited->addRow(tr("Payment Method"), m_paymentMethod);

    // A cancellation is shipped when it is made; the payment keeps the original's term.
    m_dateShipped->setDate(today);
    const qint64 term = original.dateShipped.isValid() && original.datePaymentDue.isValid()
                            ? qMax<qint64>(0, original.dateShipped.daysTo(original.datePaymentDue))
                            : 0;
    m_datePaymentDue->setDate(today.addDays(term));
    if (original.paymentMethodId)
        SelectComboId(m_paymentMethod, *original.paymentMethodId);
    // Only a consolidated invoice has items of different dates to keep.
    m_byItems->setVisible(original.consolidated);
    m_byItems->setChecked(original.consolidated);
    m_dateShipped->setEnabled(!m_byItems->isChecked());
    connect(m_byItems, &QCheckBox::toggled, m_dateShipped,
            [this](bool on) { m_dateShipped->setEnabled(!on); });

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel |
                                         QDialogButtonBox::Help);
    connect(buttons, &QDialogButtonBox::accepted, this, &InvoiceCancel::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &InvoiceCancel::reject);
    LinkHelp(buttons, QStringLiteral("SztornoSzamla"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(originalBox);
    layout->addWidget(cancelBox);
    layout->addWidget(buttons);
    m_dateShipped->setFocus();
}

bool InvoiceCancel::byItems() const
{
    return m_byItems->isChecked();
}

CancelData InvoiceCancel::data() const
{
    CancelData d;
    if (!m_byItems->isChecked())
        d.dateShipped = m_dateShipped->date();
    d.datePaymentDue = m_datePaymentDue->date();
    const QVariant method = m_paymentMethod->currentData();
    if (method.isValid() && !method.isNull())
        d.paymentMethodId = method.toLongLong();
    return d;
}

void InvoiceCancel::accept()
{
    if (!m_dateShipped->isValidInput() || !m_datePaymentDue->isValidInput()) {
        m_interaction.exclamation(tr("Invalid date."));
        return;
    }
    if (Result r = CancelInvoice::checkData(data(), m_byItems->isChecked()); !r) {
        m_interaction.exclamation(r.message());
        return;
    }
    QDialog::accept();
}

std::optional<qint64> InvoiceCancel::run(qint64 orderId, Interaction& interaction, QWidget* parent)
{
    if (Result r = CancelInvoice::check(orderId); !r) {
        interaction.exclamation(r.message());
        return std::nullopt;
    }
    Order original;
    if (Result r = OrderStore::load(orderId, original); !r) {
        interaction.error(r.message());
        return std::nullopt;
    }
    InvoiceCancel window(original, interaction, parent);
    if (window.exec() != QDialog::Accepted)
        return std::nullopt;
    qint64 newId = 0;
    if (Result r = CancelInvoice::create(orderId, window.data(), newId); !r) {
        interaction.error(r.message());
        return std::nullopt;
    }
    return newId;
}
