// Tax numbers as typed: the Hungarian check digit over the first eight digits, with and without
// hyphens, and the shape of EU VAT numbers by country.
#include "TestData.h"

#include "masterdata/TaxNumber.h"

#include <QtTest>

Q_DECLARE_METATYPE(TaxNoProblem)

class TestTaxNumber : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void hungarian_data()
    {
        AddColumns<QString, TaxNoProblem>({"taxNo", "problem"});
        const auto row = [](const char* name, const char* no, TaxNoProblem p) {
            QTest::newRow(name) << QString::fromLatin1(no) << p;
        };
        row("hyphens", "12345676-2-41", TaxNoProblem::None);
        row("no hyphens", "12345676241", TaxNoProblem::None);
        row("blanks around parts", " 12345676 - 2 - 41 ", TaxNoProblem::None);
        row("check digit 0", "00000000-1-01", TaxNoProblem::None);
        row("wrong check digit", "12345678-2-41", TaxNoProblem::CheckDigit);
        row("swapped digits", "21345676-2-41", TaxNoProblem::CheckDigit);
        row("short", "1234567-2-41", TaxNoProblem::Shape);
        row("ten digits", "1234567624", TaxNoProblem::Shape);
        row("letters", "1234567A-2-41", TaxNoProblem::Shape);
        row("VAT code 0", "12345676-0-41", TaxNoProblem::Shape);
        row("one hyphen", "12345676-241", TaxNoProblem::None);
        row("hyphen inside a group", "1234-5676-2-41", TaxNoProblem::Shape);
        row("empty", "", TaxNoProblem::Shape);
    }
    void hungarian()
    {
        const auto [taxNo, problem] = Fetch<QString, TaxNoProblem>({"taxNo", "problem"});
        QCOMPARE(CheckHungarianTaxNo(taxNo), problem);
        QCOMPARE(HungarianTaxNoMessage(taxNo).isEmpty(),
                 problem == TaxNoProblem::None || taxNo.isEmpty());
    }

    void euVat_data()
    {
        AddColumns<QString, TaxNoProblem>({"vatNo", "problem"});
        const auto row = [](const char* name, const char* no, TaxNoProblem p) {
            QTest::newRow(name) << QString::fromLatin1(no) << p;
        };
        row("HU", "HU12345676", TaxNoProblem::None);
        row("HU lower case, blank", "hu 12345676", TaxNoProblem::None);
        row("HU wrong check", "HU12345678", TaxNoProblem::CheckDigit);
        row("HU too long", "HU123456762", TaxNoProblem::Shape);
        row("AT", "ATU12345678", TaxNoProblem::None);
        row("AT without U", "AT12345678", TaxNoProblem::Shape);
        row("DE", "DE123456789", TaxNoProblem::None);
        row("NL", "NL123456789B01", TaxNoProblem::None);
        row("FR letters", "FRXX123456789", TaxNoProblem::None);
        row("EL not GR", "GR123456789", TaxNoProblem::Shape);
        row("no prefix", "12345676", TaxNoProblem::Shape);
        row("hyphenated", "DE-123-456-789", TaxNoProblem::None);
    }
    void euVat()
    {
        const auto [vatNo, problem] = Fetch<QString, TaxNoProblem>({"vatNo", "problem"});
        QCOMPARE(CheckEuVatNo(vatNo), problem);
        QCOMPARE(EuVatNoMessage(vatNo).isEmpty(), problem == TaxNoProblem::None);
    }

    // A foreign partner's tax number has its own country's form; the EU number is always checked.
    void partner_data()
    {
        AddColumns<QString, QString, bool, bool>({"taxNo", "euNo", "home", "fine"});
        AddRow("home, valid", QString("12345676-2-41"), QString("HU12345676"), true, true);
        AddRow("home, bad tax no", QString("12345678-2-41"), QString(), true, false);
        AddRow("foreign tax no", QString("DE 123/456/78"), QString(), false, true);
        AddRow("foreign, bad EU no", QString("123"), QString("DE12"), false, false);
        AddRow("home, bad EU no", QString("12345676-2-41"), QString("HU12345678"), true, false);
        AddRow("nothing typed", QString(), QString(), true, true);
    }
    void partner()
    {
        const auto [taxNo, euNo, home, fine] =
            Fetch<QString, QString, bool, bool>({"taxNo", "euNo", "home", "fine"});
        QCOMPARE(PartnerTaxNoMessage(taxNo, euNo, home).isEmpty(), fine);
    }
};

QTEST_GUILESS_MAIN(TestTaxNumber)
#include "tst_taxnumber.moc"
