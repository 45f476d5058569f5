#include "MainWindow.h"

#include "ProgramIcon.h"
#include "base/ui/EnterLikeTab.h"
#include "base/ui/ListTab.h"

#include "Columns.h"
#include "base/Database.h"
#include "base/ProgramInfo.h"
#include "base/Setup.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kTabCount = 4;

int TabIndex(MainTab tab)
{
    return static_cast<int>(tab);
}

// Stands in for a list that has not been given to the window.
class PlaceholderPage : public ListTab
{
public:
    explicit PlaceholderPage(QWidget* parent = nullptr) : ListTab(parent)
    {
        auto* label = new QLabel(MainWindow::tr("This list is not available yet."), this);
        label->setAlignment(Qt::AlignCenter);
        label->setEnabled(false);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(label);
    }
    void reload() override {}
};

} // namespace

QString MainWindowTitle(const QString& name, const QString& taxNo)
{
    return ProgramName() + QLatin1String(" - ") + name + QStringLiteral(" (adószám:") + taxNo +
           u')';
}

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(MainWindowTitle({}, {}));
    setWindowIcon(ProgramIcon());
    resize(1180, 720);
    buildMenus();
    updateSubmenus();
    buildToolBar();
    buildTabs();
    m_fileLabel = new QLabel(this);
    m_fileLabel->setObjectName(QStringLiteral("m_company_file"));
    statusBar()->addPermanentWidget(m_fileLabel);
}

MainWindow::~MainWindow() = default;

QAction* MainWindow::addCommand(QMenu* menu, MainCommand command, const QString& caption,
                                const QString& help)
{
    QAction* action = menu->addAction(caption);
    action->setStatusTip(help);
    action->setEnabled(false);
    m_actions[command] = action;
    return action;
}

void MainWindow::buildMenus()
{
    QStyle* s = style();
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("m_menu_file"));
    QAction* newOrder = addCommand(file, MainCommand::NewOrder, tr("&New Order / Invoice..."),
                                   tr("Create new order / invoice"));
    newOrder->setIcon(s->standardIcon(QStyle::SP_FileIcon));
    newOrder->setShortcut(QKeySequence::New);
    addCommand(file, MainCommand::Setup, tr("&Setup..."),
               tr("Setup your company's data and application defaults"))
        ->setIcon(s->standardIcon(QStyle::SP_FileDialogDetailedView));
    QMenu* backup = file->addMenu(s->standardIcon(QStyle::SP_DialogSaveButton), tr("&Backup"));
    m_submenus << backup;
    backup->menuAction()->setStatusTip(tr("Do or restore backup"));
    addCommand(backup, MainCommand::DoBackup, tr("&Do backup..."), tr("Do backup of your database"))
        ->setIcon(s->standardIcon(QStyle::SP_DialogSaveButton));
    addCommand(backup, MainCommand::RestoreBackup, tr("&Restore backup..."),
               tr("Restore backup of your database"))
        ->setIcon(s->standardIcon(QStyle::SP_BrowserReload));
    addCommand(file, MainCommand::ChangeCompany, tr("&Change database/company..."),
               tr("Change database to an other one if you want to work with an other company"))
        ->setIcon(s->standardIcon(QStyle::SP_DirOpenIcon));
    addCommand(file, MainCommand::NewCompany, tr("Ne&w company..."),
               tr("Create a new company database"))
        ->setIcon(s->standardIcon(QStyle::SP_FileDialogNewFolder));
    file->addSeparator();
    QAction* exit = addCommand(file, MainCommand::Exit, tr("E&xit"),
                               tr("Finish editing and close this window"));
    exit->setIcon(s->standardIcon(QStyle::SP_DialogCloseButton));
    exit->setShortcut(QKeySequence::Quit);
    exit->setMenuRole(QAction::QuitRole);

    QMenu* basic = menuBar()->addMenu(tr("&Basic Data"));
    addCommand(basic, MainCommand::VatKeys, tr("&VAT Keys"), tr("Change VAT keys"));
    addCommand(basic, MainCommand::NoVatReasons, tr("&No VAT Reasons"),
               tr("Manage No VAT Reasons"));
    addCommand(basic, MainCommand::PaymentMethods, tr("&Payment methods"),
               tr("Change payment methods"));
    addCommand(basic, MainCommand::StatNumbers, tr("&Stat Numbers"),
               tr("Change often used stat numbers"));
    addCommand(basic, MainCommand::Languages, tr("&Languages"), tr("Change languages"));
    addCommand(basic, MainCommand::Countries, tr("C&ountries"), tr("Manage countries"));
    addCommand(basic, MainCommand::Currencies, tr("&Currencies, Bank Accounts and Rates"),
               tr("Manage currencies, bank accounts and rates"));
    addCommand(basic, MainCommand::LabelTranslations, tr("&Invoice Label Translations"),
               tr("Manage invoice label translations"));

    QMenu* webshop = menuBar()->addMenu(tr("&Webshop"));
    addCommand(webshop, MainCommand::DownloadOrders, tr("Download &orders"),
               tr("Download external orders from web, based on Setup"))
        ->setIcon(s->standardIcon(QStyle::SP_ArrowDown));
    addCommand(webshop, MainCommand::DownloadProducts, tr("Download pro&ducts"),
               tr("Download external products from web, based on Setup"));
    addCommand(webshop, MainCommand::DownloadPartners, tr("Download p&artners"),
               tr("Download external partners from web, based on Setup"));
    webshop->addSeparator();
    // Source texts in Hungarian without accents: both translations give the readable text.
    addCommand(webshop, MainCommand::ImportOrders, tr("&Szamlak importalasa fajlbol"),
               tr("Szamlakat tartalmazo fajl megnyitasa es importalasa"))
        ->setIcon(s->standardIcon(QStyle::SP_DialogOpenButton));
    addCommand(webshop, MainCommand::ImportProducts,
               tr("Termekek/szolgaltatasok &importalasa fajlbol"),
               tr("Termekeket/szolgaltatasokat tartalmazo fajl megnyitasa es importalasa"));
    addCommand(webshop, MainCommand::ImportPartners, tr("&Partnerek importalasa fajlbol"),
               tr("Partnereket tartalmazo fajl megnyitasa es importalasa"));

    QMenu* nav = menuBar()->addMenu(tr("&NAV"));
    addCommand(nav, MainCommand::NavReport, tr("&Report invoices to NAV"),
               tr("Send the issued invoices waiting for their report to the online invoice "
                  "system"));
    addCommand(nav, MainCommand::NavSetup, tr("NAV &settings..."),
               tr("The technical user of the online invoice system"));

    QMenu* reports = menuBar()->addMenu(tr("&Reports"));
    addCommand(reports, MainCommand::OutgoingInvoices, tr("Outgoing &Invoices"),
               tr("Print or export list of invoices"));
    addCommand(reports, MainCommand::OutgoingInvoiceItems, tr("Outgoing Invoice I&tems"),
               tr("Print or export list of invoice items"));
    addCommand(reports, MainCommand::CustomersReport, tr("&Customers Report"),
               tr("Print or export sum of sales grouped by partners"));
    addCommand(reports, MainCommand::ProductsSoldReport, tr("&Products Sold Report"),
               tr("Print or export sum of sales grouped by products"));
    QMenu* receivables = reports->addMenu(tr("&Receivables"));
    m_submenus << receivables;
    addCommand(receivables, MainCommand::ReceivablesByInvoices, tr("Receivables by &invoices"),
               tr("Print or export unpaid invoices"));
    addCommand(receivables, MainCommand::ReceivablesByPartners, tr("Receivables by &partners"),
               tr("Print or export unpaid invoices grouped by partners"));

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    QAction* topics = addCommand(help, MainCommand::HelpTopics, tr("&Help Topics"),
                                 tr("Show the list of Help topics"));
    topics->setIcon(s->standardIcon(QStyle::SP_DialogHelpButton));
    topics->setShortcut(QKeySequence::HelpContents);
    addCommand(help, MainCommand::Declaration, tr("&Nyilatkozat"),
               tr("24/1995. (XI. 22.) PM rendelet szerinti nyilatkozat megjelenitese"));
    help->addSeparator();
    addCommand(help, MainCommand::About, tr("&About"),
               tr("Information about the program, its version and developer"))
        ->setMenuRole(QAction::AboutRole);
}

void MainWindow::buildToolBar()
{
    QToolBar* bar = addToolBar(tr("Main toolbar"));
    bar->setObjectName(QStringLiteral("m_toolbar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->addAction(action(MainCommand::NewOrder));
    bar->addAction(action(MainCommand::DownloadOrders));
    bar->addSeparator();
    bar->addAction(action(MainCommand::DoBackup));
    bar->addAction(action(MainCommand::ChangeCompany));
    bar->addSeparator();
    bar->addAction(action(MainCommand::HelpTopics));
}

void MainWindow::buildTabs()
{
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("m_tabs"));
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(new PlaceholderPage, tr("Orders/Invoices"));
    m_tabs->addTab(new PlaceholderPage, tr("Products"));
    m_tabs->addTab(new PlaceholderPage, tr("Partners"));
    // A Hungarian source text: the English translation gives "Cheques".
    m_tabs->addTab(new PlaceholderPage, tr("Csekkek"));
    setCentralWidget(m_tabs);
    connect(m_tabs, &QTabWidget::currentChanged, this, &MainWindow::tabShown);
}

void MainWindow::setCommand(MainCommand command, std::function<void()> handler)
{
    QAction* a = action(command);
    a->disconnect(this);
    a->setEnabled(bool(handler));
    if (handler)
        connect(a, &QAction::triggered, this, [handler = std::move(handler)] { handler(); });
    updateSubmenus();
}

// A submenu is enabled only while one of its commands is.
void MainWindow::updateSubmenus()
{
    for (QMenu* menu : std::as_const(m_submenus)) {
        const QList<QAction*> actions = menu->actions();
        menu->menuAction()->setEnabled(
            std::any_of(actions.begin(), actions.end(), [](QAction* a) { return a->isEnabled(); }));
    }
}

QAction* MainWindow::action(MainCommand command) const
{
    return m_actions.at(command);
}

void MainWindow::setTabPage(MainTab tab, ListTab* page)
{
    const int index = TabIndex(tab);
    const bool current = m_tabs->currentIndex() == index;
    const QString caption = m_tabs->tabText(index);
    QWidget* old = m_tabs->widget(index);
    {
        const QSignalBlocker blocker(m_tabs);
        m_tabs->removeTab(index);
        m_tabs->insertTab(index, page, caption);
        if (current)
            m_tabs->setCurrentIndex(index);
    }
    delete old;
    m_tabState[index] = TabState{};
    connect(page, &ListTab::dataChanged, this, [this, index] { othersChanged(index); });
    if (current)
        showList(index, false);
}

// The other lists that hold rows are read again when next shown.
void MainWindow::othersChanged(int changedIndex)
{
    for (int i = 0; i < kTabCount; ++i)
        if (i != changedIndex && m_tabState[i].loaded)
            m_tabState[i].stale = true;
}

void MainWindow::reloadTab(MainTab tab)
{
    if (ListTab* page = tabPage(tab))
        page->reload();
    othersChanged(TabIndex(tab));
}

ListTab* MainWindow::tabPage(MainTab tab) const
{
    return qobject_cast<ListTab*>(m_tabs->widget(TabIndex(tab)));
}

void MainWindow::showTab(MainTab tab)
{
    m_tabs->setCurrentIndex(TabIndex(tab));
}

void MainWindow::companyChanged()
{
    Setup& setup = Setup::current();
    if (Database::isOpen()) {
        // A settings row that cannot be read leaves the defaults; the lists show what is there.
        (void)setup.load();
        m_companyFile = Database::path();
    }
    setWindowTitle(MainWindowTitle(setup.text(Col::SETUP_NAME), setup.text(Col::SETUP_TAX_NO)));
    m_fileLabel->setText(QDir::toNativeSeparators(m_companyFile));
    EnterLikeTab::setEnabled(setup.flag(Col::SETUP_ENTER_LIKE_TAB));
    m_loadOnStart = setup.flag(Col::SETUP_LOAD_MAIN_WINDOW_DATA_ON_START);
    m_refreshOnTabChange = setup.flag(Col::SETUP_REFRESH_MAIN_WINDOW_DATA_ON_TAB_CHANGE);
    m_started = true;
    for (TabState& state : m_tabState) {
        state.stale = state.shown || state.loaded;
        state.loaded = false;
    }
    showList(m_tabs->currentIndex(), false);
}

void MainWindow::tabShown(int index)
{
    showList(index, true);
}

// A list is read when the settings ask for it, and always when it may show rows of an earlier
// session or company. With load-on-start, every tab is read the first time it is shown.
void MainWindow::showList(int index, bool selected)
{
    if (index < 0 || index >= kTabCount)
        return;
    TabState& state = m_tabState[index];
    if (!m_started)
        return;
    state.shown = true;
    if (!Database::isOpen())
        return;
    if (state.stale || (selected && m_refreshOnTabChange) || (m_loadOnStart && !state.loaded))
        loadTab(index);
}

void MainWindow::loadTab(int index)
{
    auto* page = qobject_cast<ListTab*>(m_tabs->widget(index));
    if (!page)
        return;
    page->reload();
    m_tabState[index].loaded = true;
    m_tabState[index].stale = false;
}
