// Issuing invoices into PDF against the bare render of the same page: N invoices (default 1 000)
// of 20 items each are issued one by one (numbered, rendered, frozen, printed to a PDF file), then
// the first invoice's page, already as a QTextDocument, is printed N times by QPdfWriter alone.
// Target: issuing within 3x of the bare render.
//
//   cmake -S . -B build -DTALLYNORTH_BENCH=ON && cmake --build build --target bench_invoice_issue
//   QT_QPA_PLATFORM=offscreen ./build/bench/bench_invoice_issue [invoices]
#include "BenchCompany.h"

#include "app/Schema.h"
#include "base/Database.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/InvoiceIssue.h"
#include "documents/InvoiceTemplate.h"
#include "documents/LabelTranslations.h"
#include "documents/QtfTextDocument.h"
#include "orders/InvoiceNumbering.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextDocument>

#include <cstdio>

namespace {

constexpr int kItems = 20;

int Fail(const QString& what)
{
    std::fprintf(stderr, "%s\n", qPrintable(what));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const int invoices = qMax(1, app.arguments().value(1, QStringLiteral("1000")).toInt());

    QTemporaryDir dir;
    if (!dir.isValid())
        return Fail(QStringLiteral("no temporary folder"));
    if (Result r = Database::open(dir.filePath(QStringLiteral("bench.db"))); !r)
        return Fail(r.message());
    if (Result r = CreateSchema(nullptr); !r)
        return Fail(r.message());
    // The shipped template, as a new company gets it.
    const QHash<QString, QVariant> values =
        TemplateSetupValues(LoadTemplateDir(QString::fromLatin1(kShippedTemplateDir)));
    QStringList assignments;
    QVariantList binds;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        assignments << it.key() + QLatin1String(" = ?");
        binds << it.value();
    }
    if (Result r = ExecSql(QStringLiteral("update SETUP set ") + assignments.join(u", "), binds);
        !r)
        return Fail(r.message());
    if (Result r = Setup::current().load(); !r)
        return Fail(r.message());
    if (Result r = LabelTranslations::current().load(); !r)
        return Fail(r.message());

    // The orders to issue, made before the clock starts.
    Order order;
    if (!OrderFill::newOrder(order) || !OrderFill::partner(order, 1) ||
        !OrderFill::paymentMethod(order, 2))
        return Fail(QStringLiteral("no order"));
    for (int i = 0; i < kItems; ++i) {
        OrderItem item;
        if (!OrderFill::product(item, order, 1))
            return Fail(QStringLiteral("no product"));
        item.name = QStringLiteral("Termék %1 – csavar M%2").arg(i + 1).arg(4 + i % 8);
        item.qty = 1 + i % 7;
        OrderFill::recalcItem(item, order);
        order.items << item;
    }
    OrderFill::recalcTotals(order);
    order.verified = true;
    if (Result r = OrderStore::save(order); !r)
        return Fail(r.message());
    QList<qint64> ids{order.id};
    while (ids.size() < invoices) {
        qint64 id = 0;
        if (Result r = OrderStore::clone(order.id, id); !r)
            return Fail(r.message());
        ids << id;
    }

    QuietInteraction quiet;
    PdfInvoiceOutput pdf(dir.filePath(QStringLiteral("invoice.pdf")));
    InvoicePrintOptions options;
    options.copies = 1;
    QElapsedTimer clock;
    clock.start();
    for (qint64 id : std::as_const(ids)) {
        InvoiceIssue::Outcome outcome;
        if (Result r = InvoiceIssue::print(id, quiet, &pdf, outcome, options); !r)
            return Fail(QStringLiteral("order %1: %2").arg(id).arg(r.message()));
    }
    const double issueMs = double(clock.nsecsElapsed()) / 1e6 / invoices;

    // The same page, converted once: what is left is Qt's own layout and PDF writing.
    FrozenInvoice frozen;
    if (Result r = InvoiceNumbering::loadFrozen(ids.first(), frozen); !r)
        return Fail(r.message());
    const std::unique_ptr<QTextDocument> page =
        QtfToTextDocument(frozen.header + frozen.body + frozen.footer);
    const QString barePath = dir.filePath(QStringLiteral("bare.pdf"));
    clock.restart();
    for (int i = 0; i < invoices; ++i) {
        QPdfWriter writer(barePath);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setResolution(600);
        page->print(&writer);
    }
    const double bareMs = double(clock.nsecsElapsed()) / 1e6 / invoices;

    std::printf("invoices: %d of %d items\n", invoices, kItems);
    std::printf("issue + PDF:        %8.2f ms per invoice\n", issueMs);
    std::printf("bare QTextDocument: %8.2f ms per page\n", bareMs);
    std::printf("ratio:              %8.2f (target <= 3)\n", issueMs / bareMs);
    return 0;
}
