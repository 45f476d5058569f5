// The technical user of the online invoice system and where to reach it, kept in TN_NAV_SETUP.
// The password is kept only as its SHA-512 (all that the requests need); the keys are kept as
// given, and none of them is ever printed, logged or exported.
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

struct NavSettings
{
    QString login;
    QString passwordHash; // upper-case hex SHA-512 of the password
    QString signingKey;
    QString exchangeKey;
    QString taxNo; // the seller's eight-digit taxpayer id, as the technical user was made for
    bool production = false;
    QString url; // empty: the authority's address for the chosen environment

    // The base address of the interface (ending in "/invoiceService/v3").
    QString serviceUrl() const;
    bool complete() const;
    static QString passwordHashOf(const QString& password);
};

class NavSettingsStore
{
    Q_DECLARE_TR_FUNCTIONS(NavSettingsStore)

public:
    static Result load(NavSettings& settings);
    // Writes every field; the row exists from the schema extension on.
    static Result save(const NavSettings& settings);
};
