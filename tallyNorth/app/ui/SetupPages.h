// The setup window's own tabs, in their order. Each is a page of its own, so that a further tab
// is one page class and one SetupWindow::addPage() line.
#pragma once

#include "SetupPage.h"

#include <QByteArray>

#include <optional>

class CurrencyRoundingEditor;
class QComboBox;
class QDialog;
class QLabel;
class QPushButton;

// The folders under root (and root itself) holding cfgName ("invoice.cfg", "cheque.cfg").
QStringList TemplateFolders(const QString& root, const QString& cfgName);

class SetupCompanyPage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupCompanyPage(QWidget* parent = nullptr);
    QString title() const override { return tr("Company Data"); }
};

class SetupInvoicePage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupInvoicePage(QWidget* parent = nullptr);
    QString title() const override { return tr("Invoice"); }
    QString helpTopic() const override { return QStringLiteral("Szamlakeszites"); }
};

class SetupInvoiceTemplatePage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupInvoiceTemplatePage(QWidget* parent = nullptr);
    QString title() const override { return tr("Invoice Template"); }
    QString helpTopic() const override { return QStringLiteral("Szamlakeszites"); }
    void load(const Setup& setup) override;
    void store(SetupChanges& changes) const override;

    // Shows the picture file's bytes as the new logo; false when it is no picture.
    bool takeLogo(const QByteArray& pictureFile);

private:
    void templateChosen(bool tell);
    void testTemplate();
    void openLogo();
    void showLogo(const QByteArray& pictureFile);

    QComboBox* m_template = nullptr;
    QLabel* m_certified = nullptr;
    QLabel* m_logo = nullptr;
    QString m_installedDir;
    std::optional<QByteArray> m_newLogo;
};

class SetupRoundingPage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupRoundingPage(QWidget* parent = nullptr);
    QString title() const override { return tr("Rounding"); }
    QString helpTopic() const override { return QStringLiteral("Szamlakeszites"); }
    void load(const Setup& setup) override;
    void store(SetupChanges& changes) const override;

private:
    CurrencyRoundingEditor* m_editor = nullptr;
};

class SetupAppPage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupAppPage(QWidget* parent = nullptr);
    QString title() const override { return tr("Application behaviour"); }
};

class SetupDownloadPage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupDownloadPage(QWidget* parent = nullptr);
    QString title() const override { return tr("Webshop"); }
    QString helpTopic() const override { return QStringLiteral("Webaruhaz"); }
    void load(const Setup& setup) override;
    void store(SetupChanges& changes) const override;

    QDialog* advancedDialog() const { return m_advanced; }

private:
    void openAdvanced();

    QDialog* m_advanced = nullptr;
};

class SetupChequePage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupChequePage(QWidget* parent = nullptr);
    QString title() const override { return tr("Csekk"); }
    void load(const Setup& setup) override;
    void store(SetupChanges& changes) const override;

private:
    void testPrint();

    QComboBox* m_template = nullptr;
    QString m_installedDir;
};

class NavSetupPage;

// The technical user of the online invoice system, kept in the program's own table.
class SetupNavPage : public SetupPage
{
    Q_OBJECT
public:
    explicit SetupNavPage(QWidget* parent = nullptr);
    QString title() const override { return tr("NAV"); }
    QString helpTopic() const override { return QStringLiteral("NavOnlineSzamla"); }
    void load(const Setup& setup) override;
    Result checkOwn() const override;
    Result saveOwn() override;

private:
    NavSetupPage* m_page = nullptr;
};
