// The report dialogs: the sales reports on their shared filter (ByDateReport) and the
// receivables reports filtered by the payment deadline (ReceivablesReport). Both show the rows
// in a list and print, export or copy them.
#pragma once

#include "base/Result.h"
#include "base/ui/GuiInteraction.h"
#include "documents/Report.h"
#include "documents/ReportQuery.h"

#include <QDialog>

#include <optional>

class DateEdit;
class PartnerFinder;
class QCheckBox;
class QComboBox;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class QTableView;
class QVBoxLayout;
class ReportModel;

class ReportDlg : public QDialog
{
    Q_OBJECT
public:
    ~ReportDlg() override;

    ReportKind kind() const { return m_kind; }
    ReportModel* model() const { return m_model; }
    QTableView* list() const { return m_array; }
    void setCurrency(ReportCurrency currency);

    // "Filter": runs the report on the controls' filter; false when it was refused, failed or
    // was cancelled (the reason has been shown).
    bool runReport();
    // The printed form of the rows shown.
    Report printedReport() const;
    // The exports, to a file named by the caller (the buttons ask for it).
    Result exportPdf(const QString& path) const;
    Result exportTxt(const QString& path) const;
    Result exportCsv(const QString& path) const;
    void copyToClipboard() const;

    // Opens the dialog of a report over parent, modal.
    static void open(ReportKind kind, QWidget* parent);

protected:
    ReportDlg(ReportKind kind, QWidget* parent);
    // The filter of the controls; nothing when it cannot run (the reason has been shown).
    virtual std::optional<ReportFilter> filter() = 0;
    // Where a dialog puts its filter controls, above the currency.
    QVBoxLayout* filterArea() const { return m_filterArea; }
    // The buttons' row, for a dialog's own buttons.
    void addButton(QPushButton* button);
    GuiInteraction& interaction() { return m_interaction; }

private:
    void preview();
    void print();
    void exportTo(const QString& caption, const QString& filter, const QString& suffix,
                  Result (ReportDlg::*write)(const QString&) const);
    bool ensureRows();

    ReportKind m_kind;
    GuiInteraction m_interaction;
    ReportModel* m_model;
    QVBoxLayout* m_filterArea;
    QComboBox* m_currency_type;
    QPushButton* m_button_show;
    QTableView* m_array;
    QLayout* m_buttons;
    bool m_ran = false;
};

// Products sold, customers, outgoing invoices and their items.
class ByDateReport : public ReportDlg
{
    Q_OBJECT
public:
    ByDateReport(ReportKind kind, QWidget* parent = nullptr);

    void setPartnerFilter(bool on, std::optional<qint64> id, const QString& text);
    void setDateFilter(bool on, ReportDate type, const QDate& from, const QDate& to);

protected:
    std::optional<ReportFilter> filter() override;

private:
    QCheckBox* m_by_partner;
    PartnerFinder* m_partner;
    QCheckBox* m_by_date;
    QComboBox* m_date_type;
    DateEdit* m_date_1;
    DateEdit* m_date_2;
};

// Unpaid invoices and partners in debt.
class ReceivablesReport : public ReportDlg
{
    Q_OBJECT
public:
    enum class Mode { DueDate = 0, DaysElapsed = 1 };

    ReceivablesReport(ReportKind kind, QWidget* parent = nullptr);

    void setDateFilter(bool on, const QDate& from, const QDate& to);
    void setDaysFilter(bool on, int days1, int days2);
    // "Show Invoice": opens the selected invoice.
    void showInvoice();

protected:
    std::optional<ReportFilter> filter() override;

private:
    void onDateType();

    QCheckBox* m_by_date;
    QComboBox* m_date_type;
    QStackedWidget* m_parent_1;
    QStackedWidget* m_parent_2;
    DateEdit* m_date_1;
    DateEdit* m_date_2;
    QSpinBox* m_days_1;
    QSpinBox* m_days_2;
};
