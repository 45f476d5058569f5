// Every menu and command of the main window has an Alt+letter access key, in both languages,
// and no letter stands twice within one menu (Qt would then only cycle between them).
#include "app/Language.h"
#include "app/ui/MainWindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QTranslator>
#include <QtTest>

namespace {

// The access key of a caption: the character after a single "&".
QChar AccessKey(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'&')
            continue;
        if (text[i + 1] == u'&') {
            ++i;
            continue;
        }
        return text[i + 1].toLower();
    }
    return {};
}

// Problems of one menu's entries, with the menu's name for the message.
void CheckMenu(const QString& name, const QList<QAction*>& actions, QStringList& problems)
{
    QHash<QChar, QString> taken;
    for (QAction* action : actions) {
        if (action->isSeparator())
            continue;
        const QChar key = AccessKey(action->text());
        if (key.isNull()) {
            problems << name + QStringLiteral(": no key in ") + action->text();
            continue;
        }
        if (taken.contains(key))
            problems << name + QStringLiteral(": ") + key + QStringLiteral(" in ") +
                            taken.value(key) + QStringLiteral(" and ") + action->text();
        taken.insert(key, action->text());
        if (QMenu* sub = action->menu())
            CheckMenu(action->text(), sub->actions(), problems);
    }
}

} // namespace

class TestMenuKeys : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void accessKeys_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("hu") << "hu";
        QTest::newRow("en") << "en";
    }
    void accessKeys()
    {
        QFETCH(QString, language);
        QVERIFY(InstallLanguage(language));
        MainWindow window;
        QStringList problems;
        CheckMenu(QStringLiteral("menu bar"), window.menuBar()->actions(), problems);
        QVERIFY2(problems.isEmpty(), qPrintable(problems.join(u'\n')));
        // The translation is in use: the file menu is not the English source in Hungarian.
        const QString file = window.menuBar()->actions().first()->text();
        QCOMPARE(file, language == QLatin1String("hu") ? QStringLiteral("&Fájl")
                                                       : QStringLiteral("&File"));
        for (QTranslator* t : qApp->findChildren<QTranslator*>())
            QCoreApplication::removeTranslator(t);
    }
};

QTEST_MAIN(TestMenuKeys)
#include "tst_menukeys.moc"
