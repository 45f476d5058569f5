// The first start on an empty database folder leads to a company: the demonstration company, a
// new one, or a clean exit; a folder with a company is not asked about.
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "app/CompanyChoice.h"
#include "app/CompanyList.h"
#include "app/FirstStart.h"

#include <QtTest>

Q_DECLARE_METATYPE(Interaction::Choice)

class TestFirstStart : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void choices_data()
    {
        QTest::addColumn<Interaction::Choice>("choice");
        QTest::addColumn<QString>("file");
        QTest::addColumn<bool>("asked");
        QTest::newRow("demonstration") << Interaction::Choice::First << "demo.db" << false;
        QTest::newRow("new company") << Interaction::Choice::Second << "own.db" << true;
        QTest::newRow("exit") << Interaction::Choice::Third << QString() << false;
    }
    void choices()
    {
        QFETCH(Interaction::Choice, choice);
        QFETCH(QString, file);
        QFETCH(bool, asked);
        QTemporaryDir dir;
        QVERIFY(NeedsFirstCompany(dir.path()));
        ScriptedInteraction interaction;
        interaction.choiceAnswers.enqueue(choice);
        bool newAsked = false;
        const QString made = OfferFirstCompany(dir.path(), interaction, [&] {
            newAsked = true;
            QFile own(dir.filePath(QStringLiteral("own.db")));
            return own.open(QIODevice::WriteOnly) ? own.fileName() : QString();
        });
        QCOMPARE(interaction.questions.size(), 1);
        QCOMPARE(newAsked, asked);
        QCOMPARE(QFileInfo(made).fileName(), file);
        if (file.isEmpty())
            return;
        QVERIFY(!NeedsFirstCompany(dir.path()));
        // The start then opens it without a further question.
        ScriptedInteraction start;
        const QString chosen = ChooseStartupDatabase(
            {}, dir.path(), start, [](const QList<CompanyEntry>&) { return std::nullopt; });
        QCOMPARE(QFileInfo(chosen).fileName(), file);
    }

    // The demonstration company made here opens as a company does.
    void demonstrationCompanyOpens()
    {
        QTemporaryDir dir;
        ScriptedInteraction interaction;
        interaction.choiceAnswers.enqueue(Interaction::Choice::First);
        const QString made = OfferFirstCompany(dir.path(), interaction, {});
        QVERIFY(!made.isEmpty());
        QVERIFY(OpenCompany(made, interaction).ok());
    }
};

QTEST_GUILESS_MAIN(TestFirstStart)
#include "tst_firststart.moc"
