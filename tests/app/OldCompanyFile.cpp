#include "OldCompanyFile.h"

#include "app/Database.h"
#include "app/SqlScript.h"
#include "app/SqlStatement.h"

#include <QRegularExpression>
#include <QSqlQuery>
#include <QtTest>

namespace {

struct Step
{
    int version;
    QString kind; // "table", "index" or the table that gained the columns
    QStringList names;
};

QList<Step> History()
{
    static QList<Step> steps;
    if (!steps.isEmpty())
        return steps;
    QFile file(QFINDTESTDATA("../data/app/schema_history.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return steps;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (words.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.front().isSpace())
            steps.last().names << words;
        else
            steps.append({words[0].toInt(), words[1], words.mid(2)});
    }
    return steps;
}

// The names of kind that the file's version did not yet have.
QStringList Later(const QString& kind, int version)
{
    QStringList names;
    for (const Step& s : History()) {
        if (s.version > version && s.kind == kind)
            names << s.names;
    }
    return names;
}

// Today's create statement of one table, cut back to version.
QString OldCreateStatement(const QString& statement, int version, bool withRoundDigits)
{
    static const QRegularExpression head(QStringLiteral("^create table (\\w+) \\("));
    const QString table = head.match(statement).captured(1);
    const QStringList later = Later(table, version);
    QStringList definitions;
    const QStringList lines = statement.split(u'\n');
    for (const QString& line : lines.mid(1, lines.size() - 2)) {
        QString definition = line.trimmed();
        if (definition.endsWith(u','))
            definition.chop(1);
        if (!later.contains(definition.section(u' ', 0, 0)))
            definitions << definition;
    }
    // Columns of the time that later versions leave unused.
    if (table == "ORDERHEAD")
        definitions << "ORDERHEAD_ITEM_ROUND_DIGITS integer";
    if (table == "SETUP" && withRoundDigits)
        definitions << "SETUP_ITEM_ROUND_DIGITS integer";
    return "create table " + table + " (" + definitions.join(u',') + u')';
}

bool Exec(const QString& text, const QVariantList& binds = {})
{
    const Result r = ExecSql(text, binds);
    if (!r)
        qWarning("%s: %s", qPrintable(text), qPrintable(r.sqlError()));
    return r.ok();
}

bool RunScript(const char* name)
{
    return ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/") + QLatin1String(name))).ok();
}

// Inserts rows of values for columns, leaving out the columns the table lacks at this version.
bool Insert(const QString& table, const QString& columns, const QList<QVariantList>& rows)
{
    const QStringList names = columns.split(u' '), have = TableColumns(table);
    for (const QVariantList& row : rows) {
        QStringList used;
        QVariantList binds;
        for (int i = 0; i < names.size(); ++i) {
            if (have.contains(names[i])) {
                used << names[i];
                binds << row.value(i);
            }
        }
        const QString marks = QStringList(used.size(), QStringLiteral("?")).join(u',');
        if (!Exec(QStringLiteral("insert into %1 (%2) values (%3)")
                      .arg(table, used.join(u','), marks),
                  binds))
            return false;
    }
    return true;
}

bool CreateTables(const OldCompanyFile& file)
{
    const QStringList newTables = Later("table", file.version);
    for (const QString& statement :
         SplitSqlScript(LoadSqlScript(QStringLiteral(":/sql/create_tables.sql")))) {
        if (!newTables.contains(statement.section(u' ', 2, 2)) &&
            !Exec(OldCreateStatement(statement, file.version, !file.withoutRoundDigits)))
            return false;
    }
    return true;
}

bool CreateIndexes(const OldCompanyFile& file)
{
    const QStringList newIndexes = Later("index", file.version);
    for (const QString& statement :
         SplitSqlScript(LoadSqlScript(QStringLiteral(":/sql/create_indexes.sql")))) {
        if (!newIndexes.contains(statement.section(u' ', -3, -3)) && !Exec(statement))
            return false;
    }
    // Indexes of the time that the upgrade to 300 drops.
    return file.version >= 300 ||
           ((file.withoutPartnerNameIndex ||
             Exec("create index IDX_PARTNER$PARTNER_NAME on PARTNER(PARTNER_NAME)")) &&
            Exec("create index IDX_PRODUCT$PRODUCT_NAME on PRODUCT(PRODUCT_NAME)"));
}

const QList<QVariantList>& Partners()
{
    static const QList<QVariantList> rows = {
        {1, "Kovács Bt.", "KOVACS BT.", "1011", "Budapest", "Fő u. 1.", 2, 8},
        {2, "Szabó és Fia Kft.", "SZABO ES FIA KFT.", "4025", "Debrecen", "Piac u. 20.", 1, {}}};
    return rows;
}

const QList<QVariantList>& Methods()
{
    static const QList<QVariantList> rows = {{1, "KP", "Készpénz", 0, "1", "0", "1"},
                                             {2, "AT", "Átutalás", 8, "0", "0", "0"},
                                             {3, "CS", "Csekk", 0, "0", "1", "0"},
                                             {4, "UV", "Utánvét", 0, "1", "0", "0"},
                                             {5, "H30", "Halasztott fizetés", 30, "0", "0", "0"}};
    return rows;
}

bool InsertMasterData(const OldCompanyFile& file)
{
    return Insert("SETUP",
                  "SETUP_NAME SETUP_TAX_NO SETUP_ZIP SETUP_CITY SETUP_ADDRESS SETUP_RECORD_LIMIT "
                  "SETUP_ITEM_ROUND_DIGITS SETUP_INVOICE_CURR_TMPL_DIR SETUP_INVOICE_DIGEST "
                  "SETUP_DOWNLOAD_INVOICE_URL",
                  {{"Régi Kereskedő Kft.", "12345676-2-41", "6720", "Szeged", "Kárász u. 5.", 500,
                    file.roundDigits, "sablon_2009", "0cc175b9c0f1b6a8",
                    "http://bolt.example/order.php"}}) &&
           Insert("PAYMENTMETHOD",
                  "PAYMENTMETHOD_ID PAYMENTMETHOD_CODE PAYMENTMETHOD_NAME PAYMENTMETHOD_DUE_DAYS "
                  "PAYMENTMETHOD_PAID PAYMENTMETHOD_CHEQUE PAYMENTMETHOD_ROUND_TO_5",
                  Methods()) &&
           Insert("PARTNER",
                  "PARTNER_ID PARTNER_NAME PARTNER_NAME_ASCII PARTNER_ZIP PARTNER_CITY "
                  "PARTNER_ADDRESS PARTNER_PAYMENTMETHOD_ID PARTNER_PAYMENT_DUE_DAYS",
                  Partners()) &&
           Insert("VAT", "VAT_ID VAT_CODE VAT_NAME VAT_PERCENT", {{1, "25", "25%", 25}}) &&
           Insert("PRODUCT",
                  "PRODUCT_ID PRODUCT_NAME PRODUCT_NAME_ASCII PRODUCT_UNIT PRODUCT_VAT_ID "
                  "PRODUCT_PRICE",
                  {{1, "Csavar M6", "CSAVAR M6", "db", 1, 12}});
}

struct Order
{
    int id, invoiceNo, partner, method; // invoice number 0: still an order
    const char* shipped;
    double net;
    int roundDigits, cancelledNo, cancellingNo; // on a cancelling and a cancelled invoice
};

const Order kOrders[] = {
    {1, 1, 1, 2, "2009-03-02", 1000, 2, 0, 0},  {2, 2, 2, 1, "2009-03-05", 400, 0, 0, 0},
    {3, 0, 1, 2, "2009-04-01", 8000, 0, 0, 0},  {4, 3, 1, 2, "2009-04-10", 2000, 0, 0, 4},
    {5, 4, 1, 2, "2009-04-10", -2000, 0, 3, 0}, {6, 5, 2, 3, "2009-05-01", 2400, 0, 0, 0},
};

QVariant NullIfZero(int value)
{
    return value ? QVariant(value) : QVariant();
}

bool InsertOrders(const OldCompanyFile& file)
{
    QList<QVariantList> heads;
    for (const Order& o : kOrders) {
        const QVariantList& p = Partners()[o.partner - 1];
        const QVariant invoiceNo =
            o.invoiceNo ? QVariant(QStringLiteral("2009/%1").arg(o.invoiceNo)) : QVariant();
        heads << QVariantList{o.id, o.partner, p[1], p[3], p[4], p[5], o.method};
        heads.last() << Methods()[o.method - 1][2] << o.shipped << o.shipped
                     << NullIfZero(o.invoiceNo) << invoiceNo << o.net << o.net / 4 << o.net * 1.25
                     << o.roundDigits << NullIfZero(o.cancelledNo) << NullIfZero(o.cancellingNo)
                     << "1" << 0 << 0 << "Ft" << 1;
    }
    // Order 1 is a consolidated invoice in files that know them: its lines carry their own date.
    const QVariant date = file.version >= 2 ? QVariant("2009-02-27") : QVariant();
    const QList<QVariantList> lines = {
        {1, 1, 1, "Csavar M6", date, 1, 25, 12.0, 50.0, 600.0, 150.0, 750.0},
        {2, 1, {}, "Szerelés", date, 1, 25, 400.0, 1.0, 400.0, 100.0, 500.0},
        {3, 2, {}, "Szerelés", date, 1, 25, 400.0, 1.0, 400.0, 100.0, 500.0},
        {4, 3, {}, "Szerelés", date, 1, 25, 8000.0, 1.0, 8000.0, 2000.0, 10000.0}};
    return Insert("ORDERHEAD",
                  "ORDERHEAD_ID ORDERHEAD_PARTNER_ID ORDERHEAD_PARTNER_NAME ORDERHEAD_PARTNER_ZIP "
                  "ORDERHEAD_PARTNER_CITY ORDERHEAD_PARTNER_ADDRESS ORDERHEAD_PAYMENTMETHOD_ID "
                  "ORDERHEAD_PAYMENTMETHOD_NAME ORDERHEAD_DATE_SHIPPED ORDERHEAD_DATE_CREATED "
                  "ORDERHEAD_INVOICE_NO ORDERHEAD_INVOICE_NO_STR ORDERHEAD_TOTAL_NET "
                  "ORDERHEAD_TOTAL_VAT ORDERHEAD_TOTAL_GROSS ORDERHEAD_ITEM_ROUND_DIGITS "
                  "ORDERHEAD_CANCELLED_INVOICE_NO ORDERHEAD_CANCELLING_INVOICE_NO ORDERHEAD_PAID "
                  "ORDERHEAD_UNPAID_TOTAL ORDERHEAD_CURRENCY_ID ORDERHEAD_CURRENCY_ABBREVIATION "
                  "ORDERHEAD_CURRENCY_RATE",
                  heads) &&
           Insert("ORDERITEM",
                  "ORDERITEM_ID ORDERITEM_ORDERHEAD_ID ORDERITEM_PRODUCT_ID ORDERITEM_NAME "
                  "ORDERITEM_DATE_SHIPPED ORDERITEM_VAT_ID ORDERITEM_VAT_PERCENT ORDERITEM_PRICE "
                  "ORDERITEM_QTY ORDERITEM_TOTAL_NET ORDERITEM_TOTAL_VAT ORDERITEM_TOTAL_GROSS",
                  lines);
}

// What the upgrade to 300 and later had already written into files of those versions.
bool InsertLaterData(const OldCompanyFile& file)
{
    if (file.version < 300)
        return true;
    return RunScript("reference_data.sql") && RunScript("order_labels.sql") &&
           (file.version >= 301
                ? RunScript("order_labels_added.sql")
                : Exec("update ORDERLABELTRANSLATION set ORDERLABELTRANSLATION_TEXT = "
                       "'A fizetés módja' where ORDERLABELTRANSLATION_KEY = "
                       "'TR_PAYMENT_METHOD' and ORDERLABELTRANSLATION_LANG_ID = 0")) &&
           Insert("CURRENCYY", "CURRENCY_ID CURRENCY_NAME CURRENCY_RATE CURRENCY_BANK_BY_SETUP",
                  {{0, "Magyar forint", 1, "1"},
                   {1, "Euro", 280, "1"},
                   {2, "Amerikai Dollár", 180, "1"}});
}

} // namespace

QStringList TableColumns(const QString& table)
{
    QStringList names;
    QSqlQuery q(QStringLiteral("pragma table_info(%1)").arg(table), Database::session());
    while (q.next())
        names << q.value(1).toString();
    return names;
}

QByteArray FileBytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

bool OldCompanyFile::build(const QString& path) const
{
    if (History().isEmpty() || !Database::open(path))
        return false;
    bool ok = CreateTables(*this) && CreateIndexes(*this) && InsertMasterData(*this) &&
              InsertOrders(*this) && InsertLaterData(*this);
    if (ok && version >= 1)
        ok = Exec("insert into DBVERSION values (?)", {version});
    Database::close();
    return ok;
}
