// The setup window against a real company: every field it shows is written and read back, and a
// template without its folder is kept (the checks are tst_setupsave's).
#include "CompanyTestCase.h"
#include "ModalDriver.h"
#include "TestData.h"

#include "app/ui/SetupPage.h"
#include "app/ui/SetupWindow.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

#include "Columns.h"

namespace {

// Gives every bound field of the window a value other than the one it shows.
void ChangeEveryField(QWidget* window)
{
    const QHash<QString, QString> texts = {
        {"m_tax_no", "11111111-2-42"},
        {"m_eu_vat_reg_no", "HU11111111"},
        {"m_invoice_no_prefix", "VT-"},
    };
    for (QLineEdit* edit : window->findChildren<QLineEdit*>()) {
        // The NAV page checks and stores its fields itself (tst_navsetuppage).
        if (!edit->objectName().startsWith(u"m_") || edit->parent()->inherits("QAbstractSpinBox") ||
            edit->parent()->inherits("NavSetupPage"))
            continue;
        edit->setText(texts.value(edit->objectName(), edit->objectName().mid(2) + u'!'));
    }
    for (QCheckBox* check : window->findChildren<QCheckBox*>())
        check->setChecked(!check->isChecked());
    for (QSpinBox* spin : window->findChildren<QSpinBox*>())
        spin->setValue(spin->value() == spin->minimum() + 3 ? spin->minimum() + 2
                                                            : spin->minimum() + 3);
    for (QDoubleSpinBox* spin : window->findChildren<QDoubleSpinBox*>())
        spin->setValue(spin->value() + 7.5);
    for (QComboBox* combo : window->findChildren<QComboBox*>())
        if (combo->objectName().startsWith(u"m_") && combo->count() > 1)
            combo->setCurrentIndex(combo->count() - 1);
    // Kept, so that the password is stored and can be read back.
    window->findChild<QCheckBox*>(u"m_download_save_password"_qs)->setChecked(true);
}

} // namespace

class TestSetupWindow : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void everyFieldRoundTrip()
    {
        SetupWindow window;
        QVERIFY(window.load());
        ChangeEveryField(&window);
        SetupChanges expected;
        for (SetupPage* page : window.pages())
            page->store(expected);
        QVERIFY(expected.values.size() >= 50);
        QCOMPARE(expected.homeCurrency.size(), 5);

        QStringList shown;
        ModalDriver driver({Answer(&shown)}); // the year-in-prefix notice must not come
        window.accept();
        QCOMPARE(window.result(), int(QDialog::Accepted));
        QVERIFY(shown.isEmpty());

        Setup stored;
        QVERIFY(stored.load().ok());
        for (auto it = expected.values.cbegin(); it != expected.values.cend(); ++it) {
            const QByteArray column = it.key().toLatin1();
            QVERIFY2(stored.text(column.constData()) == it.value().toString(), column.constData());
        }
        for (auto it = expected.homeCurrency.cbegin(); it != expected.homeCurrency.cend(); ++it)
            QCOMPARE(
                SelectValue(
                    QStringLiteral("select %1 from CURRENCYY where CURRENCY_ID = 0").arg(it.key()))
                    .toInt(),
                it.value().toInt());
        QCOMPARE(SelectValue(QStringLiteral("select count(*) from SETUP")).toInt(), 1);
        // What the program reads everywhere follows at once.
        QCOMPARE(Setup::current().text(Col::SETUP_NAME), QStringLiteral("name!"));

        // Opened again, the window shows what was saved.
        SetupWindow again;
        QVERIFY(again.load());
        SetupChanges reread;
        for (SetupPage* page : again.pages())
            page->store(reread);
        QVERIFY(reread.values.size() >= 50);
        for (auto it = reread.values.cbegin(); it != reread.values.cend(); ++it)
            QVERIFY2(expected.values.value(it.key()).toString() == it.value().toString(),
                     qPrintable(it.key()));
    }

    // A template stored without its folder stays on saving.
    void unnamedTemplateKept()
    {
        QVERIFY(Setup::write({{"SETUP_NAME", "Kft"},
                              {"SETUP_ZIP", "1000"},
                              {"SETUP_CITY", "Budapest"},
                              {"SETUP_ADDRESS", "Fő utca 1."},
                              {"SETUP_TAX_NO", "12345676-2-41"},
                              {"SETUP_INVOICE_CURRENCY_ID", 0},
                              {"SETUP_INVOICE_CURR_TMPL_DIR", QVariant()},
                              {"SETUP_INVOICE_HEADER_QTF", "[* own header]"},
                              {"SETUP_CHEQUE_CURR_TMPL_DIR", QVariant()},
                              {"SETUP_CHEQUE_QTF", "[* own cheque]"}}));
        SetupWindow window;
        QVERIFY(window.load());
        window.accept();
        QCOMPARE(window.result(), int(QDialog::Accepted));
        QCOMPARE(QueryText("select SETUP_INVOICE_HEADER_QTF, SETUP_CHEQUE_QTF from SETUP"),
                 "[* own header]|[* own cheque]");
    }
};

QTEST_MAIN(TestSetupWindow)
#include "tst_setupwindow.moc"
