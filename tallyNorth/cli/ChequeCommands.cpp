#include "ChequeCommands.h"

#include "AppCommands.h"

#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "documents/ChequePrinting.h"
#include "documents/InvoiceIssue.h"
#include "orders/ChequeStore.h"

#include <QCoreApplication>

class ChequeCommands
{
    Q_DECLARE_TR_FUNCTIONS(ChequeCommands)
};

namespace {

const char kUsage[] = "usage: tallynorth-cli [--db FILE] cheques [--partner TEXT]\n"
                      "       tallynorth-cli [--db FILE] cheque print [--all-unprinted | ID...] "
                      "--pdf FILE";

int Usage(CliContext& context)
{
    *context.err << kUsage << Qt::endl;
    return ExitUsage;
}

} // namespace

int RunChequesCommand(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    const QString partner = QStringLiteral("partner");
    if (!ParseVerbArgs(args, {partner}, &positional, &options) || !positional.isEmpty())
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    QList<Cheque> rows;
    bool more = false;
    if (Result r = ChequeStore::list({options.value(partner), 0}, rows, more); !r)
        return PrintFailure(context, r);
    QTextStream& out = *context.out;
    out << QStringList{QStringLiteral("ID"), ChequeCommands::tr("Szamlaszam"),
                       ChequeCommands::tr("Partner Name"), ChequeCommands::tr("Osszeg"),
                       ChequeCommands::tr("Nyomtatas napja")}
               .join(u'\t')
        << '\n';
    for (const Cheque& c : std::as_const(rows))
        out << QStringList{QString::number(c.id), c.invoiceNoText, c.partnerName,
                           QString::number(qint64(c.amount)), DateToSql(c.datePrinted)}
                   .join(u'\t')
            << '\n';
    out.flush();
    return ExitOk;
}

int RunChequeCommand(CliContext& context, const QStringList& args)
{
    if (args.isEmpty() || args.first() != QLatin1String("print"))
        return Usage(context);
    QStringList rest = args.mid(1);
    const bool all = rest.removeAll(QStringLiteral("--all-unprinted")) > 0;
    QStringList positional;
    QHash<QString, QString> options;
    const QString pdf = QStringLiteral("pdf");
    if (!ParseVerbArgs(rest, {pdf}, &positional, &options) || !options.contains(pdf) ||
        all == !positional.isEmpty())
        return Usage(context);
    QList<qint64> ids;
    for (const QString& text : std::as_const(positional)) {
        bool ok = false;
        const qint64 id = text.toLongLong(&ok);
        if (!ok || id <= 0)
            return UsageError(context, FillArgs(ChequeCommands::tr("Not a cheque ID: %s"), {text}));
        ids << id;
    }
    if (!OpenChosenCompany(context))
        return ExitFailure;
    PdfInvoiceOutput output(options.value(pdf));
    int printed = 0;
    const ChequePrintMode mode =
        all ? ChequePrintMode::AllUnprinted : ChequePrintMode::SelectedOnly;
    if (Result r = ChequePrinting::print(mode, ids, output, *context.interaction,
                                         QDate::currentDate(), printed);
        !r)
        return PrintFailure(context, r);
    *context.out << FillArgs(ChequeCommands::tr("Cheques printed: %d"), {QString::number(printed)})
                 << Qt::endl;
    return ExitOk;
}
