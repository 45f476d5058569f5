#include "NavSetupPage.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>

namespace {

QLineEdit* SecretField(QWidget* parent, const char* name)
{
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(QLatin1String(name));
    edit->setEchoMode(QLineEdit::Password);
    return edit;
}

} // namespace

NavSetupPage::NavSetupPage(QWidget* parent)
    : QWidget(parent), m_login(new QLineEdit(this)), m_password(SecretField(this, "m_password")),
      m_signing_key(SecretField(this, "m_signing_key")),
      m_exchange_key(SecretField(this, "m_exchange_key")), m_tax_no(new QLineEdit(this)),
      m_environment(new QComboBox(this)), m_url(new QLineEdit(this))
{
    m_login->setObjectName(QStringLiteral("m_login"));
    m_tax_no->setObjectName(QStringLiteral("m_tax_no"));
    m_environment->setObjectName(QStringLiteral("m_environment"));
    m_url->setObjectName(QStringLiteral("m_url"));
    m_login->setMaxLength(15);
    m_tax_no->setMaxLength(8);
    m_exchange_key->setMaxLength(16);
    m_environment->addItem(tr("Test system"), false);
    m_environment->addItem(tr("Production system"), true);
    m_url->setPlaceholderText(tr("The authority's address for the chosen system"));

    auto* form = new QFormLayout(this);
    auto* note = new QLabel(tr("The technical user is made on the online invoice system's web "
                               "page by the taxpayer's primary user; its login, password, "
                               "signing key and exchange key are given here."),
                            this);
    note->setWordWrap(true);
    form->addRow(note);
    form->addRow(tr("Technical user's login"), m_login);
    form->addRow(tr("Password"), m_password);
    form->addRow(tr("Signing key"), m_signing_key);
    form->addRow(tr("Exchange key"), m_exchange_key);
    form->addRow(tr("Taxpayer id (8 digits)"), m_tax_no);
    form->addRow(tr("System"), m_environment);
    form->addRow(tr("Service address"), m_url);
}

void NavSetupPage::setSettings(const NavSettings& settings)
{
    m_stored = settings;
    m_login->setText(settings.login);
    m_password->clear();
    m_password->setPlaceholderText(settings.passwordHash.isEmpty() ? QString() : tr("(unchanged)"));
    m_signing_key->setText(settings.signingKey);
    m_exchange_key->setText(settings.exchangeKey);
    m_tax_no->setText(settings.taxNo);
    m_environment->setCurrentIndex(settings.production ? 1 : 0);
    m_url->setText(settings.url);
}

Result NavSetupPage::settings(NavSettings& settings) const
{
    settings = m_stored;
    settings.login = m_login->text().trimmed();
    if (!m_password->text().isEmpty())
        settings.passwordHash = NavSettings::passwordHashOf(m_password->text());
    settings.signingKey = m_signing_key->text().trimmed();
    settings.exchangeKey = m_exchange_key->text().trimmed();
    settings.taxNo = m_tax_no->text().trimmed();
    settings.production = m_environment->currentData().toBool();
    settings.url = m_url->text().trimmed();
    // Empty settings are allowed: the company does not report online (yet).
    const bool any = !settings.login.isEmpty() || !settings.taxNo.isEmpty() ||
                     !settings.signingKey.isEmpty() || !settings.exchangeKey.isEmpty();
    if (!any)
        return Result::success();
    if (!QRegularExpression(QStringLiteral("^[A-Za-z0-9]{6,15}$")).match(settings.login).hasMatch())
        return Result::failure(tr("The login of the technical user is 6 to 15 letters or "
                                  "digits."));
    if (settings.passwordHash.isEmpty())
        return Result::failure(tr("Password field must have a value."));
    if (settings.signingKey.isEmpty())
        return Result::failure(tr("Signing key field must have a value."));
    if (settings.exchangeKey.toUtf8().size() != 16)
        return Result::failure(tr("The exchange key is 16 characters long."));
    if (!QRegularExpression(QStringLiteral("^[0-9]{8}$")).match(settings.taxNo).hasMatch())
        return Result::failure(tr("The taxpayer id is the first 8 digits of the tax number."));
    if (!settings.url.isEmpty() && !settings.url.startsWith(QLatin1String("https://")) &&
        !settings.url.startsWith(QLatin1String("http://127.0.0.1")) &&
        !settings.url.startsWith(QLatin1String("http://localhost")))
        return Result::failure(
            tr("The service address must begin with https:// (or name this computer)."));
    return Result::success();
}

Result NavSetupPage::load()
{
    NavSettings stored;
    if (Result r = NavSettingsStore::load(stored); !r)
        return r;
    setSettings(stored);
    return Result::success();
}

Result NavSetupPage::save()
{
    NavSettings values;
    if (Result r = settings(values); !r)
        return r;
    if (Result r = NavSettingsStore::save(values); !r)
        return r;
    m_stored = values;
    return Result::success();
}
