// Saving the settings edited in the setup window: the checks in the order the user is told, the
// year-in-prefix notice, the new logo, then the SETUP row in one statement and the forint's
// rounding, all in one transaction. Messages go through the Interaction, so the window, the
// command line and the tests share it.
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QDate>
#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

class Interaction;

using SetupValues = QHash<QString, QVariant>;

struct SetupChanges
{
    SetupValues values;                // SETUP_... columns
    SetupValues homeCurrency;          // CURRENCY_..._DECIMALS of the forint's row
    std::optional<QByteArray> newLogo; // picture file bytes loaded in this session
};

struct SetupProblem
{
    QString message;
    QString column; // the field to show the user
};

// The first rule the values break: company name, ZIP, city, street address, default currency,
// the other required fields, the logo size, then the tax numbers.
std::optional<SetupProblem> CheckSetupValues(const SetupValues& values);

// The prefix holds the year, in four digits or in the last two.
bool PrefixHasYear(const QString& prefix, int year);
QString YearInPrefixNotice();

// Checks and writes; every message has been shown when it returns. badColumn receives the field
// of a failed check.
Result SaveSetup(SetupChanges changes, Interaction& interaction, QString* badColumn = nullptr,
                 const QDate& today = QDate::currentDate());

// The picture file of a stored logo; empty when there is none.
QByteArray LogoPicture(qint64 logoId);

// The logo as stored in LOGO_DATA (base64 of the picture file); nothing for data that is no
// picture.
std::optional<QString> LogoData(const QByteArray& pictureFile);
