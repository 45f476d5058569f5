// The text form of an invoice number: the settings' prefix and the number zero-padded.
#pragma once

#include <QString>

// prefix + number printed with "%0<width>d"; a width below 1 gives the plain number.
QString FormatInvoiceNo(qint64 number, const QString& prefix, int width);
// With SETUP_INVOICE_NO_PREFIX and SETUP_INVOICE_NO_PADDING_ZEROS of the current settings.
QString FormatInvoiceNo(qint64 number);
