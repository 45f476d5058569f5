// Opening a company file for the benchmarks: the program's own preparation (schema, upgrades,
// schema extensions), with nobody to ask.
#pragma once

#include "base/Interaction.h"
#include "base/Result.h"

#include <QString>

class QuietInteraction : public Interaction
{
public:
    void message(MessageKind, const QString& text) override;
    bool askYesNo(const QString&) override { return true; }
    Choice choose3(const QString&, const QString&, const QString&, const QString&) override
    {
        return Choice::First;
    }
    bool sqlError(const QString& error, const QString& statement) override;
    std::optional<QList<bool>> checkItems(const QString&, const QString&, const QString&,
                                          const QStringList&) override
    {
        return std::nullopt;
    }
    std::unique_ptr<Progress> progress(const QString&) override
    {
        return std::make_unique<SilentProgress>();
    }
};

// Opens path as the current company (creating it when missing) and prepares it.
Result OpenBenchCompany(const QString& path);
