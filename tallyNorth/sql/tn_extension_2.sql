-- What this program adds to a company file, step 2: online invoice reporting to the tax
-- authority. Every issued invoice gets its queue row in the transaction that numbers it, so none
-- can be missed; the row carries the reporting state, the authority's transaction id and its
-- messages. The technical user's data live in one row of their own, away from SETUP, so that
-- nothing that reads or exports the settings can meet the secrets.
create table if not exists TN_NAV_QUEUE (
  TN_NAV_QUEUE_INVOICE_NO integer primary key,
  TN_NAV_QUEUE_ORDERHEAD_ID integer not null,
  TN_NAV_QUEUE_STATE integer not null default 0,
  TN_NAV_QUEUE_TRANSACTION_ID text,
  TN_NAV_QUEUE_INDEX integer,
  TN_NAV_QUEUE_MESSAGES text,
  TN_NAV_QUEUE_ATTEMPTS integer not null default 0,
  TN_NAV_QUEUE_NEXT_TRY text,
  TN_NAV_QUEUE_QUEUED text,
  TN_NAV_QUEUE_CHANGED text
);
create index if not exists TN_NAV_QUEUE_ORDERHEAD on TN_NAV_QUEUE(TN_NAV_QUEUE_ORDERHEAD_ID);
create table if not exists TN_NAV_SETUP (
  TN_NAV_SETUP_LOGIN text,
  TN_NAV_SETUP_PASSWORD_HASH text,
  TN_NAV_SETUP_SIGNING_KEY text,
  TN_NAV_SETUP_EXCHANGE_KEY text,
  TN_NAV_SETUP_TAX_NO text,
  TN_NAV_SETUP_PRODUCTION text,
  TN_NAV_SETUP_URL text
);
insert into TN_NAV_SETUP (TN_NAV_SETUP_PRODUCTION) select '0'
  where not exists (select 1 from TN_NAV_SETUP);
