#include "CancelInvoice.h"

#include "ConvertOrderType.h"
#include "Order.h"
#include "OrderFill.h"
#include "OrderStore.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QHash>
#include <QSqlField>
#include <QSqlRecord>

namespace {

Result CreateFailed(const QString& reason, const SqlStatement* st = nullptr)
{
    const QString message = reason + u'&' + CancelInvoice::tr("Can't create Cancel Invoice.");
    return st ? st->failure(message) : Result::failure(message);
}

// Inserts a copy of row with the given columns replaced and the key left out.
bool InsertCopy(const char* table, const char* key, const QSqlRecord& row,
                const QHash<QString, QVariant>& replaced, SqlStatement*& failed,
                std::optional<SqlStatement>& holder, qint64* newId = nullptr)
{
    QStringList names;
    QVariantList binds;
    for (int i = 0; i < row.count(); ++i) {
        const QString name = row.fieldName(i);
        if (name == QLatin1StringView(key))
            continue;
        names << name;
        binds << (replaced.contains(name) ? replaced.value(name) : row.value(i));
    }
    holder.emplace(QStringLiteral("insert into %1 (%2) values (%3)")
                       .arg(QLatin1StringView(table), names.join(QStringLiteral(", ")),
                            QStringList(names.size(), QStringLiteral("?")).join(u',')),
                   binds);
    if (!holder->exec()) {
        failed = &*holder;
        return false;
    }
    if (newId)
        *newId = holder->lastInsertId().toLongLong();
    return true;
}

QVariant Negated(const QVariant& v)
{
    return IsNullValue(v) ? v : QVariant(-ToNumber(v));
}

} // namespace

Result CancelInvoice::state(qint64 orderId, CancelState& state)
{
    state = {};
    SqlStatement st(
        Sql("select %1, %2, %3, %4 from %5 where %6 = ?",
            {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_CANCELLING_INVOICE_NO, Col::ORDERHEAD_TYPE,
             Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR, Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
        {orderId});
    if (!st.exec())
        return st.failure(tr("Database error:&") + st.errorText());
    if (!st.next())
        return Result::failure(
            tr("Unable to load data from database.&Maybe it is deleted by an other user."));
    using Block = CancelState::Block;
    if (IsNullValue(st.value(Col::ORDERHEAD_INVOICE_NO)))
        state.block = Block::NotInvoice;
    else if (!IsNullValue(st.value(Col::ORDERHEAD_CANCELLING_INVOICE_NO)))
        state.block = Block::Cancelled;
    else if (ToInteger(st.value(Col::ORDERHEAD_TYPE)) == int(OrderType::CancellingInvoice))
        state.block = Block::Cancelling;
    state.cancelledBy = st.value(Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR).toString();
    if (state.block != Block::None)
        return Result::success();
    const qint64 number = ToInteger(st.value(Col::ORDERHEAD_INVOICE_NO));
    st.query().finish();

    // A second cancelling order would only fail when printed; say so now.
    SqlStatement waiting(
        Sql("select count(*) from %1 where %2 = ? and %3 is null",
            {Tbl::ORDERHEAD, Col::ORDERHEAD_CANCELLED_INVOICE_NO, Col::ORDERHEAD_INVOICE_NO}),
        {number});
    if (!waiting.exec())
        return waiting.failure(tr("Database error:&") + waiting.errorText());
    if (waiting.next() && ToInteger(waiting.value(0)) > 0)
        state.block = Block::CancelWaiting;
    return Result::success();
}

Result CancelInvoice::check(qint64 orderId)
{
    CancelState s;
    if (Result r = state(orderId, s); !r)
        return r;
    switch (s.block) {
    case CancelState::Block::None:
        return Result::success();
    case CancelState::Block::NotInvoice:
        return Result::failure(tr("Only an issued invoice can be cancelled."));
    case CancelState::Block::Cancelled:
        return Result::failure(tr("Cancelled invoice can not be cancelled."));
    case CancelState::Block::Cancelling:
        return Result::failure(tr("A cancelling invoice can not be cancelled."));
    case CancelState::Block::CancelWaiting:
        return Result::failure(
            tr("This invoice already has a cancelling invoice waiting to be printed."));
    }
    return Result::success();
}

Result CancelInvoice::checkData(const CancelData& data, bool byItems)
{
    if (!byItems && !data.dateShipped.isValid())
        return Result::failure(tr("Date Shipped field must have a value."));
    if (!data.datePaymentDue.isValid())
        return Result::failure(tr("Date Payment Due field must have a value."));
    if (!data.paymentMethodId)
        return Result::failure(tr("Payment Method field is required."));
    if (data.dateShipped.isValid() && data.datePaymentDue < data.dateShipped)
        return Result::failure(tr("The payment due date can not be before the shipping date."));
    return Result::success();
}

Result CancelInvoice::create(qint64 orderId, const CancelData& data, qint64& newId,
                             const QDate& today)
{
    if (Result r = check(orderId); !r)
        return r;

    QHash<QString, QVariant> head;
    if (data.paymentMethodId) {
        Order order;
        if (Result r = OrderStore::load(orderId, order); !r)
            return r;
        if (Result r = OrderFill::paymentMethod(order, *data.paymentMethodId); !r)
            return r;
        head.insert(ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_ID), *data.paymentMethodId);
        head.insert(ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_CODE), order.paymentMethodCode);
        head.insert(ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_NAME), order.paymentMethodName);
        head.insert(ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_NAME_TRANSLATION),
                    order.paymentMethodNameTranslation);
        head.insert(ColumnName(Col::ORDERHEAD_PAYMENTMETHOD_PAID),
                    FlagText(order.paymentMethodPaid));
    }

    SqlTransaction transaction;
    SqlStatement source(Sql("select * from %1 where %2 = ?", {Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                        {orderId});
    if (!source.exec() || !source.next())
        return CreateFailed(tr("Unable to create cancel invoice in database."), &source);
    const QSqlRecord row = source.query().record();
    source.query().finish();

    const QString numberText = row.value(ColumnName(Col::ORDERHEAD_INVOICE_NO_STR)).toString();
    const bool consolidated = IsFlagSet(row.value(ColumnName(Col::ORDERHEAD_CONSOLIDATED_INVOICE)));
    const QVariant nullValue;
    head.insert(ColumnName(Col::ORDERHEAD_TYPE), int(OrderType::CancellingInvoice));
    head.insert(ColumnName(Col::ORDERHEAD_CODE), nullValue);
    head.insert(ColumnName(Col::ORDERHEAD_CANCELLED_INVOICE_NO),
                row.value(ColumnName(Col::ORDERHEAD_INVOICE_NO)));
    head.insert(ColumnName(Col::ORDERHEAD_CANCELLED_INVOICE_NO_STR), numberText);
    for (const char* column :
         {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_INVOICE_NO_STR,
          Col::ORDERHEAD_CANCELLING_INVOICE_NO, Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR,
          Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET, Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT,
          Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS})
        head.insert(ColumnName(column), nullValue);
    // The stored totals are negated, never recomputed: the cancellation matches to the last unit.
    for (const char* column :
         {Col::ORDERHEAD_TOTAL_NET, Col::ORDERHEAD_TOTAL_VAT, Col::ORDERHEAD_TOTAL_GROSS,
          Col::ORDERHEAD_TOTAL_CORRECTION_NET, Col::ORDERHEAD_TOTAL_CORRECTION_VAT,
          Col::ORDERHEAD_TOTAL_CORRECTION_GROSS, Col::ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE})
        head.insert(ColumnName(column), -ToNumber(row.value(ColumnName(column))));
    head.insert(ColumnName(Col::ORDERHEAD_UNPAID_TOTAL), 0.0);
    head.insert(ColumnName(Col::ORDERHEAD_PAID), FlagText(false));
    head.insert(ColumnName(Col::ORDERHEAD_PRINTED_COPIES), 0);
    head.insert(ColumnName(Col::ORDERHEAD_VERIFIED), FlagText(true));
    head.insert(ColumnName(Col::ORDERHEAD_DATE_CREATED), DateToSql(today));
    if (data.dateShipped.isValid())
        head.insert(ColumnName(Col::ORDERHEAD_DATE_SHIPPED), DateToSql(data.dateShipped));
    if (data.datePaymentDue.isValid())
        head.insert(ColumnName(Col::ORDERHEAD_DATE_PAYMENT_DUE), DateToSql(data.datePaymentDue));
    head.insert(ColumnName(Col::ORDERHEAD_COMMENT_TEXT),
                FillArgs(tr("This is the cancel invoice of No %s"), {numberText}));

    SqlStatement* failed = nullptr;
    std::optional<SqlStatement> insert;
    qint64 id = 0;
    if (!InsertCopy(Tbl::ORDERHEAD, Col::ORDERHEAD_ID, row, head, failed, insert, &id))
        return CreateFailed(tr("Unable to create cancel invoice in database."), failed);

    SqlStatement items(Sql("select * from %1 where %2 = ? order by %3",
                           {Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID, Col::ORDERITEM_ID}),
                       {orderId});
    if (!items.exec())
        return CreateFailed(tr("Unable to create items of cancel invoice in database."), &items);
    QList<QSqlRecord> itemRows;
    while (items.next())
        itemRows << items.query().record();
    items.query().finish();
    for (const QSqlRecord& item : std::as_const(itemRows)) {
        QHash<QString, QVariant> line{
            {ColumnName(Col::ORDERITEM_ORDERHEAD_ID), id},
            {ColumnName(Col::ORDERITEM_CODE), nullValue},
            {ColumnName(Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET), nullValue},
            {ColumnName(Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT), nullValue},
            {ColumnName(Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS), nullValue}};
        for (const char* column : {Col::ORDERITEM_QTY, Col::ORDERITEM_TOTAL_NET,
                                   Col::ORDERITEM_TOTAL_VAT, Col::ORDERITEM_TOTAL_GROSS})
            line.insert(ColumnName(column), Negated(item.value(ColumnName(column))));
        // Items of a consolidated invoice keep their own shipping dates.
        if (data.dateShipped.isValid() && !consolidated)
            line.insert(ColumnName(Col::ORDERITEM_DATE_SHIPPED), DateToSql(data.dateShipped));
        if (!InsertCopy(Tbl::ORDERITEM, Col::ORDERITEM_ID, item, line, failed, insert))
            return CreateFailed(tr("Unable to create items of cancel invoice in database."),
                                failed);
    }
    if (!transaction.commit())
        return CreateFailed(tr("Unable to create cancel invoice in database."));
    newId = id;
    return Result::success();
}
