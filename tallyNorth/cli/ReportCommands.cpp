#include "ReportCommands.h"

#include "AppCommands.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/ReportOutput.h"
#include "documents/ReportQuery.h"
#include "masterdata/MasterTables.h"

#include <QCoreApplication>

#include <optional>

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("ReportCommands", text);
}

std::optional<ReportKind> KindOf(const QString& name)
{
    static const std::pair<const char*, ReportKind> kinds[] = {
        {"products", ReportKind::ProductsSold},
        {"customers", ReportKind::Customers},
        {"invoices", ReportKind::Invoices},
        {"items", ReportKind::InvoiceItems},
        {"receivables-invoices", ReportKind::ReceivablesByInvoices},
        {"receivables-partners", ReportKind::ReceivablesByPartners},
    };
    for (const auto& [text, kind] : kinds) {
        if (name == QLatin1String(text))
            return kind;
    }
    return std::nullopt;
}

bool WriteOut(CliContext& context, const QString& path, const QByteArray& bytes)
{
    const Result r = ReportOutput::write(path, bytes);
    if (!r)
        PrintMessage(context, r.message());
    return bool(r);
}

} // namespace

int RunReportCommand(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    const QStringList names{QStringLiteral("from"),       QStringLiteral("to"),
                            QStringLiteral("date"),       QStringLiteral("partner"),
                            QStringLiteral("partner-id"), QStringLiteral("currency"),
                            QStringLiteral("format"),     QStringLiteral("out")};
    QString problem;
    if (!ParseVerbArgs(args, names, &positional, &options, &problem))
        return UsageError(context, problem);
    if (positional.size() != 1)
        return UsageError(context, Tr("name one report"));
    const std::optional<ReportKind> kind = KindOf(positional.first());
    if (!kind)
        return UsageError(context, Tr("unknown report %1").arg(positional.first()));
    const bool receivables = ReportQuery::isReceivables(*kind);

    ReportFilter filter;
    const QString date = options.value(
        QStringLiteral("date"), receivables ? QStringLiteral("due") : QStringLiteral("shipped"));
    if (date == QLatin1String("shipped") && !receivables)
        filter.dateType = ReportDate::Shipped;
    else if (date == QLatin1String("created") && !receivables)
        filter.dateType = ReportDate::Created;
    else if (date == QLatin1String("due"))
        filter.dateType = ReportDate::PaymentDue;
    else
        return UsageError(context, Tr("unknown date %1").arg(date));
    const bool hasFrom = options.contains(QStringLiteral("from"));
    const bool hasTo = options.contains(QStringLiteral("to"));
    if (hasFrom != hasTo)
        return UsageError(context, Tr("--from and --to go together"));
    if (hasFrom) {
        filter.byDate = true;
        filter.from = ParseDate(options.value(QStringLiteral("from")));
        filter.to = ParseDate(options.value(QStringLiteral("to")));
        if (!filter.from.isValid() || !filter.to.isValid())
            return UsageError(context, Tr("dates are written as 2024.03.05. or 2024-03-05"));
    }
    if (options.contains(QStringLiteral("partner")) &&
        options.contains(QStringLiteral("partner-id")))
        return UsageError(context, Tr("--partner or --partner-id, not both"));
    if (options.contains(QStringLiteral("partner-id"))) {
        bool ok = false;
        filter.partnerId = options.value(QStringLiteral("partner-id")).toLongLong(&ok);
        if (!ok || filter.partnerId <= 0)
            return UsageError(context, Tr("--partner-id takes a partner's id"));
        filter.byPartner = true;
    } else if (options.contains(QStringLiteral("partner"))) {
        filter.byPartner = true;
        filter.partnerText = options.value(QStringLiteral("partner"));
    }
    const QString currency = options.value(QStringLiteral("currency"), QStringLiteral("local"));
    if (currency == QLatin1String("original"))
        filter.currency = ReportCurrency::Original;
    else if (currency != QLatin1String("local"))
        return UsageError(context, Tr("unknown currency %1").arg(currency));
    const QString format = options.value(QStringLiteral("format"), QStringLiteral("txt"));
    const QString out = options.value(QStringLiteral("out"));
    if (format != QLatin1String("txt") && format != QLatin1String("csv") &&
        format != QLatin1String("pdf"))
        return UsageError(context, Tr("unknown format %1").arg(format));
    if (format == QLatin1String("pdf") && out.isEmpty())
        return UsageError(context, Tr("a PDF needs --out FILE"));

    if (!OpenChosenCompany(context))
        return ExitFailure;
    if (filter.partnerId > 0) {
        // The printed filter line names the partner as it is called today.
        Record partner;
        filter.partnerText = PartnerStore().read(filter.partnerId, partner)
                                 ? partner.value(ColumnName(Col::PARTNER_NAME)).toString()
                                 : QString();
    }
    ReportTable table;
    if (Result r = ReportQuery::run(*kind, filter, table); !r)
        return PrintFailure(context, r, true);

    if (format == QLatin1String("pdf")) {
        const Report report = ReportOutput::report(table, Setup::current().text(Col::SETUP_NAME));
        if (Result r = report.exportPdf(out, table.title); !r)
            return PrintFailure(context, r);
        return ExitOk;
    }
    if (format == QLatin1String("csv")) {
        const QByteArray bytes = ReportOutput::csv(table);
        if (!out.isEmpty())
            return WriteOut(context, out, bytes) ? ExitOk : ExitFailure;
        // On the terminal without the byte order mark.
        *context.out << QString::fromUtf8(bytes.mid(3));
        context.out->flush();
        return ExitOk;
    }
    const QString text = ReportOutput::text(table);
    if (!out.isEmpty())
        return WriteOut(context, out, text.toUtf8()) ? ExitOk : ExitFailure;
    *context.out << text;
    context.out->flush();
    return ExitOk;
}
