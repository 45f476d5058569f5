// Imports N generated orders (5 items each, default 100 000) from an ORDERS file and prints
// orders per second against raw SQLite inserting rows of the same shape, one transaction per
// order with its items and the timestamp, at the same journal and synchronous settings. The
// peak memory is printed after writing the file and after the import: streaming keeps it flat.
//
//   cmake -S . -B build -DTALLYNORTH_BENCH=ON && cmake --build build --target bench_webshop_import
//   ./build/bench/bench_webshop_import [orders] [folder]
#include "BenchCompany.h"
#include "ShopGenerator.h"

#include "base/Database.h"
#include "base/Setup.h"
#include "webshop/OrderImporter.h"
#include "webshop/WebshopExchange.h"
#include "webshop/WebshopInteraction.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>

#include <cstdio>

namespace {

// Peak resident memory of the process in MB.
double PeakMb()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    return 0;
}

bool WriteOrders(const QString& path, qint64 orders)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ORDERS>\n");
    for (qint64 i = 1; i <= orders; ++i)
        file.write(GeneratedOrder(i));
    file.write("</ORDERS>\n");
    return true;
}

// One stored row as an insert of all its columns but the key.
struct RowTemplate
{
    QString insert;
    QStringList names;
    QVariantList values;
};

bool ReadTemplate(const QSqlDatabase& db, const QString& table, const QString& where,
                  RowTemplate& row)
{
    QSqlQuery q(db);
    if (!q.exec(QStringLiteral("select * from %1 where %2 limit 1").arg(table, where)) || !q.next())
        return false;
    const QSqlRecord record = q.record();
    QStringList names;
    for (int i = 1; i < record.count(); ++i) {
        names << record.fieldName(i);
        row.values << q.value(i);
    }
    row.names = names;
    row.insert = QStringLiteral("insert into %1 (%2) values (%3)")
                     .arg(table, names.join(u','),
                          QStringList(names.size(), QStringLiteral("?")).join(u','));
    return true;
}

// The same orders downloaded from the local webshop into a new company: seconds, or -1.
double Download(const QString& company, qint64 orders)
{
#ifdef TN_WEBSHOP
    QProcess shop;
    shop.start(QStringLiteral(TN_WEBSHOP), {QStringLiteral("--port"), QStringLiteral("0"),
                                            QStringLiteral("--generate"), QString::number(orders)});
    if (!shop.waitForReadyRead(10000))
        return -1;
    const QString base = QString::fromUtf8(shop.readLine()).section(u' ', 2).trimmed();
    if (!OpenBenchCompany(company))
        return -1;
    (void)Setup::write({{QStringLiteral("SETUP_DOWNLOAD_UPDATE_BASIC_DATA"), QStringLiteral("0")},
                        {QStringLiteral("SETUP_DOWNLOAD_INVOICE_URL"), QString(base + "order.php")},
                        {QStringLiteral("SETUP_DOWNLOAD_SAVE_PASSWORD"), QStringLiteral("1")},
                        {QStringLiteral("SETUP_DOWNLOAD_MAX_ORDERS"), orders}});
    QuietInteraction quiet;
    WebshopInteraction nobody;
    WebshopExchange exchange(quiet, nobody);
    QElapsedTimer clock;
    clock.start();
    const bool ok = exchange.download(WebshopDocument::Orders) && exchange.storedCount() == orders;
    const double seconds = clock.nsecsElapsed() / 1e9;
    Database::close();
    shop.kill();
    shop.waitForFinished();
    return ok ? seconds : -1;
#else
    Q_UNUSED(company);
    Q_UNUSED(orders);
    return -1;
#endif
}

// The same rows written straight to SQLite: per order one transaction with the head, its items
// and the timestamp, the head's new id taken for the items.
double RawInserts(const QString& path, const RowTemplate& head, const RowTemplate& item,
                  qint64 orders, const QString& journal, const QString& synchronous)
{
    double seconds = -1;
    {
        QSqlDatabase db =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("raw"));
        db.setDatabaseName(path);
        if (!db.open())
            return -1;
        QSqlQuery q(db);
        q.exec(QStringLiteral("pragma journal_mode = ") + journal);
        q.exec(QStringLiteral("pragma synchronous = ") + synchronous);
        QSqlQuery insertHead(db), insertItem(db), timestamp(db);
        insertHead.prepare(head.insert);
        insertItem.prepare(item.insert);
        timestamp.prepare(
            QStringLiteral("update SETUP set SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP = ?"));
        QElapsedTimer clock;
        clock.start();
        for (qint64 i = 1; i <= orders; ++i) {
            db.transaction();
            QVariantList values = head.values;
            values[head.names.indexOf(QStringLiteral("ORDERHEAD_CODE"))] =
                QStringLiteral("R%1").arg(i);
            for (int c = 0; c < values.size(); ++c)
                insertHead.bindValue(c, values.at(c));
            if (!insertHead.exec()) {
                std::fprintf(stderr, "%s\n", qPrintable(insertHead.lastError().text()));
                return -1;
            }
            const QVariant headId = insertHead.lastInsertId();
            for (int j = 1; j <= 5; ++j) {
                QVariantList itemValues = item.values;
                itemValues[item.names.indexOf(QStringLiteral("ORDERITEM_ORDERHEAD_ID"))] = headId;
                for (int c = 0; c < itemValues.size(); ++c)
                    insertItem.bindValue(c, itemValues.at(c));
                if (!insertItem.exec()) {
                    std::fprintf(stderr, "%s\n", qPrintable(insertItem.lastError().text()));
                    return -1;
                }
            }
            timestamp.bindValue(0, QString::fromLatin1(ShopTimestamp(i)));
            timestamp.exec();
            db.commit();
        }
        seconds = clock.nsecsElapsed() / 1e9;
    }
    QSqlDatabase::removeDatabase(QStringLiteral("raw"));
    return seconds;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const qint64 orders = argc > 1 ? QByteArray(argv[1]).toLongLong() : 100000;
    QTemporaryDir temp;
    const QString folder = argc > 2 ? QString::fromLocal8Bit(argv[2]) : temp.path();
    const QString xml = folder + QStringLiteral("/orders.xml");
    const QString company = folder + QStringLiteral("/import.db");
    const QString raw = folder + QStringLiteral("/raw.db");
    QFile::remove(company);
    QFile::remove(raw);
    QFile::remove(folder + QStringLiteral("/download.db"));

    if (!WriteOrders(xml, orders)) {
        std::fprintf(stderr, "can not write %s\n", qPrintable(xml));
        return 1;
    }
    std::printf("document: %lld orders, %.1f MB; peak memory %.1f MB\n", orders,
                QFile(xml).size() / 1e6, PeakMb());

    if (Result r = OpenBenchCompany(company); !r) {
        std::fprintf(stderr, "%s\n", qPrintable(r.message()));
        return 1;
    }
    // Orders only, as the raw inserts: partners and products are not written back.
    (void)Setup::write({{QStringLiteral("SETUP_DOWNLOAD_UPDATE_BASIC_DATA"), QStringLiteral("0")}});
    // The raw run starts from the same empty company.
    Database::session().close();
    QFile::copy(company, raw);
    if (!Database::open(company) || !Setup::current().load())
        return 1;
    QSqlQuery pragma(Database::session());
    pragma.exec(QStringLiteral("pragma journal_mode"));
    const QString journal = pragma.next() ? pragma.value(0).toString() : QStringLiteral("delete");
    pragma.exec(QStringLiteral("pragma synchronous"));
    const QString synchronous = pragma.next() ? pragma.value(0).toString() : QStringLiteral("2");
    pragma.finish();

    QuietInteraction quiet;
    WebshopInteraction nobody;
    QFile file(xml);
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QElapsedTimer clock;
    clock.start();
    OrderImporter importer(quiet, nobody);
    const bool ok = importer.importDocument(file);
    const double importSeconds = clock.nsecsElapsed() / 1e9;
    const qint64 stored = importer.createdOrders().size();
    if (!ok || stored != orders) {
        std::fprintf(stderr, "import stopped after %lld orders\n", stored);
        return 1;
    }
    const double peakAfterImport = PeakMb();

    RowTemplate head, item;
    if (!ReadTemplate(Database::session(), QStringLiteral("ORDERHEAD"),
                      QStringLiteral("ORDERHEAD_CODE = 'G1'"), head) ||
        !ReadTemplate(Database::session(), QStringLiteral("ORDERITEM"),
                      QStringLiteral("ORDERITEM_CODE = 'G1-1'"), item)) {
        std::fprintf(stderr, "no imported rows to copy\n");
        return 1;
    }
    // Item codes are unique: the raw rows leave them empty.
    item.values[item.names.indexOf(QStringLiteral("ORDERITEM_CODE"))] = QVariant();
    Database::close();
    const double rawSeconds = RawInserts(raw, head, item, orders, journal, synchronous);
    if (rawSeconds <= 0)
        return 1;

    const double importRate = orders / importSeconds;
    const double rawRate = orders / rawSeconds;
    std::printf("journal_mode=%s synchronous=%s\n", qPrintable(journal), qPrintable(synchronous));
    std::printf("import:   %lld orders in %.2f s, %.0f orders/s; peak memory %.1f MB\n", orders,
                importSeconds, importRate, peakAfterImport);
    std::printf("raw SQLite: %lld orders in %.2f s, %.0f orders/s\n", orders, rawSeconds, rawRate);
    std::printf("ratio import/raw: %.2f (target at least 0.70)\n", importRate / rawRate);
    const double downloadSeconds = Download(folder + QStringLiteral("/download.db"), orders);
    if (downloadSeconds > 0) {
        const double downloadRate = orders / downloadSeconds;
        std::printf("download from the local webshop: %.2f s, %.0f orders/s; peak memory %.1f MB\n",
                    downloadSeconds, downloadRate, PeakMb());
        std::printf("ratio download/raw: %.2f\n", downloadRate / rawRate);
    }
    return 0;
}
