#include "ChequeStore.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/FoldName.h"
#include "base/MessageArgs.h"
#include "base/RoundDecimals.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <cmath>

using namespace Col;

namespace {

constexpr double kLargestAmount = 1e12;

// The stored columns in the order Cheque's fields are read and written (the id apart).
constexpr const char* kColumns[] = {
    CHEQUE_CODE,         CHEQUE_ORDERHEAD_ID, CHEQUE_INVOICE_NO,      CHEQUE_INVOICE_NO_STR,
    CHEQUE_PARTNER_ID,   CHEQUE_PARTNER_CODE, CHEQUE_PARTNER_NAME,    CHEQUE_PARTNER_NAME_ASCII,
    CHEQUE_PARTNER_ZIP,  CHEQUE_PARTNER_CITY, CHEQUE_PARTNER_ADDRESS, CHEQUE_AMOUNT,
    CHEQUE_PRETENCE,     CHEQUE_NOTICE,       CHEQUE_PRINTED,         CHEQUE_DATE_CREATED,
    CHEQUE_DATE_PRINTED,
};

QVariant Optional(const std::optional<qint64>& value)
{
    return value ? QVariant(*value) : QVariant();
}

std::optional<qint64> OptionalId(const QVariant& value)
{
    if (IsNullValue(value))
        return std::nullopt;
    return ToInteger(value);
}

QVariant NullIfEmpty(const QString& text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

QVariantList Values(const Cheque& c)
{
    return {NullIfEmpty(c.code),
            Optional(c.orderId),
            Optional(c.invoiceNo),
            c.invoiceNoText,
            Optional(c.partnerId),
            c.partnerCode,
            c.partnerName.trimmed(),
            FoldName(c.partnerName.trimmed()),
            c.partnerZip,
            c.partnerCity,
            c.partnerAddress,
            c.amount,
            c.pretence,
            c.notice,
            FlagText(c.printed),
            c.dateCreated.isValid() ? QVariant(DateToSql(c.dateCreated)) : QVariant(),
            c.datePrinted.isValid() ? QVariant(DateToSql(c.datePrinted)) : QVariant()};
}

QString ColumnList()
{
    QStringList names{ColumnName(CHEQUE_ID)};
    for (const char* c : kColumns)
        names << ColumnName(c);
    return names.join(u", ");
}

Cheque ReadCheque(const SqlStatement& st)
{
    Cheque c;
    c.id = ToInteger(st.value(CHEQUE_ID));
    c.code = st.value(CHEQUE_CODE).toString();
    c.orderId = OptionalId(st.value(CHEQUE_ORDERHEAD_ID));
    c.invoiceNo = OptionalId(st.value(CHEQUE_INVOICE_NO));
    c.invoiceNoText = st.value(CHEQUE_INVOICE_NO_STR).toString();
    c.partnerId = OptionalId(st.value(CHEQUE_PARTNER_ID));
    c.partnerCode = st.value(CHEQUE_PARTNER_CODE).toString();
    c.partnerName = st.value(CHEQUE_PARTNER_NAME).toString();
    c.partnerZip = st.value(CHEQUE_PARTNER_ZIP).toString();
    c.partnerCity = st.value(CHEQUE_PARTNER_CITY).toString();
    c.partnerAddress = st.value(CHEQUE_PARTNER_ADDRESS).toString();
    c.amount = ToNumber(st.value(CHEQUE_AMOUNT));
    c.pretence = st.value(CHEQUE_PRETENCE).toString();
    c.notice = st.value(CHEQUE_NOTICE).toString();
    c.printed = IsFlagSet(st.value(CHEQUE_PRINTED));
    c.dateCreated = DateFromSql(st.value(CHEQUE_DATE_CREATED));
    c.datePrinted = DateFromSql(st.value(CHEQUE_DATE_PRINTED));
    return c;
}

Result DatabaseFailure(const SqlStatement& st)
{
    return st.failure(ChequeStore::tr("Database error:&") + st.errorText());
}

QString Placeholders(qsizetype count)
{
    QStringList marks;
    for (qsizetype i = 0; i < count; ++i)
        marks << QStringLiteral("?");
    return marks.join(u", ");
}

// The system's "%1:s" slots of the cheque texts.
QString FillSlots(QString text, const QStringList& values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        text.replace(QStringLiteral("%%1:s").arg(i + 1), values.at(i));
    return text;
}

} // namespace

double ChequeStore::wholeForints(double amount)
{
    return RoundDecimals(amount, 0);
}

Result ChequeStore::parseAmount(const QString& text, double& amount)
{
    QString t = text.trimmed();
    t.remove(u' ').remove(QChar(0x00A0)).replace(u',', u'.');
    if (t.isEmpty())
        return Result::failure(tr("Az osszeget meg kell adnia."));
    bool ok = false;
    const double value = t.toDouble(&ok);
    if (!ok || !std::isfinite(value))
        return Result::failure(
            FillArgs(tr("\"%s\" is not an amount. Type digits, with a decimal comma or point."),
                     {text.trimmed()}));
    amount = wholeForints(value);
    return Result::success();
}

Result ChequeStore::check(const Cheque& cheque)
{
    const double amount = wholeForints(cheque.amount);
    if (!std::isfinite(amount) || amount == 0.0)
        return Result::failure(tr("Az osszeget meg kell adnia."));
    if (amount < 0)
        return Result::failure(tr("A csekk osszege nem lehet negativ."));
    if (amount >= kLargestAmount)
        return Result::failure(tr("A csekk osszege tul nagy."));
    return Result::success();
}

Result ChequeStore::save(Cheque& cheque)
{
    if (Result r = check(cheque); !r)
        return r;
    cheque.amount = wholeForints(cheque.amount);
    if (!cheque.dateCreated.isValid())
        cheque.dateCreated = QDate::currentDate();
    const QVariantList values = Values(cheque);
    if (cheque.id == 0) {
        QStringList names;
        for (const char* c : kColumns)
            names << ColumnName(c);
        SqlStatement st(
            QStringLiteral("insert into %1 (%2) values (%3)")
                .arg(ColumnName(Tbl::CHEQUE), names.join(u", "), Placeholders(names.size())),
            values);
        if (!st.exec())
            return st.failure(tr("Csekk mentese nem sikerult."));
        cheque.id = ToInteger(st.lastInsertId());
        return Result::success();
    }
    QStringList assignments;
    for (const char* c : kColumns)
        assignments << ColumnName(c) + QLatin1String(" = ?");
    QVariantList binds = values;
    binds << cheque.id;
    SqlStatement st(
        QStringLiteral("update %1 set %2 where %3 = ?")
            .arg(ColumnName(Tbl::CHEQUE), assignments.join(u", "), ColumnName(CHEQUE_ID)),
        binds);
    if (!st.exec())
        return st.failure(tr("Csekk mentese nem sikerult."));
    if (st.numRowsAffected() != 1)
        return Result::failure(tr("Csekk adatainak betoltese nem sikerult.&Elkepzelheto, hogy egy "
                                  "masik felhasznalo mar torolte."));
    return Result::success();
}

Result ChequeStore::load(qint64 id, Cheque& cheque)
{
    SqlStatement st(QStringLiteral("select %1 from %2 where %3 = ?")
                        .arg(ColumnList(), ColumnName(Tbl::CHEQUE), ColumnName(CHEQUE_ID)),
                    {id});
    if (!st.exec())
        return DatabaseFailure(st);
    if (!st.next())
        return Result::failure(tr("Csekk adatainak betoltese nem sikerult.&Elkepzelheto, hogy egy "
                                  "masik felhasznalo mar torolte."));
    cheque = ReadCheque(st);
    return Result::success();
}

Result ChequeStore::list(const ChequeListFilter& filter, QList<Cheque>& rows, bool& more)
{
    rows.clear();
    more = false;
    QString text = QStringLiteral("select %1 from %2").arg(ColumnList(), ColumnName(Tbl::CHEQUE));
    QVariantList binds;
    const QString folded = FoldName(filter.partner.trimmed());
    if (!folded.isEmpty()) {
        // The folded name's beginning; LIKE's wildcards in the typed text are taken literally.
        QString pattern = folded;
        pattern.replace(u'\\', QLatin1String("\\\\"))
            .replace(u'%', QLatin1String("\\%"))
            .replace(u'_', QLatin1String("\\_"));
        text += QStringLiteral(" where %1 like ? escape '\\'")
                    .arg(ColumnName(CHEQUE_PARTNER_NAME_ASCII));
        binds << QString(pattern + u'%');
    }
    text += QStringLiteral(" order by %1 desc").arg(ColumnName(CHEQUE_ID));
    if (filter.limit > 0) {
        text += QStringLiteral(" limit ?");
        binds << filter.limit + 1;
    }
    SqlStatement st(text, binds);
    if (!st.exec())
        return st.failure(
            FillArgs(tr("Hiba: Csekkek lekerdezese nem sikerult&%s"), {st.errorText()}));
    while (st.next()) {
        if (filter.limit > 0 && rows.size() == filter.limit) {
            more = true;
            break;
        }
        rows << ReadCheque(st);
    }
    return Result::success();
}

QString ChequeStore::moreMessage()
{
    return tr("There are more matching cheques then displayed. Try more specific filter.");
}

Result ChequeStore::remove(const QList<qint64>& ids, Removal& removal)
{
    removal = {};
    SqlTransaction transaction;
    for (qint64 id : ids) {
        // A print date is what keeps a cheque: it may be in the customer's hands already.
        SqlStatement st(QStringLiteral("delete from %1 where %2 = ? and %3 is null")
                            .arg(ColumnName(Tbl::CHEQUE), ColumnName(CHEQUE_ID),
                                 ColumnName(CHEQUE_DATE_PRINTED)),
                        {id});
        if (!st.exec())
            return DatabaseFailure(st);
        if (st.numRowsAffected() == 1) {
            ++removal.deleted;
            continue;
        }
        if (!IsNullValue(SelectValue(
                Sql("select %1 from %2 where %3 = ?", {CHEQUE_ID, Tbl::CHEQUE, CHEQUE_ID}), {id})))
            ++removal.refused;
    }
    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + transaction.errorText());
    return Result::success();
}

QString ChequeStore::deleteQuestion(int count)
{
    if (count == 1)
        return tr("Biztosan torolni szeretne a kivalasztott csekket?");
    return FillArgs(tr("%d db csekk torlese.&Biztosan torolni szeretne a kijelolt csekkeket?"),
                    {QString::number(count)});
}

QString ChequeStore::refusedMessage(int count)
{
    return FillArgs(tr("%d kijelolt csekk nem torolheto,&mert mar korabban ki lettek nyomtatva."),
                    {QString::number(count)});
}

Result ChequeStore::unprinted(QList<qint64>& ids)
{
    ids.clear();
    SqlStatement st(Sql("select %1 from %2 where coalesce(%3, '0') <> '1' order by %1",
                        {CHEQUE_ID, Tbl::CHEQUE, CHEQUE_PRINTED}));
    if (!st.exec())
        return DatabaseFailure(st);
    while (st.next())
        ids << ToInteger(st.value(0));
    return Result::success();
}

Result ChequeStore::markPrinted(const QList<qint64>& ids, const QDate& date)
{
    SqlTransaction transaction;
    for (qint64 id : ids) {
        SqlStatement st(Sql("update %1 set %2 = '1', %3 = ? where %4 = ?",
                            {Tbl::CHEQUE, CHEQUE_PRINTED, CHEQUE_DATE_PRINTED, CHEQUE_ID}),
                        {DateToSql(date), id});
        if (!st.exec())
            return DatabaseFailure(st);
    }
    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + transaction.errorText());
    return Result::success();
}

Result ChequeStore::chequeFlag(qint64 orderId, bool& set)
{
    SqlStatement st(Sql("select p.%1 from %2 o join %3 p on p.%4 = o.%5 where o.%6 = ?",
                        {PAYMENTMETHOD_CHEQUE, Tbl::ORDERHEAD, Tbl::PAYMENTMETHOD, PAYMENTMETHOD_ID,
                         ORDERHEAD_PAYMENTMETHOD_ID, ORDERHEAD_ID}),
                    {orderId});
    if (!st.exec())
        return DatabaseFailure(st);
    set = st.next() && IsFlagSet(st.value(0));
    return Result::success();
}

QString ChequeStore::pretenceText(const QDate& invoiceDate, const QDate& due, const QString& number)
{
    return FillSlots(tr("Kelt:\n%1:s\nFiz. hatarido:\n%2:s\n%3:s"),
                     {FormatDate(invoiceDate), FormatDate(due), number});
}

QString ChequeStore::noticeText(const QDate& invoiceDate, const QDate& due, const QString& number)
{
    return FillSlots(tr("Kelt: %1:s\nFiz. hatarido: %2:s\n%3:s"),
                     {FormatDate(invoiceDate), FormatDate(due), number});
}

Result ChequeStore::createForInvoice(qint64 orderId, const QDate& today, qint64& chequeId)
{
    SqlStatement st(
        Sql("select %1, %2, %3, %4, %5, %6, %7, %8, %9, %10, %11, %12 from %13 where %14 = ?",
            {ORDERHEAD_INVOICE_NO, ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_PARTNER_ID,
             ORDERHEAD_PARTNER_CODE, ORDERHEAD_PARTNER_NAME, ORDERHEAD_PARTNER_ZIP,
             ORDERHEAD_PARTNER_CITY, ORDERHEAD_PARTNER_ADDRESS,
             ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, ORDERHEAD_TOTAL_GROSS, ORDERHEAD_DATE_CREATED,
             ORDERHEAD_DATE_PAYMENT_DUE, Tbl::ORDERHEAD, ORDERHEAD_ID}),
        {orderId});
    if (!st.exec())
        return DatabaseFailure(st);
    if (!st.next())
        return Result::failure(
            tr("Unable to load data from database.&Maybe it is deleted by an other user."));
    Cheque c;
    c.orderId = orderId;
    c.invoiceNo = OptionalId(st.value(ORDERHEAD_INVOICE_NO));
    c.invoiceNoText = st.value(ORDERHEAD_INVOICE_NO_STR).toString();
    c.partnerId = OptionalId(st.value(ORDERHEAD_PARTNER_ID));
    c.partnerCode = st.value(ORDERHEAD_PARTNER_CODE).toString();
    c.partnerName = st.value(ORDERHEAD_PARTNER_NAME).toString();
    c.partnerZip = st.value(ORDERHEAD_PARTNER_ZIP).toString();
    c.partnerCity = st.value(ORDERHEAD_PARTNER_CITY).toString();
    c.partnerAddress = st.value(ORDERHEAD_PARTNER_ADDRESS).toString();
    // The forint gross total to pay: a cheque is paid in forints.
    const QVariant localGross = st.value(ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS);
    c.amount =
        IsNullValue(localGross) ? ToNumber(st.value(ORDERHEAD_TOTAL_GROSS)) : ToNumber(localGross);
    const QDate createdOn = DateFromSql(st.value(ORDERHEAD_DATE_CREATED));
    const QDate created = createdOn.isValid() ? createdOn : today;
    const QDate due = DateFromSql(st.value(ORDERHEAD_DATE_PAYMENT_DUE));
    st.query().finish();
    c.pretence = pretenceText(created, due, c.invoiceNoText);
    c.notice = noticeText(created, due, c.invoiceNoText);
    c.dateCreated = today;
    if (Result r = save(c); !r)
        return r;
    chequeId = c.id;
    return Result::success();
}

Result ChequeStore::forInvoices(const QList<qint64>& orderIds, const QDate& today,
                                QList<qint64>& chequeIds)
{
    chequeIds.clear();
    SqlTransaction transaction;
    for (qint64 orderId : orderIds) {
        SqlStatement st(
            Sql("select o.%1, o.%2, (select c.%3 from %4 c where c.%5 = o.%6) from %7 o "
                "where o.%6 = ?",
                {ORDERHEAD_INVOICE_NO, ORDERHEAD_CANCELLED_INVOICE_NO, CHEQUE_ID, Tbl::CHEQUE,
                 CHEQUE_ORDERHEAD_ID, ORDERHEAD_ID, Tbl::ORDERHEAD}),
            {orderId});
        if (!st.exec())
            return DatabaseFailure(st);
        if (!st.next())
            return Result::failure(
                tr("Unable to load data from database.&Maybe it is deleted by an other user."));
        if (IsNullValue(st.value(ORDERHEAD_INVOICE_NO)) ||
            !IsNullValue(st.value(ORDERHEAD_CANCELLED_INVOICE_NO)))
            return Result::failure(tr("Csekk csak kiallitott szamlahoz nyomtathato."));
        if (!IsNullValue(st.value(2))) {
            chequeIds << ToInteger(st.value(2));
            continue;
        }
        st.query().finish();
        qint64 id = 0;
        if (Result r = createForInvoice(orderId, today, id); !r)
            return r;
        chequeIds << id;
    }
    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + transaction.errorText());
    return Result::success();
}
