-- Version none to 1: rounding of cash payments to 5 forints, the version table.
alter table PAYMENTMETHOD add  PAYMENTMETHOD_ROUND_TO_5 text default "0";
create table DBVERSION (  VERSION integer );
alter table ORDERHEAD add  ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE real not null default 0;
alter table ORDERHEAD add  ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5 text default "0";
update PAYMENTMETHOD set PAYMENTMETHOD_ROUND_TO_5 = "1" where PAYMENTMETHOD_NAME = "Készpénz";
