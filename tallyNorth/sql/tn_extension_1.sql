-- What this program adds to a company file, step 1: the extension version and the indexes
-- that let the order list read its first screen under each kind without walking every order.
-- Each partial index holds the orders of one rarely matching kind, keyed by id, so the newest
-- come first; its condition is written exactly as the list query writes it. A step may meet
-- parts of itself already there (a file whose TN_VERSION was lost), so each part is conditional.
create table if not exists TN_VERSION (TN_VERSION_VERSION integer not null);
insert into TN_VERSION (TN_VERSION_VERSION) select 0 where not exists (select 1 from TN_VERSION);
create index if not exists TN_IDX_ORDERHEAD_NOT_PRINTED on ORDERHEAD(ORDERHEAD_ID)
  where coalesce(ORDERHEAD_PRINTED_COPIES, 0) = 0;
create index if not exists TN_IDX_ORDERHEAD_UNVERIFIED on ORDERHEAD(ORDERHEAD_ID)
  where coalesce(ORDERHEAD_VERIFIED, '0') <> '1';
create index if not exists TN_IDX_ORDERHEAD_VERIFIED on ORDERHEAD(ORDERHEAD_ID)
  where ORDERHEAD_VERIFIED = '1' and ORDERHEAD_INVOICE_NO is null;
create index if not exists TN_IDX_ORDERHEAD_CANCEL on ORDERHEAD(ORDERHEAD_ID)
  where ORDERHEAD_TYPE = 1;
create index if not exists TN_IDX_ORDERHEAD_CANCELLED on ORDERHEAD(ORDERHEAD_ID)
  where ORDERHEAD_CANCELLING_INVOICE_NO is not null and ORDERHEAD_INVOICE_NO is not null;
create index if not exists TN_IDX_ORDERHEAD_UNPAID on ORDERHEAD(ORDERHEAD_ID)
  where ORDERHEAD_INVOICE_NO is not null and coalesce(ORDERHEAD_PAID, '0') <> '1';
