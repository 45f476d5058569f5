// The "NAV" page of the settings: the technical user of the online invoice system, the seller's
// taxpayer id, test or production, and the service's address. The secrets are shown masked and
// never read back into the fields: an empty password field keeps the stored password.
#pragma once

#include "base/Result.h"
#include "nav/NavSettings.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

class NavSetupPage : public QWidget
{
    Q_OBJECT

public:
    explicit NavSetupPage(QWidget* parent = nullptr);

    void setSettings(const NavSettings& settings);
    // The fields' values; false with the field named in message when one is wrong.
    Result settings(NavSettings& settings) const;

    // Reads and writes TN_NAV_SETUP.
    Result load();
    Result save();

private:
    NavSettings m_stored;
    QLineEdit* m_login;
    QLineEdit* m_password;
    QLineEdit* m_signing_key;
    QLineEdit* m_exchange_key;
    QLineEdit* m_tax_no;
    QComboBox* m_environment;
    QLineEdit* m_url;
};
