#include "InvoiceTemplate.h"

#include "Columns.h"
#include "QtfReader.h"

#include "base/MessageArgs.h"
#include "base/Setup.h"
#include "base/SqlTransaction.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

struct PieceInfo
{
    const char* file;
    const char* column;
};

// In the order of InvoiceTemplate::Piece.
constexpr PieceInfo kPieceInfo[InvoiceTemplate::kPieces] = {
    {"invoice_header.qtf", Col::SETUP_INVOICE_HEADER_QTF},
    {"invoice_item_header.qtf", Col::SETUP_INVOICE_ITEM_HEADER_QTF},
    {"invoice_item_header_discount.qtf", Col::SETUP_INVOICE_ITEM_HEADER_DISCOUNT_QTF},
    {"invoice_footer.qtf", Col::SETUP_INVOICE_FOOTER_QTF},
    {"invoice_body.qtf", Col::SETUP_INVOICE_BODY_QTF},
    {"invoice_item_1.qtf", Col::SETUP_INVOICE_ITEM_1_QTF},
    {"invoice_item_1_discount.qtf", Col::SETUP_INVOICE_ITEM_1_DISCOUNT_QTF},
    {"invoice_item_2.qtf", Col::SETUP_INVOICE_ITEM_2_QTF},
    {"invoice_vatdetail.qtf", Col::SETUP_INVOICE_VATDETAIL_QTF},
    {"invoice_vatdetail_header.qtf", Col::SETUP_INVOICE_VATDETAIL_HEADER_QTF},
    {"invoice_signings.qtf", Col::SETUP_INVOICE_SIGNINGS_QTF},
    {"invoice_consolidated_header.qtf", Col::SETUP_INVOICE_CONSOLIDATED_HEADER_QTF},
    {"invoice_consolidated_footer.qtf", Col::SETUP_INVOICE_CONSOLIDATED_FOOTER_QTF},
    {"invoice_rate.qtf", Col::SETUP_INVOICE_RATE_QTF},
};

using Piece = InvoiceTemplate::Piece;

// The order in which the pieces enter the digest.
constexpr Piece kDigestOrder[InvoiceTemplate::kPieces] = {
    Piece::Body,
    Piece::Footer,
    Piece::Header,
    Piece::ItemHeader,
    Piece::ItemHeaderDiscount,
    Piece::Item1,
    Piece::Item1Discount,
    Piece::Item2,
    Piece::VatDetail,
    Piece::VatDetailHeader,
    Piece::Signings,
    Piece::ConsolidatedHeader,
    Piece::ConsolidatedFooter,
    Piece::Rate,
};

constexpr char kDigestSalt[] = "w7dk(&pe%2\t<?6";
constexpr char kDigestTail[] = "3";

QString ReadTextFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

} // namespace

QStringList InvoiceTemplate::warnings() const
{
    QStringList out;
    for (int i = 0; i < kPieces; ++i) {
        for (qsizetype at : ReadQtf(m_texts[i]).lostParagraphFormats) {
            const int line = int(m_texts[i].left(at).count(u'\n')) + 1;
            out << FillArgs(QCoreApplication::translate(
                                "InvoiceTemplate",
                                "%s, line %s: the paragraph codes of the block closed before "
                                "\"&\" are lost; put the \"&\" inside the block."),
                            {QString::fromLatin1(fileName(Piece(i))), QString::number(line)});
        }
    }
    return out;
}

const char* InvoiceTemplate::fileName(Piece piece)
{
    return kPieceInfo[int(piece)].file;
}

const char* InvoiceTemplate::setupColumn(Piece piece)
{
    return kPieceInfo[int(piece)].column;
}

void InvoiceTemplate::setText(Piece piece, const QString& qtf)
{
    m_texts[int(piece)] = qtf;
    update(piece);
}

void InvoiceTemplate::setDigest(const QString& digest)
{
    m_digest = digest.trimmed();
    m_certified = m_digest == computeDigest();
}

void InvoiceTemplate::update(Piece piece)
{
    m_parsed[int(piece)] = TemplateText::parse(m_texts[int(piece)]);
    m_certified = !m_digest.isEmpty() && m_digest == computeDigest();
}

QString InvoiceTemplate::computeDigest() const
{
    QCryptographicHash md5(QCryptographicHash::Md5);
    for (Piece p : kDigestOrder)
        md5.addData(m_texts[int(p)].toUtf8());
    md5.addData(QByteArrayView(kDigestSalt));
    md5.addData(QByteArrayView(kDigestTail));
    return QString::fromLatin1(md5.result().toHex().toUpper());
}

QString ReadConfigValue(const QString& path, const QString& key)
{
    const QStringList lines = ReadTextFile(path).split(u'\n');
    for (const QString& raw : lines) {
        const QString line = raw.trimmed();
        const qsizetype eq = line.indexOf(u'=');
        if (line.startsWith(u'#') || eq <= 0)
            continue;
        if (line.left(eq).trimmed() == key)
            return line.mid(eq + 1).trimmed();
    }
    return QString();
}

InvoiceTemplate LoadTemplateDir(const QString& directory)
{
    const QDir dir(directory);
    InvoiceTemplate t;
    for (int i = 0; i < InvoiceTemplate::kPieces; ++i) {
        const Piece piece = Piece(i);
        t.setText(piece, ReadTextFile(
                             dir.filePath(QString::fromLatin1(InvoiceTemplate::fileName(piece)))));
    }
    t.setDigest(
        ReadConfigValue(dir.filePath(QStringLiteral("invoice.cfg")), QStringLiteral("Digest")));
    return t;
}

QHash<QString, QVariant> TemplateSetupValues(const InvoiceTemplate& invoiceTemplate)
{
    QHash<QString, QVariant> values;
    for (int i = 0; i < InvoiceTemplate::kPieces; ++i) {
        const Piece piece = Piece(i);
        values.insert(QString::fromLatin1(InvoiceTemplate::setupColumn(piece)),
                      invoiceTemplate.text(piece));
    }
    values.insert(QString::fromLatin1(Col::SETUP_INVOICE_DIGEST), invoiceTemplate.digest());
    return values;
}

Result SaveTemplateToSetup(const InvoiceTemplate& invoiceTemplate)
{
    return Setup::write(TemplateSetupValues(invoiceTemplate));
}

InvoiceTemplate LoadTemplateFromSetup(const Setup& setup)
{
    InvoiceTemplate t;
    for (int i = 0; i < InvoiceTemplate::kPieces; ++i) {
        const Piece piece = Piece(i);
        t.setText(piece, setup.text(InvoiceTemplate::setupColumn(piece)));
    }
    t.setDigest(setup.text(Col::SETUP_INVOICE_DIGEST));
    return t;
}

InvoiceTemplate LoadTemplateFromSetup()
{
    return LoadTemplateFromSetup(Setup::current());
}

Result InstallTemplate(const QString& directory, InvoiceTemplate& installed)
{
    installed = LoadTemplateDir(directory);
    SqlTransaction transaction;
    Result r = SaveTemplateToSetup(installed);
    if (r) {
        r = Setup::write({{QString::fromLatin1(Col::SETUP_INVOICE_CURR_TMPL_DIR),
                           QFileInfo(directory).absoluteFilePath()}});
    }
    if (r && !transaction.commit())
        r = Result::failure(QCoreApplication::translate("TableStore", "Unable to save data."));
    return r;
}
