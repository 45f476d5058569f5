// The report dialogs as a person uses them: the filter controls, the list, the exports through
// the file dialog, the clipboard and the receivables' day-count mode, over the invoices of
// ReportTestData.h.
#include "ModalDriver.h"
#include "ReportTestData.h"
#include "TestCompany.h"
#include "TestData.h"

#include "documents/ui/ReportDlg.h"
#include "documents/ui/ReportModel.h"

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

class TestReportDlg : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_company.isValid());
        QVERIFY(ReportTestData::FillInvoices());
    }

    void customersOfRenamedPartner()
    {
        ByDateReport dlg(ReportKind::Customers);
        dlg.setCurrency(ReportCurrency::Original);
        dlg.setPartnerFilter(true, 1, u"Alfa Zrt."_s);
        Child<QPushButton>(&dlg, "m_button_show")->click();
        QCOMPARE(ColumnTexts(dlg.model(), 0),
                 (QStringList{u"Alfa Kft."_s, u"Alfa Kft."_s, u"Alfa Zrt."_s, u"Total (EUR)"_s,
                              u"Total (HUF)"_s}));
        QCOMPARE(ColumnTexts(dlg.model(), 4),
                 (QStringList{u"100"_s, u"1270"_s, u"127"_s, u"100"_s, u"1397"_s}));
        QCOMPARE(dlg.windowTitle(), u"Customers Report In Original Currency"_s);

        // Copy: the rows without totals, as spreadsheet columns.
        Child<QPushButton>(&dlg, "m_button_copy")->click();
        const QStringList copied = QApplication::clipboard()->text().split(u'\n');
        QCOMPARE(copied.value(0), u"Partner Name\tCurrency\tNet\tVAT\tGross"_s);
        QCOMPARE(copied.value(1), u"Alfa Kft.\tEUR\t100,00\t0,00\t100,00"_s);
        QCOMPARE(copied.size(), 5); // header, three rows, the empty end
    }

    void exports()
    {
        const QList<std::pair<const char*, QByteArray>> formats{
            {"csv", "\xEF\xBB\xBFProduct Name;Qty;Unit;Net"},
            {"txt", "Products Sold Report In Local Currency"},
            {"pdf", "%PDF"}};
        for (const auto& [format, starts] : formats) {
            ByDateReport dlg(ReportKind::ProductsSold);
            dlg.setDateFilter(true, ReportDate::Shipped, QDate(2024, 3, 1), QDate(2024, 3, 31));
            QTemporaryDir dir;
            // The name without its ending gets the ending of the format.
            const QString path = dir.filePath(u"march"_s);
            ModalDriver driver({ChooseFile(path)});
            // Not run yet: the export runs the report first.
            Child<QPushButton>(&dlg, QByteArray("m_button_").append(format).constData())->click();
            QVERIFY(driver.done());
            const QByteArray bytes = FileBytes(path + u'.' + QLatin1StringView(format));
            QVERIFY2(bytes.startsWith(starts), bytes.left(80).constData());
            QCOMPARE(dlg.model()->rowCount(), 2); // Csavar and the total
        }
    }

    void missingDay()
    {
        ByDateReport dlg(ReportKind::Invoices);
        dlg.setDateFilter(true, ReportDate::Created, QDate(2024, 3, 1), QDate());
        QStringList shown;
        ModalDriver driver({Answer(&shown)});
        Child<QPushButton>(&dlg, "m_button_show")->click();
        QVERIFY(driver.done());
        QCOMPARE(shown, QStringList{u"Enter the first and the last day."_s});
        QCOMPARE(dlg.model()->rowCount(), 0);
    }

    void receivablesByDaysElapsed()
    {
        ReceivablesReport dlg(ReportKind::ReceivablesByInvoices);
        // A-3 fell due on 2024-04-15, A-2 on 2024-03-20.
        const int days = int(QDate(2024, 4, 15).daysTo(QDate::currentDate()));
        dlg.setDaysFilter(true, days + 1, days - 1);
        QVERIFY(dlg.runReport());
        QCOMPARE(ColumnTexts(dlg.model(), 0), (QStringList{u"A-3"_s, u"Total"_s}));

        dlg.setDateFilter(false, QDate(), QDate());
        QVERIFY(dlg.runReport());
        QCOMPARE(ColumnTexts(dlg.model(), 7), (QStringList{u"30000"_s, u"1270"_s, u"31270"_s}));
    }

    void showInvoiceNeedsSelection()
    {
        ReceivablesReport dlg(ReportKind::ReceivablesByInvoices);
        QVERIFY(dlg.runReport());
        QStringList shown;
        ModalDriver driver({Answer(&shown)});
        Child<QPushButton>(&dlg, "m_button_show_invoice")->click();
        QVERIFY(driver.done());
        QCOMPARE(shown, QStringList{u"Select an invoice to view."_s});
        // The totals row is no invoice either.
        QCOMPARE(dlg.model()->orderId(2), 0);
        QCOMPARE(dlg.model()->orderId(0), 2);
    }

private:
    TestCompany m_company;
};

QTEST_MAIN(TestReportDlg)
#include "tst_reportdlg.moc"
