-- Invoice captions added with version 301 (a new company database gets them too).
insert into ORDERLABELTRANSLATION values (0, 'TR_ROUNDING_ERROR_CORRECTION', 'Korrekciós tényező');
insert into ORDERLABELTRANSLATION values (1, 'TR_ROUNDING_ERROR_CORRECTION', 'Rounding error correction');
insert into ORDERLABELTRANSLATION values (2, 'TR_ROUNDING_ERROR_CORRECTION', 'Rundung Fehlerkorrektur');
insert into ORDERLABELTRANSLATION values (0, 'TR_ROUNDING', 'Kerekítés');
insert into ORDERLABELTRANSLATION values (1, 'TR_ROUNDING', 'Rounding');
insert into ORDERLABELTRANSLATION values (2, 'TR_ROUNDING', 'Rundung');
insert into ORDERLABELTRANSLATION values (0, 'TR_MAIL_TO', 'Levélcím');
insert into ORDERLABELTRANSLATION values (1, 'TR_MAIL_TO', 'Mail To');
insert into ORDERLABELTRANSLATION values (2, 'TR_MAIL_TO', 'Adresse');
