#include "ChequePrinting.h"

#include "AmountFormat.h"
#include "AmountInWords.h"
#include "ChequeTemplate.h"
#include "InvoiceIssue.h"
#include "PlaceholderMap.h"
#include "QtfReader.h"
#include "Report.h"
#include "TemplateText.h"

#include "Columns.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"

#include <QPagedPaintDevice>

#include <cmath>

namespace {

Result CheckTemplate(const QString& templateQtf)
{
    if (templateQtf.trimmed().isEmpty())
        return Result::failure(ChequeTemplates::missingMessage());
    return Result::success();
}

} // namespace

PlaceholderMap ChequePrinting::placeholders(const Cheque& cheque)
{
    const double amount = ChequeStore::wholeForints(cheque.amount);
    PlaceholderMap map;
    map.set(QStringLiteral("AMOUNT"), QtfEscape(FormatAmount(amount, 0)));
    map.set(QStringLiteral("AMOUNTTEXT"), QtfEscape(AmountInWords(qint64(amount))));
    map.set(QStringLiteral("PRETENCE"), QtfEscape(cheque.pretence));
    map.set(QStringLiteral("NAME"), QtfEscape(cheque.partnerName));
    map.set(QStringLiteral("ZIP"), QtfEscape(cheque.partnerZip));
    map.set(QStringLiteral("CITY"), QtfEscape(cheque.partnerCity));
    map.set(QStringLiteral("ADDRESS"), QtfEscape(cheque.partnerAddress));
    map.set(QStringLiteral("NOTICE"), QtfEscape(cheque.notice));
    map.set(QStringLiteral("INVOICENO"), QtfEscape(cheque.invoiceNoText));
    return map;
}

QString ChequePrinting::fill(const QString& templateQtf, const Cheque& cheque)
{
    return TemplateText::parse(templateQtf).fill(placeholders(cheque));
}

Result ChequePrinting::build(const QList<Cheque>& cheques, const QString& templateQtf,
                             QPointF shiftMm, Report& report)
{
    if (Result r = CheckTemplate(templateQtf); !r)
        return r;
    report.setPageSize(kChequePage);
    report.setShift(shiftMm);
    report.setSpacing(0);
    const TemplateText parsed = TemplateText::parse(templateQtf);
    for (qsizetype i = 0; i < cheques.size(); ++i) {
        if (i > 0)
            report.newSection();
        report.setBody(parsed.fill(placeholders(cheques.at(i))));
    }
    if (const QString error = report.layoutError(); !error.isEmpty())
        return Result::failure(error);
    return Result::success();
}

QPointF ChequePrinting::settingsShift()
{
    const Setup& setup = Setup::current();
    return {setup.number(Col::SETUP_CHEQUE_MARGIN_LEFT_MM),
            setup.number(Col::SETUP_CHEQUE_MARGIN_TOP_MM)};
}

Result ChequePrinting::print(ChequePrintMode mode, const QList<qint64>& selected,
                             InvoiceOutput& output, Interaction& interaction, const QDate& today,
                             int& printed)
{
    printed = 0;
    const QString templateQtf = ChequeTemplates::current();
    if (Result r = CheckTemplate(templateQtf); !r)
        return r;
    QList<qint64> ids = selected;
    if (mode == ChequePrintMode::AllUnprinted) {
        if (Result r = ChequeStore::unprinted(ids); !r)
            return r;
    }
    if (ids.isEmpty())
        return Result::failure(tr("Nincsenek nyomtatando csekkek"));

    const std::unique_ptr<Progress> progress =
        interaction.progress(tr("Csekkek nyomtatasa - Vantrell Szamlazo"));
    progress->setTotal(int(ids.size()));
    QList<Cheque> cheques;
    for (qint64 id : ids) {
        Cheque cheque;
        if (!ChequeStore::load(id, cheque))
            return Result::failure(tr("Nem sikerult a csekk adatainak betoltese az adatbazisbol."));
        progress->setText(
            FillArgs(tr("Csekk: %s, %d Ft"),
                     {cheque.partnerName,
                      QString::number(qint64(ChequeStore::wholeForints(cheque.amount)))}));
        progress->setPos(int(cheques.size()));
        if (progress->canceled())
            return Result::failure(QString());
        cheques << cheque;
    }
    Report report;
    Result r = build(cheques, templateQtf, settingsShift(), report);
    if (r)
        r = output.output(report, tr("Csekkek nyomtatasa"));
    // An empty message: the person stopped it (no printer chosen); nothing was printed.
    if (!r && r.message().isEmpty())
        return r;
    if (!r)
        return Result::failure(tr("Nyomtatas nem sikerult.") + u'&' + r.message());
    if (Result marked = ChequeStore::markPrinted(ids, today); !marked)
        return marked;
    printed = int(ids.size());
    return Result::success();
}

Cheque ChequePrinting::sampleCheque()
{
    Cheque c;
    c.partnerName = QStringLiteral("Minta Béla");
    c.partnerZip = QStringLiteral("1234");
    c.partnerCity = QStringLiteral("Budapest");
    c.partnerAddress = QStringLiteral("Minta utca 1.");
    c.amount = 12345;
    c.invoiceNoText = QStringLiteral("MINTA-000001");
    const QDate date(2024, 3, 5);
    c.pretence = ChequeStore::pretenceText(date, date.addDays(8), c.invoiceNoText);
    c.notice = ChequeStore::noticeText(date, date.addDays(8), c.invoiceNoText);
    return c;
}

Result ChequePrinting::printTest(const QString& templateQtf, QPointF shiftMm, InvoiceOutput& output)
{
    Report report;
    if (Result r = build({sampleCheque()}, templateQtf, shiftMm, report); !r)
        return r;
    return output.output(report, tr("Csekk-nyomtatas kiprobalasa"));
}

Result ChequePrinting::printTest(const QString& templateQtf, QPointF shiftMm,
                                 QPagedPaintDevice& device)
{
    Report report;
    if (Result r = build({sampleCheque()}, templateQtf, shiftMm, report); !r)
        return r;
    return report.print(device);
}
