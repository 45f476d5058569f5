// The interface's requests and answers: every request this program builds and every answer the
// test double gives validates against the published interface schema.
#include "TestData.h"

#include "nav/NavApi.h"
#include "nav/XmlSchemaCheck.h"

#include <QtTest>

namespace {

const QDateTime kNow = QDateTime::fromString("2024-03-05T10:11:12.345Z", Qt::ISODateWithMs);

NavSettings Settings()
{
    return {"tallyuser1",
            NavSettings::passwordHashOf("pw"),
            "signing",
            "1234567890ABCDEF",
            "12345676",
            false,
            {}};
}

} // namespace

class TestNavApi : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QVERIFY(m_schema.isLoaded()); }

    void messagesValidate_data()
    {
        QTest::addColumn<QByteArray>("xml");
        const QList<NavSignedOperation> ops{{"CREATE", QByteArray("<a/>").toBase64()},
                                            {"STORNO", QByteArray("<b/>").toBase64()}};
        AddRow("token exchange request",
               NavApi::tokenExchangeRequest(Settings(), NavApi::newRequestId(), kNow));
        AddRow("manage invoice request",
               NavApi::manageInvoiceRequest(Settings(), "RID1", kNow, "token", ops));
        AddRow("query transaction status request",
               NavApi::queryTransactionStatusRequest(Settings(), "RID1", kNow, "TX1"));
        AddRow("invoice check request",
               NavApi::queryInvoiceCheckRequest(Settings(), "RID1", kNow, "A-000001"));
        AddRow("invoice check answer",
               NavApi::response("QueryInvoiceCheckResponse", "RID1", kNow, "OK", {}, {},
                                "<invoiceCheckResult>true</invoiceCheckResult>"));
        AddRow("error answer", NavApi::response("GeneralErrorResponse", "RID1", kNow, "ERROR",
                                                "INVALID_SECURITY_USER", "Hibás"));
        AddRow("transaction answer",
               NavApi::response("ManageInvoiceResponse", "RID1", kNow, "OK", {}, {},
                                "<transactionId>TX1</transactionId>"));
        AddRow("status answer", NavApi::response("QueryTransactionStatusResponse", "RID1", kNow,
                                                 "OK", {}, {}, kStatus));
    }

    void messagesValidate()
    {
        QFETCH(QByteArray, xml);
        QStringList errors;
        QVERIFY2(m_schema.validate(xml, &errors), qPrintable(errors.join('\n') + '\n' + xml));
    }

    // Every request has an id of its own; an answer that is no XML is no answer.
    void requestIdsAndBadAnswers()
    {
        QCOMPARE(NavApi::newRequestId().size(), 30);
        QVERIFY(NavApi::newRequestId() != NavApi::newRequestId());
        NavResponse response;
        QVERIFY(!NavApi::parseResponse("<html>Bad gateway</html>", response));
    }

private:
    static inline const QByteArray kStatus =
        "<processingResults>"
        "<processingResult><index>1</index><invoiceStatus>ABORTED</invoiceStatus>"
        "<technicalValidationMessages><common:validationResultCode>ERROR</"
        "common:validationResultCode><common:validationErrorCode>SCHEMA_VIOLATION</"
        "common:validationErrorCode><common:message>bad</common:message></"
        "technicalValidationMessages><compressedContentIndicator>false</"
        "compressedContentIndicator></processingResult>"
        "<processingResult><index>2</index><invoiceStatus>DONE</invoiceStatus>"
        "<businessValidationMessages><validationResultCode>WARN</validationResultCode>"
        "<validationErrorCode>W1</validationErrorCode><message>no</message>"
        "</businessValidationMessages>"
        "<compressedContentIndicator>false</compressedContentIndicator></processingResult>"
        "<originalRequestVersion>3.0</originalRequestVersion></processingResults>";

    XmlSchemaCheck m_schema{XmlSchemaCheck::invoiceApiSchema()};
};

QTEST_GUILESS_MAIN(TestNavApi)
#include "tst_navapi.moc"
