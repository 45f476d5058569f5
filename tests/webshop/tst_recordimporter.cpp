// PARTNERS and PRODUCTS documents against a real company database: matching by code, the
// columns a document does not carry, the code references, the refusals and the timestamp.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"
#include "WebshopDocs.h"

#include "base/Setup.h"
#include "documents/MessageText.h"
#include "webshop/RecordImporter.h"

#include <QtTest>

namespace {

QByteArray Partner(const QString& code, const QStringList& fields = {})
{
    return "<PARTNER>" +
           Elements(fields,
                    {"PARTNER_CODE=" + code, "PARTNER_NAME=Partner " + code, "PARTNER_CITY=Győr",
                     "PARTNER_MAIL_IS_SAME=1", "PARTNER_TIMESTAMP=T-" + code}) +
           "</PARTNER>";
}

QByteArray Product(const QString& code, const QStringList& fields = {})
{
    return "<PRODUCT>" +
           Elements(fields,
                    {"PRODUCT_CODE=" + code, "PRODUCT_NAME=Árú " + code, "PRODUCT_UNIT=db",
                     "PRODUCT_PRICE=150", "PRODUCT_VAT_CODE=27", "PRODUCT_TIMESTAMP=T-" + code}) +
           "</PRODUCT>";
}

} // namespace

class TestRecordImporter : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ui = {};
        m_ask.emplace();
    }

    void partnersInsertedAndUpdatedByCode()
    {
        QVERIFY(ExecSql("insert into PARTNER (PARTNER_CODE, PARTNER_NAME, PARTNER_TAX_NO, "
                        "PARTNER_PAYMENT_DUE_DAYS) values ('B', 'Régi', '12345678-1-11', 15)"));
        QVERIFY(run(
            RecordImporter::Kind::Partners,
            Doc("PARTNERS", {Partner("A", {"PARTNER_PAYMENT_DUE_DAYS= 8", "PAYMENTMETHOD_CODE=AT"}),
                             Partner("B", {"PARTNER_PAYMENT_DUE_DAYS=sok"})})));
        QCOMPARE(
            QueryText("select PARTNER_CODE, PARTNER_NAME, PARTNER_NAME_ASCII, PARTNER_MAIL_NAME, "
                      "PARTNER_MAIL_CITY, PARTNER_PAYMENT_DUE_DAYS, PARTNER_PAYMENTMETHOD_ID, "
                      "coalesce(PARTNER_TAX_NO, '') from PARTNER where PARTNER_CODE in ('A', "
                      "'B') order by PARTNER_CODE"),
            QString("A|Partner A|PARTNER A|Partner A|Győr|8|2|; "
                    "B|Partner B|PARTNER B|Partner B|Győr|15||12345678-1-11"));
        QCOMPARE(QueryText("select SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP from SETUP"),
                 QString("T-B"));
        QCOMPARE(Setup::current().text("SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP"), QString("T-B"));
    }

    void productsWithTheirVatKey()
    {
        m_ask->chosen << 3;
        QVERIFY(run(RecordImporter::Kind::Products,
                    Doc("PRODUCTS", {Product("X"),
                                     Product("Y", {"PRODUCT_VAT_CODE=K9", "PRODUCT_PRICE=n/a"})})));
        QCOMPARE(QueryText("select PRODUCT_CODE, PRODUCT_NAME_ASCII, PRODUCT_VAT_ID, "
                           "coalesce(PRODUCT_PRICE, 'none') from PRODUCT where PRODUCT_CODE is not "
                           "null order by PRODUCT_CODE"),
                 QString("X|ARU X|1|150; Y|ARU Y|3|none"));
        QCOMPARE(m_ask->asked, QStringList({"choose 0"}));
        QCOMPARE(m_ui.messages.value(0).text,
                 QString("[G1 New VAT_CODE found.&&PRODUCT_NAME: \"Árú Y\",&VAT_CODE: \"K9\"&& "
                         "Please, select appropriate VAT key in nex dialog.]"));
        QCOMPARE(QueryText("select SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP from SETUP"),
                 QString("T-Y"));
    }

    // A refusal stores nothing after it; what came before stays with its timestamp.
    void refusals_data()
    {
        AddColumns<int, QByteArray, QString, QString>({"kind", "doc", "message", "stored"});
        const int partners = int(RecordImporter::Kind::Partners);
        const int products = int(RecordImporter::Kind::Products);
        AddRow("orders as partners", partners, QByteArray("<ORDERS><ORDER/></ORDERS>"),
               QString("No PARTNERS tag. The first tag is: ORDERS"), QString());
        AddRow("no tags", partners, QByteArray("  "), QString("No XML tags in document."),
               QString());
        AddRow("unreadable encoding", products,
               QByteArray("<?xml version=\"1.0\" encoding=\"EBCDIC-X\"?><PRODUCTS/>"),
               QString("Error processing data from server:\nEncoding EBCDIC-X is unsupported"),
               QString());
        AddRow("stranger among partners", partners,
               Doc("PARTNERS", {Partner("A"), "<PRODUCT/>", Partner("C")}),
               QString("NO PARTNER tag."), QString("A"));
        AddRow("payment method not chosen", partners,
               Doc("PARTNERS", {Partner("A"), Partner("B", {"PAYMENTMETHOD_CODE=XX"})}),
               QString("Saving partners to database aborted."), QString("A"));
        AddRow("VAT key not chosen", products,
               Doc("PRODUCTS", {Product("P1"), Product("P2", {"PRODUCT_VAT_CODE=XX"})}),
               QString("Saving products to database aborted."), QString("P1"));
        AddRow("cut document", partners, Doc("PARTNERS", {Partner("A")}).chopped(12),
               QString("Error processing data from server:\nPremature end of document."),
               QString("A"));
    }
    void refusals()
    {
        auto [kind, doc, message, stored] =
            Fetch<int, QByteArray, QString, QString>({"kind", "doc", "message", "stored"});
        const bool partners = kind == int(RecordImporter::Kind::Partners);
        QVERIFY(!run(RecordImporter::Kind(kind), doc));
        QCOMPARE(MessagePlainText(m_ui.lastMessage()), message);
        QCOMPARE(QueryText(partners
                               ? "select PARTNER_CODE from PARTNER where PARTNER_CODE is not null"
                               : "select PRODUCT_CODE from PRODUCT where PRODUCT_CODE is not null"),
                 stored);
        QCOMPARE(QueryText(partners ? "select SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP from SETUP"
                                    : "select SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP from SETUP"),
                 stored.isEmpty() ? QString() : "T-" + stored);
    }

private:
    bool run(RecordImporter::Kind kind, const QByteArray& doc)
    {
        RecordImporter importer(kind, m_ui, *m_ask);
        return ImportBytes(importer, doc);
    }

    ScriptedInteraction m_ui;
    std::optional<ScriptedWebshop> m_ask;
};

QTEST_GUILESS_MAIN(TestRecordImporter)
#include "tst_recordimporter.moc"
