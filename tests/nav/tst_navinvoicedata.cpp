// The invoice documents reported to the tax authority, validated with libxml2 against the
// authority's own schemas for every kind of invoice the program issues, and the values that a
// valid document can still get wrong (customer kind, category, exemption, reference, amounts).
#include "CompanyTestCase.h"
#include "NavTestOrders.h"
#include "TestData.h"

#include "nav/InvoiceData.h"
#include "nav/XmlSchemaCheck.h"

#include <QDomDocument>

namespace {

// The text of the first element of that local name.
QString First(const QDomDocument& doc, const QString& name)
{
    return doc.elementsByTagName(name).item(0).toElement().text();
}

QStringList All(const QDomDocument& doc, const QString& name)
{
    QStringList values;
    const QDomNodeList nodes = doc.elementsByTagName(name);
    for (int i = 0; i < nodes.size(); ++i)
        values << nodes.item(i).toElement().text();
    return values;
}

} // namespace

class TestNavInvoiceData : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(m_schema.isLoaded()); }
    void init()
    {
        CompanyTestCase::init();
        QVERIFY(PrepareNavSeller());
    }

    void documentsValidate_data()
    {
        // expected: customer status|category|currency|VAT rate, exemption case
        AddColumns<int, bool, QString>({"kind", "cancel", "expected"});
        const auto row = [](const char* name, NavTestKind kind, bool cancel, const char* expected) {
            AddRow(name, int(kind), cancel, QString(expected));
        };
        row("forint", NavTestKind::Forint, false, "DOMESTIC|NORMAL|HUF|0.27");
        row("euro", NavTestKind::Euro, false, "DOMESTIC|NORMAL|EUR|0.27");
        row("consolidated", NavTestKind::Consolidated, false, "DOMESTIC|AGGREGATE|HUF|0.27");
        row("exempt line", NavTestKind::ExemptLine, false, "DOMESTIC|NORMAL|HUF|0.27,TAM");
        row("private person", NavTestKind::PrivatePerson, false, "PRIVATE_PERSON|NORMAL|HUF|0.27");
        row("foreign", NavTestKind::Foreign, false, "OTHER|NORMAL|HUF|0.27");
        row("cancelling", NavTestKind::Forint, true, "DOMESTIC|NORMAL|HUF|0.27");
    }

    void documentsValidate()
    {
        auto [kind, cancel, expected] = Fetch<int, bool, QString>({"kind", "cancel", "expected"});
        QString originalNo;
        qint64 orderId = IssueNavTestOrder(NavTestKind(kind), &originalNo);
        QVERIFY(orderId);
        if (cancel)
            QVERIFY((orderId = IssueNavCancel(orderId)) != 0);

        InvoiceData::Document document;
        const Result r = InvoiceData::build(orderId, document);
        QVERIFY2(r, qPrintable(r.message()));
        QStringList errors;
        QVERIFY2(m_schema.validate(document.xml, &errors),
                 qPrintable(errors.join('\n') + '\n' + QString::fromUtf8(document.xml)));

        QDomDocument doc;
        QVERIFY(doc.setContent(document.xml, true));
        QCOMPARE(document.operation, cancel ? NavOperation::Storno : NavOperation::Create);
        const QStringList rates = All(doc, "vatPercentage").mid(0, 1) + All(doc, "case").mid(0, 1);
        QCOMPARE(
            QStringList({First(doc, "customerVatStatus"), First(doc, "invoiceCategory"),
                         First(doc, "currencyCode"), rates.join(','), First(doc, "paymentMethod"),
                         First(doc, "taxpayerId"), First(doc, "countyCode")})
                .join('|'),
            expected + "|TRANSFER|12345676|41");
        const QString status = expected.section('|', 0, 0);
        if (status == "PRIVATE_PERSON")
            QVERIFY(doc.elementsByTagName("customerName").isEmpty());
        if (status == "OTHER")
            QCOMPARE(First(doc, "communityVatNumber"), QString("ATU12345678"));
        if (expected.contains("AGGREGATE"))
            QCOMPARE(All(doc, "lineDeliveryDate"), QStringList({"2024-02-29", "2024-03-01"}));

        // The amounts are the ones stored at issue, in the invoice currency and in forint.
        const QString totals =
            QueryText("select ORDERHEAD_TOTAL_GROSS, ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, "
                      "ORDERHEAD_CURRENCY_RATE from ORDERHEAD where ORDERHEAD_ID = ?",
                      {orderId});
        const QStringList parts = totals.split('|');
        QCOMPARE(First(doc, "invoiceGrossAmount").toDouble(), parts[0].toDouble());
        QCOMPARE(First(doc, "invoiceGrossAmountHUF").toDouble(), parts[1].toDouble());
        if (expected.contains("EUR"))
            QCOMPARE(First(doc, "exchangeRate").toDouble(), parts[2].toDouble());
        if (cancel) {
            QVERIFY(parts[0].toDouble() < 0);
            QCOMPARE(First(doc, "originalInvoiceNumber"), originalNo);
            QCOMPARE(First(doc, "modificationIndex"), QString("1"));
            // The lines continue the numbering of the cancelled invoice's lines.
            const int lines = All(doc, "lineNumber").size();
            QCOMPARE(All(doc, "lineNumberReference").first().toInt(), lines + 1);
        }
    }

    // The check itself: a document the schema refuses is refused, with the line named.
    void brokenDocumentRefused()
    {
        const qint64 orderId = IssueNavTestOrder(NavTestKind::Forint);
        InvoiceData::Document document;
        QVERIFY(InvoiceData::build(orderId, document));
        QByteArray broken = document.xml;
        broken.replace("<invoiceCategory>NORMAL<", "<invoiceCategory>SOMETIMES<");
        QStringList errors;
        QVERIFY(!m_schema.validate(broken, &errors));
        QVERIFY(errors.join(' ').contains("SOMETIMES"));
        QVERIFY(!m_schema.validate("<InvoiceData", &errors));
    }

    // No document without an issued invoice or without the seller's tax number.
    void noDocument()
    {
        InvoiceData::Document document;
        QVERIFY(!InvoiceData::build(1, document)); // the basic data's sample order
        QVERIFY(!InvoiceData::buildByNumber("nope", document));
        const qint64 orderId = IssueNavTestOrder(NavTestKind::Forint);
        QVERIFY(orderId);
        QVERIFY(ExecSql("update SETUP set SETUP_TAX_NO = 'none'"));
        QVERIFY(Setup::current().load());
        QVERIFY(!InvoiceData::build(orderId, document));
    }

    void taxNumbers_data()
    {
        AddColumns<QString, bool, QString>({"text", "ok", "parts"});
        const auto row = [](const char* name, const char* text, bool ok, const char* parts) {
            AddRow(name, QString(text), ok, QString(parts));
        };
        row("dashed", "12345678-2-41", true, "12345678|2|41");
        row("plain", "12345678241", true, "12345678|2|41");
        row("taxpayer id only", "12345678", true, "12345678||");
        row("vat code 9", "12345678-9-41", false, "");
        row("short", "1234567-2-41", false, "");
        row("letters", "ATU1234567", false, "");
    }

    void taxNumbers()
    {
        auto [text, ok, parts] = Fetch<QString, bool, QString>({"text", "ok", "parts"});
        HungarianTaxNumber number;
        QCOMPARE(HungarianTaxNumber::parse(text, number), ok);
        if (ok)
            QCOMPARE(number.taxpayerId + '|' + number.vatCode + '|' + number.countyCode, parts);
    }

    void mappings_data()
    {
        AddColumns<QString, QString, QString>({"function", "input", "value"});
        const auto row = [](const char* name, const char* function, const char* input,
                            const char* value) {
            AddRow(name, QString(function), QString(input), QString(value));
        };
        row("cash code", "payment", "KP|Készpénz", "CASH");
        row("transfer name", "payment", "X|Banki átutalás", "TRANSFER");
        row("card", "payment", "BK|Bankkártya", "CARD");
        row("unknown method", "payment", "U|Utánvét", "OTHER");
        row("piece", "unit", "db", "PIECE");
        row("hour accented", "unit", "óra", "HOUR");
        row("own unit", "unit", "doboz", "OWN");
    }

    void mappings()
    {
        auto [function, input, value] =
            Fetch<QString, QString, QString>({"function", "input", "value"});
        const QStringList parts = input.split('|');
        QCOMPARE(function == "payment" ? InvoiceData::paymentMethod(parts[0], parts[1])
                                       : InvoiceData::unitOfMeasure(input),
                 value);
    }

private:
    XmlSchemaCheck m_schema{XmlSchemaCheck::invoiceDataSchema()};
};

QTEST_GUILESS_MAIN(TestNavInvoiceData)
#include "tst_navinvoicedata.moc"
