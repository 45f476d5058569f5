// A new company database: every table and column in its declared order, the indexes with their
// exact names, the defaults and uniqueness rules other parts rely on, and the basic data.
#include "OldCompanyFile.h"
#include "TestCompany.h"

#include "app/SqlStatement.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

// Tables in creation order with their columns in declaration order.
QList<QPair<QString, QStringList>> DeclaredTables()
{
    QList<QPair<QString, QStringList>> tables;
    QFile file(QFINDTESTDATA("../data/app/schema_columns.txt"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return tables;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.front().isSpace())
            tables.last().second << line.split(u' ', Qt::SkipEmptyParts);
        else
            tables.append({line.trimmed(), {}});
    }
    return tables;
}

// name -> "unique TABLE(COLUMN)" for every index the create script made.
QMap<QString, QString> Indexes()
{
    QMap<QString, QString> indexes;
    QSqlQuery q("select name, tbl_name, sql from sqlite_master where type = 'index'",
                Database::session());
    while (q.next()) {
        const QString sql = q.value(2).toString();
        const QString unique =
            sql.startsWith("create unique", Qt::CaseInsensitive) ? "unique " : "";
        indexes.insert(q.value(0).toString(),
                       unique + q.value(1).toString() + sql.mid(sql.indexOf(u'(')));
    }
    return indexes;
}

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_company.emplace();
        QVERIFY(m_company->isValid());
    }
    void cleanup() { m_company.reset(); }
    void tablesAndColumns();
    void indexes();
    void uniqueCodes_data();
    void uniqueCodes();
    void defaults();
    void basicData();

private:
    std::optional<TestCompany> m_company;
};

void TestSchema::tablesAndColumns()
{
    QStringList expected;
    for (const auto& [table, columns] : DeclaredTables()) {
        QCOMPARE(TableColumns(table), columns);
        expected << table;
    }
    expected.sort();
    QStringList tables = Database::session().tables();
    tables.removeAll("sqlite_sequence");
    tables.sort();
    QCOMPARE(tables, expected);
}

void TestSchema::indexes()
{
    const QMap<QString, QString> indexes = Indexes();
    QCOMPARE(indexes.size(), 37);
    QVERIFY(!indexes.contains("IDX_PRODUCT$PRODUCT_NAME"));
    // The names are truncated on purpose: upgrades drop and create them by these names.
    QCOMPARE(indexes.value("IDX_RTNER$PARTNER_NAME_ASCII"), "PARTNER(PARTNER_NAME_ASCII)");
    QCOMPARE(indexes.value("IDX_SLATION_PAYMENTMETHOD_ID"),
             "PAYMENTMETHODTRANSLATION(PAYMENTMETHODTRANSLATION_PAYMENTMETHOD_ID)");
    QCOMPARE(indexes.value("IDX_$PRODUCTPRICE_PRODUCT_ID"),
             "PRODUCTPRICE(PRODUCTPRICE_PRODUCT_ID)");
    QCOMPARE(indexes.value("IDX_M$ORDERITEM_DATE_SHIPPED"), "ORDERITEM(ORDERITEM_DATE_SHIPPED)");
    QCOMPARE(indexes.value("IDX_$BANKITEM_INVOICE_NO_STR"), "BANKITEM(BANKITEM_INVOICE_NO_STR)");
    QStringList unique;
    for (auto it = indexes.cbegin(); it != indexes.cend(); ++it) {
        if (it.value().startsWith("unique "))
            unique << it.key();
    }
    QCOMPARE(unique, QStringList({"IDX_CHEQUE$CHEQUE_CODE", "IDX_EQUE$CHEQUE_ORDERHEAD_ID",
                                  "IDX_ETHOD$PAYMENTMETHOD_CODE", "IDX_ICE$INVOICE_ORDERHEAD_ID",
                                  "IDX_LANG$LANG_CODE", "IDX_ORDERHEAD$ORDERHEAD_CODE",
                                  "IDX_ORDERITEM$ORDERITEM_CODE", "IDX_PARTNER$PARTNER_CODE",
                                  "IDX_PRODUCT$PRODUCT_CODE", "IDX_TREASON$NOVATREASON_CODE",
                                  "IDX_UNTRY_INTERNATIONAL_CODE", "IDX_VAT$VAT_CODE"}));
}

void TestSchema::uniqueCodes_data()
{
    QTest::addColumn<QString>("insert");
    QTest::addColumn<QVariant>("code");
    QTest::addColumn<bool>("secondSucceeds");
    const char* partner = "insert into PARTNER (PARTNER_CODE) values (?)";
    QTest::newRow("partner code twice") << partner << QVariant("P1") << false;
    QTest::newRow("partner without code twice") << partner << QVariant() << true;
    QTest::newRow("two cheques of one order")
        << "insert into CHEQUE (CHEQUE_ORDERHEAD_ID) values (?)" << QVariant(7) << false;
    QTest::newRow("two invoice rows of one order")
        << "insert into INVOICE (INVOICE_ORDERHEAD_ID) values (?)" << QVariant(7) << false;
}

void TestSchema::uniqueCodes()
{
    QFETCH(QString, insert);
    QFETCH(QVariant, code);
    QFETCH(bool, secondSucceeds);
    QVERIFY(ExecSql(insert, {code}));
    QCOMPARE(ExecSql(insert, {code}).ok(), secondSucceeds);
}

void TestSchema::defaults()
{
    QVERIFY(ExecSql("insert into PAYMENTMETHOD (PAYMENTMETHOD_NAME) values ('x')"));
    QCOMPARE(SelectValue("select PAYMENTMETHOD_ROUND_TO_5 from PAYMENTMETHOD "
                         "where PAYMENTMETHOD_NAME = 'x'"),
             QVariant("0"));
    QVERIFY(ExecSql("insert into ORDERHEAD (ORDERHEAD_ID) values (99)"));
    SqlStatement st("select * from ORDERHEAD where ORDERHEAD_ID = 99");
    QVERIFY2(st.exec() && st.next(), qPrintable(st.errorText()));
    QCOMPARE(st.value("ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5"), QVariant("0"));
    for (const char* column :
         {"ORDERHEAD_TOTAL_NET", "ORDERHEAD_TOTAL_VAT", "ORDERHEAD_TOTAL_GROSS",
          "ORDERHEAD_TOTAL_CORRECTION_GROSS", "ORDERHEAD_UNPAID_TOTAL",
          "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE", "ORDERHEAD_PRINTED_COPIES"}) {
        QVERIFY2(!st.value(column).isNull(), column);
        QCOMPARE(st.value(column).toDouble(), 0.0);
    }
}

// The ids and rules other parts take for granted; the label texts are checked with their reader.
void TestSchema::basicData()
{
    QCOMPARE(SelectValue("select count(*) from SETUP").toInt(), 1);
    QCOMPARE(SelectValue("select COUNTRY_INTERNATIONAL_CODE || ' ' || COUNTRY_NAME "
                         "from COUNTRY where COUNTRY_ID = 0"),
             QVariant("HU Magyarország"));
    // Hungarian is language 0, kept in the main columns, never a LANG row.
    QCOMPARE(SelectValue("select group_concat(LANG_ID || LANG_CODE) from "
                         "(select * from LANG order by LANG_ID)"),
             QVariant("1EN,2DE"));
    // The forint rounds line totals to 1 decimal but prints 2, and its invoice total to 0.
    QCOMPARE(SelectValue("select CURRENCY_ABBREVIATION || ' ' || CURRENCY_RATE || ' ' || "
                         "CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS || ' ' || "
                         "CURRENCY_LINE_TOTAL_PRINTING_DECIMALS || ' ' || "
                         "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS from CURRENCYY "
                         "where CURRENCY_ID = 0"),
             QVariant("Ft 1.0 1 2 0"));
    // The sample order's total is the sum of its lines.
    SqlStatement sample("select ORDERHEAD_TOTAL_GROSS, (select sum(ORDERITEM_TOTAL_GROSS) from "
                        "ORDERITEM where ORDERITEM_ORDERHEAD_ID = ORDERHEAD_ID) from ORDERHEAD");
    QVERIFY(sample.exec() && sample.next());
    QCOMPARE(sample.value(0).toDouble(), sample.value(1).toDouble());
    QVERIFY(!sample.next());
}

QTEST_GUILESS_MAIN(TestSchema)
#include "tst_schema.moc"
