// Postal cheques against real company databases: the deletion rule for printed ones, printing
// all unprinted ones only once, the slip-sized PDF page and its offsets, whole forints, a
// missing template, and the cheque an invoice gets at issue inside the issuing transaction.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"
#include "TestOrders.h"

#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/AmountInWords.h"
#include "documents/ChequePrinting.h"
#include "documents/ChequeTemplate.h"
#include "documents/InvoiceIssue.h"
#include "orders/ChequeStore.h"
#include "orders/InvoiceNumbering.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QImage>
#include <QRegularExpression>
#include <QtTest>

namespace {

const QDate kToday(2024, 3, 5);

qint64 NewCheque(const QString& name, double amount, bool printed = false)
{
    Cheque c;
    c.partnerName = name;
    c.partnerZip = QStringLiteral("1011");
    c.partnerCity = QStringLiteral("Budapest");
    c.partnerAddress = QStringLiteral("Fő utca 1.");
    c.amount = amount;
    c.notice = QStringLiteral("Kelt: 2024.03.05.\nINV-1");
    if (!ChequeStore::save(c))
        qFatal("cheque not saved");
    if (printed && !ChequeStore::markPrinted({c.id}, kToday))
        qFatal("cheque not marked");
    return c.id;
}

// The pixel box of the ink on the first page, rendered at 50 dpi.
QRect InkBox(const QString& pdf)
{
    const QString stem = QFileInfo(pdf).absolutePath() + QStringLiteral("/ink");
    const ProcessRun run =
        RunProcess(QStringLiteral("pdftoppm"), {"-r", "50", "-png", "-singlefile", pdf, stem});
    if (run.exitCode != 0)
        return {};
    const QImage image(stem + QStringLiteral(".png"));
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 128)
                box |= QRect(x, y, 1, 1);
    return box;
}

} // namespace

class TestCheques : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ask = ScriptedInteraction();
        ChequeTemplate installed;
        QVERIFY(ChequeTemplates::install(kShippedChequeTemplateDir, installed));
        QVERIFY(installed.certified());
    }

    void printedChequesAreNeverDeleted()
    {
        QList<qint64> ids;
        for (int i = 0; i < 5; ++i)
            ids << NewCheque(QStringLiteral("Payer %1").arg(i), 1000 + i, i == 1 || i == 3);
        ChequeStore::Removal removal;
        QVERIFY(ChequeStore::remove(ids, removal));
        QCOMPARE(removal.deleted, 3);
        QCOMPARE(removal.refused, 2);
        QCOMPARE(QueryText("select CHEQUE_ID from CHEQUE order by 1"),
                 QString("%1; %2").arg(ids[1]).arg(ids[3]));
        QCOMPARE(ChequeStore::refusedMessage(removal.refused),
                 QString("2 kijelolt csekk nem torolheto,&mert mar korabban ki lettek "
                         "nyomtatva."));
        // A cheque gone meanwhile is neither deleted nor refused.
        QVERIFY(ChequeStore::remove({ids[0]}, removal));
        QCOMPARE(removal.deleted + removal.refused, 0);
    }

    void allUnprintedPrintOnce()
    {
        NewCheque(QStringLiteral("A"), 100);
        NewCheque(QStringLiteral("B"), 200, true);
        NewCheque(QStringLiteral("C"), 300);
        int printed = -1;
        QVERIFY(print(ChequePrintMode::AllUnprinted, {}, "first.pdf", printed));
        QCOMPARE(printed, 2);
        QCOMPARE(QueryText("select count(*) from CHEQUE where CHEQUE_PRINTED = '1' and "
                           "CHEQUE_DATE_PRINTED = '2024-03-05'"),
                 QString("3"));
        QVERIFY(m_ask.progressTexts.contains("Csekkek nyomtatasa - Vantrell Szamlazo"));

        const Result r = print(ChequePrintMode::AllUnprinted, {}, "second.pdf", printed);
        QCOMPARE(r.message(), QString("Nincsenek nyomtatando csekkek"));
        QCOMPARE(printed, 0);
        QVERIFY(!QFile::exists(m_company->dir() + "/second.pdf"));
    }

    void selectedOnlyPrintsThoseAgain()
    {
        const qint64 printed = NewCheque(QStringLiteral("A"), 100, true);
        NewCheque(QStringLiteral("B"), 200);
        int count = 0;
        QVERIFY(
            print(ChequePrintMode::SelectedOnly, {printed}, "again.pdf", count, kToday.addDays(1)));
        QCOMPARE(count, 1);
        QCOMPARE(QueryText("select CHEQUE_PRINTED || ' ' || coalesce(CHEQUE_DATE_PRINTED, '-') "
                           "from CHEQUE order by CHEQUE_ID"),
                 QString("1 2024-03-06; 0 -"));
    }

    void pageIsTheSlipAndOffsetsShiftIt()
    {
        if (QStandardPaths::findExecutable("pdftoppm").isEmpty())
            QSKIP("poppler-utils not installed");
        const qint64 id = NewCheque(QStringLiteral("Payer"), 12345);
        const auto printAt = [&](double left, double top, const QString& name) {
            QVERIFY(Setup::write(
                {{"SETUP_CHEQUE_MARGIN_LEFT_MM", left}, {"SETUP_CHEQUE_MARGIN_TOP_MM", top}}));
            int count = 0;
            QVERIFY(print(ChequePrintMode::SelectedOnly, {id}, name, count));
        };
        printAt(0, 0, "plain.pdf");
        printAt(10, 5, "shifted.pdf");
        // 200 mm x 90 mm: 4724 x 2125 dots of 1/600 inch are 566.88 x 255 points.
        const QByteArray pdf = FileBytes(m_company->dir() + "/plain.pdf");
        const QRegularExpression mediaBox(
            QStringLiteral(R"(/MediaBox\s*\[\s*0\s+0\s+([0-9.]+)\s+([0-9.]+)\s*\])"));
        const QRegularExpressionMatch m = mediaBox.match(QString::fromLatin1(pdf));
        QVERIFY(m.hasMatch());
        // The writer keeps whole points.
        QVERIFY2(qAbs(m.captured(1).toDouble() - 566.88) <= 0.5, qPrintable(m.captured(1)));
        QVERIFY2(qAbs(m.captured(2).toDouble() - 255.0) <= 0.5, qPrintable(m.captured(2)));

        const QRect plain = InkBox(m_company->dir() + "/plain.pdf");
        const QRect shifted = InkBox(m_company->dir() + "/shifted.pdf");
        QVERIFY(!plain.isEmpty());
        // 10 mm and 5 mm at 50 dpi are 19.7 and 9.8 pixels.
        QVERIFY2(qAbs(shifted.left() - plain.left() - 19.7) <= 1.5,
                 qPrintable(QString("%1 -> %2").arg(plain.left()).arg(shifted.left())));
        QVERIFY2(qAbs(shifted.top() - plain.top() - 9.8) <= 1.5,
                 qPrintable(QString("%1 -> %2").arg(plain.top()).arg(shifted.top())));
    }

    void testChequeUsesTheGivenTemplate()
    {
        // The setup window tries a template and offsets before they are saved.
        PdfInvoiceOutput output(m_company->dir() + "/test.pdf");
        QCOMPARE(ChequePrinting::printTest(QString(), {}, output).message(),
                 QString("Select a cheque template in Setup."));
        QVERIFY(ChequePrinting::printTest("[* !NAME!]&!NOTICE!", {5, 5}, output));
        QVERIFY(FileBytes(m_company->dir() + "/test.pdf").startsWith("%PDF"));
        QCOMPARE(QueryText("select count(*) from CHEQUE"), QString("0"));
    }

    void filledTemplateCarriesTheValues()
    {
        Cheque c = ChequePrinting::sampleCheque();
        c.partnerName = QStringLiteral("Kovács & [Társa]");
        const QString qtf = ChequePrinting::fill(ChequeTemplates::current(), c);
        QVERIFY(qtf.contains(QStringLiteral("12\u00a0345")));
        QVERIFY(qtf.contains(AmountInWords(12345)));
        QVERIFY(qtf.contains(QStringLiteral("Kovács `& `[Társa`]")));
        QVERIFY(!qtf.contains(u'!'));
    }

    void wholeForints_data()
    {
        AddColumns<QString, QString, QString>({"typed", "stored", "message"});
        const auto row = [](const char* name, const char* typed, const char* stored,
                            const char* message) {
            AddRow(name, QString(typed), QString(stored), QString(message));
        };
        const char* missing = "Az osszeget meg kell adnia.";
        row("whole", "12345", "12345", "");
        row("half rounds up", "1234,50", "1235", "");
        row("below half rounds down", "1234.49", "1234", "");
        row("grouped", "1 234 567,5", "1234568", "");
        row("empty", "", "", missing);
        row("letters", "tíz", "",
            "\"tíz\" is not an amount. Type digits, with a decimal comma or point.");
        row("fillér only", "0,4", "", missing);
        row("negative", "-5", "", "A csekk osszege nem lehet negativ.");
        row("10^12", "1000000000000", "", "A csekk osszege tul nagy.");
    }
    void wholeForints()
    {
        auto [typed, stored, message] =
            Fetch<QString, QString, QString>({"typed", "stored", "message"});
        Cheque c;
        c.partnerName = QStringLiteral("Payer");
        Result r = ChequeStore::parseAmount(typed, c.amount);
        if (r)
            r = ChequeStore::save(c);
        QCOMPARE(r.message(), message);
        QCOMPARE(QueryText("select cast(CHEQUE_AMOUNT as integer) from CHEQUE"), stored);
    }

    void missingTemplateIsRefused()
    {
        const qint64 id = NewCheque(QStringLiteral("Payer"), 100);
        QVERIFY(Setup::write({{"SETUP_CHEQUE_QTF", QVariant()}}));
        int printed = 0;
        const Result r = print(ChequePrintMode::SelectedOnly, {id}, "none.pdf", printed);
        QCOMPARE(r.message(), QString("Select a cheque template in Setup."));
        QCOMPARE(QueryText("select CHEQUE_PRINTED from CHEQUE"), QString("0"));

        // A template folder without its text says which file is missing.
        QDir(m_company->dir()).mkdir("empty");
        WriteFile(m_company->dir() + "/empty/cheque.cfg", "Name=x\n");
        ChequeTemplate t;
        const Result load = ChequeTemplates::install(m_company->dir() + "/empty", t);
        QVERIFY(!load);
        QVERIFY2(load.message().contains("cheque.qtf"), qPrintable(load.message()));
    }

    void chequeMadeAtIssue_data()
    {
        AddColumns<qint64, bool, QString>({"method", "flag", "cheques"});
        AddRow("transfer with the cheque flag", qint64(2), true,
               QString("000001|Teszt Partner Kft|1011|Budapest|3810|Kelt: 2024.03.05.\nFiz. "
                       "hatarido: 2024.03.13.\n000001"));
        AddRow("transfer without it", qint64(2), false, QString());
        AddRow("cash", qint64(1), false, QString());
    }
    void chequeMadeAtIssue()
    {
        auto [method, flag, cheques] = Fetch<qint64, bool, QString>({"method", "flag", "cheques"});
        QVERIFY(ExecSql("update PAYMENTMETHOD set PAYMENTMETHOD_CHEQUE = ? where "
                        "PAYMENTMETHOD_ID = ?",
                        {flag ? "1" : "0", method}));
        const qint64 order = SavedTestOrder(3, kToday, method);
        QVERIFY(ExecSql("update ORDERHEAD set ORDERHEAD_DATE_PAYMENT_DUE = '2024-03-13'"));
        QVERIFY(IssueTestOrder(order, kToday));
        QCOMPARE(QueryText("select CHEQUE_INVOICE_NO_STR || '|' || CHEQUE_PARTNER_NAME || '|' || "
                           "CHEQUE_PARTNER_ZIP || '|' || CHEQUE_PARTNER_CITY || '|' || "
                           "cast(CHEQUE_AMOUNT as integer) || '|' || CHEQUE_NOTICE from CHEQUE"),
                 cheques);
    }

    void failedIssueLeavesNoCheque()
    {
        QVERIFY(ExecSql("update PAYMENTMETHOD set PAYMENTMETHOD_CHEQUE = '1'"));
        const qint64 order = SavedTestOrder(3, kToday, 2);
        // The cheque of this order already exists: the unique index fails the cheque, and
        // with it the whole issue.
        QVERIFY(ExecSql("insert into CHEQUE (CHEQUE_ORDERHEAD_ID, CHEQUE_AMOUNT) values (?, 1)",
                        {order}));
        QVERIFY(!IssueTestOrder(order, kToday));
        QCOMPARE(QueryText("select coalesce(ORDERHEAD_INVOICE_NO, '-') from ORDERHEAD where "
                           "ORDERHEAD_ID = ?",
                           {order}),
                 QString("-"));
        QCOMPARE(QueryText("select count(*) from INVOICE"), QString("0"));
        QCOMPARE(QueryText("select count(*) from CHEQUE"), QString("1"));

        // A rendering that fails makes no cheque either.
        QVERIFY(ExecSql("delete from CHEQUE"));
        IssuedInvoice issued;
        QVERIFY(!InvoiceNumbering::issue(
            order, kToday, [](qint64, FrozenInvoice&) { return Result::failure("no render"); },
            issued));
        QCOMPARE(QueryText("select count(*) from CHEQUE"), QString("0"));
        QVERIFY(IssueTestOrder(order, kToday));
        QCOMPARE(QueryText("select count(*) from CHEQUE"), QString("1"));
    }

    void chequesOfSelectedInvoices()
    {
        const qint64 issued = SavedTestOrder(3, kToday, 2);
        const qint64 open = SavedTestOrder(3, kToday, 2);
        QVERIFY(IssueTestOrder(issued, kToday));
        QList<qint64> ids;
        // An order without a number has no cheque to print, and none is made for the others.
        Result r = ChequeStore::forInvoices({issued, open}, kToday, ids);
        QCOMPARE(r.message(), QString("Csekk csak kiallitott szamlahoz nyomtathato."));
        QCOMPARE(QueryText("select count(*) from CHEQUE"), QString("0"));
        // Made once, then found again.
        QVERIFY(ChequeStore::forInvoices({issued}, kToday, ids));
        QCOMPARE(ids.size(), 1);
        QList<qint64> again;
        QVERIFY(ChequeStore::forInvoices({issued}, kToday, again));
        QCOMPARE(again, ids);
        QCOMPARE(QueryText("select CHEQUE_ORDERHEAD_ID from CHEQUE"), QString::number(issued));
    }

private:
    // Prints into a PDF of that name in the company's folder.
    Result print(ChequePrintMode mode, const QList<qint64>& ids, const QString& file, int& count,
                 QDate day = kToday)
    {
        PdfInvoiceOutput output(m_company->dir() + "/" + file);
        return ChequePrinting::print(mode, ids, output, m_ask, day, count);
    }

    ScriptedInteraction m_ask;
};

QTEST_MAIN(TestCheques)
#include "tst_cheques.moc"
