-- Countries, languages, the reverse-charge no-VAT reason and the payment method translations:
-- written into a new company database and again by the upgrade to version 300.
insert into COUNTRY values (0, 'HU', 'Magyarország', '', NULL, 0);
insert into COUNTRY values (1, 'US', 'Amerikai Egyesült Államok', 'USA', 1, 2);
insert into COUNTRY values (2, 'DE', 'Németország', 'Germany', 2, 1);
insert into COUNTRY values (3, 'AT', 'Ausztria', 'Austria', 2, 1);
insert into COUNTRY values (4, 'RO', 'Románia', 'Romania', 1, 1);
insert into COUNTRY values (5, 'SK', 'Szlovákia', 'Slovak Republic', 1, 1);
insert into LANG values (1, 'EN', 'Angol');
insert into LANG values (2, 'DE', 'Német');
insert into NOVATREASON values (1, 'FAD', 'Fordított adózás', 'Az ÁFÁ-t a vevő fizeti.');
insert into NOVATREASONTRANSLATION values (1, 1, 'VAT have to be paid by customer.');
insert into NOVATREASONTRANSLATION values (1, 2, 'MwSt wird von den Kunden bezahlt.');
insert into PAYMENTMETHODTRANSLATION values (1, 1, 'Cash', 'Thank you for your purchase. Köszönjük, hogy nálunk vásárolt.');
insert into PAYMENTMETHODTRANSLATION values (1, 2, 'Barverkauf', 'Vielen Dank für Ihren Einkauf. Köszönjük, hogy nálunk vásárolt.');
insert into PAYMENTMETHODTRANSLATION values (2, 1, 'Wire Transfer', 'Thank you for your purchase. Köszönjük, hogy nálunk vásárolt.');
insert into PAYMENTMETHODTRANSLATION values (2, 2, 'Überweisung', 'Vielen Dank für Ihren Einkauf. Köszönjük, hogy nálunk vásárolt.');
