#include "NavSettings.h"

#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QCryptographicHash>

QString NavSettings::serviceUrl() const
{
    if (!url.trimmed().isEmpty()) {
        QString u = url.trimmed();
        while (u.endsWith(u'/'))
            u.chop(1);
        return u;
    }
    return production
               ? QStringLiteral("https://api.onlineszamla.nav.gov.hu/invoiceService/v3")
               : QStringLiteral("https://api-test.onlineszamla.nav.gov.hu/invoiceService/v3");
}

bool NavSettings::complete() const
{
    return !login.isEmpty() && !passwordHash.isEmpty() && !signingKey.isEmpty() &&
           !exchangeKey.isEmpty() && !taxNo.isEmpty();
}

QString NavSettings::passwordHashOf(const QString& password)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Sha512).toHex().toUpper());
}

Result NavSettingsStore::load(NavSettings& settings)
{
    SqlStatement st(QStringLiteral(
        "select TN_NAV_SETUP_LOGIN, TN_NAV_SETUP_PASSWORD_HASH, TN_NAV_SETUP_SIGNING_KEY, "
        "TN_NAV_SETUP_EXCHANGE_KEY, TN_NAV_SETUP_TAX_NO, TN_NAV_SETUP_PRODUCTION, "
        "TN_NAV_SETUP_URL from TN_NAV_SETUP limit 1"));
    if (!st.exec())
        return st.failure(tr("Unable to load data from database.&Maybe it is deleted by an other "
                             "user."));
    settings = {};
    if (!st.next())
        return Result::success();
    settings.login = st.value("TN_NAV_SETUP_LOGIN").toString();
    settings.passwordHash = st.value("TN_NAV_SETUP_PASSWORD_HASH").toString();
    settings.signingKey = st.value("TN_NAV_SETUP_SIGNING_KEY").toString();
    settings.exchangeKey = st.value("TN_NAV_SETUP_EXCHANGE_KEY").toString();
    settings.taxNo = st.value("TN_NAV_SETUP_TAX_NO").toString();
    settings.production = IsFlagSet(st.value("TN_NAV_SETUP_PRODUCTION"));
    settings.url = st.value("TN_NAV_SETUP_URL").toString();
    return Result::success();
}

Result NavSettingsStore::save(const NavSettings& settings)
{
    return ExecSql(QStringLiteral("update TN_NAV_SETUP set TN_NAV_SETUP_LOGIN = ?, "
                                  "TN_NAV_SETUP_PASSWORD_HASH = ?, TN_NAV_SETUP_SIGNING_KEY = ?, "
                                  "TN_NAV_SETUP_EXCHANGE_KEY = ?, TN_NAV_SETUP_TAX_NO = ?, "
                                  "TN_NAV_SETUP_PRODUCTION = ?, TN_NAV_SETUP_URL = ?"),
                   {settings.login, settings.passwordHash, settings.signingKey,
                    settings.exchangeKey, settings.taxNo, FlagText(settings.production),
                    settings.url},
                   tr("Unable to save data."));
}
