// The authentication dialog of the webshop download: URL, login name, password and "Save
// password", with the message that says why it is asked.
#pragma once

#include "webshop/WebshopInteraction.h"

#include <QDialog>

#include <memory>

namespace Ui {
class AuthenticationLayout;
}

class AuthenticationDlg : public QDialog
{
    Q_OBJECT

public:
    AuthenticationDlg(const QString& message, const WebshopInteraction::Login& proposal,
                      QWidget* parent = nullptr);
    ~AuthenticationDlg() override;

    WebshopInteraction::Login login() const;

private:
    std::unique_ptr<Ui::AuthenticationLayout> m_ui;
};
