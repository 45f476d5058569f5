-- Version 301 to 302: a comment on each bank item.
alter table BANKITEM add  BANKITEM_COMMENT text;
