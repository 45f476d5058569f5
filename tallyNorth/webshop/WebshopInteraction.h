// What the webshop exchange asks of a person besides messages: setting up a missing code in a
// master-data editor or list, and the login of the authentication dialog. Without a person
// (command line, tests by default) every question is cancelled, which stops the import cleanly.
#pragma once

#include "masterdata/MasterTables.h"

#include <optional>

class WebshopInteraction
{
public:
    struct Login
    {
        QString url;
        QString login;
        QString password;
        bool savePassword = false;
    };

    virtual ~WebshopInteraction() = default;

    // The table's edit dialog on a row, or on a new row with presets; the saved row's id.
    virtual std::optional<qint64> editRow(MasterTable /*table*/, std::optional<qint64> /*id*/,
                                          const Record& /*presets*/ = {})
    {
        return std::nullopt;
    }
    // The table's list opened for choosing; the chosen row's id.
    virtual std::optional<qint64> chooseRow(MasterTable /*table*/) { return std::nullopt; }
    // The authentication dialog with its message, filled with proposal; what was accepted.
    virtual std::optional<Login> login(const QString& /*message*/, const Login& /*proposal*/)
    {
        return std::nullopt;
    }
};
