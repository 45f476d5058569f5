// Makes the open company database ready for use: creates the schema and basic data in a new
// file, checks the version, and carries an older file forward step by step behind a safety copy
// that is put back when anything goes wrong.
#pragma once

#include "base/Database.h"
#include "base/Result.h"

#include <QCoreApplication>

class Interaction;
class Progress;

inline constexpr int kCurrentDbVersion = 302;

// The version recorded in DBVERSION; -1 when the table, the row or the value is missing.
int ReadDbVersion(const QSqlDatabase& db = Database::session());

class DatabasePrepare
{
    Q_DECLARE_TR_FUNCTIONS(DatabasePrepare)

public:
    explicit DatabasePrepare(Interaction& interaction) : m_interaction(interaction) {}

    // Prepares the current database and loads its settings. Every message is shown through the
    // interaction; a failure carries the last one and leaves the database closed.
    Result run();

    // For tests: upgrade step 1..6 fails after doing its work, before it is committed.
    void setFailingStep(int step) { m_failingStep = step; }

    static QString safetyCopyPath(const QString& databasePath);
    // Present while an upgrade runs: the safety copy beside it is then the original.
    static QString upgradeMarkerPath(const QString& databasePath);
    static QString newerVersionMessage();

private:
    struct Step
    {
        int from;
        Result (DatabasePrepare::*work)();
    };

    bool needsWork(const QString& path);
    Result createSchema();
    Result upgrade();
    Result runSteps(Progress& progress);
    Result runStep(int number, const Step& step);
    Result restore(const QString& path, const QString& copy);
    Result fail(const QString& message);

    Result step1();
    Result step2();
    Result step3();
    Result step4();
    Result step5();
    Result step6();
    Result exec(const QString& script);
    Result execResource(const char* name);
    Result recordVersion(int version);
    Result copyShippingDates();
    Result selectUnpaidPaymentMethods();
    Result carryLineRounding();

    Interaction& m_interaction;
    int m_failingStep = 0;
    bool m_canceled = false;
};

// Prepares the current database (see DatabasePrepare::run).
Result PrepareDatabase(Interaction& interaction);
