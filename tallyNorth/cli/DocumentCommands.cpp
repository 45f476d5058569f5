#include "DocumentCommands.h"

#include "app/CompanyChoice.h"
#include "base/MessageArgs.h"
#include "documents/ChequeTemplate.h"
#include "documents/InvoiceTemplate.h"
#include "documents/QtfReader.h"
#include "documents/Report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <optional>

namespace {

std::optional<QString> ReadQtfFile(CliContext& context, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        PrintMessage(context, FillArgs(QCoreApplication::translate("DocumentCommands",
                                                                   "Unable to read file %s."),
                                       {QtfEscape(path)}));
        return std::nullopt;
    }
    return QtfTopicBody(QString::fromUtf8(file.readAll()));
}

// Two numbers joined by separator, each within limit.
std::optional<QPointF> ParsePair(const QString& text, QChar separator, double limit)
{
    const QStringList parts = text.split(separator);
    bool okX = false;
    bool okY = false;
    const double x = parts.value(0).toDouble(&okX);
    const double y = parts.value(1).toDouble(&okY);
    if (parts.size() != 2 || !okX || !okY || std::abs(x) > limit || std::abs(y) > limit)
        return std::nullopt;
    return QPointF(x, y);
}

// "WxH" in dots.
std::optional<QSize> ParseSize(const QString& text)
{
    const auto size = ParsePair(text, u'x', 100000);
    if (!size || size->x() < 100 || size->y() < 100)
        return std::nullopt;
    return QSize(qRound(size->x()), qRound(size->y()));
}

struct QtfOptions
{
    QString file;
    QString header;
    QString footer;
    QString pdf;
    bool text = false;
    QSize page = Report::kDefaultPage;
    QPointF shift;
};

std::optional<QtfOptions> ParseQtfOptions(QStringList args)
{
    QtfOptions o;
    o.text = args.removeAll(QStringLiteral("--text")) > 0;
    QStringList positional;
    QHash<QString, QString> options;
    if (!ParseVerbArgs(args,
                       {QStringLiteral("header"), QStringLiteral("footer"), QStringLiteral("pdf"),
                        QStringLiteral("page"), QStringLiteral("shift-mm")},
                       &positional, &options) ||
        positional.size() != 1)
        return std::nullopt;
    o.file = positional.first();
    o.header = options.value(QStringLiteral("header"));
    o.footer = options.value(QStringLiteral("footer"));
    o.pdf = options.value(QStringLiteral("pdf"));
    if (options.contains(QStringLiteral("page"))) {
        const auto page = ParseSize(options.value(QStringLiteral("page")));
        if (!page)
            return std::nullopt;
        o.page = *page;
    }
    if (options.contains(QStringLiteral("shift-mm"))) {
        const auto shift = ParsePair(options.value(QStringLiteral("shift-mm")), u',', 1000);
        if (!shift)
            return std::nullopt;
        o.shift = *shift;
    }
    if (o.text == !o.pdf.isEmpty())
        return std::nullopt;
    return o;
}

std::optional<QString> ReadOptionalFile(CliContext& context, const QString& path)
{
    return path.isEmpty() ? std::optional<QString>(QString()) : ReadQtfFile(context, path);
}

// A set with "invoice.cfg" is an invoice template, one with "cheque.cfg" a cheque template; a
// folder may hold both. A folder with neither is taken for an invoice set, as it always was.
bool IsInvoiceSet(const QString& dir)
{
    return !ChequeTemplates::isTemplateDir(dir) ||
           QFileInfo::exists(QDir(dir).filePath(QStringLiteral("invoice.cfg")));
}

int ChequeTemplateCheck(CliContext& context, const QString& dir)
{
    ChequeTemplate t;
    if (const Result r = ChequeTemplates::load(dir, t); !r) {
        PrintMessage(context, r.message());
        return ExitFailure;
    }
    const auto line = [&](const char* text, const QString& value) {
        *context.out << FillArgs(QCoreApplication::translate("DocumentCommands", text), {value})
                     << Qt::endl;
    };
    line(QT_TRANSLATE_NOOP("DocumentCommands", "Computed cheque digest: %s"), t.computeDigest());
    line(QT_TRANSLATE_NOOP("DocumentCommands", "Digest in cheque.cfg: %s"), t.digest);
    *context.out << (t.certified()
                         ? QCoreApplication::translate("DocumentCommands", "Certified: yes")
                         : QCoreApplication::translate("DocumentCommands", "Certified: no"))
                 << Qt::endl;
    return t.certified() ? ExitOk : ExitFailure;
}

int TemplateCheck(CliContext& context, const QString& dir)
{
    if (!IsInvoiceSet(dir))
        return ChequeTemplateCheck(context, dir);
    const InvoiceTemplate t = LoadTemplateDir(dir);
    const auto line = [&](const char* text, const QString& value) {
        *context.out << FillArgs(QCoreApplication::translate("DocumentCommands", text), {value})
                     << Qt::endl;
    };
    line(QT_TRANSLATE_NOOP("DocumentCommands", "Computed digest: %s"), t.computeDigest());
    line(QT_TRANSLATE_NOOP("DocumentCommands", "Digest in invoice.cfg: %s"), t.digest());
    for (const QString& warning : t.warnings())
        line(QT_TRANSLATE_NOOP("DocumentCommands", "Warning: %s"), warning);
    *context.out << (t.certified()
                         ? QCoreApplication::translate("DocumentCommands", "Certified: yes")
                         : QCoreApplication::translate("DocumentCommands", "Certified: no"))
                 << Qt::endl;
    return t.certified() ? ExitOk : ExitFailure;
}

int TemplateInstall(CliContext& context, const QString& dir)
{
    if (context.dbPath.isEmpty() || !QFileInfo::exists(context.dbPath)) {
        PrintMessage(context,
                     QCoreApplication::translate(
                         "DocumentCommands", "Give an existing company database with --db FILE."));
        return ExitUsage;
    }
    // Opened and prepared as at start-up (an older company gets its upgrades first); what goes
    // wrong is shown through the interaction.
    if (!OpenCompany(context.dbPath, *context.interaction))
        return ExitFailure;
    if (ChequeTemplates::isTemplateDir(dir)) {
        ChequeTemplate cheque;
        if (const Result r = ChequeTemplates::install(dir, cheque); !r) {
            PrintMessage(context, r.message());
            return ExitFailure;
        }
        if (!cheque.certified())
            PrintMessage(context,
                         QCoreApplication::translate(
                             "DocumentCommands", "The cheque template is installed, but it is not "
                                                 "certified."));
        if (!IsInvoiceSet(dir))
            return ExitOk;
    }
    InvoiceTemplate t;
    if (const Result r = InstallTemplate(dir, t); !r) {
        PrintMessage(context, r.message());
        return ExitFailure;
    }
    if (!t.certified())
        PrintMessage(context, QCoreApplication::translate(
                                  "DocumentCommands",
                                  "The template is installed, but it is not certified: invoices "
                                  "can't be printed with it."));
    return ExitOk;
}

} // namespace

int RunQtfCommand(CliContext& context, const QStringList& args)
{
    const std::optional<QtfOptions> o = ParseQtfOptions(args);
    if (!o) {
        *context.err << "usage: qtf FILE [--header FILE] [--footer FILE] [--page WxH] "
                        "[--shift-mm X,Y] --pdf OUT | --text"
                     << Qt::endl;
        return ExitUsage;
    }
    const auto body = ReadQtfFile(context, o->file);
    const auto header = ReadOptionalFile(context, o->header);
    const auto footer = ReadOptionalFile(context, o->footer);
    if (!body || !header || !footer)
        return ExitFailure;
    if (o->text) {
        *context.out << QtfToPlainText(*body) << Qt::endl;
        return ExitOk;
    }
    Report report;
    report.setPageSize(o->page);
    report.setShift(o->shift);
    report.setHeader(*header);
    report.setFooter(*footer);
    report.setBody(*body);
    const Result r = report.exportPdf(o->pdf, QFileInfo(o->file).completeBaseName());
    if (!r) {
        PrintMessage(context, r.message());
        return ExitFailure;
    }
    return ExitOk;
}

int RunTemplateCommand(CliContext& context, const QStringList& args)
{
    if (args.size() != 2 ||
        (args[0] != QLatin1String("check") && args[0] != QLatin1String("install"))) {
        *context.err << "usage: template check DIR | template install DIR" << Qt::endl;
        return ExitUsage;
    }
    if (!QFileInfo(args[1]).isDir()) {
        PrintMessage(context,
                     FillArgs(QCoreApplication::translate("DocumentCommands",
                                                          "Template directory %s does not exist."),
                              {QtfEscape(args[1])}));
        return ExitFailure;
    }
    return args[0] == QLatin1String("check") ? TemplateCheck(context, args[1])
                                             : TemplateInstall(context, args[1]);
}
