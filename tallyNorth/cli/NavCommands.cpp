#include "NavCommands.h"

#include "AppCommands.h"

#include "Columns.h"
#include "base/SqlValue.h"
#include "nav/InvoiceData.h"
#include "nav/NavQueue.h"
#include "nav/NavReporter.h"
#include "orders/InvoiceNumbering.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>

namespace {

const char kUsage[] =
    "usage: tallynorth-cli [--db FILE] nav export INVOICE_NO_STR [--out FILE]\n"
    "       tallynorth-cli [--db FILE] nav export --from-no A --to-no B --out DIR\n"
    "       tallynorth-cli [--db FILE] nav send\n"
    "       tallynorth-cli [--db FILE] nav status [INVOICE_NO_STR]\n"
    "       tallynorth-cli [--db FILE] nav resend INVOICE_NO_STR";

int Usage(CliContext& context)
{
    *context.err << kUsage << Qt::endl;
    return ExitUsage;
}

Result WriteDocument(const QString& path, const QByteArray& xml)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size() || !file.commit())
        return Result::failure(QCoreApplication::translate("NavCommands", "Can't write %1.")
                                   .arg(QDir::toNativeSeparators(path)));
    return Result::success();
}

int Export(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    if (!ParseVerbArgs(args, {"out", "from-no", "to-no"}, &positional, &options))
        return Usage(context);
    const bool range = options.contains("from-no") || options.contains("to-no");
    if (range ? (!positional.isEmpty() || !options.contains("from-no") ||
                 !options.contains("to-no") || !options.contains("out"))
              : positional.size() != 1)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;

    if (!range) {
        InvoiceData::Document document;
        if (Result r = InvoiceData::buildByNumber(positional.first(), document); !r)
            return PrintFailure(context, r);
        if (!options.contains("out")) {
            context.out->flush();
            QFile out;
            if (!out.open(stdout, QIODevice::WriteOnly))
                return ExitFailure;
            out.write(document.xml);
            return ExitOk;
        }
        const Result r = WriteDocument(options.value("out"), document.xml);
        return r ? int(ExitOk) : PrintFailure(context, r);
    }

    QList<qint64> orders;
    if (Result r =
            InvoiceNumbering::findRange(options.value("from-no"), options.value("to-no"), orders);
        !r)
        return PrintFailure(context, r, true);
    const QDir dir(options.value("out"));
    if (!dir.exists() && !QDir().mkpath(dir.path()))
        return PrintFailure(
            context, Result::failure(
                         QCoreApplication::translate("NavCommands", "Can't create the folder %1.")
                             .arg(dir.path())));
    // A number text may hold characters a file name can not.
    static const QRegularExpression unsafe(QStringLiteral("[^A-Za-z0-9._-]"));
    for (qint64 orderId : std::as_const(orders)) {
        InvoiceData::Document document;
        if (Result r = InvoiceData::build(orderId, document); !r)
            return PrintFailure(context, r);
        const QString name = QString(document.invoiceNo).replace(unsafe, "_") + ".xml";
        if (Result r = WriteDocument(dir.filePath(name), document.xml); !r)
            return PrintFailure(context, r);
        *context.out << dir.filePath(name) << Qt::endl;
    }
    return ExitOk;
}

void PrintOutcome(CliContext& context, const NavReportOutcome& outcome)
{
    for (const QString& problem : outcome.problems)
        PrintMessage(context, problem);
    *context.out << QCoreApplication::translate("NavCommands",
                                                "sent %1, accepted %2, with warnings %3, "
                                                "rejected %4, waiting %5")
                        .arg(outcome.sent)
                        .arg(outcome.accepted)
                        .arg(outcome.warnings)
                        .arg(outcome.rejected)
                        .arg(outcome.stillWaiting)
                 << Qt::endl;
}

int Send(CliContext& context, const QStringList& args)
{
    if (!args.isEmpty())
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    NavReportOutcome outcome;
    if (Result r = NavReporter::run({}, outcome); !r)
        return PrintFailure(context, r);
    PrintOutcome(context, outcome);
    return outcome.stillWaiting == 0 && outcome.rejected == 0 ? int(ExitOk) : int(ExitFailure);
}

// The states; what was sent is asked about first when the technical user is set up.
int Status(CliContext& context, const QStringList& args)
{
    if (args.size() > 1)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    NavSettings settings;
    if (NavSettingsStore::load(settings) && settings.complete()) {
        NavClient client(settings);
        NavReportOutcome outcome;
        if (Result r = NavReporter::poll(client, outcome); !r)
            return PrintFailure(context, r);
        for (const QString& problem : outcome.problems)
            PrintMessage(context, problem);
    }
    QList<NavQueueEntry> entries;
    if (Result r = NavQueue::list(args.value(0), entries); !r)
        return PrintFailure(context, r);
    if (!args.isEmpty() && entries.isEmpty())
        return PrintFailure(
            context, Result::failure(QCoreApplication::translate(
                                         "NavCommands", "The invoice %1 is not in the reporting "
                                                        "queue.")
                                         .arg(args.first())));
    for (const NavQueueEntry& e : std::as_const(entries)) {
        *context.out << e.invoiceNoText << '\t' << NavQueue::stateText(e.state) << '\t'
                     << e.transactionId;
        if (!e.messages.isEmpty())
            *context.out << '\t' << QString(e.messages).replace(u'&', QStringLiteral("; "));
        *context.out << Qt::endl;
    }
    return ExitOk;
}

// A rejected invoice waits again, once what the authority refused has been put right.
int Resend(CliContext& context, const QStringList& args)
{
    if (args.size() != 1)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    QList<NavQueueEntry> entries;
    if (Result r = NavQueue::list(args.first(), entries); !r)
        return PrintFailure(context, r);
    if (entries.isEmpty() || entries.first().state != NavState::Rejected)
        return PrintFailure(
            context, Result::failure(QCoreApplication::translate(
                                         "NavCommands", "The invoice %1 has not been rejected.")
                                         .arg(args.first())));
    if (Result r = NavQueue::requeue(entries.first().invoiceNo); !r)
        return PrintFailure(context, r);
    return ExitOk;
}

} // namespace

int RunNavCommand(CliContext& context, const QStringList& args)
{
    const QString sub = args.value(0);
    if (sub == QLatin1String("export"))
        return Export(context, args.mid(1));
    if (sub == QLatin1String("send"))
        return Send(context, args.mid(1));
    if (sub == QLatin1String("status"))
        return Status(context, args.mid(1));
    if (sub == QLatin1String("resend"))
        return Resend(context, args.mid(1));
    return Usage(context);
}
