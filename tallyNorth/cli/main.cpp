// The command-line front end: works on a company database without a window.
#include "AppCommands.h"
#include "ChequeCommands.h"
#include "Cli.h"
#include "CliInteraction.h"
#include "DocumentCommands.h"
#include "InvoiceCommands.h"
#include "NavCommands.h"
#include "OrderCommands.h"
#include "PaymentCommands.h"
#include "ReportCommands.h"
#include "ShellCommands.h"
#include "WebshopCommands.h"

#include "app/BaseFolder.h"
#include "app/Language.h"
#include "base/ProgramInfo.h"
#include "documents/LabelTranslations.h"
#include "documents/MessageText.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>

#include <unistd.h>

#include <cstring>
#include <iterator>

// Each subsystem's verbs live in a file of their own; the table below lists them all.
const CliCommand kCommands[] = {
    {"version", "version",
     [](CliContext& c, const QStringList&) {
         *c.out << QCoreApplication::applicationVersion() << Qt::endl;
         return int(ExitOk);
     }},
    {"companies", "companies", RunCompanies},
    {"create", "create NAME --tax-no NO [--zip Z] [--city C] [--address A] [--file NAME.db]",
     RunCreate},
    {"check", "check [--unpaid-methods \"A,B\"]", RunCheck},
    {"backup", "backup FILE", RunBackup},
    {"restore", "restore FILE", RunRestore},
    {"qtf",
     "qtf FILE [--header FILE] [--footer FILE] [--page WxH] [--shift-mm X,Y] --pdf OUT | --text",
     RunQtfCommand},
    {"template", "template check DIR | template install DIR", RunTemplateCommand},
    {"order",
     "order show ID | add --partner ID|NAME --item PRODUCT_ID:QTY[:PRICE]... | clone ID | delete "
     "ID...",
     RunOrderCommand},
    {"orders",
     "orders [--kind N] [--from D --to D --date shipped|created|due] [--partner TEXT] "
     "[--format txt|csv]",
     RunOrdersCommand},
    {"issue", "issue ORDER_ID [--pdf FILE] [--copies N]", RunIssueCommand},
    {"print", "print INVOICE_NO_STR --pdf FILE [--copies N]", RunPrintCommand},
    {"cancel",
     "cancel INVOICE_NO_STR [--pdf FILE] [--copies N] [--shipped D] [--due D] [--payment ID]",
     RunCancelCommand},
    {"sample", "sample --pdf FILE", RunSampleCommand},
    {"pay", "pay INVOICE_NO_STR AMOUNT --date YYYY-MM-DD [--record-no X] [--comment C]",
     RunPayCommand},
    {"payments", "payments INVOICE_NO_STR", RunPaymentsCommand},
    {"cheques", "cheques [--partner TEXT]", RunChequesCommand},
    {"cheque", "cheque print [--all-unprinted | ID...] --pdf FILE", RunChequeCommand},
    {"report",
     "report products|customers|invoices|items|receivables-invoices|receivables-partners "
     "[--from D --to D --date shipped|created|due] [--partner TEXT|--partner-id ID] "
     "[--currency local|original] [--format txt|csv|pdf] [--out FILE]",
     RunReportCommand},
    {"import-orders", "import-orders FILE", RunImportOrders},
    {"import-partners", "import-partners FILE", RunImportPartners},
    {"import-products", "import-products FILE", RunImportProducts},
    {"download-orders", "download-orders [--timeout SECONDS]", RunDownloadOrders},
    {"download-partners", "download-partners [--timeout SECONDS]", RunDownloadPartners},
    {"download-products", "download-products [--timeout SECONDS]", RunDownloadProducts},
    {"nav",
     "nav export INVOICE_NO_STR [--out FILE] | nav export --from-no A --to-no B --out DIR | nav "
     "send | nav status [INVOICE_NO_STR] | nav resend INVOICE_NO_STR",
     RunNavCommand},
};

void PrintMessage(CliContext& context, const QString& text)
{
    *context.err << MessagePlainText(text) << Qt::endl;
}

bool ParseVerbArgs(const QStringList& args, const QStringList& optionNames, QStringList* positional,
                   QHash<QString, QString>* options, QString* error)
{
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (!arg.startsWith(QLatin1String("--"))) {
            *positional << arg;
            continue;
        }
        const QString name = arg.mid(2);
        QString problem;
        if (!optionNames.contains(name))
            problem = QCoreApplication::translate("Cli", "unknown option %1").arg(arg);
        else if (i + 1 >= args.size())
            problem = QCoreApplication::translate("Cli", "%1 needs a value").arg(arg);
        if (!problem.isEmpty()) {
            if (error)
                *error = problem;
            return false;
        }
        options->insert(name, args.at(++i));
    }
    return true;
}

int UsageError(CliContext& context, const QString& what)
{
    context.usageError = what;
    return ExitUsage;
}

namespace {

const char kGlobalUsage[] = "usage: tallynorth-cli [--base DIR] [--db FILE] [--lang hu|en] ";

int Usage(QTextStream& err, const QString& what)
{
    if (!what.isEmpty())
        err << "tallynorth-cli: " << what << '\n';
    err << kGlobalUsage << "COMMAND [ARGS]\n";
    for (const CliCommand& c : kCommands)
        err << "  " << c.usage << '\n';
    err.flush();
    return ExitUsage;
}

} // namespace

int main(int argc, char* argv[])
{
    // Documents are rendered with QtGui; no window is ever shown.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a desktop session Qt warns on every run that it picks a runtime folder itself;
    // pick it here, quietly, so standard error carries only the program's messages.
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QByteArray dir = QDir::tempPath().toLocal8Bit() + "/runtime-tallynorth-" +
                               QByteArray::number(qulonglong(getuid()));
        if (QDir().mkpath(QString::fromLocal8Bit(dir)))
            QFile::setPermissions(QString::fromLocal8Bit(dir),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", dir);
    }
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tallyNorth"));
    QCoreApplication::setApplicationVersion(ProgramVersion());

    QTextStream out(stdout);
    QTextStream err(stderr);
    QStringList args = QCoreApplication::arguments().mid(1);
    QString base;
    CliContext context;
    bool languageGiven = false;
    while (!args.isEmpty() && args.first().startsWith(QLatin1String("--"))) {
        const QString option = args.takeFirst();
        const QStringList known{QStringLiteral("--base"), QStringLiteral("--db"),
                                QStringLiteral("--lang")};
        if (!known.contains(option))
            return Usage(err, QCoreApplication::translate("Cli", "unknown option %1").arg(option));
        if (args.isEmpty())
            return Usage(err, QCoreApplication::translate("Cli", "%1 needs a value").arg(option));
        const QString value = args.takeFirst();
        // An empty value would quietly mean "the default" and work on another folder or file.
        if (value.trimmed().isEmpty())
            return Usage(err, QCoreApplication::translate("Cli", "%1 needs a value").arg(option));
        if (option == QLatin1String("--base")) {
            base = value;
        } else if (option == QLatin1String("--db")) {
            context.dbPath = value;
        } else {
            context.language = value;
            languageGiven = true;
        }
    }
    if (languageGiven && context.language != QLatin1String("hu") &&
        context.language != QLatin1String("en"))
        return Usage(err, QCoreApplication::translate("Cli", "unknown language %1 (hu or en)")
                              .arg(context.language));
    if (args.isEmpty())
        return Usage(err, QCoreApplication::translate("Cli", "no command given"));
    BaseFolder::set(ResolveBaseFolder(base));
    context.language = ChooseLanguage(context.language);
    InstallLanguage(context.language);
    InstallLabelLoading();

    CliInteraction interaction(err);
    context.interaction = &interaction;
    context.cliInteraction = &interaction;
    context.out = &out;
    context.err = &err;
    const QString verb = args.takeFirst();
    for (const CliCommand& c : kCommands) {
        if (verb != QLatin1String(c.name))
            continue;
        const int status = c.run(context, args);
        if (status == ExitUsage && !context.usageError.isEmpty())
            err << "tallynorth-cli: " << context.usageError << '\n'
                << kGlobalUsage << c.usage << Qt::endl;
        return status;
    }
    return Usage(err, QCoreApplication::translate("Cli", "unknown command %1").arg(verb));
}
