// The command-line front end's shared pieces: the context every verb runs in.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QTextStream>

class CliInteraction;
class Interaction;

struct CliContext
{
    QString dbPath; // --db FILE, empty when not given
    QString language;
    // What was wrong when a verb returns ExitUsage; printed with the verb's usage.
    QString usageError;
    Interaction* interaction = nullptr;
    // The same object, for what only the command line gives it (answers from options).
    CliInteraction* cliInteraction = nullptr;
    QTextStream* out = nullptr;
    QTextStream* err = nullptr;
};

enum CliExit { ExitOk = 0, ExitFailure = 1, ExitUsage = 2 };

// One verb: its name, a one-line usage and the function that runs it with its own arguments.
struct CliCommand
{
    const char* name;
    const char* usage;
    int (*run)(CliContext& context, const QStringList& args);
};

// Prints a message of the system on standard error: "&" is a line break, formatting dropped.
void PrintMessage(CliContext& context, const QString& text);

// Splits a verb's arguments into positional ones and "--name value" options of the given names;
// false on an unknown option or a missing value (bad usage), which is then told in error.
bool ParseVerbArgs(const QStringList& args, const QStringList& optionNames, QStringList* positional,
                   QHash<QString, QString>* options, QString* error = nullptr);

// Records what was wrong with a verb's arguments; returns ExitUsage.
int UsageError(CliContext& context, const QString& what);
