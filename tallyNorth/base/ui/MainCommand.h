// The commands of the main window's menus. Each subsystem registers a handler for the commands
// it implements; a command without a handler is shown disabled.
#pragma once

enum class MainCommand {
    NewOrder,
    Setup,
    DoBackup,
    RestoreBackup,
    ChangeCompany,
    NewCompany,
    Exit,
    VatKeys,
    NoVatReasons,
    PaymentMethods,
    StatNumbers,
    Languages,
    Countries,
    Currencies,
    LabelTranslations,
    DownloadOrders,
    DownloadProducts,
    DownloadPartners,
    ImportOrders,
    ImportProducts,
    ImportPartners,
    OutgoingInvoices,
    OutgoingInvoiceItems,
    CustomersReport,
    ProductsSoldReport,
    ReceivablesByInvoices,
    ReceivablesByPartners,
    HelpTopics,
    Declaration,
    About,
    NavSetup,
    NavReport,
};

// The main window's tabs, in their order.
enum class MainTab { Orders, Products, Partners, Cheques };
