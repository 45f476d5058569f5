#include "InvoiceIssue.h"

#include "InvoiceRender.h"
#include "InvoiceTemplate.h"
#include "LabelTranslations.h"
#include "Report.h"

#include "Columns.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

namespace {

struct OrderState
{
    bool issued = false;
    int type = 0;
    bool consolidated = false;
    int printedCopies = 0;
    QString numberText;
    QVariant language;
    int items = 0;
};

Result ReadState(qint64 orderId, OrderState& state)
{
    SqlStatement st(
        Sql("select %1, %2, %3, %4, %5, %6, (select count(*) from %7 where %8 = %9) "
            "from %10 where %9 = ?",
            {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_TYPE, Col::ORDERHEAD_CONSOLIDATED_INVOICE,
             Col::ORDERHEAD_PRINTED_COPIES, Col::ORDERHEAD_INVOICE_NO_STR,
             Col::ORDERHEAD_PARTNER_LANG_ID, Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID,
             Col::ORDERHEAD_ID, Tbl::ORDERHEAD}),
        {orderId});
    if (!st.exec())
        return st.failure(InvoiceIssue::tr("Database error:&") + st.errorText());
    if (!st.next())
        return Result::failure(InvoiceIssue::tr(
            "Unable to load data from database.&Maybe it is deleted by an other user."));
    state.issued = !IsNullValue(st.value(Col::ORDERHEAD_INVOICE_NO));
    state.type = int(ToInteger(st.value(Col::ORDERHEAD_TYPE)));
    state.consolidated = IsFlagSet(st.value(Col::ORDERHEAD_CONSOLIDATED_INVOICE));
    state.printedCopies = int(ToInteger(st.value(Col::ORDERHEAD_PRINTED_COPIES)));
    state.numberText = st.value(Col::ORDERHEAD_INVOICE_NO_STR).toString();
    state.language = st.value(Col::ORDERHEAD_PARTNER_LANG_ID);
    state.items = int(ToInteger(st.value(6)));
    return Result::success();
}

QString DocumentTitle(const QString& numberText)
{
    return FillArgs(QStringLiteral("Szamla - %s"), {numberText});
}

} // namespace

Result PdfInvoiceOutput::output(const Report& report, const QString& title)
{
    return report.exportPdf(m_path, title);
}

Result InvoiceIssue::buildCopies(qint64 orderId, int firstCopyIndex, int copies, Report& report,
                                 QString& title)
{
    OrderState state;
    if (Result r = ReadState(orderId, state); !r)
        return r;
    FrozenInvoice frozen;
    if (Result r = InvoiceNumbering::loadFrozen(orderId, frozen); !r)
        return r;
    for (int i = 0; i < copies; ++i) {
        if (i > 0)
            report.newSection();
        const InvoiceCopy copy{state.type,     state.consolidated, firstCopyIndex + i,
                               state.language, state.numberText,   false};
        if (Result r = PrintCopy(report, frozen, copy, LabelTranslations::current()); !r)
            return r;
    }
    title = DocumentTitle(state.numberText);
    return Result::success();
}

Result InvoiceIssue::print(qint64 orderId, Interaction& interaction, InvoiceOutput* output,
                           Outcome& outcome, const InvoicePrintOptions& options)
{
    outcome = {};
    OrderState state;
    if (Result r = ReadState(orderId, state); !r)
        return r;
    if (!state.issued && state.items == 0)
        return Result::failure(tr("It is not allowed to print an invoice without items."));

    int copies = 0;
    if (output) {
        const Setup& setup = Setup::current();
        copies = options.copies.value_or(
            int(std::max<qint64>(setup.integer(Col::SETUP_INVOICE_COPIES), 1)));
        if (!options.copies && setup.flag(Col::SETUP_INVOICE_ASK_COPIES)) {
            const std::optional<int> asked =
                interaction.askNumber(tr("Invoice copies to print"), copies);
            if (!asked || *asked < 1)
                return Result::failure(QString());
            copies = *asked;
        }
    }

    const std::unique_ptr<Progress> progress =
        interaction.progress(tr("Printing invoices. Please wait."));
    if (!state.issued) {
        const InvoiceTemplate invoiceTemplate = LoadTemplateFromSetup();
        if (!invoiceTemplate.certified())
            return Result::failure(tr("Invoice template currently set up is not certified.&Change "
                                      "it to a certified one in Setup"));
        const LabelTranslations& labels = LabelTranslations::current();
        const auto render = [&](qint64 id, FrozenInvoice& frozen) {
            return RenderInvoice(id, invoiceTemplate, labels, frozen);
        };
        if (Result r = InvoiceNumbering::issue(orderId, options.today, render, outcome.invoice); !r)
            return r;
        outcome.issuedNow = true;
        state.printedCopies = 0;
    } else {
        SqlStatement number(Sql("select %1 from %2 where %3 = ?",
                                {Col::ORDERHEAD_INVOICE_NO, Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                            {orderId});
        if (number.exec() && number.next())
            outcome.invoice.number = ToInteger(number.value(0));
        outcome.invoice.numberText = state.numberText;
    }
    if (!output)
        return Result::success();

    Report report;
    QString title;
    Result built = buildCopies(orderId, state.printedCopies, copies, report, title);
    if (built)
        built = output->output(report, title);
    if (!built)
        return Result::failure(tr("Can't print invoice") + u'&' + built.message(),
                               built.sqlError());
    outcome.copiesPrinted = copies;
    return InvoiceNumbering::addPrintedCopies(orderId, copies);
}

Result InvoiceIssue::printSample(InvoiceOutput& output)
{
    return printSample(output, LoadTemplateFromSetup());
}

Result InvoiceIssue::printSample(InvoiceOutput& output, const InvoiceTemplate& invoiceTemplate)
{
    InvoiceData data;
    if (Result r = InvoiceRender::loadSample(data); !r)
        return r;
    FrozenInvoice frozen;
    const LabelTranslations& labels = LabelTranslations::current();
    if (Result r = InvoiceRender::render(data, invoiceTemplate, labels, frozen); !r)
        return r;
    Report report;
    if (Result r = PrintCopy(report, frozen, {0, false, 0, 0, QString(), true}, labels); !r)
        return r;
    return output.output(report, tr("Invoice Sample"));
}
