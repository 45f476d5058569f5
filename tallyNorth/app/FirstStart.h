// The first start on an empty database folder: instead of ending, the program offers the
// demonstration company or a new company of the user's own, made right there.
#pragma once

#include <QString>

#include <functional>

class Interaction;

// Asks for the new company's data and makes its file; the path, empty when cancelled.
using NewCompanyAsker = std::function<QString()>;

// True when dbFolder holds no company to open (the start would otherwise have nothing to do).
bool NeedsFirstCompany(const QString& dbFolder);

// Offers the demonstration company, a new company or leaving. The path of the made company,
// empty when the user leaves or making it failed (the reason has been shown).
QString OfferFirstCompany(const QString& dbFolder, Interaction& interaction,
                          const NewCompanyAsker& askNewCompany);
