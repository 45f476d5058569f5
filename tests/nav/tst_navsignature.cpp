// The interface's cryptography against values computed outside this program: the request
// signature of the interface documentation's worked example, the password hash, and AES-128
// against the FIPS-197 test vector.
#include "TestData.h"

#include "nav/NavSettings.h"
#include "nav/NavSignature.h"

#include <QtTest>

class TestNavSignature : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void requestSignature_data()
    {
        AddColumns<QString, QString, QString, QString>(
            {"requestId", "timestamp", "operations", "signature"});
        // The documentation's example: requestId TSTKFT1222564, 2017-12-30T18:25:45.000Z, two
        // invoices, CREATE "QWJjZDEyMzQ=" and MODIFY "RGNiYTQzMjE=".
        AddRow("manageInvoice, documentation example", QString("TSTKFT1222564"),
               QString("2017-12-30T18:25:45.000Z"),
               QString("CREATE:QWJjZDEyMzQ=,MODIFY:RGNiYTQzMjE="),
               QString("60BC80609EE3B8F42FE904200A49A1921A1DADA08D55319ACD40C59F626514B74EEA49011D"
                       "372600A10DBCF8199D590DA9C2841D987308F2D83DAE17C2470C42"));
        AddRow("other operations: the partial authentication only", QString("TSTKFT1222564"),
               QString("2017-12-30T18:25:45.000Z"), QString(),
               QString("0493F2F0247A2DF076775631FFDFA8B6D39D051F4928D26426CD29895EEDB24960A23E4C64"
                       "43A54806EA8B0E126A7B97940169FEADE6EE42FC99E3BE6F74AB04"));
        // A local time is signed as its UTC time.
        AddRow("timestamp with an offset", QString("TSTKFT1222564"),
               QString("2017-12-30T19:25:45.000+01:00"), QString(),
               QString("0493F2F0247A2DF076775631FFDFA8B6D39D051F4928D26426CD29895EEDB24960A23E4C64"
                       "43A54806EA8B0E126A7B97940169FEADE6EE42FC99E3BE6F74AB04"));
    }

    void requestSignature()
    {
        auto [requestId, timestamp, operations, signature] =
            Fetch<QString, QString, QString, QString>(
                {"requestId", "timestamp", "operations", "signature"});
        QList<NavSignedOperation> ops;
        for (const QString& op : operations.split(',', Qt::SkipEmptyParts))
            ops << NavSignedOperation{op.section(':', 0, 0), op.section(':', 1).toLatin1()};
        const QDateTime ts = QDateTime::fromString(timestamp, Qt::ISODateWithMs);
        QVERIFY(ts.isValid());
        QCOMPARE(NavSignature::timestampMask(ts), QString("20171230182545"));
        QCOMPARE(
            NavSignature::requestSignature(requestId, ts, "ce-8f5e-215119fa7dd621DLMRHRLH2S", ops),
            signature);
    }

    void indexHash()
    {
        // The documentation's first index hash: SHA3-512 of "CREATE" + the base64 data.
        QCOMPARE(NavSignature::sha3_512("CREATEQWJjZDEyMzQ="),
                 QString("4317798460962869BC67F07C48EA7E4A3AFA301513CEB87B8EB94ECF92BC220A89C480F8"
                         "7F0860E85E29A3B6C0463D4F29712C5AD48104A6486CE839DC2F24CB"));
    }

    void passwordHash()
    {
        // SHA-512 of "abc" (FIPS 180-2), upper-case hex as the interface wants it.
        QCOMPARE(NavSettings::passwordHashOf("abc"),
                 QString("DDAF35A193617ABACC417349AE20413112E6FA4E89A97EA20A9EEEE64B55D39A2192992A"
                         "274FC1A836BA3C23A3FEEBBD454D4423643CE80E2A9AC94FA54CA49F"));
    }

    void tokenCipher()
    {
        // FIPS-197 appendix C.1: the first block of the ECB output is the test vector's cipher
        // text; the second is the padding block.
        const QByteArray key = QByteArray::fromHex("000102030405060708090a0b0c0d0e0f");
        const QByteArray plain = QByteArray::fromHex("00112233445566778899aabbccddeeff");
        const QByteArray encrypted = NavSignature::encryptToken(plain, key);
        QCOMPARE(encrypted.size(), 32);
        QCOMPARE(encrypted.left(16).toHex(), QByteArray("69c4e0d86a7b0430d8cdb78070b4c55a"));
        QCOMPARE(NavSignature::decryptToken(encrypted, key), plain);
        // An exchange key of another length is no AES-128 key.
        QVERIFY(NavSignature::decryptToken(encrypted, "short").isEmpty());
        QVERIFY(NavSignature::decryptToken("not a multiple of the block", key).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestNavSignature)
#include "tst_navsignature.moc"
