// Invoices rendered from the shipped template set: a forint invoice, a euro invoice with its
// rate block, a consolidated one and a foreign-language partner, checked on the filled QTF as
// plain text and on the PDF's text; the per-copy marks; data that looks like QTF; and the
// refusals that leave the database as it was.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "base/Setup.h"
#include "documents/InvoiceIssue.h"
#include "documents/InvoiceRender.h"
#include "documents/InvoiceTemplate.h"
#include "documents/LabelTranslations.h"
#include "documents/QtfReader.h"
#include "documents/Report.h"
#include "orders/OrderCalc.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QBuffer>
#include <QImage>
#include <QtTest>

namespace {

struct OrderKind
{
    qint64 currency = 0;
    qint64 language = 0;
    bool consolidated = false;
    QString subject;
};

qint64 NewOrder(const OrderKind& kind)
{
    Order order;
    if (!OrderFill::newOrder(order, QDate(2024, 3, 5)) || !OrderFill::partner(order, 1) ||
        !OrderFill::currency(order, kind.currency) || !OrderFill::language(order, kind.language))
        qFatal("no order");
    order.consolidated = kind.consolidated;
    order.subject = kind.subject;
    for (int day : {6, 5, 6}) {
        OrderItem item;
        if (!OrderFill::product(item, order, 1))
            qFatal("no product");
        item.qty = day - 3;
        item.dateShipped = QDate(2024, 3, day);
        OrderFill::recalcItem(item, order);
        order.items << item;
    }
    if (!OrderStore::save(order))
        qFatal("not saved");
    return order.id;
}

QString Plain(const FrozenInvoice& f)
{
    // Amounts are grouped with no-break spaces.
    return QString(QtfToPlainText(f.header) + "\n" + QtfToPlainText(f.body) + "\n" +
                   QtfToPlainText(QString(f.footer).replace("$$P", "1")))
        .replace(QChar(0xA0), u' ');
}

} // namespace

class TestInvoiceRender : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        QVERIFY(SaveTemplateToSetup(LoadTemplateDir(TN_TEMPLATE_DIR)));
        QVERIFY(
            ExecSql("update SETUP set SETUP_NAME = 'Minta Kft.', SETUP_TAX_NO = '12345676-2-41', "
                    "SETUP_BANK_NAME = 'OTP', SETUP_BANK_ACCT_NO = '11700000-1'"));
        QVERIFY(Setup::current().load());
        QVERIFY(LabelTranslations::current().load());
        QVERIFY(LoadTemplateFromSetup().certified());
    }

    void render_data()
    {
        AddColumns<qint64, qint64, bool, QStringList, QStringList>(
            {"currency", "language", "consolidated", "present", "absent"});
        // 3 + 2 + 3 pieces of 1000 Ft at 27%; a euro at 280 Ft makes 3.57 EUR a piece.
        AddRow("forint", qint64(0), qint64(0), false,
               QStringList{"Sorszám: !P.INVOICE.NO.STR!", "Minta Kft.", "Adószám: 12345676-2-41",
                           "Számlavezető: OTP", "2024.03.05.", "8 000 Ft", "10 160 Ft",
                           "Bruttó végösszeg: tízezer egyszázhatvan Ft", "Teszt termék", "27%"},
               QStringList{"Árfolyam", " / "});
        AddRow("euro with rate block", qint64(1), qint64(0), false,
               QStringList{"Árfolyam: 1 EUR = 280 Ft", "28,56 EUR", "Végösszegek forintban",
                           "7 997 Ft"},
               QStringList{"Bruttó végösszeg:"});
        AddRow("consolidated", qint64(0), qint64(0), true,
               QStringList{"Teljesítés: 2024.03.05.; ÁFA: 27%", "Összesen (2024.03.06., 27%)",
                           "By Items"},
               QStringList{});
        AddRow("English partner", qint64(0), qint64(1), false,
               QStringList{"Invoice No / Sorszám", "Bill To / Vevő", "Hungarian Tax No. / Adószám",
                           "Page / oldal: 1/"},
               QStringList{});
    }

    void render()
    {
        auto [currency, language, consolidated, present, absent] =
            Fetch<qint64, qint64, bool, QStringList, QStringList>(
                {"currency", "language", "consolidated", "present", "absent"});
        QVERIFY(CalcLocalCurrencyTotals(NewOrder({currency, language, consolidated, {}})));
        FrozenInvoice f;
        const Result r = renderOrder(2, f);
        QVERIFY2(r, qPrintable(r.message()));
        const QString text = Plain(f);
        for (const QString& s : present)
            QVERIFY2(text.contains(s), qPrintable(s + " missing from:\n" + text));
        for (const QString& s : absent)
            QVERIFY2(!text.contains(s), qPrintable(s + " unexpected in:\n" + text));
        QVERIFY2(!text.contains("ERROR"), qPrintable(text));
    }

    void dataIsNeverFormatting()
    {
        const QString subject = "[* x] {{a}} `b` \\c !P.TITLE! 100% & C++ --";
        const qint64 id = NewOrder({0, 0, false, subject});
        QVERIFY(ExecSql("update ORDERITEM set ORDERITEM_NAME = '!ORDERHEAD.SUBJECT! ]::||' where "
                        "ORDERITEM_ORDERHEAD_ID = ?",
                        {id}));
        FrozenInvoice f;
        QVERIFY(renderOrder(id, f));
        Report report;
        QVERIFY(PrintCopy(report, f, {0, false, 0, 0, "7", false}, LabelTranslations::current()));
        const QString text = Plain(f);
        QVERIFY2(text.contains(subject), qPrintable(text));
        QVERIFY2(text.contains("!ORDERHEAD.SUBJECT! ]::||"), qPrintable(text));
        QVERIFY(!text.contains("ERROR"));
    }

    // The title of each kind of invoice and copy, and the copy mark, in the partner's language.
    void titleAndCopyMark_data()
    {
        AddColumns<int, int, bool, int, QString, QString>(
            {"type", "copy", "consolidated", "language", "title", "mark"});
        AddRow("invoice", 0, 1, false, 0, QString("Számla"), QString("1. (eredeti)"));
        AddRow("copy", 0, 2, false, 0, QString("Számla (másolat)"), QString("2."));
        AddRow("English", 0, 1, false, 1, QString("Számla / Invoice"),
               QString("1. (Original copy/eredeti)"));
        AddRow("consolidated German", 0, 0, true, 2, QString("Gyűjtőszámla / Konzernrechnung"),
               QString());
        AddRow("cancelling", 1, 0, true, 0, QString("Sztornó számla"), QString());
        AddRow("unknown type", 5, 0, false, 0, QString("Error: invalid ORDERHEAD_TYPE"), QString());
    }

    void titleAndCopyMark()
    {
        auto [type, copy, consolidated, language, title, mark] =
            Fetch<int, int, bool, int, QString, QString>(
                {"type", "copy", "consolidated", "language", "title", "mark"});
        const LabelTranslations& labels = LabelTranslations::current();
        QCOMPARE(InvoiceTitle(type, copy > 1 ? copy - 1 : 0, consolidated, language, labels),
                 title);
        if (!mark.isEmpty())
            QCOMPARE(InvoiceCopyMark(copy, language, labels), mark);
    }

    void refusals_data()
    {
        AddColumns<QString, QString>({"change", "message"});
        AddRow("no items", QString("delete from ORDERITEM"),
               QString("It is not allowed to print an invoice without items."));
        AddRow("uncertified template", QString("update SETUP set SETUP_INVOICE_BODY_QTF = 'x'"),
               QString("Invoice template currently set up is not certified."));
        AddRow(
            "consolidated without its piece",
            QString(
                "update ORDERHEAD set ORDERHEAD_CONSOLIDATED_INVOICE = '1'; update SETUP set "
                "SETUP_INVOICE_CONSOLIDATED_HEADER_QTF = '', SETUP_INVOICE_DIGEST = 'recompute'"),
            QString("doesn't support consolidated invoice"));
        AddRow("logo not a picture",
               QString("insert into LOGO values (1, 'bm90IGEgcGljdHVyZQ=='); update SETUP set "
                       "SETUP_INVOICE_LOGO_PRINT = '1', SETUP_INVOICE_LOGO_ID = 1"),
               QString("is not a picture"));
        AddRow("forint row gone",
               QString("delete from CURRENCYY where CURRENCY_ID = 0; update "
                       "ORDERHEAD set ORDERHEAD_CURRENCY_ID = 1"),
               QString("forint"));
    }

    void refusals()
    {
        auto [change, message] = Fetch<QString, QString>({"change", "message"});
        const qint64 id = NewOrder({});
        for (const QString& sql : change.split("; "))
            QVERIFY(ExecSql(sql));
        if (change.contains("recompute")) {
            QVERIFY(Setup::current().load());
            InvoiceTemplate t = LoadTemplateFromSetup();
            t.setDigest(t.computeDigest());
            QVERIFY(SaveTemplateToSetup(t));
        }
        QVERIFY(Setup::current().load());
        const QString before =
            QueryText("select * from ORDERHEAD") + QueryText("select * from INVOICE");
        ScriptedInteraction interaction;
        InvoiceIssue::Outcome outcome;
        const Result r = InvoiceIssue::print(id, interaction, nullptr, outcome);
        QVERIFY(!r);
        QVERIFY2(r.message().contains(message), qPrintable(r.message()));
        QCOMPARE(QueryText("select * from ORDERHEAD") + QueryText("select * from INVOICE"), before);
    }

    void logo()
    {
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::darkBlue);
        QByteArray png;
        QBuffer buffer(&png);
        QVERIFY(image.save(&buffer, "PNG"));
        QVERIFY(ExecSql("insert into LOGO values (1, ?)", {QString::fromLatin1(png.toBase64())}));
        QVERIFY(
            ExecSql("update SETUP set SETUP_INVOICE_LOGO_PRINT = '1', SETUP_INVOICE_LOGO_ID = 1, "
                    "SETUP_INVOICE_LOGO_SIZE_PERCENT = 50"));
        FrozenInvoice f;
        QVERIFY(renderOrder(NewOrder({}), f));
        QCOMPARE(f.logoId, std::optional<qint64>(1));
        QCOMPARE(f.logoSizePercent, 50.0);
        QVERIFY(f.header.contains("!P.LOGO!"));
        Report report;
        QVERIFY(PrintCopy(report, f, {}, LabelTranslations::current()));
        QVERIFY(report.pageCount() == 1);
    }

    void pdfCopiesAndSample()
    {
        const auto pdfText = [](const QString& path) {
            return RunProcess("pdftotext", {"-layout", path, "-"}).out.replace(QChar(0xA0), u' ');
        };
        const qint64 id = NewOrder({1, 1, false, "Gépek"});
        const QString path = m_company->dir() + "/invoice.pdf";
        PdfInvoiceOutput pdf(path);
        ScriptedInteraction interaction;
        InvoicePrintOptions options;
        options.copies = 2;
        InvoiceIssue::Outcome outcome;
        const Result r = InvoiceIssue::print(id, interaction, &pdf, outcome, options);
        QVERIFY2(r, qPrintable(r.message()));
        QCOMPARE(outcome.invoice.numberText, QString("000001"));
        QString text = pdfText(path);
        QVERIFY2(text.contains("1. (Original copy/eredeti)") && text.contains("Invoice (copy)") &&
                     text.contains("1 EUR = 280 Ft") && text.contains("1/1"),
                 qPrintable(text));
        QCOMPARE(interaction.progressTexts, QStringList{"Printing invoices. Please wait."});

        // A later print is built from the frozen row alone and counts on.
        QVERIFY(ExecSql("update SETUP set SETUP_INVOICE_BODY_QTF = 'changed'"));
        QVERIFY(Setup::current().load());
        options.copies = 1;
        QVERIFY(InvoiceIssue::print(id, interaction, &pdf, outcome, options));
        text = pdfText(path);
        QVERIFY2(text.contains("3.") && text.contains("Gépek") && !text.contains("changed"),
                 qPrintable(text));
        QCOMPARE(QueryText("select ORDERHEAD_PRINTED_COPIES from ORDERHEAD where ORDERHEAD_ID = ?",
                           {id}),
                 QString("3"));

        QVERIFY(SaveTemplateToSetup(LoadTemplateDir(TN_TEMPLATE_DIR)));
        QVERIFY(Setup::current().load());
        QVERIFY(InvoiceIssue::printSample(pdf));
        text = pdfText(path);
        QVERIFY2(text.contains("Invoice Sample") && text.contains("This is an invoice sample."),
                 qPrintable(text));
    }

private:
    Result renderOrder(qint64 id, FrozenInvoice& f) const
    {
        return RenderInvoice(id, LoadTemplateFromSetup(), LabelTranslations::current(), f);
    }
};

QTEST_MAIN(TestInvoiceRender)
#include "tst_invoicerender.moc"
