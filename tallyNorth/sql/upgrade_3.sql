-- Version 2 to 3: partner download from the webshop.
-- [columns]
alter table SETUP add  SETUP_DOWNLOAD_PARTNER_URL text;
alter table SETUP add  SETUP_DOWNLOAD_LAST_PARTNER_TIMESTAMP text;
alter table SETUP add  SETUP_DOWNLOAD_MAX_PARTNERS integer;
update SETUP set SETUP_DOWNLOAD_PARTNER_URL = 'https://webshop.tallynorth.hu/partner.php', SETUP_DOWNLOAD_MAX_PARTNERS = 1000;
-- [indexes]
drop index IDX_PRODUCT$PRODUCT_NAME;create index IDX_PRODUCT$PRODUCT_NAME on PRODUCT(PRODUCT_NAME);
