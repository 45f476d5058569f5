#include "InvoiceCommands.h"

#include "AppCommands.h"

#include "app/CompanyChoice.h"
#include "base/DateText.h"
#include "base/Interaction.h"
#include "documents/InvoiceIssue.h"
#include "orders/CancelInvoice.h"
#include "orders/InvoiceNumbering.h"

#include <QCoreApplication>

#include <optional>

namespace {

const char kUsage[] =
    "usage: tallynorth-cli [--db FILE] issue ORDER_ID [--pdf FILE] [--copies N]\n"
    "       tallynorth-cli [--db FILE] print INVOICE_NO_STR --pdf FILE [--copies N]\n"
    "       tallynorth-cli [--db FILE] cancel INVOICE_NO_STR [--pdf FILE] [--copies N]\n"
    "           [--shipped D] [--due D] [--payment ID]\n"
    "       tallynorth-cli [--db FILE] sample --pdf FILE";

int Usage(CliContext& context)
{
    *context.err << kUsage << Qt::endl;
    return ExitUsage;
}

std::optional<qint64> ParseCount(const QString& text, qint64 minimum)
{
    bool ok = false;
    const qint64 n = text.toLongLong(&ok);
    return ok && n >= minimum ? std::optional(n) : std::nullopt;
}

struct Args
{
    QStringList positional;
    QHash<QString, QString> options;
    InvoicePrintOptions print;
    std::optional<PdfInvoiceOutput> pdf;
};

// The verb's arguments with --pdf and --copies read; false on bad usage.
bool Parse(const QStringList& args, const QStringList& extra, Args& out)
{
    if (!ParseVerbArgs(args, QStringList{QStringLiteral("pdf"), QStringLiteral("copies")} + extra,
                       &out.positional, &out.options) ||
        out.positional.size() != 1)
        return false;
    if (out.options.contains(QStringLiteral("copies"))) {
        const std::optional<qint64> copies =
            ParseCount(out.options.value(QStringLiteral("copies")), 1);
        if (!copies || *copies > 100)
            return false;
        out.print.copies = int(*copies);
    }
    if (out.options.contains(QStringLiteral("pdf")))
        out.pdf.emplace(out.options.value(QStringLiteral("pdf")));
    return true;
}

// Issues (when needed) and prints; prints the invoice number on success.
int Print(CliContext& context, qint64 orderId, Args& a)
{
    InvoiceIssue::Outcome outcome;
    const Result r = InvoiceIssue::print(orderId, *context.interaction, a.pdf ? &*a.pdf : nullptr,
                                         outcome, a.print);
    if (!r)
        return PrintFailure(context, r);
    *context.out << outcome.invoice.numberText << Qt::endl;
    return ExitOk;
}

} // namespace

int RunIssueCommand(CliContext& context, const QStringList& args)
{
    Args a;
    if (!Parse(args, {}, a))
        return Usage(context);
    const std::optional<qint64> id = ParseCount(a.positional.first(), 0);
    if (!id)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    return Print(context, *id, a);
}

int RunPrintCommand(CliContext& context, const QStringList& args)
{
    Args a;
    if (!Parse(args, {}, a) || !a.pdf)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    qint64 orderId = 0;
    if (Result r = InvoiceNumbering::findInvoice(a.positional.first(), orderId); !r)
        return PrintFailure(context, r);
    return Print(context, orderId, a);
}

int RunCancelCommand(CliContext& context, const QStringList& args)
{
    Args a;
    if (!Parse(args, {QStringLiteral("shipped"), QStringLiteral("due"), QStringLiteral("payment")},
               a))
        return Usage(context);
    CancelData data;
    if (a.options.contains(QStringLiteral("shipped"))) {
        data.dateShipped = ParseDate(a.options.value(QStringLiteral("shipped")));
        if (!data.dateShipped.isValid())
            return Usage(context);
    }
    if (a.options.contains(QStringLiteral("due"))) {
        data.datePaymentDue = ParseDate(a.options.value(QStringLiteral("due")));
        if (!data.datePaymentDue.isValid())
            return Usage(context);
    }
    if (a.options.contains(QStringLiteral("payment"))) {
        const std::optional<qint64> method =
            ParseCount(a.options.value(QStringLiteral("payment")), 0);
        if (!method)
            return Usage(context);
        data.paymentMethodId = *method;
    }
    if (!OpenChosenCompany(context))
        return ExitFailure;
    qint64 orderId = 0;
    if (Result r = InvoiceNumbering::findInvoice(a.positional.first(), orderId); !r)
        return PrintFailure(context, r);
    qint64 cancelId = 0;
    if (Result r = CancelInvoice::create(orderId, data, cancelId); !r)
        return PrintFailure(context, r);
    return Print(context, cancelId, a);
}

int RunSampleCommand(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    if (!ParseVerbArgs(args, {QStringLiteral("pdf")}, &positional, &options) ||
        !positional.isEmpty() || !options.contains(QStringLiteral("pdf")))
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    PdfInvoiceOutput pdf(options.value(QStringLiteral("pdf")));
    if (Result r = InvoiceIssue::printSample(pdf); !r)
        return PrintFailure(context, r);
    return ExitOk;
}
