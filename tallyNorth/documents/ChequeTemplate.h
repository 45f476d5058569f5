// The cheque template: one QTF text laid out for the postal cheque form, kept in a template
// directory as "cheque.qtf" beside "cheque.cfg" (its name and digest) and, once chosen, in the
// settings record (SETUP_CHEQUE_QTF). A directory holding "cheque.cfg" is a cheque template set.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QString>

struct ChequeTemplate
{
    QString qtf;
    QString name;   // "Name" of cheque.cfg
    QString digest; // "Digest" of cheque.cfg
    // MD5 of the text and the salt, as for invoice templates.
    QString computeDigest() const;
    bool certified() const { return !digest.isEmpty() && digest == computeDigest(); }
};

class ChequeTemplates
{
    Q_DECLARE_TR_FUNCTIONS(ChequeTemplates)

public:
    static bool isTemplateDir(const QString& directory);
    // Reads cheque.qtf and cheque.cfg; a directory without cheque.qtf is refused.
    static Result load(const QString& directory, ChequeTemplate& loaded);
    // Makes the set of directory the open company's cheque template (text and folder).
    static Result install(const QString& directory, ChequeTemplate& installed);
    // The template of the open company's settings; empty when none was chosen.
    static QString current();
    static QString missingMessage();
};

// The certified cheque template that comes with the program, built into it.
inline constexpr char kShippedChequeTemplateDir[] = ":/templates/cheque";
