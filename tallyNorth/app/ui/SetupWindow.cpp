#include "SetupWindow.h"

#include "SetupPages.h"

#include "base/Setup.h"
#include "base/ui/EnterLikeTab.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/HelpLink.h"
#include "masterdata/ui/FieldBinding.h"

#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QList<SetupWindow::PageFactory>& AddedPages()
{
    static QList<SetupWindow::PageFactory> factories;
    return factories;
}

} // namespace

SetupWindow::SetupWindow(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("SetupWindow"));
    setWindowTitle(tr("Setup"));
    auto* layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("m_tabs"));
    layout->addWidget(m_tabs);
    m_pages << new SetupCompanyPage << new SetupInvoicePage << new SetupInvoiceTemplatePage
            << new SetupRoundingPage << new SetupAppPage << new SetupDownloadPage
            << new SetupChequePage << new SetupNavPage;
    for (const PageFactory& factory : std::as_const(AddedPages()))
        if (SetupPage* page = factory(this))
            m_pages << page;
    for (SetupPage* page : std::as_const(m_pages))
        m_tabs->addTab(page, page->title());

    auto* buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help, this);
    buttons->setObjectName(QStringLiteral("m_buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &SetupWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SetupWindow::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, &SetupWindow::showHelp);
    layout->addWidget(buttons);
    resize(720, 560);
}

void SetupWindow::addPage(PageFactory factory)
{
    AddedPages().append(std::move(factory));
}

bool SetupWindow::load()
{
    Setup setup;
    if (const Result r = setup.load(); !r) {
        GuiInteraction(this).error(r.message());
        return false;
    }
    for (SetupPage* page : std::as_const(m_pages))
        page->load(setup);
    return true;
}

void SetupWindow::accept()
{
    SetupChanges changes;
    for (SetupPage* page : std::as_const(m_pages))
        page->store(changes);
    GuiInteraction interaction(this);
    for (SetupPage* page : std::as_const(m_pages))
        if (const Result r = page->checkOwn(); !r) {
            m_tabs->setCurrentWidget(page);
            interaction.error(r.message());
            return;
        }
    QString badColumn;
    if (!SaveSetup(changes, interaction, &badColumn)) {
        if (!badColumn.isEmpty())
            if (QWidget* field = FindField(this, badColumn.toLatin1().constData()))
                RevealField(field);
        return;
    }
    for (SetupPage* page : std::as_const(m_pages))
        if (const Result r = page->saveOwn(); !r) {
            m_tabs->setCurrentWidget(page);
            interaction.error(r.message());
            return;
        }
    QDialog::accept();
}

void SetupWindow::showHelp()
{
    auto* page = qobject_cast<SetupPage*>(m_tabs->currentWidget());
    OpenHelp(this, page ? page->helpTopic() : QStringLiteral("ProgramKezelese"));
}

bool SetupWindow::edit(QWidget* parent)
{
    SetupWindow window(parent);
    if (!window.load())
        return false;
    return window.exec() == QDialog::Accepted;
}
