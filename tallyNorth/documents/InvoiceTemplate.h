// An invoice template: fourteen QTF pieces filled from an order, kept in a template directory
// (one file each and "invoice.cfg" with the digest) and, once chosen, in the settings record.
#pragma once

#include "TemplateText.h"

#include "base/Result.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <QStringList>

#include <array>

class Setup;

class InvoiceTemplate
{
public:
    enum class Piece {
        Header,
        ItemHeader,
        ItemHeaderDiscount,
        Footer,
        Body,
        Item1,
        Item1Discount,
        Item2,
        VatDetail,
        VatDetailHeader,
        Signings,
        ConsolidatedHeader,
        ConsolidatedFooter,
        Rate,
    };
    static constexpr int kPieces = 14;

    static const char* fileName(Piece piece);
    static const char* setupColumn(Piece piece);

    const QString& text(Piece piece) const { return m_texts[int(piece)]; }
    void setText(Piece piece, const QString& qtf);
    const TemplateText& parsed(Piece piece) const { return m_parsed[int(piece)]; }

    // The digest the set came with ("Digest" of invoice.cfg, SETUP_INVOICE_DIGEST).
    const QString& digest() const { return m_digest; }
    void setDigest(const QString& digest);
    // MD5 of the pieces in their fixed order and the salt, 32 upper-case hex digits.
    QString computeDigest() const;
    // The stored digest matches the pieces: only such a template may print invoices.
    bool certified() const { return m_certified; }
    // Warnings about traps in the pieces' QTF, one plain text per finding.
    QStringList warnings() const;

private:
    void update(Piece piece);

    std::array<QString, kPieces> m_texts;
    std::array<TemplateText, kPieces> m_parsed;
    QString m_digest;
    bool m_certified = false;
};

// Reads the fourteen files of a template directory (a missing file gives an empty piece) and
// the digest of its "invoice.cfg".
InvoiceTemplate LoadTemplateDir(const QString& directory);
// The SETUP columns of the pieces and the digest with their values.
QHash<QString, QVariant> TemplateSetupValues(const InvoiceTemplate& invoiceTemplate);
// Writes the pieces and the digest into SETUP in one statement.
Result SaveTemplateToSetup(const InvoiceTemplate& invoiceTemplate);
// The certified template that comes with the program, built into it.
inline constexpr char kShippedTemplateDir[] = ":/templates/invoice";

// Makes the template of directory the open company's invoice template: its texts and its folder
// are stored in the settings in one transaction. installed receives what was read, so the caller
// can tell whether it is certified.
Result InstallTemplate(const QString& directory, InvoiceTemplate& installed);
InvoiceTemplate LoadTemplateFromSetup(const Setup& setup);
// From the settings of the open company.
InvoiceTemplate LoadTemplateFromSetup();

// The value of key in a "key=value" configuration file, empty when missing.
QString ReadConfigValue(const QString& path, const QString& key);
