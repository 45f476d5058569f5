#include "SetupPages.h"

#include "app/BaseFolder.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"
#include "base/ui/EnterLikeTab.h"
#include "base/ui/GuiInteraction.h"
#include "documents/ChequePrinting.h"
#include "documents/ChequeTemplate.h"
#include "documents/InvoiceIssue.h"
#include "documents/InvoiceTemplate.h"
#include "documents/ui/InvoicePrinting.h"
#include "masterdata/DiscountType.h"
#include "masterdata/MasterTables.h"
#include "masterdata/ui/CurrencyRoundingEditor.h"
#include "masterdata/ui/FieldBinding.h"
#include "masterdata/ui/MasterBrowses.h"
#include "nav/ui/NavSetupPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QDoubleSpinBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "Columns.h"

using namespace Col;

QStringList TemplateFolders(const QString& root, const QString& cfgName)
{
    QStringList folders;
    const QDir dir(root);
    if (!dir.exists())
        return folders;
    if (QFileInfo::exists(dir.filePath(cfgName)))
        folders << dir.absolutePath();
    const QStringList subs = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& sub : subs)
        if (QFileInfo::exists(dir.filePath(sub + u'/' + cfgName)))
            folders << dir.absoluteFilePath(sub);
    return folders;
}

namespace {

QFormLayout* NewForm(QWidget* parent)
{
    auto* form = new QFormLayout(parent);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return form;
}

// A field with its "Countries..."-style button on one row.
QWidget* WithButton(QWidget* field, QPushButton* button)
{
    auto* row = new QWidget(field->parentWidget());
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(button);
    EnterLikeTab::markFieldButton(button);
    return row;
}

QString TemplateCaption(const QString& folder)
{
    if (folder.startsWith(u':'))
        return QCoreApplication::translate("SetupPages", "Built-in template");
    return QFileInfo(folder).fileName() + QStringLiteral("  (") + QDir::toNativeSeparators(folder) +
           u')';
}

// The template folders offered: the built-in one, those under the base folder's "templates"
// and the one in use when it lies elsewhere.
void FillTemplates(QComboBox* combo, const QString& builtIn, const QString& cfgName,
                   const QString& current, bool keepUnnamed)
{
    combo->clear();
    // A set stored without its folder (an older program's, or one edited by hand) is kept
    // until another is chosen.
    if (current.isEmpty() && keepUnnamed)
        combo->addItem(QCoreApplication::translate("SetupPages", "The template in use"), QString());
    QStringList folders;
    if (QFileInfo::exists(builtIn + u'/' + cfgName))
        folders << builtIn;
    const QString root = QDir(BaseFolder::path()).filePath(QStringLiteral("templates"));
    folders << TemplateFolders(root, cfgName);
    if (!current.isEmpty() && !folders.contains(current))
        folders << current;
    for (const QString& folder : std::as_const(folders))
        combo->addItem(TemplateCaption(folder), folder);
    combo->setCurrentIndex(qMax(0, combo->findData(current)));
}

} // namespace

SetupCompanyPage::SetupCompanyPage(QWidget* parent) : SetupPage(parent)
{
    QFormLayout* form = NewForm(this);
    addText(form, SETUP_NAME, tr("Name"));
    addText(form, SETUP_ZIP, tr("ZIP"));
    addText(form, SETUP_CITY, tr("City"));
    addText(form, SETUP_ADDRESS, tr("Street Address"));
    addText(form, SETUP_PHONE, tr("Phone"));
    addText(form, SETUP_BANK_NAME, tr("Bank Name"));
    addText(form, SETUP_BANK_ACCT_NO, tr("Bank Account No"));
    addText(form, SETUP_BANK_SWIFT, tr("SWIFT"));
    addText(form, SETUP_BANK_IBAN, tr("IBAN"));
    addText(form, SETUP_TAX_NO, tr("Tax No"), tr("Hungarian tax number: 12345678-1-12"));
    addText(form, SETUP_EU_VAT_REG_NO, tr("EU VAT Reg. No."),
            tr("Country code and number, for example HU12345678"));
    addText(form, SETUP_OTHER, tr("Other Company Data on Invoice"));
}

SetupInvoicePage::SetupInvoicePage(QWidget* parent) : SetupPage(parent)
{
    auto* layout = new QVBoxLayout(this);

    auto* number = new QGroupBox(tr("Invoice No"), this);
    QFormLayout* numberForm = NewForm(number);
    addText(numberForm, SETUP_INVOICE_NO_PREFIX, tr("Invoice No prefix"),
            tr("This text will be printed before the invoice number"));
    addNumber(numberForm, SETUP_INVOICE_NO_PADDING_ZEROS, tr("Invoice No padding with zeros"), 0,
              12);
    layout->addWidget(number);

    auto* defaults = new QGroupBox(tr("Defaults"), this);
    QFormLayout* defaultsForm = NewForm(defaults);
    QComboBox* discount =
        addCombo(defaultsForm, SETUP_INVOICE_DEFAULT_DISCOUNT_TYPE, tr("Default Discount Type"));
    discount->addItem(QCoreApplication::translate("DiscountType", "No discount"),
                      static_cast<int>(DiscountType::NoDiscount));
    discount->addItem(QCoreApplication::translate("DiscountType", "Percent from List Price"),
                      static_cast<int>(DiscountType::PercentFromListPrice));
    discount->addItem(QCoreApplication::translate("DiscountType", "Special Price"),
                      static_cast<int>(DiscountType::EnteredPrice));
    addText(defaultsForm, SETUP_INVOICE_DEFAULT_SUBJECT, tr("Default Invoice Subject"));
    layout->addWidget(defaults);

    auto* printing = new QGroupBox(tr("Printing"), this);
    QFormLayout* printingForm = NewForm(printing);
    addCheck(printingForm, SETUP_INVOICE_PREVIEW_BEFORE_PRINT,
             tr("Show print preview before printing invoice"));
    addNumber(printingForm, SETUP_INVOICE_COPIES, tr("Invoice copies"), 1, 20);
    addCheck(printingForm, SETUP_INVOICE_ASK_COPIES, tr("Ask copies before printing invoice"));
    layout->addWidget(printing);

    auto* international = new QGroupBox(tr("International Setup"), this);
    QFormLayout* intForm = NewForm(international);
    struct Chooser
    {
        const char* column;
        QString caption;
        QString button;
        MasterTable table;
        bool allowEmpty;
    };
    const Chooser choosers[] = {
        {SETUP_INVOICE_COUNTRY_ID, tr("Default Country"), tr("Countries..."), MasterTable::Country,
         false},
        {SETUP_INVOICE_LANG_ID, tr("Default Second Invoice Language"), tr("Languages..."),
         MasterTable::Lang, true},
        {SETUP_INVOICE_CURRENCY_ID, tr("Default Currency"), tr("Currencies..."),
         MasterTable::Currency, true},
    };
    for (const Chooser& c : choosers) {
        auto* combo = new QComboBox(international);
        bind(c.column, combo);
        FillMasterCombo(combo, c.table, c.allowEmpty);
        auto* button = new QPushButton(c.button, international);
        button->setObjectName(FieldName(c.column) + QStringLiteral("_button"));
        LinkChooser(button, combo, c.table, c.allowEmpty);
        intForm->addRow(c.caption, WithButton(combo, button));
    }
    layout->addWidget(international);
    layout->addStretch();
}

SetupInvoiceTemplatePage::SetupInvoiceTemplatePage(QWidget* parent) : SetupPage(parent)
{
    QFormLayout* form = NewForm(this);
    m_template = new QComboBox(this);
    m_template->setObjectName(QStringLiteral("m_invoice_template"));
    auto* test = new QPushButton(tr("Test"), this);
    test->setObjectName(QStringLiteral("m_test"));
    test->setToolTip(tr("Test the print preview of the selected invoice template"));
    form->addRow(tr("Invoice template"), WithButton(m_template, test));
    m_certified = new QLabel(this);
    m_certified->setObjectName(QStringLiteral("m_certified"));
    m_certified->setWordWrap(true);
    form->addRow(QString(), m_certified);
    connect(m_template, &QComboBox::activated, this, [this] { templateChosen(true); });
    connect(test, &QPushButton::clicked, this, &SetupInvoiceTemplatePage::testTemplate);

    QComboBox* discount =
        addCombo(form, SETUP_INVOICE_PRINT_DISCOUNT_TO_INVOICE, tr("Print Discount To Invoice"));
    discount->addItem(tr("Never"), 0);
    discount->addItem(tr("As item-comment if any"), 1);
    discount->addItem(tr("Automatically on invoices with discounted items"), 2);
    discount->addItem(tr("Always"), 3);
    addCheck(form, SETUP_INVOICE_PRINT_SIGNINGS, tr("Print a form for signings"));
    addCheck(form, SETUP_INVOICE_LOGO_PRINT, tr("Logo nyomtatasa a szamlara"));
    addNumber(form, SETUP_INVOICE_LOGO_SIZE_PERCENT, tr("Logo merete a szamlan (%)"), 0, 1000);

    m_logo = new QLabel(this);
    m_logo->setObjectName(QStringLiteral("m_logo"));
    m_logo->setFixedSize(240, 120);
    m_logo->setAlignment(Qt::AlignCenter);
    m_logo->setFrameShape(QFrame::StyledPanel);
    auto* open = new QPushButton(tr("Megnyitás..."), this);
    open->setObjectName(QStringLiteral("m_open_logo"));
    connect(open, &QPushButton::clicked, this, &SetupInvoiceTemplatePage::openLogo);
    auto* logoRow = new QWidget(this);
    auto* logoLayout = new QHBoxLayout(logoRow);
    logoLayout->setContentsMargins(0, 0, 0, 0);
    logoLayout->addWidget(m_logo);
    logoLayout->addWidget(open, 0, Qt::AlignBottom);
    logoLayout->addStretch();
    form->addRow(tr("Logo"), logoRow);
}

void SetupInvoiceTemplatePage::load(const Setup& setup)
{
    SetupPage::load(setup);
    m_installedDir = setup.text(SETUP_INVOICE_CURR_TMPL_DIR);
    FillTemplates(m_template, QString::fromLatin1(kShippedTemplateDir),
                  QStringLiteral("invoice.cfg"), m_installedDir, true);
    templateChosen(false);
    m_newLogo.reset();
    const std::optional<qint64> logoId = RowId(setup.value(SETUP_INVOICE_LOGO_ID));
    showLogo(logoId ? LogoPicture(*logoId) : QByteArray());
}

void SetupInvoiceTemplatePage::store(SetupChanges& changes) const
{
    SetupPage::store(changes);
    const QString folder = m_template->currentData().toString();
    // The texts are taken in again only when another set was chosen: a set edited in place
    // is installed on purpose, through the same choice.
    if (!folder.isEmpty() && folder != m_installedDir) {
        const InvoiceTemplate chosen = LoadTemplateDir(folder);
        const QHash<QString, QVariant> texts = TemplateSetupValues(chosen);
        for (auto it = texts.cbegin(); it != texts.cend(); ++it)
            changes.values.insert(it.key(), it.value());
        changes.values.insert(ColumnName(SETUP_INVOICE_CURR_TMPL_DIR), folder);
    }
    if (m_newLogo)
        changes.newLogo = m_newLogo;
}

void SetupInvoiceTemplatePage::templateChosen(bool tell)
{
    const QString folder = m_template->currentData().toString();
    const bool certified =
        (folder.isEmpty() ? LoadTemplateFromSetup() : LoadTemplateDir(folder)).certified();
    const QString warning =
        tr("This invoice template is not certified. Printing will not work with it.");
    m_certified->setText(certified ? tr("Certified invoice template.") : warning);
    m_certified->setStyleSheet(certified ? QString() : QStringLiteral("color: #a00000;"));
    if (tell && !certified)
        GuiInteraction(this).exclamation(warning);
}

void SetupInvoiceTemplatePage::testTemplate()
{
    const QString folder = m_template->currentData().toString();
    const InvoiceTemplate chosen =
        folder.isEmpty() ? LoadTemplateFromSetup() : LoadTemplateDir(folder);
    PrinterInvoiceOutput preview(true, this);
    if (Result r = InvoiceIssue::printSample(preview, chosen); !r && !r.message().isEmpty())
        GuiInteraction(this).error(r.message());
}

bool SetupInvoiceTemplatePage::takeLogo(const QByteArray& pictureFile)
{
    if (!LogoData(pictureFile))
        return false;
    m_newLogo = pictureFile;
    showLogo(pictureFile);
    return true;
}

void SetupInvoiceTemplatePage::openLogo()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Megnyitás..."), QString(),
                                     tr("Pictures") + QStringLiteral(" (*.png *.bmp *.jpg)"));
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || !takeLogo(file.readAll()))
        GuiInteraction(this).error(
            tr("A kivalasztott kep betoltese nem sikerult.&Ellenorizze, biztosan kepet "
               "tartalmaz-e a fajl!"));
}

void SetupInvoiceTemplatePage::showLogo(const QByteArray& pictureFile)
{
    QPixmap pixmap;
    if (pictureFile.isEmpty() || !pixmap.loadFromData(pictureFile)) {
        m_logo->setPixmap({});
        m_logo->setText(tr("No logo"));
        return;
    }
    m_logo->setPixmap(
        pixmap.scaled(m_logo->size() - QSize(8, 8), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

SetupRoundingPage::SetupRoundingPage(QWidget* parent) : SetupPage(parent)
{
    auto* layout = new QVBoxLayout(this);
    auto* note = new QLabel(tr("Rounding and printing decimals of the forint (HUF)."), this);
    note->setWordWrap(true);
    layout->addWidget(note);
    m_editor = new CurrencyRoundingEditor(this);
    m_editor->setObjectName(QStringLiteral("m_huf_rounding"));
    layout->addWidget(m_editor);
    layout->addStretch();
}

namespace {

const char* const kDecimals[] = {
    CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS,
    CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS,
    CURRENCY_LINE_TOTAL_PRINTING_DECIMALS,
    CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS,
    CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS,
};

} // namespace

void SetupRoundingPage::load(const Setup& setup)
{
    SetupPage::load(setup);
    // A row that can not be read shows zeros.
    Record forint;
    (void)CurrencyStore().read(0, forint);
    // Printing decimals first, so that lowering one does not pull its rounding down.
    for (const char* column :
         {kDecimals[2], kDecimals[4], kDecimals[0], kDecimals[1], kDecimals[3]})
        if (QWidget* field = FindField(m_editor, column))
            SetFieldValue(field, forint.value(ColumnName(column), 0));
}

void SetupRoundingPage::store(SetupChanges& changes) const
{
    SetupPage::store(changes);
    for (const char* column : kDecimals)
        if (QWidget* field = FindField(m_editor, column))
            changes.homeCurrency.insert(ColumnName(column), FieldValue(field));
}

SetupAppPage::SetupAppPage(QWidget* parent) : SetupPage(parent)
{
    QFormLayout* form = NewForm(this);
    addCheck(form, SETUP_PARTNER_SELECT_ON_NEW_ORDER, tr("Select partner on new order"));
    addCheck(form, SETUP_PRODUCT_SELECT_ON_NEW_ORDER, tr("Select product on new order"));
    addNumber(form, SETUP_RECORD_LIMIT, tr("Maximum number of records on find"), 1, 1000000);
    addCheck(form, SETUP_LOAD_MAIN_WINDOW_DATA_ON_START, tr("Load main window data on start"));
    addCheck(form, SETUP_REFRESH_MAIN_WINDOW_DATA_ON_TAB_CHANGE,
             tr("Refresh main window data on tab change"));
    addCheck(form, SETUP_PARTNER_SHOW_ON_FIND, tr("Show list of found partners on find"));
    addCheck(form, SETUP_PRODUCT_SHOW_ON_FIND, tr("Show list of found products on find"));
    addCheck(form, SETUP_ENTER_LIKE_TAB,
             tr("Pressing Enter works like TAB key in data entry windows"));
}

namespace {

// The maker's test server, offered until the company sets its own webshop.
QString DefaultUrl(const char* page)
{
    return QStringLiteral("https://webshop.tallynorth.hu/") + QLatin1String(page);
}

} // namespace

SetupDownloadPage::SetupDownloadPage(QWidget* parent) : SetupPage(parent)
{
    QFormLayout* form = NewForm(this);
    addText(form, SETUP_DOWNLOAD_INVOICE_URL, tr("Download invoices from this URL"));
    addCheck(form, SETUP_DOWNLOAD_UPDATE_BASIC_DATA, tr("Update basic data on import"));
    addText(form, SETUP_DOWNLOAD_PRODUCT_URL, tr("Download products from this URL"));
    addText(form, SETUP_DOWNLOAD_PARTNER_URL, tr("Download partners from this URL"));
    addText(form, SETUP_DOWNLOAD_LOGIN, tr("Login name"));
    addText(form, SETUP_DOWNLOAD_PASSWORD, tr("Password"))->setEchoMode(QLineEdit::Password);
    addCheck(form, SETUP_DOWNLOAD_SAVE_PASSWORD, tr("Save password"));
    auto* advanced = new QPushButton(tr("Advanced Setup.."), this);
    advanced->setObjectName(QStringLiteral("m_advanced"));
    advanced->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form->addRow(QString(), advanced);
    connect(advanced, &QPushButton::clicked, this, &SetupDownloadPage::openAdvanced);

    // The advanced fields live in their own dialog but are saved with the page.
    m_advanced = new QDialog(this);
    m_advanced->setObjectName(QStringLiteral("m_advanced_dialog"));
    m_advanced->setWindowTitle(tr("Advanced Download Setup"));
    auto* advLayout = new QVBoxLayout(m_advanced);
    auto* advForm = new QFormLayout;
    advLayout->addLayout(advForm);
    const auto text = [this, advForm](const char* column, const QString& caption) {
        auto* edit = new QLineEdit(m_advanced);
        bind(column, edit);
        advForm->addRow(caption, edit);
    };
    const auto number = [this, advForm](const char* column, const QString& caption) {
        auto* spin = new QSpinBox(m_advanced);
        spin->setRange(0, 1000000);
        spin->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        spin->setMinimumWidth(110);
        bind(column, spin);
        advForm->addRow(caption, spin);
    };
    text(SETUP_DOWNLOAD_LAST_ORDERHEAD_TIMESTAMP, tr("Last imported orderhead timestamp"));
    number(SETUP_DOWNLOAD_MAX_ORDERS, tr("Max. number of orders to import"));
    auto* codes = new QCheckBox(tr("Show CODE fields"), m_advanced);
    bind(SETUP_SHOW_CODE_FIELDS, codes);
    advForm->addRow(codes);
    text(SETUP_DOWNLOAD_LAST_PRODUCT_TIMESTAMP, tr("Last imported product timestamp"));
    number(SETUP_DOWNLOAD_MAX_PRODUCTS, tr("Max. number of products to import"));
    text(SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP, tr("Last imported partner timestamp"));
    number(SETUP_DOWNLOAD_MAX_PARTNERS, tr("Max. number of partners to import"));
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, m_advanced);
    connect(buttons, &QDialogButtonBox::accepted, m_advanced, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, m_advanced, &QDialog::reject);
    advLayout->addWidget(buttons);
}

void SetupDownloadPage::load(const Setup& setup)
{
    SetupPage::load(setup);
    const std::pair<const char*, const char*> urls[] = {
        {SETUP_DOWNLOAD_INVOICE_URL, "order.php"},
        {SETUP_DOWNLOAD_PRODUCT_URL, "product.php"},
        {SETUP_DOWNLOAD_PARTNER_URL, "partner.php"},
    };
    for (const auto& [column, page] : urls)
        if (auto* edit = findChild<QLineEdit*>(FieldName(column)); edit && edit->text().isEmpty())
            edit->setText(DefaultUrl(page));
}

void SetupDownloadPage::store(SetupChanges& changes) const
{
    SetupPage::store(changes);
}

void SetupDownloadPage::openAdvanced()
{
    // Cancel puts back what the fields held.
    SetupChanges before;
    SetupPage::store(before);
    if (m_advanced->exec() == QDialog::Accepted)
        return;
    for (auto it = before.values.cbegin(); it != before.values.cend(); ++it) {
        QWidget* field =
            m_advanced->findChild<QWidget*>(FieldName(it.key().toLatin1().constData()));
        if (field)
            SetFieldValue(field, it.value());
    }
}

SetupChequePage::SetupChequePage(QWidget* parent) : SetupPage(parent)
{
    QFormLayout* form = NewForm(this);
    m_template = new QComboBox(this);
    m_template->setObjectName(QStringLiteral("m_cheque_template"));
    m_template->setPlaceholderText(tr("No cheque template installed"));
    form->addRow(tr("Checque Template"), m_template);
    addMillimetres(form, SETUP_CHEQUE_MARGIN_LEFT_MM,
                   tr("Csekk vizszintes (x) pozicioja a lapon (mm)"));
    addMillimetres(form, SETUP_CHEQUE_MARGIN_TOP_MM,
                   tr("Csekk fuggoleges (y) pozicioja a lapon (mm)"));
    auto* test = new QPushButton(tr("Teszt"), this);
    test->setObjectName(QStringLiteral("m_test_cheque"));
    test->setToolTip(tr("Csekk-nyomtatas kiprobalasa"));
    test->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form->addRow(QString(), test);
    connect(test, &QPushButton::clicked, this, &SetupChequePage::testPrint);
}

void SetupChequePage::load(const Setup& setup)
{
    SetupPage::load(setup);
    m_installedDir = setup.text(SETUP_CHEQUE_CURR_TMPL_DIR);
    FillTemplates(m_template, QString::fromLatin1(kShippedChequeTemplateDir),
                  QStringLiteral("cheque.cfg"), m_installedDir, true);
}

void SetupChequePage::store(SetupChanges& changes) const
{
    SetupPage::store(changes);
    const QString folder = m_template->currentData().toString();
    // As with invoices, the text is taken in again only when another set was chosen.
    if (folder.isEmpty() || folder == m_installedDir)
        return;
    ChequeTemplate chosen;
    if (!ChequeTemplates::load(folder, chosen))
        return;
    changes.values.insert(ColumnName(SETUP_CHEQUE_QTF), chosen.qtf);
    changes.values.insert(ColumnName(SETUP_CHEQUE_CURR_TMPL_DIR), folder);
}

void SetupChequePage::testPrint()
{
    // The unsaved choice and offsets are what the user wants to try on the form.
    const QString folder = m_template->currentData().toString();
    ChequeTemplate chosen;
    if (folder.isEmpty())
        chosen.qtf = ChequeTemplates::current();
    else if (Result r = ChequeTemplates::load(folder, chosen); !r) {
        GuiInteraction(this).error(r.message());
        return;
    }
    SetupChanges now;
    SetupPage::store(now);
    const QPointF shift(ToNumber(now.values.value(ColumnName(SETUP_CHEQUE_MARGIN_LEFT_MM)), 20),
                        ToNumber(now.values.value(ColumnName(SETUP_CHEQUE_MARGIN_TOP_MM)), 20));
    PrinterInvoiceOutput preview(true, this);
    if (Result r = ChequePrinting::printTest(chosen.qtf, shift, preview);
        !r && !r.message().isEmpty())
        GuiInteraction(this).error(r.message());
}

SetupNavPage::SetupNavPage(QWidget* parent) : SetupPage(parent)
{
    auto* layout = new QVBoxLayout(this);
    m_page = new NavSetupPage(this);
    layout->addWidget(m_page);
    layout->addStretch();
}

void SetupNavPage::load(const Setup& setup)
{
    SetupPage::load(setup);
    if (Result r = m_page->load(); !r)
        GuiInteraction(this).error(r.message());
}

Result SetupNavPage::checkOwn() const
{
    NavSettings values;
    return m_page->settings(values);
}

Result SetupNavPage::saveOwn()
{
    return m_page->save();
}
