#include "ReportDlg.h"

#include "ReportModel.h"
#include "ReportPrinter.h"

#include "Columns.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/ui/DateEdit.h"
#include "base/ui/HelpLink.h"
#include "base/ui/ListView.h"
#include "documents/QtfReader.h"
#include "documents/ReportOutput.h"
#include "masterdata/ui/RecordFinder.h"
#include "orders/ui/OrderEditCommands.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QPushButton* Button(const QString& text, const QString& tip, const char* name)
{
    auto* b = new QPushButton(text);
    b->setToolTip(tip);
    b->setObjectName(QLatin1String(name));
    b->setAutoDefault(false);
    return b;
}

} // namespace

ReportDlg::ReportDlg(ReportKind kind, QWidget* parent)
    : QDialog(parent), m_kind(kind), m_interaction(this), m_model(new ReportModel(this))
{
    setWindowTitle(ReportQuery::title(kind, ReportCurrency::Local));
    auto* layout = new QVBoxLayout(this);
    m_filterArea = new QVBoxLayout;
    layout->addLayout(m_filterArea);

    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel(tr("Currency")));
    m_currency_type = new QComboBox;
    m_currency_type->setObjectName(QStringLiteral("m_currency_type"));
    m_currency_type->addItem(tr("Local Currency (HUF)"), int(ReportCurrency::Local));
    m_currency_type->addItem(tr("Original Currency"), int(ReportCurrency::Original));
    row->addWidget(m_currency_type);
    row->addStretch();
    m_button_show = Button(tr("Filter"), QString(), "m_button_show");
    m_button_show->setDefault(true);
    row->addWidget(m_button_show);
    layout->addLayout(row);

    m_array = new QTableView;
    m_array->setObjectName(QStringLiteral("m_array"));
    m_array->setModel(m_model);
    SetUpListView(m_array, QAbstractItemView::SingleSelection);
    layout->addWidget(m_array, 1);

    auto* buttons = new QHBoxLayout;
    m_buttons = buttons;
    QPushButton* pdf = Button(tr("Export PDF"), tr("Export to PDF format"), "m_button_pdf");
    QPushButton* txt = Button(tr("Export TXT"), tr("Export to textfile (*.txt)"), "m_button_txt");
    QPushButton* csv =
        Button(tr("Export CSV"), tr("Export to spreadsheet file (*.csv)"), "m_button_csv");
    QPushButton* copy = Button(tr("Copy"), tr("Copy to clipboard"), "m_button_copy");
    QPushButton* ok = Button(tr("Print Preview"), QString(), "ok");
    QPushButton* printButton = Button(tr("Print"), QString(), "m_button_print");
    QPushButton* cancel = Button(tr("Cancel"), QString(), "cancel");
    QPushButton* help = Button(tr("Help"), QString(), "m_help");
    LinkHelp(help, QStringLiteral("Listak"));
    for (QPushButton* b : {pdf, txt, csv, copy})
        buttons->addWidget(b);
    buttons->addStretch();
    for (QPushButton* b : {ok, printButton, cancel, help})
        buttons->addWidget(b);
    layout->addLayout(buttons);

    connect(m_button_show, &QPushButton::clicked, this, [this] { runReport(); });
    connect(m_currency_type, &QComboBox::currentIndexChanged, this, [this] {
        const auto currency = ReportCurrency(m_currency_type->currentData().toInt());
        setWindowTitle(ReportQuery::title(m_kind, currency));
    });
    connect(pdf, &QPushButton::clicked, this, [this] {
        exportTo(tr("Export PDF"), tr("PDF files (*.pdf)"), QStringLiteral("pdf"),
                 &ReportDlg::exportPdf);
    });
    connect(txt, &QPushButton::clicked, this, [this] {
        exportTo(tr("Export TXT"), tr("Text files (*.txt)"), QStringLiteral("txt"),
                 &ReportDlg::exportTxt);
    });
    connect(csv, &QPushButton::clicked, this, [this] {
        exportTo(tr("Export CSV"), tr("CSV files (*.csv)"), QStringLiteral("csv"),
                 &ReportDlg::exportCsv);
    });
    connect(copy, &QPushButton::clicked, this, [this] {
        if (ensureRows())
            copyToClipboard();
    });
    connect(ok, &QPushButton::clicked, this, &ReportDlg::preview);
    connect(printButton, &QPushButton::clicked, this, &ReportDlg::print);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    resize(1000, 650);
}

ReportDlg::~ReportDlg() = default;

void ReportDlg::setCurrency(ReportCurrency currency)
{
    m_currency_type->setCurrentIndex(m_currency_type->findData(int(currency)));
}

void ReportDlg::addButton(QPushButton* button)
{
    static_cast<QHBoxLayout*>(m_buttons)->insertWidget(4, button);
}

bool ReportDlg::runReport()
{
    std::optional<ReportFilter> f = filter();
    if (!f)
        return false;
    f->currency = ReportCurrency(m_currency_type->currentData().toInt());
    ReportTable table;
    Result r;
    {
        const std::unique_ptr<Progress> progress =
            m_interaction.progress(tr("Running the report..."));
        r = ReportQuery::run(m_kind, *f, table, progress.get());
    }
    if (!r) {
        // A cancelled run says nothing; the list stays as it was.
        if (!r.message().isEmpty())
            m_interaction.error(r.message());
        return false;
    }
    m_model->setTable(std::move(table));
    m_array->resizeColumnsToContents();
    setWindowTitle(m_model->table().title);
    m_ran = true;
    return true;
}

bool ReportDlg::ensureRows()
{
    return m_ran || runReport();
}

Report ReportDlg::printedReport() const
{
    return ReportOutput::report(m_model->table(), Setup::current().text(Col::SETUP_NAME));
}

Result ReportDlg::exportPdf(const QString& path) const
{
    return printedReport().exportPdf(path, m_model->table().title);
}

Result ReportDlg::exportTxt(const QString& path) const
{
    return ReportOutput::write(path, ReportOutput::text(m_model->table()).toUtf8());
}

Result ReportDlg::exportCsv(const QString& path) const
{
    return ReportOutput::write(path, ReportOutput::csv(m_model->table()));
}

void ReportDlg::copyToClipboard() const
{
    QApplication::clipboard()->setText(ReportOutput::tabText(m_model->table()));
}

void ReportDlg::exportTo(const QString& caption, const QString& filter, const QString& suffix,
                         Result (ReportDlg::*write)(const QString&) const)
{
    if (!ensureRows())
        return;
    QString path = QFileDialog::getSaveFileName(this, caption, QString(), filter);
    if (path.isEmpty())
        return;
    if (!path.endsWith(u'.' + suffix, Qt::CaseInsensitive))
        path += u'.' + suffix;
    if (Result r = (this->*write)(path); !r)
        m_interaction.error(r.message());
}

void ReportDlg::preview()
{
    if (!ensureRows())
        return;
    const Report report = printedReport();
    PreviewReport(report, this, m_model->table().title);
}

void ReportDlg::print()
{
    if (!ensureRows())
        return;
    const Report report = printedReport();
    if (Result r = PrintReport(report, this); !r)
        m_interaction.error(r.message());
}

void ReportDlg::open(ReportKind kind, QWidget* parent)
{
    std::unique_ptr<ReportDlg> dlg;
    if (ReportQuery::isReceivables(kind))
        dlg = std::make_unique<ReceivablesReport>(kind, parent);
    else
        dlg = std::make_unique<ByDateReport>(kind, parent);
    dlg->exec();
}

// ---- ByDateReport

ByDateReport::ByDateReport(ReportKind kind, QWidget* parent) : ReportDlg(kind, parent)
{
    auto* partnerRow = new QHBoxLayout;
    m_by_partner = new QCheckBox(tr("Filter by partner"));
    m_by_partner->setObjectName(QStringLiteral("m_by_partner"));
    m_partner = new PartnerFinder;
    m_partner->setObjectName(QStringLiteral("m_partner"));
    m_partner->setToolTip(tr("You can search by the start of partner's name"));
    partnerRow->addWidget(m_by_partner);
    partnerRow->addWidget(m_partner, 1);
    filterArea()->addLayout(partnerRow);

    auto* dateRow = new QHBoxLayout;
    m_by_date = new QCheckBox(tr("Filter by date"));
    m_by_date->setObjectName(QStringLiteral("m_by_date"));
    m_date_type = new QComboBox;
    m_date_type->setObjectName(QStringLiteral("m_date_type"));
    for (ReportDate d : {ReportDate::Shipped, ReportDate::Created, ReportDate::PaymentDue})
        m_date_type->addItem(ReportQuery::dateTypeText(d), int(d));
    m_date_1 = new DateEdit;
    m_date_1->setObjectName(QStringLiteral("m_date_1"));
    m_date_2 = new DateEdit;
    m_date_2->setObjectName(QStringLiteral("m_date_2"));
    for (DateEdit* d : {m_date_1, m_date_2})
        d->setMaximumWidth(d->fontMetrics().horizontalAdvance(QStringLiteral("2024.03.05.")) + 60);
    auto* minus = new QLabel(QStringLiteral("-"));
    minus->setObjectName(QStringLiteral("m_label_date_minus"));
    dateRow->addWidget(m_by_date);
    dateRow->addWidget(m_date_type);
    dateRow->addWidget(m_date_1);
    dateRow->addWidget(minus);
    dateRow->addWidget(m_date_2);
    dateRow->addStretch();
    filterArea()->addLayout(dateRow);

    // This month so far, as the owner closes it.
    const QDate today = QDate::currentDate();
    m_date_1->setDate(QDate(today.year(), today.month(), 1));
    m_date_2->setDate(today);
    // Typing a partner or a date switches its filter on.
    connect(m_partner, &QLineEdit::textEdited, this, [this] { m_by_partner->setChecked(true); });
    connect(m_partner, &RecordFinder::picked, this, [this] { m_by_partner->setChecked(true); });
    for (DateEdit* d : {m_date_1, m_date_2})
        connect(d, &DateEdit::dateChanged, this, [this] { m_by_date->setChecked(true); });
}

void ByDateReport::setPartnerFilter(bool on, std::optional<qint64> id, const QString& text)
{
    m_partner->setPicked(id, text);
    m_by_partner->setChecked(on);
}

void ByDateReport::setDateFilter(bool on, ReportDate type, const QDate& from, const QDate& to)
{
    m_date_type->setCurrentIndex(m_date_type->findData(int(type)));
    m_date_1->setDate(from);
    m_date_2->setDate(to);
    m_by_date->setChecked(on);
}

std::optional<ReportFilter> ByDateReport::filter()
{
    ReportFilter f;
    f.byPartner = m_by_partner->isChecked();
    if (f.byPartner) {
        f.partnerId = m_partner->pickedId().value_or(0);
        f.partnerText = m_partner->text().trimmed();
    }
    f.byDate = m_by_date->isChecked();
    if (f.byDate) {
        if (m_date_type->currentIndex() < 0) {
            interaction().error(tr("Error"));
            return std::nullopt;
        }
        f.dateType = ReportDate(m_date_type->currentData().toInt());
        f.from = m_date_1->date();
        f.to = m_date_2->date();
        if (!f.from.isValid() || !f.to.isValid()) {
            interaction().exclamation(tr("Enter the first and the last day."));
            return std::nullopt;
        }
    }
    return f;
}

// ---- ReceivablesReport

ReceivablesReport::ReceivablesReport(ReportKind kind, QWidget* parent) : ReportDlg(kind, parent)
{
    auto* group = new QGroupBox(tr("Fizetesi hatarido szerinti szures"));
    auto* row = new QHBoxLayout(group);
    m_by_date = new QCheckBox(tr("Filter by date"));
    m_by_date->setObjectName(QStringLiteral("m_by_date"));
    m_date_type = new QComboBox;
    m_date_type->setObjectName(QStringLiteral("m_date_type"));
    m_date_type->addItem(tr("Szures a fizetesi hatarido datuma szerint"), int(Mode::DueDate));
    m_date_type->addItem(tr("Szures a fizetesi hatarido lejarta utan eltelt napok szama szerint"),
                         int(Mode::DaysElapsed));
    m_parent_1 = new QStackedWidget;
    m_parent_1->setObjectName(QStringLiteral("m_parent_1"));
    m_parent_2 = new QStackedWidget;
    m_parent_2->setObjectName(QStringLiteral("m_parent_2"));
    m_date_1 = new DateEdit;
    m_date_2 = new DateEdit;
    m_days_1 = new QSpinBox;
    m_days_2 = new QSpinBox;
    for (QSpinBox* s : {m_days_1, m_days_2}) {
        s->setRange(-36500, 36500);
        s->setMaximumWidth(110);
    }
    m_days_2->setValue(30);
    m_parent_1->addWidget(m_date_1);
    m_parent_1->addWidget(m_days_1);
    m_parent_2->addWidget(m_date_2);
    m_parent_2->addWidget(m_days_2);
    auto* minus = new QLabel(QStringLiteral("-"));
    minus->setObjectName(QStringLiteral("m_label_date_minus"));
    row->addWidget(m_by_date);
    row->addWidget(m_date_type);
    row->addWidget(m_parent_1);
    row->addWidget(minus);
    row->addWidget(m_parent_2);
    row->addStretch();
    filterArea()->addWidget(group);
    connect(m_date_type, &QComboBox::currentIndexChanged, this, &ReceivablesReport::onDateType);

    if (kind == ReportKind::ReceivablesByInvoices) {
        auto* show = new QPushButton(tr("Show Invoice"));
        show->setObjectName(QStringLiteral("m_button_show_invoice"));
        show->setAutoDefault(false);
        addButton(show);
        connect(show, &QPushButton::clicked, this, &ReceivablesReport::showInvoice);
        connect(list(), &QTableView::doubleClicked, this, &ReceivablesReport::showInvoice);
    }
}

void ReceivablesReport::onDateType()
{
    switch (Mode(m_date_type->currentData().toInt())) {
    case Mode::DueDate:
    case Mode::DaysElapsed:
        m_parent_1->setCurrentIndex(m_date_type->currentIndex());
        m_parent_2->setCurrentIndex(m_date_type->currentIndex());
        return;
    }
    interaction().error(tr("This case must not be run in OnDateType."));
}

void ReceivablesReport::setDateFilter(bool on, const QDate& from, const QDate& to)
{
    m_date_type->setCurrentIndex(int(Mode::DueDate));
    m_date_1->setDate(from);
    m_date_2->setDate(to);
    m_by_date->setChecked(on);
}

void ReceivablesReport::setDaysFilter(bool on, int days1, int days2)
{
    m_date_type->setCurrentIndex(int(Mode::DaysElapsed));
    m_days_1->setValue(days1);
    m_days_2->setValue(days2);
    m_by_date->setChecked(on);
}

std::optional<ReportFilter> ReceivablesReport::filter()
{
    ReportFilter f;
    f.byDate = m_by_date->isChecked();
    if (!f.byDate)
        return f;
    f.dateType = ReportDate::PaymentDue;
    switch (Mode(m_date_type->currentData().toInt())) {
    case Mode::DueDate:
        f.from = m_date_1->date();
        f.to = m_date_2->date();
        if (!f.from.isValid() || !f.to.isValid()) {
            interaction().exclamation(tr("Enter the first and the last day."));
            return std::nullopt;
        }
        return f;
    case Mode::DaysElapsed:
        std::tie(f.from, f.to) = ReportQuery::daysAgoRange(m_days_1->value(), m_days_2->value());
        return f;
    }
    interaction().error(tr("Error"));
    return std::nullopt;
}

void ReceivablesReport::showInvoice()
{
    const QModelIndex current = list()->currentIndex();
    const qint64 id = current.isValid() ? model()->orderId(current.row()) : 0;
    if (id <= 0) {
        interaction().exclamation(tr("Select an invoice to view."));
        return;
    }
    OpenOrderEdit(this, id);
}
