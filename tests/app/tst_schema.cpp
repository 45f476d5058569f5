// A new company database: every table and column in its declared order, the indexes with their
// exact names, the defaults and uniqueness rules other parts rely on, and the basic data.
#include "OldCompanyFile.h"
#include "TestCompany.h"
#include "TestData.h"

#include "app/SqlStatement.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

// "NAME [unique ]TABLE(COLUMN)" for every index of the open company, sorted.
QStringList Indexes()
{
    QStringList indexes;
    QSqlQuery q("select name, tbl_name, sql from sqlite_master where type = 'index'",
                Database::session());
    while (q.next()) {
        const QString sql = q.value(2).toString();
        const bool unique = sql.startsWith("create unique", Qt::CaseInsensitive);
        indexes << q.value(0).toString() + (unique ? " unique " : " ") + q.value(1).toString() +
                       sql.mid(sql.indexOf(u'('));
    }
    indexes.sort();
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
    void defaults();
    void basicData();

private:
    std::optional<TestCompany> m_company;
};

// Tables in creation order, each followed by its columns (indented) in declaration order.
void TestSchema::tablesAndColumns()
{
    QStringList expected;
    QHash<QString, QStringList> columns;
    for (const QString& line : TestDataLines("app/schema_columns.txt")) {
        if (line.front().isSpace())
            columns[expected.last()] << line.split(u' ', Qt::SkipEmptyParts);
        else
            expected << line;
    }
    for (const QString& table : expected)
        QCOMPARE(TableColumns(table), columns.value(table));
    expected.sort();
    QStringList tables = Database::session().tables();
    tables.removeAll("sqlite_sequence");
    tables.sort();
    QCOMPARE(tables, expected);
}

// The names are truncated on purpose: upgrades drop and create them by these names.
void TestSchema::indexes()
{
    QStringList expected = TestDataLines("app/schema_indexes.txt");
    expected.sort();
    QCOMPARE(Indexes(), expected);
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
