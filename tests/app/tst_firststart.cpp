// The first start on an empty database folder leads to a company: the demonstration company, a
// new one, or a clean exit; a folder with a company is not asked about.
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "app/FirstStart.h"

#include <QtTest>

Q_DECLARE_METATYPE(Interaction::Choice)

class TestFirstStart : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void choices_data()
    {
        AddColumns<Interaction::Choice, QString, bool>({"choice", "file", "asked"});
        AddRow("demonstration", Interaction::Choice::First, QString("demo.db"), false);
        AddRow("new company", Interaction::Choice::Second, QString("own.db"), true);
        AddRow("exit", Interaction::Choice::Third, QString(), false);
    }
    void choices()
    {
        auto [choice, file, asked] =
            Fetch<Interaction::Choice, QString, bool>({"choice", "file", "asked"});
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
        QCOMPARE(NeedsFirstCompany(dir.path()), file.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestFirstStart)
#include "tst_firststart.moc"
