// Fills a company with orders for the order list benchmark: N orders (default 1 000 000) of
// 5 items each, a few thousand partners and products, dates spread over the years before today,
// three currencies, and the mix of states a working company has (mostly issued and paid, some
// unpaid and overdue, a few cancelled with their cancelling invoices, the newest not yet issued).
//
//   cmake -S . -B build -DTALLYNORTH_BENCH=ON && cmake --build build --target bench_orders_fill
//   ./build/bench/bench_orders_fill orders.db [orders] [items-per-order]
#include "BenchCompany.h"

#include "base/Database.h"
#include "base/FoldName.h"
#include "base/SqlTransaction.h"

#include <QCoreApplication>
#include <QDate>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QSqlError>
#include <QSqlQuery>

#include <cstdio>

namespace {

constexpr int kPartners = 3000;
constexpr int kProducts = 2000;

const char* const kSurnames[] = {"Kovács",   "Szabó", "Tóth",   "Nagy",   "Horváth",
                                 "Varga",    "Kiss",  "Molnár", "Németh", "Farkas",
                                 "Balogh",   "Papp",  "Takács", "Juhász", "Lakatos",
                                 "Mészáros", "Oláh",  "Simon",  "Rácz",   "Fekete"};
const char* const kCities[] = {"Budapest", "Debrecen",    "Szeged",    "Miskolc",       "Pécs",
                               "Győr",     "Nyíregyháza", "Kecskemét", "Székesfehérvár"};

struct Currency
{
    const char* abbreviation;
    int decimals;
    double rate;
};
const Currency kCurrencies[] = {{"HUF", 0, 1.0}, {"EUR", 2, 395.0}, {"USD", 2, 362.0}};

bool Exec(QSqlQuery& q)
{
    if (q.exec())
        return true;
    std::fprintf(stderr, "%s\n%s\n", qPrintable(q.lastError().text()), qPrintable(q.lastQuery()));
    return false;
}

QString PartnerName(int i)
{
    return QStringLiteral("%1 és Társa %2 Kft.")
        .arg(QString::fromUtf8(kSurnames[i % std::size(kSurnames)]))
        .arg(i);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: bench_orders_fill COMPANY.db [orders] [items]\n");
        return 2;
    }
    const QString path = args.at(1);
    const int orders = args.size() > 2 ? args.at(2).toInt() : 1000000;
    const int itemsPerOrder = args.size() > 3 ? args.at(3).toInt() : 5;
    if (QFile::exists(path)) {
        std::fprintf(stderr, "%s exists; the generator fills a new company only\n",
                     qPrintable(path));
        return 2;
    }
    QElapsedTimer clock;
    clock.start();
    if (Result r = OpenBenchCompany(path); !r) {
        std::fprintf(stderr, "%s\n", qPrintable(r.message()));
        return 1;
    }
    QSqlDatabase db = Database::session();
    QSqlQuery pragma(db);
    // A new file that nobody else uses: durability can wait until the end.
    pragma.exec(QStringLiteral("pragma synchronous = off"));
    pragma.exec(QStringLiteral("pragma cache_size = -200000"));

    QRandomGenerator random(12);
    // A new company may come with orders of its own; ours follow them.
    QSqlQuery maxId(db);
    maxId.exec(QStringLiteral("select coalesce(max(ORDERHEAD_ID), 0) from ORDERHEAD"));
    maxId.next();
    const qint64 firstId = maxId.value(0).toLongLong() + 1;
    maxId.finish();
    SqlTransaction transaction(db);

    QSqlQuery partner(db);
    partner.prepare(QStringLiteral(
        "insert into PARTNER (PARTNER_CODE, PARTNER_NAME, PARTNER_NAME_ASCII, PARTNER_CITY, "
        "PARTNER_PAYMENT_DUE_DAYS) values (?, ?, ?, ?, ?)"));
    for (int i = 1; i <= kPartners; ++i) {
        partner.addBindValue(QStringLiteral("BP%1").arg(i, 5, 10, QLatin1Char('0')));
        partner.addBindValue(PartnerName(i));
        partner.addBindValue(FoldName(PartnerName(i)));
        partner.addBindValue(QString::fromUtf8(kCities[i % std::size(kCities)]));
        partner.addBindValue(8 * (i % 4));
        if (!Exec(partner))
            return 1;
    }
    QSqlQuery product(db);
    product.prepare(QStringLiteral("insert into PRODUCT (PRODUCT_CODE, PRODUCT_NAME, "
                                   "PRODUCT_NAME_ASCII, PRODUCT_UNIT, PRODUCT_PRICE) "
                                   "values (?, ?, ?, 'db', ?)"));
    for (int i = 1; i <= kProducts; ++i) {
        const QString name = QStringLiteral("Termék %1").arg(i);
        product.addBindValue(QStringLiteral("BT%1").arg(i, 5, 10, QLatin1Char('0')));
        product.addBindValue(name);
        product.addBindValue(FoldName(name));
        product.addBindValue(double(100 + (i * 37) % 50000));
        if (!Exec(product))
            return 1;
    }

    QSqlQuery head(db);
    head.prepare(QStringLiteral(
        "insert into ORDERHEAD (ORDERHEAD_ID, ORDERHEAD_CODE, ORDERHEAD_PARTNER_ID, "
        "ORDERHEAD_PARTNER_NAME, ORDERHEAD_PARTNER_NAME_ASCII, ORDERHEAD_PARTNER_CITY, "
        "ORDERHEAD_PAYMENTMETHOD_NAME, ORDERHEAD_PAYMENTMETHOD_PAID, ORDERHEAD_DATE_SHIPPED, "
        "ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, ORDERHEAD_CONSOLIDATED_INVOICE, "
        "ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_CURRENCY_RATE, "
        "ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS, ORDERHEAD_INVOICE_NO, "
        "ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, "
        "ORDERHEAD_TOTAL_GROSS, ORDERHEAD_UNPAID_TOTAL, ORDERHEAD_PAID, ORDERHEAD_PRINTED_COPIES, "
        "ORDERHEAD_TYPE, ORDERHEAD_CANCELLED_INVOICE_NO, ORDERHEAD_CANCELLED_INVOICE_NO_STR, "
        "ORDERHEAD_CANCELLING_INVOICE_NO, ORDERHEAD_CANCELLING_INVOICE_NO_STR, "
        "ORDERHEAD_VERIFIED) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
        "?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    QSqlQuery item(db);
    item.prepare(QStringLiteral(
        "insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_DATE_SHIPPED, "
        "ORDERITEM_PRODUCT_ID, ORDERITEM_PRODUCT_CODE, ORDERITEM_NAME, ORDERITEM_UNIT, "
        "ORDERITEM_VAT_PERCENT, ORDERITEM_LIST_PRICE, ORDERITEM_PRICE, ORDERITEM_QTY, "
        "ORDERITEM_TOTAL_NET, ORDERITEM_TOTAL_VAT, ORDERITEM_TOTAL_GROSS) "
        "values (?, ?, ?, ?, ?, 'db', 27, ?, ?, ?, ?, ?, ?)"));
    QSqlQuery markCancelled(db);
    markCancelled.prepare(
        QStringLiteral("update ORDERHEAD set ORDERHEAD_CANCELLING_INVOICE_NO = ?, "
                       "ORDERHEAD_CANCELLING_INVOICE_NO_STR = ?, ORDERHEAD_PAID = '1', "
                       "ORDERHEAD_UNPAID_TOTAL = 0 where ORDERHEAD_INVOICE_NO = ?"));

    // About 350 orders a day, the newest today; the last few hundred are not yet issued.
    const QDate today = QDate::currentDate();
    const int perDay = 350;
    const int firstDay = -(orders / perDay);
    const int unissued = qMin(orders, 600);
    qint64 invoiceNo = 0;
    for (int i = 1; i <= orders; ++i) {
        const QDate shipped = today.addDays(firstDay + (i - 1) / perDay);
        const int partnerId = 1 + int(random.bounded(kPartners));
        const Currency& currency = kCurrencies[random.bounded(100) < 80 ? 0
                                               : random.bounded(4) == 0 ? 2
                                                                        : 1];
        const bool consolidated = random.bounded(100) == 0;
        const bool issued = i <= orders - unissued;
        // One invoice in 300 is cancelled: its cancelling invoice follows it.
        const bool cancelling = issued && invoiceNo > 0 && random.bounded(300) == 0;
        const bool transfer = random.bounded(3) == 0;
        const QDate due = shipped.addDays(transfer ? 8 * (partnerId % 4) : 0);
        const double sign = cancelling ? -1.0 : 1.0;

        double net = 0;
        QList<QVariantList> lines;
        for (int k = 0; k < itemsPerOrder; ++k) {
            const int productId = 1 + int(random.bounded(kProducts));
            const double price = double(100 + (productId * 37) % 50000) / currency.rate;
            const double qty = sign * double(1 + random.bounded(20));
            const double lineNet = qty * price;
            const QDate itemShipped =
                consolidated ? shipped.addDays(-int(random.bounded(28))) : shipped;
            lines << QVariantList{firstId + i - 1,
                                  itemShipped.toString(Qt::ISODate),
                                  productId,
                                  QStringLiteral("BT%1").arg(productId, 5, 10, QLatin1Char('0')),
                                  QStringLiteral("Termék %1").arg(productId),
                                  price,
                                  price,
                                  qty,
                                  lineNet,
                                  lineNet * 0.27,
                                  lineNet * 1.27};
            net += lineNet;
        }
        const double gross = net * 1.27;
        // Unpaid: transfers of the last months mostly, a few older ones forgotten.
        const bool unpaid =
            issued && !cancelling && transfer &&
            (shipped.daysTo(today) < 60 ? random.bounded(3) == 0 : random.bounded(200) == 0);
        QVariant number, numberText, cancelledNo, cancelledText;
        if (issued) {
            ++invoiceNo;
            number = invoiceNo;
            numberText = QStringLiteral("B-%1").arg(invoiceNo, 7, 10, QLatin1Char('0'));
            if (cancelling) {
                cancelledNo = invoiceNo - 1;
                cancelledText = QStringLiteral("B-%1").arg(invoiceNo - 1, 7, 10, QLatin1Char('0'));
            }
        }
        const QString name = PartnerName(partnerId);
        const QVariantList values{
            firstId + i - 1, QStringLiteral("R%1").arg(i), partnerId, name, FoldName(name),
            QString::fromUtf8(kCities[partnerId % std::size(kCities)]),
            transfer ? QStringLiteral("Átutalás") : QStringLiteral("Készpénz"),
            transfer ? QStringLiteral("0") : QStringLiteral("1"), shipped.toString(Qt::ISODate),
            shipped.toString(Qt::ISODate), due.toString(Qt::ISODate),
            consolidated ? QStringLiteral("1") : QStringLiteral("0"),
            QString::fromLatin1(currency.abbreviation), currency.rate, currency.decimals, number,
            numberText, net, gross - net, gross, unpaid ? gross : 0.0,
            !issued || unpaid ? QStringLiteral("0") : QStringLiteral("1"),
            issued ? 1 + int(random.bounded(100) == 0) : 0, cancelling ? 1 : 0, cancelledNo,
            cancelledText, QVariant(), QVariant(),
            // The newest orders are still being checked.
            issued || i % 3 != 0 ? QStringLiteral("1") : QStringLiteral("0")};
        for (const QVariant& v : values)
            head.addBindValue(v);
        if (!Exec(head))
            return 1;
        for (const QVariantList& line : lines) {
            for (const QVariant& v : line)
                item.addBindValue(v);
            if (!Exec(item))
                return 1;
        }
        if (cancelling) {
            markCancelled.addBindValue(invoiceNo);
            markCancelled.addBindValue(numberText);
            markCancelled.addBindValue(invoiceNo - 1);
            if (!Exec(markCancelled))
                return 1;
        }
        if (i % 100000 == 0)
            std::fprintf(stderr, "%d orders, %.1f s\n", i, clock.elapsed() / 1000.0);
    }
    if (!transaction.commit()) {
        std::fprintf(stderr, "commit failed: %s\n", qPrintable(transaction.errorText()));
        return 1;
    }
    std::printf("%s: %d orders, %d items each, %d invoices, in %.1f s\n", qPrintable(path), orders,
                itemsPerOrder, int(invoiceNo), clock.elapsed() / 1000.0);
    return 0;
}
