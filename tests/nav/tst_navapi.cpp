// The interface's requests and answers: every request this program builds and every answer the
// test double gives validates against the published interface schema, and the answers are read
// back with their codes, messages and verdicts.
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

    void requestReadBack()
    {
        const QList<NavSignedOperation> ops{{"CREATE", "QWJjZDEyMzQ="}};
        NavRequestInfo request;
        QVERIFY(NavApi::parseRequest(
            NavApi::manageInvoiceRequest(Settings(), "RID1", kNow, "token", ops), request));
        QCOMPARE(request.root, QString("ManageInvoiceRequest"));
        QCOMPARE(request.timestamp, QString("2024-03-05T10:11:12.345Z"));
        QCOMPARE(request.passwordHash, NavSettings::passwordHashOf("pw"));
        QCOMPARE(request.requestSignature,
                 NavSignature::requestSignature("RID1", kNow, "signing", ops));
        QCOMPARE(request.operations.size(), 1);
        QCOMPARE(request.operations.first().base64, QByteArray("QWJjZDEyMzQ="));
        QCOMPARE(NavApi::newRequestId().size(), 30);
        QVERIFY(NavApi::newRequestId() != NavApi::newRequestId());
    }

    void answersReadBack()
    {
        NavResponse response;
        QVERIFY(NavApi::parseResponse(
            NavApi::response("QueryTransactionStatusResponse", "R", kNow, "OK", {}, {}, kStatus),
            response));
        QVERIFY(response.ok());
        QCOMPARE(response.results.size(), 3);
        const NavProcessingResult& aborted = response.results.at(0);
        QCOMPARE(aborted.status, QString("ABORTED"));
        QVERIFY(aborted.errors);
        QCOMPARE(aborted.messages, QStringList{"SCHEMA_VIOLATION: bad"});
        QVERIFY(!response.results.at(1).errors && response.results.at(1).warnings);
        QVERIFY(response.results.at(2).errors);

        QVERIFY(NavApi::parseResponse(NavApi::response("GeneralErrorResponse", "R", kNow, "ERROR",
                                                       "INVALID_REQUEST_SIGNATURE", "Helytelen"),
                                      response));
        QVERIFY(!response.ok());
        QCOMPARE(response.errorText(), QString("INVALID_REQUEST_SIGNATURE: Helytelen"));
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
        "<validationErrorCode>W1</validationErrorCode></businessValidationMessages>"
        "<compressedContentIndicator>false</compressedContentIndicator></processingResult>"
        "<processingResult><index>3</index><invoiceStatus>DONE</invoiceStatus>"
        "<businessValidationMessages><validationResultCode>ERROR</validationResultCode>"
        "<validationErrorCode>E1</validationErrorCode><message>no</message>"
        "</businessValidationMessages>"
        "<compressedContentIndicator>false</compressedContentIndicator></processingResult>"
        "<originalRequestVersion>3.0</originalRequestVersion></processingResults>";

    XmlSchemaCheck m_schema{XmlSchemaCheck::invoiceApiSchema()};
};

QTEST_GUILESS_MAIN(TestNavApi)
#include "tst_navapi.moc"
