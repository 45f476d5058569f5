#include "AuthenticationDlg.h"

#include "ui_AuthenticationLayout.h"

AuthenticationDlg::AuthenticationDlg(const QString& message,
                                     const WebshopInteraction::Login& proposal, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::AuthenticationLayout>())
{
    m_ui->setupUi(this);
    m_ui->m_message->setText(message);
    m_ui->m_url->setText(proposal.url);
    m_ui->m_login->setText(proposal.login);
    m_ui->m_password->setText(proposal.password);
    m_ui->m_save_password->setChecked(proposal.savePassword);
    // Whoever has typed a login before only has the password to give.
    if (proposal.login.isEmpty())
        m_ui->m_login->setFocus();
    else
        m_ui->m_password->setFocus();
    connect(m_ui->m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

AuthenticationDlg::~AuthenticationDlg() = default;

WebshopInteraction::Login AuthenticationDlg::login() const
{
    return {m_ui->m_url->text().trimmed(), m_ui->m_login->text(), m_ui->m_password->text(),
            m_ui->m_save_password->isChecked()};
}
