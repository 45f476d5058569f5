// The setup window against a real company: every field it shows is written and read back, a
// failed check brings its field forward, and a further page is one addPage() call.
#include "CompanyTestCase.h"
#include "ModalDriver.h"

#include "app/ui/SetupPage.h"
#include "app/ui/SetupWindow.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
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

class ExtraPage : public SetupPage
{
public:
    explicit ExtraPage(QWidget* parent) : SetupPage(parent)
    {
        addText(new QFormLayout(this), Col::SETUP_OTHER, QStringLiteral("Other"));
    }
    QString title() const override { return QStringLiteral("Extra"); }
};

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

    void failedCheckShowsItsField()
    {
        SetupWindow window;
        QVERIFY(window.load());
        window.show();
        for (const char* field : {"m_name", "m_zip", "m_address"})
            window.findChild<QLineEdit*>(QString::fromLatin1(field))->setText(u"x"_qs);
        window.findChild<QLineEdit*>(u"m_city"_qs)->clear();
        window.tabs()->setCurrentIndex(4);
        QStringList shown;
        ModalDriver driver({Answer(&shown)});
        window.accept();
        QTRY_VERIFY(driver.done());
        QCOMPARE(shown, QStringList{"City is required."});
        QVERIFY(window.isVisible());
        QCOMPARE(window.tabs()->currentIndex(), 0);
    }

    // A template stored without its folder stays until another set is chosen.
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
        QCOMPARE(
            SelectValue(QStringLiteral("select SETUP_INVOICE_HEADER_QTF from SETUP")).toString(),
            QStringLiteral("[* own header]"));
        QCOMPARE(Setup::current().text("SETUP_CHEQUE_QTF"), QStringLiteral("[* own cheque]"));

        // Choosing the built-in set installs its texts and its folder.
        SetupWindow again;
        QVERIFY(again.load());
        auto* chooser = again.findChild<QComboBox*>(u"m_invoice_template"_qs);
        chooser->setCurrentIndex(chooser->findData(QStringLiteral(":/templates/invoice")));
        auto* cheques = again.findChild<QComboBox*>(u"m_cheque_template"_qs);
        cheques->setCurrentIndex(cheques->findData(QStringLiteral(":/templates/cheque")));
        again.accept();
        QCOMPARE(again.result(), int(QDialog::Accepted));
        QCOMPARE(Setup::current().text("SETUP_INVOICE_CURR_TMPL_DIR"),
                 QStringLiteral(":/templates/invoice"));
        QVERIFY(Setup::current().text("SETUP_INVOICE_HEADER_QTF") !=
                QLatin1String("[* own header]"));
        QCOMPARE(Setup::current().text("SETUP_CHEQUE_CURR_TMPL_DIR"),
                 QStringLiteral(":/templates/cheque"));
        QVERIFY(Setup::current().text("SETUP_CHEQUE_QTF").contains(u"!AMOUNT!"));
    }

    void furtherPage()
    {
        SetupWindow::addPage([](QWidget* parent) { return new ExtraPage(parent); });
        SetupWindow window;
        QVERIFY(window.load());
        QCOMPARE(window.tabs()->tabText(window.tabs()->count() - 1), QStringLiteral("Extra"));
    }
};

QTEST_MAIN(TestSetupWindow)
#include "tst_setupwindow.moc"
