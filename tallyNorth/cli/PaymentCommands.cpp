#include "PaymentCommands.h"

#include "AppCommands.h"

#include "app/CompanyChoice.h"
#include "base/DateText.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "orders/BankItemStore.h"
#include "orders/InvoiceNumbering.h"

#include <QCoreApplication>
#include <QRegularExpression>

class PaymentCommands
{
    Q_DECLARE_TR_FUNCTIONS(PaymentCommands)
};

namespace {

const char kUsage[] =
    "usage: tallynorth-cli [--db FILE] pay INVOICE_NO_STR AMOUNT --date YYYY-MM-DD\n"
    "           [--record-no X] [--comment C]\n"
    "       tallynorth-cli [--db FILE] payments INVOICE_NO_STR";

int Usage(CliContext& context)
{
    *context.err << kUsage << Qt::endl;
    return ExitUsage;
}

QString Amount(double value)
{
    return QString::number(value, 'f', 6).remove(QRegularExpression(QStringLiteral("\\.?0+$")));
}

// Opens the company and loads the invoice of the number text.
Result OpenInvoice(CliContext& context, const QString& numberText, BankItemInvoice& invoice)
{
    if (!OpenChosenCompany(context))
        return Result::failure({});
    qint64 orderId = 0;
    if (Result r = InvoiceNumbering::findInvoice(numberText, orderId); !r)
        return r;
    return BankItemStore::loadInvoice(orderId, invoice);
}

} // namespace

int RunPayCommand(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    const QString date = QStringLiteral("date");
    if (!ParseVerbArgs(args, {date, QStringLiteral("record-no"), QStringLiteral("comment")},
                       &positional, &options) ||
        positional.size() != 2 || !options.contains(date))
        return Usage(context);
    BankItem item;
    item.recordNo = options.value(QStringLiteral("record-no")).trimmed();
    item.comment = options.value(QStringLiteral("comment")).trimmed();
    // An empty date is the user's slip and gets the window's message; another text is misuse.
    if (!options.value(date).trimmed().isEmpty()) {
        item.transferDate = ParseDate(options.value(date).trimmed());
        if (!item.transferDate.isValid())
            return UsageError(
                context, FillArgs(PaymentCommands::tr("Not a date: %s"), {options.value(date)}));
    }
    if (Result r = BankItemStore::parseAmount(positional.at(1), item.paidTotal); !r)
        return PrintFailure(context, r);
    if (Result r = BankItemStore::checkItem(item); !r)
        return PrintFailure(context, r);

    BankItemInvoice invoice;
    if (Result r = OpenInvoice(context, positional.first(), invoice); !r)
        return PrintFailure(context, r);
    if (Result r = BankItemStore::add(invoice, item); !r)
        return PrintFailure(context, r);
    if (invoice.paid)
        *context.out << FillArgs(PaymentCommands::tr("%s: paid"), {invoice.invoiceNoStr})
                     << Qt::endl;
    else
        *context.out << FillArgs(
                            PaymentCommands::tr("%s: unpaid %s %s"),
                            {invoice.invoiceNoStr, Amount(invoice.unpaidTotal), invoice.currency})
                            .trimmed()
                     << Qt::endl;
    return ExitOk;
}

int RunPaymentsCommand(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    if (!ParseVerbArgs(args, {}, &positional, &options) || positional.size() != 1)
        return Usage(context);
    BankItemInvoice invoice;
    if (Result r = OpenInvoice(context, positional.first(), invoice); !r)
        return PrintFailure(context, r);
    QList<BankItem> items;
    if (Result r = BankItemStore::list(invoice.orderId, items); !r)
        return PrintFailure(context, r);
    if (items.isEmpty()) {
        PrintMessage(context, PaymentCommands::tr("There are no bank items to this invoice."));
        return ExitOk;
    }
    QTextStream& out = *context.out;
    out << QStringList{PaymentCommands::tr("Record No"), PaymentCommands::tr("Transfer Date"),
                       PaymentCommands::tr("Paid"), PaymentCommands::tr("Comment")}
               .join(u'\t')
        << '\n';
    for (const BankItem& item : std::as_const(items))
        out << QStringList{item.recordNo, DateToSql(item.transferDate), Amount(item.paidTotal),
                           item.comment}
                   .join(u'\t')
            << '\n';
    if (invoice.paid)
        out << FillArgs(PaymentCommands::tr("%s: paid"), {invoice.invoiceNoStr}) << '\n';
    else
        out << FillArgs(PaymentCommands::tr("%s: unpaid %s %s"),
                        {invoice.invoiceNoStr, Amount(invoice.unpaidTotal), invoice.currency})
                   .trimmed()
            << '\n';
    out.flush();
    return ExitOk;
}
