// The help: every topic of the tree is a readable Hungarian document, the addresses resolve,
// and the "Help" buttons open the window on their topic.
#include "ModalDriver.h"
#include "TestData.h"

#include "app/HelpTopics.h"
#include "app/ui/HelpCommands.h"
#include "app/ui/HelpWindow.h"
#include "base/ui/HelpLink.h"
#include "documents/QtfReader.h"
#include "masterdata/ui/MasterBrowses.h"
#include "masterdata/ui/RecordBrowse.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QtTest>

class TestHelp : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyTopicReads_data()
    {
        QTest::addColumn<QString>("id");
        for (const HelpTopic& topic : HelpTopicTree())
            if (!topic.id.isEmpty())
                QTest::newRow(qPrintable(topic.id)) << topic.id;
        QTest::newRow("AboutTemplate") << "AboutTemplate";
    }
    void everyTopicReads()
    {
        QFETCH(QString, id);
        const QString qtf = HelpTopicQtf(HelpTopicAddress(id));
        QVERIFY(!qtf.isEmpty());
        const QString text = QtfToPlainText(qtf);
        // A QTF slip stops the reader with an ERROR mark in the text.
        QVERIFY2(!text.contains(QLatin1String("ERROR:")), qPrintable(text.right(200)));
        QVERIFY(text.size() > 40);
        QCOMPARE(HelpTopicQtf(id), qtf);
    }

    void addresses_data()
    {
        AddColumns<QString, QString>({"topic", "id"});
        AddRow("address", QString("topic://tallyNorth/app/AboutTemplate$hu-hu"),
               QString("AboutTemplate"));
        AddRow("id", QString("Partnerek"), QString("Partnerek"));
        AddRow("unknown", QString("NoSuchTopic"), QString());
        AddRow("path", QString("../Partnerek"), QString());
    }
    void addresses()
    {
        QFETCH(QString, topic);
        QFETCH(QString, id);
        QCOMPARE(HelpTopicQtf(topic).isEmpty(), id.isEmpty());
        if (!id.isEmpty())
            QCOMPARE(HelpTopicId(topic), id);
    }

    // Once the help is installed, the lists' Help buttons are live and name a topic that exists.
    void listHelpButtonsLive()
    {
        InstallHelp();
        for (MasterTable table :
             {MasterTable::Vat, MasterTable::Currency, MasterTable::PaymentMethod,
              MasterTable::NoVatReason, MasterTable::StatNo, MasterTable::Lang,
              MasterTable::Country, MasterTable::Partner}) {
            const BrowseInfo& info = MasterBrowseInfo(table);
            RecordBrowse browse(info, RecordBrowse::Mode::Manage);
            QVERIFY(browse.findChild<QPushButton*>(u"m_help"_qs)->isEnabled());
            QVERIFY2(!HelpTopicQtf(QString::fromLatin1(info.helpTopic)).isEmpty(), info.helpTopic);
        }
    }

    // A dialog's Help button opens the help window over the dialog, on the dialog's topic.
    void helpButtonOpensTopic()
    {
        SetHelpOpener(&HelpWindow::open);
        QDialog dialog;
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Help, &dialog);
        LinkHelp(buttons, QStringLiteral("SztornoSzamla"));
        QString shown;
        ModalDriver driver(
            {[buttons](QWidget*) {
                 Later([buttons] { buttons->button(QDialogButtonBox::Help)->click(); });
             },
             [&shown](QWidget* w) {
                 if (auto* help = qobject_cast<HelpWindow*>(w))
                     shown = help->currentTopic();
                 w->close();
             },
             [](QWidget* w) { w->close(); }});
        dialog.exec();
        QTRY_VERIFY(driver.done());
        QCOMPARE(shown, QStringLiteral("SztornoSzamla"));
    }
};

QTEST_MAIN(TestHelp)
#include "tst_help.moc"
