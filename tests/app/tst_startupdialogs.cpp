// The dialogs of start-up: the company chooser hands back the chosen file and can add a company,
// the check list reports its ticks, the SQL error dialog answers Retry or Cancel.
#include "ModalDriver.h"
#include "TestData.h"

#include "app/CompanyCreate.h"
#include "app/CompanyList.h"
#include "app/ui/CheckItemsDlg.h"
#include "app/ui/CompanyListModel.h"
#include "app/ui/DatabaseSelectDlg.h"
#include "app/ui/NewCompanyDlg.h"
#include "app/ui/SqlErrorDlg.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTableWidget>
#include <QtTest>

namespace {

CompanyEntry Entry(const QString& file, const QString& name, const QString& taxNo = {})
{
    return {"/companies/" + file, name, {}, "Budapest", {}, taxNo};
}

} // namespace

class TestStartupDialogs : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void companyModel();
    void chooserReturnsSelectedFile();
    void newCompanyIsAddedAndSelected();
    void checkItemsReportsTicks();
    void sqlErrorRetryOrCancel_data();
    void sqlErrorRetryOrCancel();
};

void TestStartupDialogs::companyModel()
{
    CompanyListModel model({Entry("a.db", "A Kft.")});
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.columnCount(), 5);
    model.append(Entry("b.db", "B Bt.", "2"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(1, CompanyListModel::TaxNo).data(), "2");
    QCOMPARE(model.index(1, 0).data(CompanyListModel::PathRole), "/companies/b.db");
}

void TestStartupDialogs::chooserReturnsSelectedFile()
{
    DatabaseSelectDlg dlg({Entry("a.db", "A Kft."), Entry("b.db", "B Bt.")}, QString());
    QCOMPARE(dlg.selectedPath(), "/companies/a.db");
    Child<QTableView>(&dlg, "m_list")->selectRow(1);
    QCOMPARE(dlg.selectedPath(), "/companies/b.db");
    dlg.show();
    Child<QPushButton>(&dlg, "m_ok")->click();
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
}

void TestStartupDialogs::newCompanyIsAddedAndSelected()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    DatabaseSelectDlg dlg({Entry("a.db", "A Kft.")}, dir.path());
    ModalDriver driver({[](QWidget* form) {
        Child<QLineEdit>(form, "m_name")->setText("Új Cég Kft.");
        Child<QLineEdit>(form, "m_tax_no")->setText("33333333-2-43");
        static_cast<QDialog*>(form)->accept();
    }});
    Child<QPushButton>(&dlg, "m_new")->click();
    QVERIFY(driver.done());
    QCOMPARE(dlg.selectedPath(), dir.filePath("uj_ceg_kft.db"));
    QCOMPARE(ReadCompanyEntry(dlg.selectedPath()).taxNo, "33333333-2-43");
}

void TestStartupDialogs::checkItemsReportsTicks()
{
    CheckItemsDlg dlg("Select Payment Methods To Set Unpaid", "Payment Method", "Set To Unpaid",
                      {"Csekk", "Készpénz", "Átutalás"});
    auto* list = Child<QTableWidget>(&dlg, "m_list");
    QCOMPARE(dlg.checked(), QList<bool>({false, false, false}));
    list->item(2, 1)->setCheckState(Qt::Checked);
    QCOMPARE(dlg.checked(), QList<bool>({false, false, true}));
}

void TestStartupDialogs::sqlErrorRetryOrCancel_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("retry");
    AddRow("retry", "m_retry", true);
    AddRow("cancel", "m_cancel", false);
}

void TestStartupDialogs::sqlErrorRetryOrCancel()
{
    QFETCH(QString, button);
    QFETCH(bool, retry);
    QString statement;
    ModalDriver driver({[&](QWidget* dlg) {
        statement = Child<QPlainTextEdit>(dlg, "m_statement")->toPlainText();
        Child<QPushButton>(dlg, qPrintable(button))->click();
    }});
    QCOMPARE(SqlErrorDlg::askRetry("no such index: X", "drop index X", nullptr), retry);
    QCOMPARE(statement, "drop index X");
}

QTEST_MAIN(TestStartupDialogs)
#include "tst_startupdialogs.moc"
