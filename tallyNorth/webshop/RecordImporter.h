// Turns a PARTNERS or PRODUCTS document into partner or product rows, matched by code. Each
// record is written in a transaction of its own together with its timestamp, so a run that
// stops keeps what it stored and resumes after it.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QList>

class Interaction;
class Progress;
class QIODevice;
class WebshopInteraction;
struct XmlRecord;

class RecordImporter
{
    Q_DECLARE_TR_FUNCTIONS(RecordImporter)

public:
    enum class Kind { Partners, Products };

    RecordImporter(Kind kind, Interaction& interaction, WebshopInteraction& ask);

    // False when the document is refused or a record failed; the message has been shown.
    bool importDocument(QIODevice& device, Progress* progress = nullptr);

    // The rows inserted or updated by the last run.
    const QList<qint64>& stored() const { return m_stored; }

private:
    Result importRecord(const XmlRecord& record);
    Result partnerValues(const XmlRecord& record, QVariantMap& row);
    Result productValues(const XmlRecord& record, QVariantMap& row);

    Kind m_kind;
    Interaction& m_interaction;
    WebshopInteraction& m_ask;
    QList<qint64> m_stored;
};
