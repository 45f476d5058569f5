#include "OrderCommands.h"

#include "AppCommands.h"
#include "CliInteraction.h"

#include "Columns.h"
#include "app/CompanyChoice.h"
#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlValue.h"
#include "masterdata/MasterTables.h"
#include "orders/ConvertOrderType.h"
#include "orders/OrderFill.h"
#include "orders/OrderListQuery.h"
#include "orders/OrderStore.h"

#include <QCoreApplication>

#include <algorithm>

class OrderCommands
{
    Q_DECLARE_TR_FUNCTIONS(OrderCommands)
};

namespace {

const char kUsage[] =
    "usage: tallynorth-cli [--db FILE] order show ID\n"
    "       tallynorth-cli [--db FILE] order add --partner ID|NAME --item "
    "PRODUCT_ID:QTY[:PRICE]...\n"
    "           [--payment ID] [--currency ID] [--lang ID] [--shipped D] [--due D]\n"
    "           [--subject TEXT] [--comment TEXT] [--consolidated] [--verified] [--no]\n"
    "       tallynorth-cli [--db FILE] order clone ID\n"
    "       tallynorth-cli [--db FILE] order delete ID...\n"
    "       tallynorth-cli [--db FILE] orders [--kind N] [--from D --to D --date "
    "shipped|created|due]\n"
    "           [--partner TEXT] [--format txt|csv]";

int Usage(CliContext& context)
{
    *context.err << kUsage << Qt::endl;
    return ExitUsage;
}

QString Tr(const char* text)
{
    return QCoreApplication::translate("OrderCommands", text);
}

std::optional<qint64> ParseId(const QString& text)
{
    bool ok = false;
    const qint64 id = text.toLongLong(&ok);
    return ok && id >= 0 ? std::optional(id) : std::nullopt;
}

std::optional<double> ParseNumber(const QString& text)
{
    bool ok = false;
    const double value = QString(text).replace(u',', u'.').trimmed().toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

QString Amount(double value, int decimals)
{
    return QString::number(value, 'f', std::max(decimals, 0));
}

// A price as typed: as many decimals as it has, at least the printing decimals.
QString Price(double value, int decimals)
{
    return Amount(value, std::max(DecimalCount(value), decimals));
}

int Show(CliContext& context, const QStringList& args)
{
    const std::optional<qint64> id = args.size() == 1 ? ParseId(args.first()) : std::nullopt;
    if (!id)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    Order o;
    if (Result r = OrderStore::load(*id, o); !r)
        return PrintFailure(context, r, true);

    QTextStream& out = *context.out;
    const auto line = [&](const char* label, const QString& value) {
        out << Tr(label) << '\t' << value << '\n';
    };
    const OrderTypeText kind = ConvertOrderType(
        o.type, FlagText(o.verified), o.invoiceNo ? QVariant(*o.invoiceNo) : QVariant(),
        o.cancellingInvoiceNo ? QVariant(*o.cancellingInvoiceNo) : QVariant(),
        FlagText(o.consolidated));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Order"), QString::number(o.id));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Kind"), kind.text);
    line(QT_TRANSLATE_NOOP("OrderCommands", "Invoice No"), o.invoiceNoStr);
    line(QT_TRANSLATE_NOOP("OrderCommands", "Partner Name"), o.partnerName);
    line(QT_TRANSLATE_NOOP("OrderCommands", "Address"),
         QStringList{o.partnerZip, o.partnerCity, o.partnerAddress}.join(u' ').trimmed());
    line(QT_TRANSLATE_NOOP("OrderCommands", "Payment Method"), o.paymentMethodName);
    line(QT_TRANSLATE_NOOP("OrderCommands", "Date Shipped"), FormatDate(o.dateShipped));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Date Created"), FormatDate(o.dateCreated));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Date Payment Due"), FormatDate(o.datePaymentDue));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Currency"), o.currencyAbbreviation);
    line(QT_TRANSLATE_NOOP("OrderCommands", "Currency Rate"), Price(o.currencyRate, 0));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Subject"), o.subject);
    out << '\n';
    out << QStringList{OrderCommands::tr("Name"), OrderCommands::tr("Quantity"),
                       OrderCommands::tr("Unit"), OrderCommands::tr("Price"),
                       OrderCommands::tr("Line Total")}
               .join(u'\t')
        << '\n';
    for (const OrderItem& item : std::as_const(o.items)) {
        out << QStringList{item.name, Price(item.qty, 0), item.unit,
                           Price(item.price, o.linePrintingDecimals),
                           Amount(item.totals.net, o.linePrintingDecimals)}
                   .join(u'\t')
            << '\n';
    }
    out << '\n';
    line(QT_TRANSLATE_NOOP("OrderCommands", "Total Net"),
         Amount(o.totals.net, o.invoicePrintingDecimals));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Total VAT"),
         Amount(o.totals.vat, o.invoicePrintingDecimals));
    line(QT_TRANSLATE_NOOP("OrderCommands", "Total Gross"),
         Amount(o.totals.gross, o.invoicePrintingDecimals));
    if (o.totals.roundingDifference != 0.0)
        line(QT_TRANSLATE_NOOP("OrderCommands", "Rounding"),
             Amount(o.totals.roundingDifference, o.invoicePrintingDecimals));
    out.flush();
    return ExitOk;
}

// A partner by id, or by name: the folded name exactly, else the only one it begins.
Result FindPartner(const QString& text, qint64& id)
{
    if (const std::optional<qint64> given = ParseId(text)) {
        id = *given;
        return Result::success();
    }
    QList<qint64> ids;
    if (Result r = MatchPartners(text, ids); !r)
        return Result::failure(OrderCommands::tr("Unable to load data from database."),
                               r.sqlError());
    if (ids.size() == 1) {
        id = ids.first();
        return Result::success();
    }
    if (ids.size() > 1)
        return Result::failure(FillArgs(
            OrderCommands::tr("More than one partner matches \"%s\"; give its id."), {text}));
    return Result::failure(FillArgs(OrderCommands::tr("Partner not found: %s"), {text}));
}

struct ItemArg
{
    qint64 productId = 0;
    double qty = 0.0;
    std::optional<double> price;
};

std::optional<ItemArg> ParseItem(const QString& text)
{
    const QStringList parts = text.split(u':');
    if (parts.size() < 2 || parts.size() > 3)
        return std::nullopt;
    const std::optional<qint64> id = ParseId(parts.at(0));
    const std::optional<double> qty = ParseNumber(parts.at(1));
    if (!id || !qty)
        return std::nullopt;
    ItemArg item{*id, *qty, {}};
    if (parts.size() == 3) {
        item.price = ParseNumber(parts.at(2));
        if (!item.price)
            return std::nullopt;
    }
    return item;
}

// Flags without a value and the repeated --item are taken out before the other options.
QStringList TakeRepeated(QStringList& args, const QString& name)
{
    QStringList values;
    for (qsizetype i = 0; i < args.size();) {
        if (args.at(i) == name && i + 1 < args.size()) {
            values << args.at(i + 1);
            args.remove(i, 2);
        } else {
            ++i;
        }
    }
    return values;
}

bool TakeFlag(QStringList& args, const QString& name)
{
    return args.removeAll(name) > 0;
}

int Add(CliContext& context, QStringList args)
{
    const bool refuse = TakeFlag(args, QStringLiteral("--no"));
    const bool consolidated = TakeFlag(args, QStringLiteral("--consolidated"));
    const bool verified = TakeFlag(args, QStringLiteral("--verified"));
    const QStringList itemArgs = TakeRepeated(args, QStringLiteral("--item"));
    QStringList positional;
    QHash<QString, QString> options;
    const QStringList names{QStringLiteral("partner"),  QStringLiteral("payment"),
                            QStringLiteral("currency"), QStringLiteral("lang"),
                            QStringLiteral("shipped"),  QStringLiteral("due"),
                            QStringLiteral("subject"),  QStringLiteral("comment")};
    if (!ParseVerbArgs(args, names, &positional, &options) || !positional.isEmpty() ||
        !options.contains(QStringLiteral("partner")))
        return Usage(context);
    QList<ItemArg> items;
    for (const QString& text : itemArgs) {
        const std::optional<ItemArg> item = ParseItem(text);
        if (!item) {
            PrintMessage(
                context,
                FillArgs(
                    OrderCommands::tr(
                        "Invalid order item \"%s\": give PRODUCT_ID:QTY or PRODUCT_ID:QTY:PRICE."),
                    {text}));
            return ExitUsage;
        }
        items << *item;
    }
    const auto idOption = [&](const char* name) -> std::optional<std::optional<qint64>> {
        if (!options.contains(QLatin1String(name)))
            return std::optional<qint64>();
        const std::optional<qint64> id = ParseId(options.value(QLatin1String(name)));
        return id ? std::optional(id) : std::nullopt;
    };
    const auto dateOption = [&](const char* name) -> std::optional<QDate> {
        if (!options.contains(QLatin1String(name)))
            return QDate();
        const QDate d = ParseDate(options.value(QLatin1String(name)));
        return d.isValid() ? std::optional(d) : std::nullopt;
    };
    const auto payment = idOption("payment");
    const auto currency = idOption("currency");
    const auto lang = idOption("lang");
    const auto shipped = dateOption("shipped");
    const auto due = dateOption("due");
    if (!payment || !currency || !lang || !shipped || !due)
        return Usage(context);

    // The questions of the order window are answered yes, or no with --no.
    if (auto* cli = dynamic_cast<CliInteraction*>(context.interaction))
        cli->yesAnswer = !refuse;
    if (!OpenChosenCompany(context))
        return ExitFailure;

    Order order;
    QStringList notes;
    if (Result r = OrderFill::newOrder(order); !r)
        return PrintFailure(context, r, true);
    if (shipped->isValid())
        order.dateShipped = *shipped;
    qint64 partnerId = 0;
    if (Result r = FindPartner(options.value(QStringLiteral("partner")), partnerId); !r)
        return PrintFailure(context, r, true);
    if (Result r = OrderFill::partner(order, partnerId, &notes); !r)
        return PrintFailure(context, r, true);
    if (*currency) {
        if (Result r = OrderFill::currency(order, **currency); !r)
            return PrintFailure(context, r, true);
    }
    if (*lang) {
        if (Result r = OrderFill::language(order, **lang, &notes); !r)
            return PrintFailure(context, r, true);
    }
    if (*payment) {
        if (Result r = OrderFill::paymentMethod(order, **payment, &notes); !r)
            return PrintFailure(context, r, true);
    }
    order.datePaymentDue = *due;
    order.consolidated = consolidated;
    order.verified = verified;
    if (options.contains(QStringLiteral("subject")))
        order.subject = options.value(QStringLiteral("subject"));
    order.commentText = options.value(QStringLiteral("comment"));
    for (const ItemArg& arg : std::as_const(items)) {
        OrderItem item;
        if (Result r = OrderFill::product(item, order, arg.productId); !r)
            return PrintFailure(context, r, true);
        item.qty = arg.qty;
        if (arg.price) {
            item.discountType = int(DiscountType::EnteredPrice);
            item.price = *arg.price;
        }
        OrderFill::recalcItem(item, order);
        order.items << item;
    }
    for (const QString& note : std::as_const(notes))
        PrintMessage(context, note);
    if (Result r = OrderFill::checkOrder(order, *context.interaction); !r)
        return PrintFailure(context, r, true);
    if (Result r = OrderStore::save(order); !r)
        return PrintFailure(context, r, true);
    *context.out << order.id << Qt::endl;
    return ExitOk;
}

int Clone(CliContext& context, const QStringList& args)
{
    const std::optional<qint64> id = args.size() == 1 ? ParseId(args.first()) : std::nullopt;
    if (!id)
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    qint64 newId = 0;
    if (Result r = OrderStore::clone(*id, newId); !r)
        return PrintFailure(context, r, true);
    *context.out << newId << Qt::endl;
    return ExitOk;
}

int Delete(CliContext& context, const QStringList& args)
{
    QList<qint64> ids;
    for (const QString& arg : args) {
        const std::optional<qint64> id = ParseId(arg);
        if (!id)
            return Usage(context);
        ids << *id;
    }
    if (ids.isEmpty())
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    OrderStore::DeleteOutcome outcome;
    const Result r = OrderStore::remove(ids, outcome);
    *context.out << outcome.deleted << Qt::endl;
    if (outcome.printed > 0)
        PrintMessage(context, OrderStore::printedMessage(outcome.printed));
    if (!r)
        return PrintFailure(context, r, true);
    return outcome.printed > 0 ? ExitFailure : ExitOk;
}

// A csv field: quoted when it holds a separator, a quote or a line break.
QString CsvField(const QString& text)
{
    if (!text.contains(u',') && !text.contains(u'"') && !text.contains(u'\n'))
        return text;
    return u'"' + QString(text).replace(QLatin1String("\""), QLatin1String("\"\"")) + u'"';
}

} // namespace

int RunOrdersCommand(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    const QStringList names{QStringLiteral("kind"),    QStringLiteral("from"),
                            QStringLiteral("to"),      QStringLiteral("date"),
                            QStringLiteral("partner"), QStringLiteral("format")};
    if (!ParseVerbArgs(args, names, &positional, &options) || !positional.isEmpty())
        return Usage(context);
    OrderListFilter filter;
    if (options.contains(QStringLiteral("kind"))) {
        bool ok = false;
        filter.kind = options.value(QStringLiteral("kind")).toInt(&ok);
        if (!ok)
            return Usage(context);
    }
    const QString date = options.value(QStringLiteral("date"), QStringLiteral("shipped"));
    if (date == QLatin1String("created"))
        filter.dateField = OrderListFilter::DateField::Created;
    else if (date == QLatin1String("due"))
        filter.dateField = OrderListFilter::DateField::PaymentDue;
    else if (date != QLatin1String("shipped"))
        return Usage(context);
    for (const auto& [name, target] : {std::pair{"from", &filter.from}, {"to", &filter.to}}) {
        if (!options.contains(QLatin1String(name)))
            continue;
        *target = ParseDate(options.value(QLatin1String(name)));
        if (!target->isValid())
            return Usage(context);
    }
    filter.partner = options.value(QStringLiteral("partner"));
    const QString format = options.value(QStringLiteral("format"), QStringLiteral("txt"));
    if (format != QLatin1String("txt") && format != QLatin1String("csv"))
        return Usage(context);
    if (!OpenChosenCompany(context))
        return ExitFailure;
    filter.limit = int(Setup::current().integer(Col::SETUP_RECORD_LIMIT));
    QList<OrderListRow> rows;
    bool more = false;
    if (Result r = OrderListQuery::load(filter, rows, more); !r) {
        PrintMessage(context, r.message());
        return ExitFailure;
    }
    const bool csv = format == QLatin1String("csv");
    const auto print = [&](QStringList fields) {
        if (csv) {
            for (QString& f : fields)
                f = CsvField(f);
        }
        *context.out << fields.join(csv ? u',' : u'\t') << '\n';
    };
    print({OrderCommands::tr("Code"), OrderCommands::tr("Invoice No"),
           OrderCommands::tr("Partner Name"), OrderCommands::tr("Date Shipped"),
           OrderCommands::tr("Date Created"), OrderCommands::tr("Date Payment Due"),
           OrderCommands::tr("Currency"), OrderCommands::tr("Total Net"),
           OrderCommands::tr("Total VAT"), OrderCommands::tr("Total Gross"),
           OrderCommands::tr("Unpaid Total"), OrderCommands::tr("Payment Method"),
           OrderCommands::tr("Kind")});
    for (const OrderListRow& row : std::as_const(rows)) {
        const int d = row.printingDecimals;
        print({row.code, row.invoiceNoStr, row.partnerName, FormatDate(row.dateShipped),
               FormatDate(row.dateCreated), FormatDate(row.datePaymentDue), row.currency,
               Amount(row.totalNet, d), Amount(row.totalVat, d), Amount(row.totalGross, d),
               Amount(row.unpaidTotal, d), row.paymentMethod, row.kind.text});
    }
    context.out->flush();
    if (more)
        PrintMessage(context, OrderListQuery::moreMessage());
    return ExitOk;
}

int RunOrderCommand(CliContext& context, const QStringList& args)
{
    if (args.isEmpty())
        return Usage(context);
    const QString action = args.first();
    const QStringList rest = args.mid(1);
    if (action == QLatin1String("show"))
        return Show(context, rest);
    if (action == QLatin1String("add"))
        return Add(context, rest);
    if (action == QLatin1String("clone"))
        return Clone(context, rest);
    if (action == QLatin1String("delete"))
        return Delete(context, rest);
    return Usage(context);
}
