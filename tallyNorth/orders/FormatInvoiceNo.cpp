#include "FormatInvoiceNo.h"

#include "Columns.h"
#include "base/Setup.h"

#include <algorithm>

QString FormatInvoiceNo(qint64 number, const QString& prefix, int width)
{
    // A negative width would left-justify with spaces; a huge one is a typing error.
    const int padding = std::clamp(width, 0, 64);
    return prefix + QString::asprintf("%0*lld", padding, static_cast<long long>(number));
}

QString FormatInvoiceNo(qint64 number)
{
    const Setup& setup = Setup::current();
    const qint64 width = setup.integer(Col::SETUP_INVOICE_NO_PADDING_ZEROS);
    return FormatInvoiceNo(number, setup.text(Col::SETUP_INVOICE_NO_PREFIX),
                           int(std::clamp<qint64>(width, 0, 64)));
}
