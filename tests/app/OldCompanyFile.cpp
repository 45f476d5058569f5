#include "OldCompanyFile.h"

#include "app/Database.h"
#include "app/SqlScript.h"
#include "app/SqlStatement.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QVariantMap>

namespace {

struct Added
{
    int version;
    const char* table;
    const char* columns;
};

// What each upgrade step (by the version it records) added to an existing table.
const Added kAdded[] = {
    {1, "PAYMENTMETHOD", "PAYMENTMETHOD_ROUND_TO_5"},
    {1, "ORDERHEAD", "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5"},
    {2, "ORDERITEM", "ORDERITEM_DATE_SHIPPED"},
    {2, "ORDERHEAD", "ORDERHEAD_CONSOLIDATED_INVOICE"},
    {2, "SETUP", "SETUP_INVOICE_CONSOLIDATED_HEADER_QTF SETUP_INVOICE_CONSOLIDATED_FOOTER_QTF"},
    {3, "SETUP",
     "SETUP_DOWNLOAD_PARTNER_URL SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP "
     "SETUP_DOWNLOAD_MAX_PARTNERS"},
    {300, "PARTNER",
     "PARTNER_TAX_NO PARTNER_EU_TAX_NO PARTNER_COUNTRY_ID PARTNER_LANG_ID PARTNER_DISCOUNT_TYPE "
     "PARTNER_DISCOUNT_PERCENT PARTNER_CURRENCY_ID PARTNER_MAIL_IS_SAME PARTNER_MAIL_NAME "
     "PARTNER_MAIL_ZIP PARTNER_MAIL_CITY PARTNER_MAIL_ADDRESS PARTNER_MAIL_COUNTRY_ID "
     "PARTNER_COMMENT "
     "PARTNER_CONTACT_NAME PARTNER_CONTACT_PHONE PARTNER_CONTACT_MOBILE_PHONE "
     "PARTNER_CONTACT_EMAIL "
     "PARTNER_CONTACT_COMMENT"},
    {300, "PAYMENTMETHOD", "PAYMENTMETHOD_PAID PAYMENTMETHOD_CHEQUE"},
    {300, "PRODUCT", "PRODUCT_COMMENT"},
    {300, "ORDERHEAD",
     "ORDERHEAD_PARTNER_TAX_NO ORDERHEAD_PARTNER_EU_TAX_NO ORDERHEAD_PARTNER_COUNTRY_ID "
     "ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE ORDERHEAD_PARTNER_COUNTRY_NAME "
     "ORDERHEAD_PARTNER_COUNTRY_NAME_ON_MAILS ORDERHEAD_PARTNER_LANG_ID "
     "ORDERHEAD_PARTNER_LANG_CODE "
     "ORDERHEAD_PARTNER_MAIL_IS_SAME ORDERHEAD_PARTNER_MAIL_NAME ORDERHEAD_PARTNER_MAIL_ZIP "
     "ORDERHEAD_PARTNER_MAIL_CITY ORDERHEAD_PARTNER_MAIL_ADDRESS ORDERHEAD_PARTNER_MAIL_COUNTRY_ID "
     "ORDERHEAD_PARTNER_MAIL_COUNTRY_INTERNATIONAL_CODE ORDERHEAD_PARTNER_MAIL_COUNTRY_NAME "
     "ORDERHEAD_PARTNER_MAIL_COUNTRY_NAME_ON_MAILS ORDERHEAD_PAYMENTMETHOD_NAME_TRANSLATION "
     "ORDERHEAD_PAYMENTMETHOD_PAID ORDERHEAD_NO_VAT ORDERHEAD_NOVATREASON_ID "
     "ORDERHEAD_NOVATREASON_CODE ORDERHEAD_NOVATREASON_TEXT ORDERHEAD_NOVATREASON_TRANSLATION_TEXT "
     "ORDERHEAD_CURRENCY_ID ORDERHEAD_CURRENCY_ABBREVIATION ORDERHEAD_CURRENCY_RATE "
     "ORDERHEAD_CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS "
     "ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS "
     "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS "
     "ORDERHEAD_CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS "
     "ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS ORDERHEAD_UNPAID_TOTAL ORDERHEAD_PAID "
     "ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT "
     "ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS"},
    {300, "ORDERITEM",
     "ORDERITEM_NAME_TRANSLATION ORDERITEM_COMMENT_TRANSLATION ORDERITEM_UNIT_TRANSLATION "
     "ORDERITEM_LIST_PRICE ORDERITEM_DISCOUNT_TYPE ORDERITEM_DISCOUNT_PERCENT "
     "ORDERITEM_TOTAL_LOCAL_CURRENCY_NET ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT "
     "ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS"},
    {300, "INVOICE", "INVOICE_LOGO_ID INVOICE_LOGO_SIZE_PERCENT"},
    {300, "SETUP",
     "SETUP_BANK_IBAN SETUP_BANK_SWIFT SETUP_EU_VAT_REG_NO "
     "SETUP_REFRESH_MAIN_WINDOW_DATA_ON_TAB_CHANGE "
     "SETUP_INVOICE_DEFAULT_DISCOUNT_TYPE SETUP_INVOICE_DEFAULT_SUBJECT SETUP_INVOICE_LANG_ID "
     "SETUP_INVOICE_COUNTRY_ID SETUP_INVOICE_CURRENCY_ID SETUP_INVOICE_PRINT_DISCOUNT_TO_INVOICE "
     "SETUP_INVOICE_PRINT_SIGNINGS SETUP_INVOICE_ITEM_HEADER_QTF "
     "SETUP_INVOICE_ITEM_HEADER_DISCOUNT_QTF "
     "SETUP_INVOICE_ITEM_1_DISCOUNT_QTF SETUP_INVOICE_VATDETAIL_HEADER_QTF "
     "SETUP_INVOICE_SIGNINGS_QTF "
     "SETUP_INVOICE_RATE_QTF SETUP_INVOICE_LOGO_ID SETUP_INVOICE_LOGO_SIZE_PERCENT "
     "SETUP_INVOICE_LOGO_PRINT SETUP_CHEQUE_MARGIN_LEFT_MM SETUP_CHEQUE_MARGIN_TOP_MM "
     "SETUP_CHEQUE_CURR_TMPL_DIR SETUP_CHEQUE_QTF"},
    {301, "ORDERHEAD",
     "ORDERHEAD_BANK_NAME ORDERHEAD_BANK_ACCT_NO ORDERHEAD_BANK_IBAN ORDERHEAD_BANK_SWIFT"},
    {301, "CURRENCYY",
     "CURRENCY_BANK_BY_SETUP CURRENCY_BANK_NAME CURRENCY_BANK_ACCT_NO CURRENCY_BANK_IBAN "
     "CURRENCY_BANK_SWIFT"},
    {302, "BANKITEM", "BANKITEM_COMMENT"},
};

const char kTables300[] = "PAYMENTMETHODTRANSLATION NOVATREASON NOVATREASONTRANSLATION "
                          "ORDERLABELTRANSLATION STATNO COUNTRY PRODUCTTRANSLATION PRODUCTPRICE "
                          "CHEQUE LOGO LANG CURRENCYY BANKITEM";

const char kIndexes300[] =
    "IDX_SLATION_PAYMENTMETHOD_ID IDX_TREASON$NOVATREASON_CODE IDX_LABELTRANSLATION_LANG_ID "
    "IDX_STATNO$STATNO_STAT_NO IDX_UNTRY_INTERNATIONAL_CODE IDX_CTTRANSLATION_PRODUCT_ID "
    "IDX_$PRODUCTPRICE_PRODUCT_ID IDX_ORDERHEAD$ORDERHEAD_PAID IDX_CHEQUE$CHEQUE_CODE "
    "IDX_EQUE$CHEQUE_ORDERHEAD_ID IDX_CHEQUE$CHEQUE_INVOICE_NO IDX_CHEQUE$CHEQUE_PARTNER_ID "
    "IDX_HEQUE_PARTNER_NAME_ASCII IDX_CHEQUE$CHEQUE_PRINTED IDX_LANG$LANG_CODE "
    "IDX_EM$BANKITEM_ORDERHEAD_ID IDX_$BANKITEM_INVOICE_NO_STR";

QStringList Words(const char* text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

// The columns of table that the file's version did not yet have.
QStringList LaterColumns(const QString& table, int version)
{
    QStringList columns;
    for (const Added& a : kAdded) {
        if (a.version > version && table == QLatin1String(a.table))
            columns << Words(a.columns);
    }
    return columns;
}

// Today's create statement of one table, cut back to version.
QString OldCreateStatement(const QString& statement, int version, bool withRoundDigits)
{
    static const QRegularExpression head(QStringLiteral("^create table (\\w+) \\("));
    const QString table = head.match(statement).captured(1);
    const QStringList later = LaterColumns(table, version);
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
    if (table == QLatin1String("ORDERHEAD"))
        definitions << QStringLiteral("ORDERHEAD_ITEM_ROUND_DIGITS integer");
    if (table == QLatin1String("SETUP") && withRoundDigits)
        definitions << QStringLiteral("SETUP_ITEM_ROUND_DIGITS integer");
    return QStringLiteral("create table ") + table + QLatin1String(" (") + definitions.join(u',') +
           u')';
}

bool Exec(const QString& text, const QVariantList& binds = {})
{
    const Result r = ExecSql(text, binds);
    if (!r)
        qWarning("%s: %s", qPrintable(text), qPrintable(r.sqlError()));
    return r.ok();
}

// Inserts the values of the columns that the table has at this version.
bool Insert(const QString& table, const QVariantMap& row)
{
    const QStringList have = TableColumns(table);
    QStringList columns;
    QStringList marks;
    QVariantList binds;
    for (auto it = row.cbegin(); it != row.cend(); ++it) {
        if (have.contains(it.key())) {
            columns << it.key();
            marks << QStringLiteral("?");
            binds << it.value();
        }
    }
    return Exec(QStringLiteral("insert into %1 (%2) values (%3)")
                    .arg(table, columns.join(u','), marks.join(u',')),
                binds);
}

bool CreateTables(const OldCompanyFile& file)
{
    const QStringList statements =
        SplitSqlScript(LoadSqlScript(QStringLiteral(":/sql/create_tables.sql")));
    const QStringList newTables = Words(kTables300);
    for (const QString& statement : statements) {
        const QString table = statement.section(u' ', 2, 2);
        if ((file.version < 300 && newTables.contains(table)) ||
            (file.version < 1 && table == QLatin1String("DBVERSION")))
            continue;
        if (!Exec(OldCreateStatement(statement, file.version, !file.withoutRoundDigits)))
            return false;
    }
    return true;
}

bool CreateIndexes(const OldCompanyFile& file)
{
    const QStringList statements =
        SplitSqlScript(LoadSqlScript(QStringLiteral(":/sql/create_indexes.sql")));
    const QStringList newIndexes = Words(kIndexes300);
    for (const QString& statement : statements) {
        const QString name = statement.section(u' ', -3, -3);
        if ((file.version < 300 && newIndexes.contains(name)) ||
            (file.version < 2 && name == QLatin1String("IDX_M$ORDERITEM_DATE_SHIPPED")))
            continue;
        if (!Exec(statement))
            return false;
    }
    if (file.version >= 300)
        return true;
    return (file.withoutPartnerNameIndex ||
            Exec(QStringLiteral(
                "create index IDX_PARTNER$PARTNER_NAME on PARTNER(PARTNER_NAME)"))) &&
           Exec(QStringLiteral("create index IDX_PRODUCT$PRODUCT_NAME on PRODUCT(PRODUCT_NAME)"));
}

bool InsertMasterData(const OldCompanyFile& file)
{
    bool ok =
        Insert(QStringLiteral("SETUP"),
               {{"SETUP_NAME", QStringLiteral("Régi Kereskedő Kft.")},
                {"SETUP_TAX_NO", QStringLiteral("12345676-2-41")},
                {"SETUP_ZIP", QStringLiteral("6720")},
                {"SETUP_CITY", QStringLiteral("Szeged")},
                {"SETUP_ADDRESS", QStringLiteral("Kárász u. 5.")},
                {"SETUP_RECORD_LIMIT", 500},
                {"SETUP_ITEM_ROUND_DIGITS", file.roundDigits},
                {"SETUP_INVOICE_CURR_TMPL_DIR", QStringLiteral("sablon_2009")},
                {"SETUP_INVOICE_DIGEST", QStringLiteral("0cc175b9c0f1b6a8")},
                {"SETUP_DOWNLOAD_INVOICE_URL", QStringLiteral("http://bolt.example/order.php")}});
    struct Method
    {
        int id;
        const char* code;
        QString name;
        int dueDays;
        const char* paid;
    };
    const Method methods[] = {{1, "KP", QStringLiteral("Készpénz"), 0, "1"},
                              {2, "AT", QStringLiteral("Átutalás"), 8, "0"},
                              {3, "CS", QStringLiteral("Csekk"), 0, "0"},
                              {4, "UV", QStringLiteral("Utánvét"), 0, "1"},
                              {5, "H30", QStringLiteral("Halasztott fizetés"), 30, "0"}};
    for (const Method& m : methods) {
        ok =
            ok &&
            Insert(QStringLiteral("PAYMENTMETHOD"),
                   {{"PAYMENTMETHOD_ID", m.id},
                    {"PAYMENTMETHOD_CODE", QString::fromLatin1(m.code)},
                    {"PAYMENTMETHOD_NAME", m.name},
                    {"PAYMENTMETHOD_DUE_DAYS", m.dueDays},
                    {"PAYMENTMETHOD_PAID", QString::fromLatin1(m.paid)},
                    {"PAYMENTMETHOD_CHEQUE", m.id == 3 ? QStringLiteral("1") : QStringLiteral("0")},
                    {"PAYMENTMETHOD_ROUND_TO_5",
                     m.id == 1 ? QStringLiteral("1") : QStringLiteral("0")}});
    }
    ok = ok &&
         Insert(QStringLiteral("PARTNER"), {{"PARTNER_ID", 1},
                                            {"PARTNER_NAME", QStringLiteral("Kovács Bt.")},
                                            {"PARTNER_NAME_ASCII", QStringLiteral("KOVACS BT.")},
                                            {"PARTNER_ZIP", QStringLiteral("1011")},
                                            {"PARTNER_CITY", QStringLiteral("Budapest")},
                                            {"PARTNER_ADDRESS", QStringLiteral("Fő u. 1.")},
                                            {"PARTNER_PAYMENTMETHOD_ID", 2},
                                            {"PARTNER_PAYMENT_DUE_DAYS", 8}}) &&
         Insert(QStringLiteral("PARTNER"),
                {{"PARTNER_ID", 2},
                 {"PARTNER_NAME", QStringLiteral("Szabó és Fia Kft.")},
                 {"PARTNER_NAME_ASCII", QStringLiteral("SZABO ES FIA KFT.")},
                 {"PARTNER_ZIP", QStringLiteral("4025")},
                 {"PARTNER_CITY", QStringLiteral("Debrecen")},
                 {"PARTNER_ADDRESS", QStringLiteral("Piac u. 20.")},
                 {"PARTNER_PAYMENTMETHOD_ID", 1}}) &&
         Insert(QStringLiteral("VAT"), {{"VAT_ID", 1},
                                        {"VAT_CODE", QStringLiteral("25")},
                                        {"VAT_NAME", QStringLiteral("25%")},
                                        {"VAT_PERCENT", 25}}) &&
         Insert(QStringLiteral("PRODUCT"), {{"PRODUCT_ID", 1},
                                            {"PRODUCT_NAME", QStringLiteral("Csavar M6")},
                                            {"PRODUCT_NAME_ASCII", QStringLiteral("CSAVAR M6")},
                                            {"PRODUCT_UNIT", QStringLiteral("db")},
                                            {"PRODUCT_VAT_ID", 1},
                                            {"PRODUCT_PRICE", 12}});
    return ok;
}

struct Order
{
    int id;
    int invoiceNo; // 0: still an order
    int partner;
    int method;
    const char* shipped;
    double net;
    int roundDigits;
    int cancelledNo;  // on a cancelling invoice
    int cancellingNo; // on a cancelled one
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
    const QString partners[] = {QString(), QStringLiteral("Kovács Bt."),
                                QStringLiteral("Szabó és Fia Kft.")};
    const QString methods[] = {QString(), QStringLiteral("Készpénz"), QStringLiteral("Átutalás"),
                               QStringLiteral("Csekk")};
    bool ok = true;
    for (const Order& o : kOrders) {
        const double vat = o.net / 4;
        ok = ok &&
             Insert(QStringLiteral("ORDERHEAD"),
                    {{"ORDERHEAD_ID", o.id},
                     {"ORDERHEAD_PARTNER_ID", o.partner},
                     {"ORDERHEAD_PARTNER_NAME", partners[o.partner]},
                     {"ORDERHEAD_PARTNER_ZIP",
                      o.partner == 1 ? QStringLiteral("1011") : QStringLiteral("4025")},
                     {"ORDERHEAD_PARTNER_CITY",
                      o.partner == 1 ? QStringLiteral("Budapest") : QStringLiteral("Debrecen")},
                     {"ORDERHEAD_PARTNER_ADDRESS",
                      o.partner == 1 ? QStringLiteral("Fő u. 1.") : QStringLiteral("Piac u. 20.")},
                     {"ORDERHEAD_PAYMENTMETHOD_ID", o.method},
                     {"ORDERHEAD_PAYMENTMETHOD_NAME", methods[o.method]},
                     {"ORDERHEAD_DATE_SHIPPED", QString::fromLatin1(o.shipped)},
                     {"ORDERHEAD_DATE_CREATED", QString::fromLatin1(o.shipped)},
                     {"ORDERHEAD_INVOICE_NO", NullIfZero(o.invoiceNo)},
                     {"ORDERHEAD_INVOICE_NO_STR",
                      o.invoiceNo ? QStringLiteral("2009/%1").arg(o.invoiceNo) : QVariant()},
                     {"ORDERHEAD_TOTAL_NET", o.net},
                     {"ORDERHEAD_TOTAL_VAT", vat},
                     {"ORDERHEAD_TOTAL_GROSS", o.net + vat},
                     {"ORDERHEAD_ITEM_ROUND_DIGITS", o.roundDigits},
                     {"ORDERHEAD_CANCELLED_INVOICE_NO", NullIfZero(o.cancelledNo)},
                     {"ORDERHEAD_CANCELLING_INVOICE_NO", NullIfZero(o.cancellingNo)},
                     {"ORDERHEAD_PAID", QStringLiteral("1")},
                     {"ORDERHEAD_UNPAID_TOTAL", 0},
                     {"ORDERHEAD_CURRENCY_ID", 0},
                     {"ORDERHEAD_CURRENCY_ABBREVIATION", QStringLiteral("Ft")},
                     {"ORDERHEAD_CURRENCY_RATE", 1}});
    }
    // Order 1 is a consolidated invoice in files that know them: its lines carry their own date.
    const QString lineDate = file.version >= 2 ? QStringLiteral("2009-02-27") : QString();
    struct Line
    {
        int id;
        int order;
        const char* name;
        double price;
        double qty;
    };
    const Line lines[] = {{1, 1, "Csavar M6", 12, 50},
                          {2, 1, "Szerelés", 400, 1},
                          {3, 2, "Szerelés", 400, 1},
                          {4, 3, "Szerelés", 8000, 1}};
    for (const Line& l : lines) {
        const double net = l.price * l.qty;
        ok = ok && Insert(QStringLiteral("ORDERITEM"),
                          {{"ORDERITEM_ID", l.id},
                           {"ORDERITEM_ORDERHEAD_ID", l.order},
                           {"ORDERITEM_PRODUCT_ID", l.id == 1 ? QVariant(1) : QVariant()},
                           {"ORDERITEM_NAME", QString::fromUtf8(l.name)},
                           {"ORDERITEM_DATE_SHIPPED",
                            lineDate.isEmpty() ? QVariant() : QVariant(lineDate)},
                           {"ORDERITEM_VAT_ID", 1},
                           {"ORDERITEM_VAT_PERCENT", 25},
                           {"ORDERITEM_PRICE", l.price},
                           {"ORDERITEM_QTY", l.qty},
                           {"ORDERITEM_TOTAL_NET", net},
                           {"ORDERITEM_TOTAL_VAT", net / 4},
                           {"ORDERITEM_TOTAL_GROSS", net * 1.25}});
    }
    return ok;
}

// What the upgrade to 300 and later had already written into files of those versions.
bool InsertLaterData(const OldCompanyFile& file)
{
    if (file.version < 300)
        return true;
    bool ok = ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/reference_data.sql"))) &&
              ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/order_labels.sql")));
    if (file.version >= 301)
        ok = ok && ExecSqlScript(LoadSqlScript(QStringLiteral(":/sql/order_labels_added.sql")));
    else
        ok = ok &&
             Exec(QStringLiteral("update ORDERLABELTRANSLATION set ORDERLABELTRANSLATION_TEXT = "
                                 "'A fizetés módja' where ORDERLABELTRANSLATION_KEY = "
                                 "'TR_PAYMENT_METHOD' and ORDERLABELTRANSLATION_LANG_ID = 0"));
    for (int id = 0; id < 3; ++id) {
        ok = ok && Insert(QStringLiteral("CURRENCYY"),
                          {{"CURRENCY_ID", id},
                           {"CURRENCY_NAME",
                            QStringList{QStringLiteral("Magyar forint"), QStringLiteral("Euro"),
                                        QStringLiteral("Amerikai Dollár")}
                                .at(id)},
                           {"CURRENCY_RATE", QList<int>{1, 280, 180}.at(id)},
                           {"CURRENCY_BANK_BY_SETUP", QStringLiteral("1")}});
    }
    return ok;
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
    if (!Database::open(path))
        return false;
    bool ok = CreateTables(*this) && CreateIndexes(*this) && InsertMasterData(*this) &&
              InsertOrders(*this) && InsertLaterData(*this);
    if (ok && version >= 1)
        ok = Exec(QStringLiteral("insert into DBVERSION values (?)"), {version});
    Database::close();
    return ok;
}
