-- Version 1 to 2: consolidated invoices. The lines' shipping dates are copied from their orders
-- by the program between the two sections.
-- [columns]
alter table ORDERITEM add  ORDERITEM_DATE_SHIPPED date;
alter table ORDERHEAD add  ORDERHEAD_CONSOLIDATED_INVOICE text;
alter table SETUP add  SETUP_INVOICE_CONSOLIDATED_HEADER_QTF text;
alter table SETUP add  SETUP_INVOICE_CONSOLIDATED_FOOTER_QTF text;
update ORDERHEAD set ORDERHEAD_CONSOLIDATED_INVOICE = "0";
-- [indexes]
create index IDX_M$ORDERITEM_DATE_SHIPPED on ORDERITEM(ORDERITEM_DATE_SHIPPED);
