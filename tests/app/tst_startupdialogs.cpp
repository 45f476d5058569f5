// The dialogs of start-up: the company chooser hands back the chosen file and can add a company,
// the check list reports its ticks, the SQL error dialog answers Retry or Cancel.
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
#include <QTimer>
#include <QtTest>

namespace {

CompanyEntry Entry(const QString& file, const QString& name, const QString& taxNo)
{
    CompanyEntry e;
    e.path = QStringLiteral("/companies/") + file;
    e.name = name;
    e.taxNo = taxNo;
    e.city = QStringLiteral("Budapest");
    return e;
}

// Runs action on the next modal dialog of type T once it is shown.
template <typename T> void OnNextDialog(std::function<void(T*)> action)
{
    QTimer::singleShot(0, [action] {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            if (auto* dlg = qobject_cast<T*>(w); dlg && dlg->isVisible()) {
                action(dlg);
                return;
            }
        }
        OnNextDialog<T>(action);
    });
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
    void sqlErrorRetryOrCancel();
};

void TestStartupDialogs::companyModel()
{
    CompanyListModel model(
        {Entry(QStringLiteral("a.db"), QStringLiteral("A Kft."), QStringLiteral("1"))});
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(model.columnCount(), 5);
    const QStringList headers{QStringLiteral("Name"), QStringLiteral("ZIP"), QStringLiteral("City"),
                              QStringLiteral("Address"), QStringLiteral("Tax No")};
    for (int c = 0; c < 5; ++c)
        QCOMPARE(model.headerData(c, Qt::Horizontal).toString(), headers.at(c));
    model.append(Entry(QStringLiteral("b.db"), QStringLiteral("B Bt."), QStringLiteral("2")));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.index(1, CompanyListModel::TaxNo).data().toString(), QStringLiteral("2"));
    QCOMPARE(model.index(1, 0).data(CompanyListModel::PathRole).toString(),
             QStringLiteral("/companies/b.db"));
}

void TestStartupDialogs::chooserReturnsSelectedFile()
{
    DatabaseSelectDlg dlg(
        {Entry(QStringLiteral("a.db"), QStringLiteral("A Kft."), QStringLiteral("1")),
         Entry(QStringLiteral("b.db"), QStringLiteral("B Bt."), QStringLiteral("2"))},
        QString());
    QCOMPARE(dlg.windowTitle(), QStringLiteral("Select Database/Company"));
    QCOMPARE(dlg.selectedPath(), QStringLiteral("/companies/a.db"));
    auto* list = dlg.findChild<QTableView*>(QStringLiteral("m_list"));
    QVERIFY(list);
    list->selectRow(1);
    QCOMPARE(dlg.selectedPath(), QStringLiteral("/companies/b.db"));
    dlg.show();
    dlg.findChild<QPushButton*>(QStringLiteral("m_ok"))->click();
    QCOMPARE(dlg.result(), int(QDialog::Accepted));
}

void TestStartupDialogs::newCompanyIsAddedAndSelected()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    DatabaseSelectDlg dlg(
        {Entry(QStringLiteral("a.db"), QStringLiteral("A Kft."), QStringLiteral("1"))}, dir.path());
    OnNextDialog<NewCompanyDlg>([](NewCompanyDlg* form) {
        form->findChild<QLineEdit*>(QStringLiteral("m_name"))
            ->setText(QStringLiteral("Új Cég Kft."));
        form->findChild<QLineEdit*>(QStringLiteral("m_tax_no"))
            ->setText(QStringLiteral("33333333-2-43"));
        form->accept();
    });
    dlg.findChild<QPushButton*>(QStringLiteral("m_new"))->click();
    QCOMPARE(dlg.selectedPath(), dir.filePath(QStringLiteral("uj_ceg_kft.db")));
    QCOMPARE(ReadCompanyEntry(dlg.selectedPath()).taxNo, QStringLiteral("33333333-2-43"));
}

void TestStartupDialogs::checkItemsReportsTicks()
{
    CheckItemsDlg dlg(
        QStringLiteral("Select Payment Methods To Set Unpaid"), QStringLiteral("Payment Method"),
        QStringLiteral("Set To Unpaid"),
        {QStringLiteral("Csekk"), QStringLiteral("Készpénz"), QStringLiteral("Átutalás")});
    QCOMPARE(dlg.windowTitle(), QStringLiteral("Select Payment Methods To Set Unpaid"));
    auto* list = dlg.findChild<QTableWidget*>(QStringLiteral("m_list"));
    QCOMPARE(list->horizontalHeaderItem(1)->text(), QStringLiteral("Set To Unpaid"));
    QCOMPARE(dlg.checked(), QList<bool>({false, false, false}));
    list->item(2, 1)->setCheckState(Qt::Checked);
    QCOMPARE(dlg.checked(), QList<bool>({false, false, true}));
}

void TestStartupDialogs::sqlErrorRetryOrCancel()
{
    for (const char* button : {"m_retry", "m_cancel"}) {
        OnNextDialog<SqlErrorDlg>([button](SqlErrorDlg* dlg) {
            QCOMPARE(dlg->findChild<QPlainTextEdit*>(QStringLiteral("m_statement"))->toPlainText(),
                     QStringLiteral("drop index X"));
            dlg->findChild<QPushButton*>(QLatin1String(button))->click();
        });
        QCOMPARE(SqlErrorDlg::askRetry(QStringLiteral("no such index: X"),
                                       QStringLiteral("drop index X"), nullptr),
                 qstrcmp(button, "m_retry") == 0);
    }
}

QTEST_MAIN(TestStartupDialogs)
#include "tst_startupdialogs.moc"
