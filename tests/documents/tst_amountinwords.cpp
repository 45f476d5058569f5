// Hungarian words for amounts, exactly as invoices and cheques print them.
#include "DataTable.h"

#include "documents/AmountInWords.h"

#include <QtTest>

#include <limits>

class TestAmountInWords : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void words_data()
    {
        AddColumns<qint64, QString>({"amount", "text"});

        // One group: the long forms "kettő" and "egyszáz", tens joined to units.
        QTest::newRow("zero") << qint64(0) << "nulla";
        QTest::newRow("two") << qint64(2) << "kettő";
        QTest::newRow("twenty-five") << qint64(25) << "huszonöt";
        QTest::newRow("hundred") << qint64(100) << "egyszáz";
        QTest::newRow("two hundred twelve") << qint64(212) << "kettőszáztizenkettő";
        QTest::newRow("999") << qint64(999) << "kilencszázkilencvenkilenc";

        // Groups: the group word directly after its group, one space between groups.
        QTest::newRow("thousand") << qint64(1000) << "egyezer";
        QTest::newRow("two thousand") << qint64(2000) << "kettőezer";
        QTest::newRow("twelve thousand") << qint64(12000) << "tizenkettőezer";
        QTest::newRow("million and one") << qint64(1000001) << "egymillió egy";
        QTest::newRow("twenty billion") << qint64(20000000000) << "húszmilliárd";
        QTest::newRow("all groups")
            << qint64(1002003004) << "egymilliárd kettőmillió háromezer négy";
        QTest::newRow("largest covered")
            << qint64(999999999999)
            << "kilencszázkilencvenkilencmilliárd "
               "kilencszázkilencvenkilencmillió "
               "kilencszázkilencvenkilencezer kilencszázkilencvenkilenc";

        // Negative amounts.
        QTest::newRow("minus 1234") << qint64(-1234) << "mínusz egyezer kettőszázharmincnégy";

        // From 10^12 the higher digits are dropped.
        QTest::newRow("10^12") << qint64(1000000000000) << "";
        QTest::newRow("10^12 + 5") << qint64(1000000000005) << "öt";
        QTest::newRow("minus 10^12") << qint64(-1000000000000) << "mínusz";
        // 9223372036854775808: the last twelve digits are 036 854 775 808.
        QTest::newRow("most negative") << std::numeric_limits<qint64>::min()
                                       << "mínusz harminchatmilliárd nyolcszázötvennégymillió "
                                          "hétszázhetvenötezer nyolcszáznyolc";
    }

    void words()
    {
        auto [amount, text] = Fetch<qint64, QString>({"amount", "text"});
        QCOMPARE(AmountInWords(amount), text);
    }
};

QTEST_GUILESS_MAIN(TestAmountInWords)
#include "tst_amountinwords.moc"
