#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

QString ChooseLanguage(const QString& commandLineChoice)
{
    QString lang = commandLineChoice;
    if (lang.isEmpty())
        lang = qEnvironmentVariable("TALLYNORTH_LANG");
    lang = lang.trimmed().toLower();
    return lang.startsWith(QLatin1String("en")) ? QStringLiteral("en") : QStringLiteral("hu");
}

bool InstallLanguage(const QString& language)
{
    auto* app = QCoreApplication::instance();
    if (language == QLatin1String("en")) {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        // Plural forms and the few source texts written in Hungarian.
        auto* own = new QTranslator(app);
        if (!own->load(QStringLiteral(":/i18n/tallyNorth_en.qm")))
            return false;
        QCoreApplication::installTranslator(own);
        return true;
    }
    QLocale::setDefault(QLocale(QLocale::Hungarian, QLocale::Hungary));
    auto* qt = new QTranslator(app);
    if (qt->load(QLocale(QLocale::Hungarian), QStringLiteral("qtbase"), QStringLiteral("_"),
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(qt);
    auto* own = new QTranslator(app);
    if (!own->load(QStringLiteral(":/i18n/tallyNorth_hu.qm")))
        return false;
    QCoreApplication::installTranslator(own);
    return true;
}
