// The stores of the master-data tables, each configured with its columns, order and rules.
#pragma once

#include "TableStore.h"

// The master-data tables, for code that picks one of them (lists, choosers, references).
enum class MasterTable {
    Vat,
    Currency,
    PaymentMethod,
    NoVatReason,
    StatNo,
    Lang,
    Country,
    Partner,
    Product
};

const TableStore& VatStore();
const TableStore& CurrencyStore();
const TableStore& PaymentMethodStore();
const TableStore& NoVatReasonStore();
const TableStore& StatNoStore();
const TableStore& LangStore();
const TableStore& CountryStore();
const TableStore& PartnerStore();
const TableStore& ProductStore();

// Child tables of the payment method, no-VAT reason and product stores, in their order.
enum class ProductChild { Translations, Prices };

// The partners a typed name stands for: those whose folded name is the text's, else those it
// begins; at most two, enough to tell one from many.
Result MatchPartners(const QString& text, QList<qint64>& ids);

// How many partners or products a list reads at most: SETUP_RECORD_LIMIT, 1000 when unset.
int ListRecordLimit();

// Decimal-count range of the currency fields.
inline constexpr int kMaxCurrencyDecimals = 6;

// A total is never rounded to more decimals than it is printed with.
void CapRoundingDecimals(Record& currency);
// Language codes are kept in capitals, so "en" and "EN" are one language.
void UpperCaseCode(Record& lang);
// The billing columns of a partner and the mailing columns they fill when the addresses match.
const QList<std::pair<const char*, const char*>>& MailAddressColumns();
// A partner whose mailing address is the billing address gets the billing data as mailing data.
void CopyMailAddress(Record& partner);
// A new partner: mailing address as billing, and the country, language, currency and discount
// type the settings give for invoices.
Record NewPartnerDefaults();
// What choosing a country brings to a partner: its language, and its currency when it has one.
// Only the columns to change are set.
Result CountryDefaults(qint64 countryId, Record& partner);
