// A new company database: every table and column in its declared order, the indexes with their
// exact names, the defaults and uniqueness rules other parts rely on, and the basic data.
#include "OldCompanyFile.h"
#include "TestCompany.h"

#include "app/SqlStatement.h"
#include "app/SqlValue.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QtTest>

namespace {

struct DeclaredTable
{
    const char* table;
    const char* columns;
};

// Tables in creation order with their columns in declaration order.
const DeclaredTable kSchema[] = {
    {"PARTNER",
     "PARTNER_ID PARTNER_CODE PARTNER_NAME PARTNER_NAME_ASCII PARTNER_ZIP PARTNER_CITY "
     "PARTNER_ADDRESS PARTNER_OTHER_DATA PARTNER_TAX_NO PARTNER_EU_TAX_NO PARTNER_COUNTRY_ID "
     "PARTNER_LANG_ID PARTNER_PAYMENTMETHOD_ID PARTNER_PAYMENT_DUE_DAYS PARTNER_DISCOUNT_TYPE "
     "PARTNER_DISCOUNT_PERCENT PARTNER_CURRENCY_ID PARTNER_MAIL_IS_SAME PARTNER_MAIL_NAME "
     "PARTNER_MAIL_ZIP PARTNER_MAIL_CITY PARTNER_MAIL_ADDRESS PARTNER_MAIL_COUNTRY_ID "
     "PARTNER_COMMENT PARTNER_CONTACT_NAME PARTNER_CONTACT_PHONE PARTNER_CONTACT_MOBILE_PHONE "
     "PARTNER_CONTACT_EMAIL PARTNER_CONTACT_COMMENT "},
    {"PAYMENTMETHOD", "PAYMENTMETHOD_ID PAYMENTMETHOD_CODE PAYMENTMETHOD_PAID PAYMENTMETHOD_CHEQUE "
                      "PAYMENTMETHOD_DUE_DAYS PAYMENTMETHOD_NAME PAYMENTMETHOD_COMMENT_TEXT "
                      "PAYMENTMETHOD_ROUND_TO_5 "},
    {"PAYMENTMETHODTRANSLATION",
     "PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID PAYMENTMETHODTRANSLATION_LANG_ID "
     "PAYMENTMETHODTRANSLATION_NAME PAYMENTMETHODTRANSLATION_COMMENT "},
    {"NOVATREASON", "NOVATREASON_ID NOVATREASON_CODE NOVATREASON_NAME NOVATREASON_TEXT "},
    {"NOVATREASONTRANSLATION",
     "NOVATREASONTRANSLATION_NOVATREASON_ID NOVATREASONTRANSLATION_LANG_ID "
     "NOVATREASONTRANSLATION_TEXT "},
    {"ORDERLABELTRANSLATION",
     "ORDERLABELTRANSLATION_LANG_ID ORDERLABELTRANSLATION_KEY ORDERLABELTRANSLATION_TEXT "},
    {"VAT", "VAT_ID VAT_CODE VAT_NAME VAT_PERCENT "},
    {"STATNO", "STATNO_ID STATNO_STAT_NO STATNO_NAME "},
    {"COUNTRY",
     "COUNTRY_ID COUNTRY_INTERNATIONAL_CODE COUNTRY_NAME COUNTRY_NAME_ON_MAILS COUNTRY_LANG_ID "
     "COUNTRY_CURRENCY_ID "},
    {"PRODUCT",
     "PRODUCT_ID PRODUCT_CODE PRODUCT_NAME PRODUCT_NAME_ASCII PRODUCT_COMMENT PRODUCT_STAT_NO "
     "PRODUCT_UNIT PRODUCT_VAT_ID PRODUCT_PRICE "},
    {"PRODUCTTRANSLATION",
     "PRODUCTTRANSLATION_PRODUCT_ID PRODUCTTRANSLATION_LANG_ID PRODUCTTRANSLATION_NAME "
     "PRODUCTTRANSLATION_COMMENT PRODUCTTRANSLATION_UNIT "},
    {"PRODUCTPRICE", "PRODUCTPRICE_PRODUCT_ID PRODUCTPRICE_CURRENCY_ID PRODUCTPRICE_PRICE "},
    {"ORDERHEAD",
     "ORDERHEAD_ID ORDERHEAD_CODE ORDERHEAD_PARTNER_ID ORDERHEAD_PARTNER_CODE "
     "ORDERHEAD_PARTNER_NAME ORDERHEAD_PARTNER_NAME_ASCII ORDERHEAD_PARTNER_ZIP "
     "ORDERHEAD_PARTNER_CITY ORDERHEAD_PARTNER_ADDRESS ORDERHEAD_PARTNER_TAX_NO "
     "ORDERHEAD_PARTNER_EU_TAX_NO ORDERHEAD_PARTNER_COUNTRY_ID "
     "ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE ORDERHEAD_PARTNER_COUNTRY_NAME "
     "ORDERHEAD_PARTNER_COUNTRY_NAME_ON_MAILS ORDERHEAD_PARTNER_LANG_ID "
     "ORDERHEAD_PARTNER_LANG_CODE ORDERHEAD_PARTNER_OTHER_DATA ORDERHEAD_PARTNER_MAIL_IS_SAME "
     "ORDERHEAD_PARTNER_MAIL_NAME ORDERHEAD_PARTNER_MAIL_ZIP ORDERHEAD_PARTNER_MAIL_CITY "
     "ORDERHEAD_PARTNER_MAIL_ADDRESS ORDERHEAD_PARTNER_MAIL_COUNTRY_ID "
     "ORDERHEAD_PARTNER_MAIL_COUNTRY_INTERNATIONAL_CODE ORDERHEAD_PARTNER_MAIL_COUNTRY_NAME "
     "ORDERHEAD_PARTNER_MAIL_COUNTRY_NAME_ON_MAILS ORDERHEAD_PAYMENTMETHOD_ID "
     "ORDERHEAD_PAYMENTMETHOD_CODE ORDERHEAD_PAYMENTMETHOD_NAME "
     "ORDERHEAD_PAYMENTMETHOD_NAME_TRANSLATION ORDERHEAD_PAYMENTMETHOD_PAID "
     "ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5 ORDERHEAD_DATE_SHIPPED ORDERHEAD_DATE_CREATED "
     "ORDERHEAD_DATE_PAYMENT_DUE ORDERHEAD_CONSOLIDATED_INVOICE ORDERHEAD_NO_VAT "
     "ORDERHEAD_NOVATREASON_ID ORDERHEAD_NOVATREASON_CODE ORDERHEAD_NOVATREASON_TEXT "
     "ORDERHEAD_NOVATREASON_TRANSLATION_TEXT ORDERHEAD_CURRENCY_ID "
     "ORDERHEAD_CURRENCY_ABBREVIATION ORDERHEAD_CURRENCY_RATE "
     "ORDERHEAD_CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS "
     "ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS "
     "ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS "
     "ORDERHEAD_CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS "
     "ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS ORDERHEAD_BANK_NAME "
     "ORDERHEAD_BANK_ACCT_NO ORDERHEAD_BANK_IBAN ORDERHEAD_BANK_SWIFT ORDERHEAD_INVOICE_NO "
     "ORDERHEAD_INVOICE_NO_STR ORDERHEAD_SUBJECT ORDERHEAD_TOTAL_NET ORDERHEAD_TOTAL_VAT "
     "ORDERHEAD_TOTAL_GROSS ORDERHEAD_TOTAL_CORRECTION_NET ORDERHEAD_TOTAL_CORRECTION_VAT "
     "ORDERHEAD_TOTAL_CORRECTION_GROSS ORDERHEAD_UNPAID_TOTAL ORDERHEAD_PAID "
     "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET "
     "ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS "
     "ORDERHEAD_COMMENT_TEXT ORDERHEAD_PRINTED_COPIES ORDERHEAD_TYPE "
     "ORDERHEAD_CANCELLED_INVOICE_NO ORDERHEAD_CANCELLED_INVOICE_NO_STR "
     "ORDERHEAD_CANCELLING_INVOICE_NO ORDERHEAD_CANCELLING_INVOICE_NO_STR ORDERHEAD_VERIFIED "},
    {"ORDERITEM",
     "ORDERITEM_ID ORDERITEM_CODE ORDERITEM_ORDERHEAD_ID ORDERITEM_DATE_SHIPPED "
     "ORDERITEM_PRODUCT_ID ORDERITEM_PRODUCT_CODE ORDERITEM_STAT_NO ORDERITEM_NAME "
     "ORDERITEM_NAME_TRANSLATION ORDERITEM_COMMENT ORDERITEM_COMMENT_TRANSLATION "
     "ORDERITEM_UNIT ORDERITEM_UNIT_TRANSLATION ORDERITEM_VAT_ID ORDERITEM_VAT_CODE "
     "ORDERITEM_VAT_PERCENT ORDERITEM_VAT_NAME ORDERITEM_LIST_PRICE ORDERITEM_PRICE "
     "ORDERITEM_QTY ORDERITEM_DISCOUNT_TYPE ORDERITEM_DISCOUNT_PERCENT ORDERITEM_TOTAL_NET "
     "ORDERITEM_TOTAL_VAT ORDERITEM_TOTAL_GROSS ORDERITEM_TOTAL_LOCAL_CURRENCY_NET "
     "ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS "},
    {"CHEQUE",
     "CHEQUE_ID CHEQUE_CODE CHEQUE_ORDERHEAD_ID CHEQUE_INVOICE_NO CHEQUE_INVOICE_NO_STR "
     "CHEQUE_PARTNER_ID CHEQUE_PARTNER_CODE CHEQUE_PARTNER_NAME CHEQUE_PARTNER_NAME_ASCII "
     "CHEQUE_PARTNER_ZIP CHEQUE_PARTNER_CITY CHEQUE_PARTNER_ADDRESS CHEQUE_AMOUNT "
     "CHEQUE_PRETENCE CHEQUE_NOTICE CHEQUE_PRINTED CHEQUE_DATE_CREATED CHEQUE_DATE_PRINTED "},
    {"INVOICE", "INVOICE_ID INVOICE_ORDERHEAD_ID INVOICE_LOGO_ID INVOICE_LOGO_SIZE_PERCENT "
                "INVOICE_HEADER_QTF INVOICE_FOOTER_QTF INVOICE_BODY_QTF "},
    {"LOGO", "LOGO_ID LOGO_DATA "},
    {"LANG", "LANG_ID LANG_CODE LANG_NAME "},
    {"CURRENCYY",
     "CURRENCY_ID CURRENCY_NAME CURRENCY_ABBREVIATION CURRENCY_RATE "
     "CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS "
     "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS "
     "CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS CURRENCY_BANK_BY_SETUP CURRENCY_BANK_NAME "
     "CURRENCY_BANK_ACCT_NO CURRENCY_BANK_IBAN CURRENCY_BANK_SWIFT "},
    {"BANKITEM", "BANKITEM_ID BANKITEM_ORDERHEAD_ID BANKITEM_INVOICE_NO BANKITEM_INVOICE_NO_STR "
                 "BANKITEM_TRANSFER_DATE BANKITEM_PAID_TOTAL BANKITEM_RECORD_NO BANKITEM_COMMENT "},
    {"SETUP",
     "SETUP_NAME SETUP_ZIP SETUP_CITY SETUP_ADDRESS SETUP_PHONE SETUP_BANK_NAME "
     "SETUP_BANK_ACCT_NO SETUP_BANK_IBAN SETUP_BANK_SWIFT SETUP_TAX_NO SETUP_EU_VAT_REG_NO "
     "SETUP_OTHER SETUP_RECORD_LIMIT SETUP_PARTNER_SELECT_ON_NEW_ORDER "
     "SETUP_PRODUCT_SELECT_ON_NEW_ORDER SETUP_PARTNER_SELECT_ONLY SETUP_PRODUCT_SELECT_ONLY "
     "SETUP_LOAD_MAIN_WINDOW_DATA_ON_START SETUP_REFRESH_MAIN_WINDOW_DATA_ON_TAB_CHANGE "
     "SETUP_PARTNER_SHOW_ON_FIND SETUP_PRODUCT_SHOW_ON_FIND SETUP_INVOICE_NO_PREFIX "
     "SETUP_INVOICE_NO_PADDING_ZEROS SETUP_INVOICE_PREVIEW_BEFORE_PRINT SETUP_INVOICE_COPIES "
     "SETUP_INVOICE_ASK_COPIES SETUP_INVOICE_DEFAULT_DISCOUNT_TYPE "
     "SETUP_INVOICE_DEFAULT_SUBJECT SETUP_INVOICE_LANG_ID SETUP_INVOICE_COUNTRY_ID "
     "SETUP_INVOICE_CURRENCY_ID SETUP_INVOICE_PRINT_DISCOUNT_TO_INVOICE "
     "SETUP_INVOICE_PRINT_SIGNINGS SETUP_INVOICE_CURR_TMPL_DIR SETUP_INVOICE_DIGEST "
     "SETUP_INVOICE_BODY_QTF SETUP_INVOICE_FOOTER_QTF SETUP_INVOICE_HEADER_QTF "
     "SETUP_INVOICE_ITEM_HEADER_QTF SETUP_INVOICE_ITEM_HEADER_DISCOUNT_QTF "
     "SETUP_INVOICE_ITEM_1_QTF SETUP_INVOICE_ITEM_1_DISCOUNT_QTF SETUP_INVOICE_ITEM_2_QTF "
     "SETUP_INVOICE_VATDETAIL_QTF SETUP_INVOICE_VATDETAIL_HEADER_QTF "
     "SETUP_INVOICE_SIGNINGS_QTF SETUP_INVOICE_CONSOLIDATED_HEADER_QTF "
     "SETUP_INVOICE_CONSOLIDATED_FOOTER_QTF SETUP_INVOICE_RATE_QTF SETUP_INVOICE_LOGO_ID "
     "SETUP_INVOICE_LOGO_SIZE_PERCENT SETUP_INVOICE_LOGO_PRINT SETUP_DOWNLOAD_INVOICE_URL "
     "SETUP_DOWNLOAD_PRODUCT_URL SETUP_DOWNLOAD_PARTNER_URL SETUP_DOWNLOAD_UPDATE_BASIC_DATA "
     "SETUP_DOWNLOAD_LOGIN SETUP_DOWNLOAD_PASSWORD SETUP_DOWNLOAD_SAVE_PASSWORD "
     "SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP SETUP_DOWNLOAD_MAX_ORDERS "
     "SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP SETUP_DOWNLOAD_MAX_PRODUCTS "
     "SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP SETUP_DOWNLOAD_MAX_PARTNERS SETUP_SHOW_CODE_FIELDS "
     "SETUP_ENTER_LIKE_TAB SETUP_CHEQUE_MARGIN_LEFT_MM SETUP_CHEQUE_MARGIN_TOP_MM "
     "SETUP_CHEQUE_CURR_TMPL_DIR SETUP_CHEQUE_QTF "},
    {"DBVERSION", "VERSION "},
};

// name -> "unique TABLE(COLUMN)" for every index the create script made.
QMap<QString, QString> Indexes()
{
    QMap<QString, QString> indexes;
    QSqlQuery q(
        QStringLiteral("select name, tbl_name, sql from sqlite_master where type = 'index'"),
        Database::session());
    while (q.next()) {
        const QString sql = q.value(2).toString();
        const QString columns = sql.mid(sql.indexOf(u'(') + 1).chopped(1);
        indexes.insert(q.value(0).toString(),
                       (sql.startsWith(QLatin1String("create unique"), Qt::CaseInsensitive)
                            ? QStringLiteral("unique ")
                            : QString()) +
                           q.value(1).toString() + u'(' + columns + u')');
    }
    return indexes;
}

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void columnsInDeclaredOrder_data();
    void columnsInDeclaredOrder();
    void noOtherTables();
    void indexes();
    void uniqueCodes_data();
    void uniqueCodes();
    void defaults();
    void flagWrittenAsNumberReadsNo();
    void basicData();
    void labels();
};

void TestSchema::columnsInDeclaredOrder_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QStringList>("columns");
    for (const DeclaredTable& t : kSchema)
        QTest::newRow(t.table) << QString::fromLatin1(t.table)
                               << QString::fromLatin1(t.columns).split(u' ', Qt::SkipEmptyParts);
}

void TestSchema::columnsInDeclaredOrder()
{
    QFETCH(QString, table);
    QFETCH(QStringList, columns);
    TestCompany company;
    QVERIFY(company.isValid());
    QCOMPARE(TableColumns(table), columns);
}

void TestSchema::noOtherTables()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QStringList expected;
    for (const DeclaredTable& t : kSchema)
        expected << QString::fromLatin1(t.table);
    expected.sort();
    QStringList tables = Database::session().tables();
    tables.removeAll(QStringLiteral("sqlite_sequence"));
    tables.sort();
    QCOMPARE(tables, expected);
}

void TestSchema::indexes()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const QMap<QString, QString> indexes = Indexes();
    QCOMPARE(indexes.size(), 37);
    QVERIFY(!indexes.contains(QStringLiteral("IDX_PRODUCT$PRODUCT_NAME")));
    // The names are truncated on purpose: upgrades drop and create them by these names.
    QCOMPARE(indexes.value(QStringLiteral("IDX_RTNER$PARTNER_NAME_ASCII")),
             QStringLiteral("PARTNER(PARTNER_NAME_ASCII)"));
    QCOMPARE(indexes.value(QStringLiteral("IDX_SLATION_PAYMENTMETHOD_ID")),
             QStringLiteral("PAYMENTMETHODTRANSLATION(PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID)"));
    QCOMPARE(indexes.value(QStringLiteral("IDX_$PRODUCTPRICE_PRODUCT_ID")),
             QStringLiteral("PRODUCTPRICE(PRODUCTPRICE_PRODUCT_ID)"));
    QCOMPARE(indexes.value(QStringLiteral("IDX_M$ORDERITEM_DATE_SHIPPED")),
             QStringLiteral("ORDERITEM(ORDERITEM_DATE_SHIPPED)"));
    QCOMPARE(indexes.value(QStringLiteral("IDX_$BANKITEM_INVOICE_NO_STR")),
             QStringLiteral("BANKITEM(BANKITEM_INVOICE_NO_STR)"));
    QStringList unique;
    for (auto it = indexes.cbegin(); it != indexes.cend(); ++it) {
        if (it.value().startsWith(QLatin1String("unique ")))
            unique << it.key();
    }
    unique.sort();
    QCOMPARE(
        unique,
        QStringList(
            {QStringLiteral("IDX_CHEQUE$CHEQUE_CODE"),
             QStringLiteral("IDX_EQUE$CHEQUE_ORDERHEAD_ID"),
             QStringLiteral("IDX_ETHOD$PAYMENTMETHOD_CODE"),
             QStringLiteral("IDX_ICE$INVOICE_ORDERHEAD_ID"), QStringLiteral("IDX_LANG$LANG_CODE"),
             QStringLiteral("IDX_ORDERHEAD$ORDERHEAD_CODE"),
             QStringLiteral("IDX_ORDERITEM$ORDERITEM_CODE"),
             QStringLiteral("IDX_PARTNER$PARTNER_CODE"), QStringLiteral("IDX_PRODUCT$PRODUCT_CODE"),
             QStringLiteral("IDX_TREASON$NOVATREASON_CODE"),
             QStringLiteral("IDX_UNTRY_INTERNATIONAL_CODE"), QStringLiteral("IDX_VAT$VAT_CODE")}));
}

void TestSchema::uniqueCodes_data()
{
    QTest::addColumn<QString>("insert");
    QTest::addColumn<QVariant>("code");
    QTest::addColumn<bool>("secondSucceeds");
    const QString partner = QStringLiteral("insert into PARTNER (PARTNER_CODE) values (?)");
    const QString cheque = QStringLiteral("insert into CHEQUE (CHEQUE_ORDERHEAD_ID) values (?)");
    const QString invoice = QStringLiteral("insert into INVOICE (INVOICE_ORDERHEAD_ID) values (?)");
    QTest::newRow("partner code twice") << partner << QVariant(QStringLiteral("P1")) << false;
    QTest::newRow("partner without code twice") << partner << QVariant() << true;
    QTest::newRow("two cheques of one order") << cheque << QVariant(7) << false;
    QTest::newRow("two invoice rows of one order") << invoice << QVariant(7) << false;
}

void TestSchema::uniqueCodes()
{
    QFETCH(QString, insert);
    QFETCH(QVariant, code);
    QFETCH(bool, secondSucceeds);
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(ExecSql(insert, {code}));
    QCOMPARE(ExecSql(insert, {code}).ok(), secondSucceeds);
}

void TestSchema::defaults()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(ExecSql(QStringLiteral("insert into PAYMENTMETHOD (PAYMENTMETHOD_NAME) values ('x')")));
    QCOMPARE(SelectValue(QStringLiteral("select PAYMENTMETHOD_ROUND_TO_5 from PAYMENTMETHOD "
                                        "where PAYMENTMETHOD_NAME = 'x'")),
             QVariant(QStringLiteral("0")));
    QVERIFY(ExecSql(QStringLiteral("insert into ORDERHEAD (ORDERHEAD_ID) values (99)")));
    SqlStatement st(QStringLiteral("select * from ORDERHEAD where ORDERHEAD_ID = 99"));
    QVERIFY2(st.exec() && st.next(), qPrintable(st.errorText()));
    QCOMPARE(st.value("ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5"), QVariant(QStringLiteral("0")));
    for (const char* column :
         {"ORDERHEAD_TOTAL_NET", "ORDERHEAD_TOTAL_VAT", "ORDERHEAD_TOTAL_GROSS",
          "ORDERHEAD_TOTAL_CORRECTION_GROSS", "ORDERHEAD_UNPAID_TOTAL",
          "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE", "ORDERHEAD_PRINTED_COPIES"}) {
        QVERIFY2(!st.value(column).isNull(), column);
        QCOMPARE(st.value(column).toDouble(), 0.0);
    }
}

void TestSchema::flagWrittenAsNumberReadsNo()
{
    TestCompany company;
    QVERIFY(company.isValid());
    // Upgrades write the bare number 0 into text flags.
    QVERIFY(ExecSql(QStringLiteral("update PAYMENTMETHOD set PAYMENTMETHOD_CHEQUE = 0")));
    QVERIFY(!IsFlagSet(SelectValue(QStringLiteral(
        "select PAYMENTMETHOD_CHEQUE from PAYMENTMETHOD where PAYMENTMETHOD_ID = 1"))));
    QVERIFY(IsFlagSet(SelectValue(QStringLiteral(
        "select PAYMENTMETHOD_PAID from PAYMENTMETHOD where PAYMENTMETHOD_ID = 1"))));
}

void TestSchema::basicData()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QCOMPARE(SelectValue(QStringLiteral("select VERSION from DBVERSION")).toInt(), 302);
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from SETUP")).toInt(), 1);
    QCOMPARE(SelectValue(QStringLiteral("select COUNTRY_INTERNATIONAL_CODE || ' ' || COUNTRY_NAME "
                                        "from COUNTRY where COUNTRY_ID = 0")),
             QVariant(QStringLiteral("HU Magyarország")));
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from COUNTRY")).toInt(), 6);
    // The forint rounds line totals to 1 decimal but prints 2, and its invoice total to 0.
    SqlStatement huf(QStringLiteral("select * from CURRENCYY where CURRENCY_ID = 0"));
    QVERIFY(huf.exec() && huf.next());
    QCOMPARE(huf.value("CURRENCY_ABBREVIATION").toString(), QStringLiteral("Ft"));
    QCOMPARE(huf.value("CURRENCY_RATE").toDouble(), 1.0);
    QCOMPARE(huf.value("CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS").toInt(), 1);
    QCOMPARE(huf.value("CURRENCY_LINE_TOTAL_PRINTING_DECIMALS").toInt(), 2);
    QCOMPARE(huf.value("CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS").toInt(), 0);
    QCOMPARE(SelectValue(QStringLiteral("select group_concat(LANG_ID || LANG_CODE) from "
                                        "(select * from LANG order by LANG_ID)"))
                 .toString(),
             QStringLiteral("1EN,2DE"));
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from LANG where LANG_ID = 0")).toInt(), 0);
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from PAYMENTMETHODTRANSLATION")).toInt(),
             4);
    QCOMPARE(SelectValue(QStringLiteral("select NOVATREASON_CODE from NOVATREASON")).toString(),
             QStringLiteral("FAD"));
    SqlStatement sample(
        QStringLiteral("select ORDERHEAD_PARTNER_NAME, ORDERHEAD_DATE_SHIPPED, "
                       "ORDERHEAD_TOTAL_GROSS, (select sum(ORDERITEM_TOTAL_GROSS) "
                       "from ORDERITEM where ORDERITEM_ORDERHEAD_ID = ORDERHEAD_ID) "
                       "from ORDERHEAD"));
    QVERIFY(sample.exec() && sample.next());
    QCOMPARE(sample.value(0).toString(), QStringLiteral("Teszt Partner Kft"));
    QCOMPARE(sample.value(1).toString(), QStringLiteral("3000-01-01"));
    QCOMPARE(sample.value(2).toDouble(), sample.value(3).toDouble());
    QVERIFY(!sample.next());
    QVERIFY(
        SelectValue(QStringLiteral("select count(*) from VAT where VAT_PERCENT = 27")).toInt() ==
        1);
}

void TestSchema::labels()
{
    TestCompany company;
    QVERIFY(company.isValid());
    // 44 keys in three languages, German lacking only the statistical-code caption.
    QCOMPARE(SelectValue(QStringLiteral("select count(distinct ORDERLABELTRANSLATION_KEY) "
                                        "from ORDERLABELTRANSLATION"))
                 .toInt(),
             44);
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from ORDERLABELTRANSLATION")).toInt(),
             131);
    const QString text =
        QStringLiteral("select ORDERLABELTRANSLATION_TEXT from ORDERLABELTRANSLATION "
                       "where ORDERLABELTRANSLATION_KEY = ? and "
                       "ORDERLABELTRANSLATION_LANG_ID = ?");
    QCOMPARE(SelectValue(text, {QStringLiteral("TR_PAYMENT_METHOD"), 0}).toString(),
             QStringLiteral("Fizetési mód"));
    QCOMPARE(SelectValue(text, {QStringLiteral("TR_BANK_ACCOUNT_NUMBER"), 2}).toString(),
             QStringLiteral("Bank-Kontonummer "));
    QCOMPARE(SelectValue(text, {QStringLiteral("TR_MAIL_TO"), 2}).toString(),
             QStringLiteral("Adresse"));
    QVERIFY(SelectValue(text, {QStringLiteral("TR_STAT_CODE"), 2}).isNull());
}

QTEST_GUILESS_MAIN(TestSchema)
#include "tst_schema.moc"
