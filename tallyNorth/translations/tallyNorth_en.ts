<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
    <context>
        <name>AppCommands</name>
        <message>
            <source>Choose one with --db FILE.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Demonstration company created: %s</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>Backup</name>
        <message>
            <source>The previous database file is kept here:&amp;%s</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Backup file saved successfully.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error backing up database file.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The content of current database will be overwritten&amp;by the backup file you select to restore.&amp;Do you want to continue?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The selected file is not a backup of currently active database/company.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error restoring backup database file.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Database restored successfully.&amp;Do you want to open it now?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to open restored database file.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Backup file restored successfully.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ChequeCommands</name>
        <message>
            <source>Nyomtatas napja</source>
            <translation>Print date</translation>
        </message>
        <message>
            <source>Osszeg</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Szamlaszam</source>
            <translation>Invoice No</translation>
        </message>
    </context>
    <context>
        <name>ChequeEditLayout</name>
        <message>
            <source>Szamlaszam</source>
            <translation>Invoice No</translation>
        </message>
        <message>
            <source>Osszeg</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Jogcim (bal oldalon)</source>
            <translation>Pretence (left side)</translation>
        </message>
        <message>
            <source>Kozlemeny (jobb oldalon)</source>
            <translation>Notice (right side)</translation>
        </message>
        <message>
            <source>Partner keresese vagy uj partner letrehozasa</source>
            <translation>Find a partner or create a new one</translation>
        </message>
        <message>
            <source>Csekk letrehozasa/szerkesztese</source>
            <translation>Create/edit cheque</translation>
        </message>
    </context>
    <context>
        <name>ChequeList</name>
        <message>
            <source>Csekkek nyomtatasa</source>
            <translation>Print cheques</translation>
        </message>
        <message>
            <source>Valassza ki a torlendo csekket!</source>
            <translation>Select the cheque to delete!</translation>
        </message>
    </context>
    <context>
        <name>ChequeListModel</name>
        <message>
            <source>Szamlaszam</source>
            <translation>Invoice No</translation>
        </message>
        <message>
            <source>Osszeg</source>
            <translation>Amount</translation>
        </message>
        <message>
            <source>Nyomtatas napja</source>
            <translation>Print date</translation>
        </message>
    </context>
    <context>
        <name>ChequePrinterLayout</name>
        <message>
            <source>Csak a kivalasztott csekkeket nyomtatja</source>
            <translation>Prints the selected cheques only</translation>
        </message>
        <message>
            <source>Csekknyomtatas modja</source>
            <translation>Cheque printing mode</translation>
        </message>
        <message>
            <source>Minden csekket nyomtat, amik meg nem voltak nyomtatva</source>
            <translation>Prints every cheque not printed yet</translation>
        </message>
    </context>
    <context>
        <name>ChequePrinting</name>
        <message>
            <source>Csekk-nyomtatas kiprobalasa</source>
            <translation>Cheque printing test</translation>
        </message>
        <message>
            <source>Csekk: %s, %d Ft</source>
            <translation>Cheque: %s, %d Ft</translation>
        </message>
        <message>
            <source>Csekkek nyomtatasa - Vantrell Szamlazo</source>
            <translation>Printing cheques - Vantrell Invoicer</translation>
        </message>
        <message>
            <source>Csekkek nyomtatasa</source>
            <translation>Printing cheques</translation>
        </message>
        <message>
            <source>Nem sikerult a csekk adatainak betoltese az adatbazisbol.</source>
            <translation>Unable to load the cheque's data from the database.</translation>
        </message>
        <message>
            <source>Nincsenek nyomtatando csekkek</source>
            <translation>There are no cheques to print</translation>
        </message>
        <message>
            <source>Nyomtatas nem sikerult.</source>
            <translation>Printing failed.</translation>
        </message>
    </context>
    <context>
        <name>ChequeStore</name>
        <message>
            <source>%d db csekk torlese.&amp;Biztosan torolni szeretne a kijelolt csekkeket?</source>
            <translation>Deleting %d cheques.&amp;Do you really want to delete the selected cheques?</translation>
        </message>
        <message>
            <source>%d kijelolt csekk nem torolheto,&amp;mert mar korabban ki lettek nyomtatva.</source>
            <translation>%d selected cheques can not be deleted,&amp;because they have already been printed.</translation>
        </message>
        <message>
            <source>A csekk osszege nem lehet negativ.</source>
            <translation>The amount of a cheque can not be negative.</translation>
        </message>
        <message>
            <source>A csekk osszege tul nagy.</source>
            <translation>The amount of the cheque is too large.</translation>
        </message>
        <message>
            <source>Az osszeget meg kell adnia.</source>
            <translation>You must give the amount.</translation>
        </message>
        <message>
            <source>Biztosan torolni szeretne a kivalasztott csekket?</source>
            <translation>Do you really want to delete the selected cheque?</translation>
        </message>
        <message>
            <source>Csekk adatainak betoltese nem sikerult.&amp;Elkepzelheto, hogy egy masik felhasznalo mar torolte.</source>
            <translation>Unable to load the cheque's data.&amp;Maybe it is deleted by an other user.</translation>
        </message>
        <message>
            <source>Csekk csak kiallitott szamlahoz nyomtathato.</source>
            <translation>A cheque can be printed for an issued invoice only.</translation>
        </message>
        <message>
            <source>Csekk mentese nem sikerult.</source>
            <translation>Unable to save the cheque.</translation>
        </message>
        <message>
            <source>Hiba: Csekkek lekerdezese nem sikerult&amp;%s</source>
            <translation>Error: unable to query the cheques&amp;%s</translation>
        </message>
        <message>
            <source>Kelt: %1:s
Fiz. hatarido: %2:s
%3:s</source>
            <translation>Dated: %1:s
Payment due: %2:s
%3:s</translation>
        </message>
        <message>
            <source>Kelt:
%1:s
Fiz. hatarido:
%2:s
%3:s</source>
            <translation>Dated:
%1:s
Payment due:
%2:s
%3:s</translation>
        </message>
    </context>
    <context>
        <name>CompanyChoice</name>
        <message>
            <source>%s does not exists.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Missing database files. Maybe you have to reinstall the application.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error: there are no databases.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There is only one database.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Database/company changed successfully to:&amp;%s</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CompanyCreate</name>
        <message>
            <source>Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Tax No field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The file name must end with ".db", be longer than three characters and must not begin with ".".</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>%s already exists.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>It is not possible to create a new database with an existing tax no.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CompanyListModel</name>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>ZIP</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>City</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Address</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Tax No</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ConvertOrderType</name>
        <message>
            <source>Unverified</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unprinted</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancelled Invoice (consolidated)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancelled Invoice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Consolidated Invoice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Invoice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel Invoice (consolidated)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel Invoice</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CountryEditLayout</name>
        <message>
            <source>Country Name (In English)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>International Country Code (e.g. US, DE)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Country Name In Mailing Addresses</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Second Invoice Language</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Languages...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Default Currency</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Currencies...</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CountryTable</name>
        <message>
            <source>Country Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>International Country Code field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This country can not be deleted.</source>
            <translation type="unfinished" />
        </message>
        <message numerus="yes">
            <source>This country is used by %n partner(s).</source>
            <translation>
                <numerusform>This country is used by %n partner.</numerusform>
                <numerusform>This country is used by %n partners.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This country is the mailing country of %n partner(s).</source>
            <translation>
                <numerusform>This country is the mailing country of %n partner.</numerusform>
                <numerusform>This country is the mailing country of %n partners.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This country is used by %n order(s).</source>
            <translation>
                <numerusform>This country is used by %n order.</numerusform>
                <numerusform>This country is used by %n orders.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This country is the default of the settings.</source>
            <translation type="unfinished">
                <numerusform />
                <numerusform />
            </translation>
        </message>
        <message>
            <source>Add Country</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit Country:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Countries</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Country</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected Country?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a country.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Country Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>International Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name In Addresses</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CurrencyEditLayout</name>
        <message>
            <source>Currency</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Currency Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Abbreviation (e.g. USD, EUR)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Arfolyam (1 %s ennyi HUF)</source>
            <translation>Exchange rate (1 %s in HUF)</translation>
        </message>
        <message>
            <source>Use default bank account data</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Bank Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Bank Account No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>SWIFT</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>IBAN</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Rounding</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CurrencyRoundingLayout</name>
        <message>
            <source>Round Calculated Unit Price To</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Round Line Totals To</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print Line Totals With</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Round Invoice Totals To</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print Invoice Totals With</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>CurrencyTable</name>
        <message>
            <source>Currency Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Exchange Rate field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>This currency can not be deleted.</source>
            <translation type="unfinished" />
        </message>
        <message numerus="yes">
            <source>This currency is used by %n partner(s).</source>
            <translation>
                <numerusform>This currency is used by %n partner.</numerusform>
                <numerusform>This currency is used by %n partners.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n country(s).</source>
            <translation>
                <numerusform>This currency is used by %n country.</numerusform>
                <numerusform>This currency is used by %n countries.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n product price(s).</source>
            <translation>
                <numerusform>This currency is used by %n product price.</numerusform>
                <numerusform>This currency is used by %n product prices.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n order(s).</source>
            <translation>
                <numerusform>This currency is used by %n order.</numerusform>
                <numerusform>This currency is used by %n orders.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is the default of the settings.</source>
            <translation type="unfinished">
                <numerusform />
                <numerusform />
            </translation>
        </message>
        <message>
            <source>Add Currency</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit Currency:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Currencies</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Currency</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected Currency?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a currency.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Abbreviation</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Rate</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Abbreviation field must have a value.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>Database</name>
        <message>
            <source>Can't create or open database file:
%s</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Missing filename opening database.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>DatabasePrepare</name>
        <message>
            <source>The database version is newer, than the version of the billing software.&amp;Upgrade the software to a newer version.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Upgrading database.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error backing up database file before upgrade.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to upgrade database.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Upgrading database aborted.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error restoring database file after failed upgrade.&amp;The saved original database file is here:&amp;&amp;%s</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error upgrading database.&amp;You can uninstall current version of the software&amp;and reinstall the previously used version to continue your work.&amp;&amp;Please report this problem to the developers.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error in finding invoices in database.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select Payment Methods To Set Unpaid</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Payment Method</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Set To Unpaid</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Operation aborted.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to set paid states.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to load rounding setup.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to setup rounding.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>DatabaseSelectLayout</name>
        <message>
            <source>Select Database/Company</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select the database/company you want to use</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>New company...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>OK</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Help</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>DateEdit</name>
        <message>
            <source>yyyy.mm.dd.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Choose a date from the calendar</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>DiscountType</name>
        <message>
            <source>No discount</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Percent from List Price</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Special Price</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>DocumentCommands</name>
        <message>
            <source>Unable to read file %s.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Computed digest: %s</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Digest in invoice.cfg: %s</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Certified: yes</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Certified: no</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Give an existing company database with --db FILE.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The template is installed, but it is not certified: invoices can't be printed with it.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Template directory %s does not exist.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>FileCommands</name>
        <message>
            <source>Database backup files (*.dbk)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do backup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Restore backup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The new company database has been created.&amp;Do you want to work with it now?</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>GuiInteraction</name>
        <message>
            <source>Cancel</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>HelpWindow</name>
        <message>
            <source>Vantrell Számlázó Súgó</source>
            <translation>Vantrell Invoicer Help</translation>
        </message>
    </context>
    <context>
        <name>InvoiceRender</name>
        <message>
            <source>Tetelek nelkuli szamla nem nyomtathato.</source>
            <translation>An invoice without items can not be printed.</translation>
        </message>
    </context>
    <context>
        <name>LabelTranslations</name>
        <message>
            <source>Unable to load invoice label translations.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>LangEditLayout</name>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>LangTable</name>
        <message numerus="yes">
            <source>This language is used by %n partner(s).</source>
            <translation>
                <numerusform>This language is used by %n partner.</numerusform>
                <numerusform>This language is used by %n partners.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n country(s).</source>
            <translation>
                <numerusform>This language is used by %n country.</numerusform>
                <numerusform>This language is used by %n countries.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n order(s).</source>
            <translation>
                <numerusform>This language is used by %n order.</numerusform>
                <numerusform>This language is used by %n orders.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n product translation(s).</source>
            <translation>
                <numerusform>This language is used by %n product translation.</numerusform>
                <numerusform>This language is used by %n product translations.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n payment method translation(s).</source>
            <translation>
                <numerusform>This language is used by %n payment method translation.</numerusform>
                <numerusform>This language is used by %n payment method translations.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n no-VAT reason translation(s).</source>
            <translation>
                <numerusform>This language is used by %n no-VAT reason translation.</numerusform>
                <numerusform>This language is used by %n no-VAT reason translations.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n invoice label(s).</source>
            <translation>
                <numerusform>This language is used by %n invoice label.</numerusform>
                <numerusform>This language is used by %n invoice labels.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is the default of the settings.</source>
            <translation type="unfinished">
                <numerusform />
                <numerusform />
            </translation>
        </message>
        <message>
            <source>Languages</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Language</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected Language?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a language.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add Language</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit Language:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>MainWindow</name>
        <message>
            <source>This list is not available yet.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Create new order / invoice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Setup your company's data and application defaults</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do or restore backup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do backup of your database</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Restore backup of your database</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Change database to an other one if you want to work with an other company</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Create a new company database</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Finish editing and close this window</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Change VAT keys</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Manage No VAT Reasons</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Change payment methods</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Change often used stat numbers</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Change languages</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Manage countries</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Manage currencies, bank accounts and rates</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Manage invoice label translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download external orders from web, based on Setup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download external products from web, based on Setup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download external partners from web, based on Setup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Szamlakat tartalmazo fajl megnyitasa es importalasa</source>
            <translation>Open and import a file of invoices</translation>
        </message>
        <message>
            <source>Termekeket/szolgaltatasokat tartalmazo fajl megnyitasa es importalasa</source>
            <translation>Open and import a file of products/services</translation>
        </message>
        <message>
            <source>Partnereket tartalmazo fajl megnyitasa es importalasa</source>
            <translation>Open and import a file of partners</translation>
        </message>
        <message>
            <source>Print or export list of invoices</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print or export list of invoice items</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print or export sum of sales grouped by partners</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print or export sum of sales grouped by products</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print or export unpaid invoices</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Print or export unpaid invoices grouped by partners</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Show the list of Help topics</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>24/1995. (XI. 22.) PM rendelet szerinti nyilatkozat megjelenitese</source>
            <translation>Show the declaration under Ministry of Finance decree 24/1995. (XI. 22.)</translation>
        </message>
        <message>
            <source>Information about the program, its version and developer</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Main toolbar</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Orders/Invoices</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Products</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Partners</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Csekkek</source>
            <translation>Cheques</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Order / Invoice...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Setup...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Backup</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Do backup...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Restore backup...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Change database/company...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Ne&amp;w company...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>E&amp;xit</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Basic Data</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;VAT Keys</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;No VAT Reasons</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Payment methods</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Stat Numbers</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Languages</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>C&amp;ountries</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Currencies, Bank Accounts and Rates</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Invoice Label Translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Webshop</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download &amp;orders</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download pro&amp;ducts</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Download p&amp;artners</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Szamlak importalasa fajlbol</source>
            <translation>&amp;Import invoices from file</translation>
        </message>
        <message>
            <source>Termekek/szolgaltatasok &amp;importalasa fajlbol</source>
            <translation>Import products/services from &amp;file</translation>
        </message>
        <message>
            <source>&amp;Partnerek importalasa fajlbol</source>
            <translation>Import pa&amp;rtners from file</translation>
        </message>
        <message>
            <source>&amp;Reports</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Outgoing &amp;Invoices</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Outgoing Invoice I&amp;tems</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Customers Report</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Products Sold Report</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Receivables</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Receivables by &amp;invoices</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Receivables by &amp;partners</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Help</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Help Topics</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Nyilatkozat</source>
            <translation>&amp;Declaration</translation>
        </message>
        <message>
            <source>&amp;About</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>NewCompanyLayout</name>
        <message>
            <source>New company</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Tax No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>ZIP</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>City</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Address</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>NoVatReasonEditLayout</name>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>No VAT Reason Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text To Invoice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text To Invoice Translations</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>NoVatReasonTable</name>
        <message>
            <source>Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message numerus="yes">
            <source>This no-VAT reason is used by %n order(s).</source>
            <translation>
                <numerusform>This no-VAT reason is used by %n order.</numerusform>
                <numerusform>This no-VAT reason is used by %n orders.</numerusform>
            </translation>
        </message>
        <message>
            <source>No VAT Reasons</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a no vat reason to edit.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a no vat reason to delete.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the no vat reason?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a no vat reason.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Text To Invoice</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add No VAT Reason</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit No VAT Reason</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>OrderCalc</name>
        <message>
            <source>Database error:&amp;</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The forint (currency 0) is missing from the currencies.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>OrderEditLayout</name>
        <message>
            <source>Vevo</source>
            <translation>Customer</translation>
        </message>
        <message>
            <source>Partner keresese vagy uj partner letrehozasa</source>
            <translation>Find a partner or create a new one</translation>
        </message>
        <message>
            <source>Levelezesi cim</source>
            <translation>Mailing Address</translation>
        </message>
    </context>
    <context>
        <name>OrderFill</name>
        <message>
            <source>A partner levelezesi cimehez tartozo nevet meg kell adni.</source>
            <translation>The name of the partner's mailing address is required.</translation>
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo telepulest meg kell adni.</source>
            <translation>The city of the partner's mailing address is required.</translation>
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo cimet meg kell adni.</source>
            <translation>The address of the partner's mailing address is required.</translation>
        </message>
        <message>
            <source>A teljesítés 15 napnál régebbi.&amp;Előfordulhat, hogy ez nem felel meg az ÁFA törvény (2007. évi CXXVII. tv. 163. §) előírásainak.&amp;&amp;Biztos benne, hogy folytatja?</source>
            <translation>The delivery date is more than 15 days ago.&amp;This may not meet the requirements of the VAT Act (Act CXXVII of 2007, section 163).&amp;&amp;Are you sure you want to continue?</translation>
        </message>
    </context>
    <context>
        <name>OrderFilter</name>
        <message>
            <source>Kifizetetlen szamlak</source>
            <translation>Unpaid invoices</translation>
        </message>
        <message>
            <source>Lejart hatarideju szamlak</source>
            <translation>Overdue invoices</translation>
        </message>
    </context>
    <context>
        <name>OrderItemEditLayout</name>
        <message>
            <source>Termek keresese vagy uj termek letrehozasa</source>
            <translation>Find a product or create a new one</translation>
        </message>
        <message>
            <source>VTSZ/SZJ keresese vagy uj felvitele</source>
            <translation>Find a statistical number or add a new one</translation>
        </message>
    </context>
    <context>
        <name>OrderList</name>
        <message>
            <source>Egyeb muveletek</source>
            <translation>Other Operations</translation>
        </message>
        <message>
            <source>Sztorno</source>
            <translation>Cancel Invoice</translation>
        </message>
        <message>
            <source>Csekk nyomtatasa</source>
            <translation>Print Cheque</translation>
        </message>
    </context>
    <context>
        <name>PartnerEditLayout</name>
        <message>
            <source>Partner</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Partner Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Partner ID number in webshop</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Partner Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>ZIP</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>City</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Address</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Tax No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>e.g tax id or any other data</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>EU Tax No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Payment Method</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Payment Due Days</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>If you leave it empty, default due days will be calculated, based on data in payment method window</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Discount / Type Of Price</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Discount Percent</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Country</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Countries...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Second Invoice Language</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Languages...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Default Currency</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Currencies...</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Other Billing Data</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Levelezesi cim</source>
            <translation>Mailing Address</translation>
        </message>
        <message>
            <source>A levelezesi cim megegyezik a szamlazasi cimmel</source>
            <translation>Mailing address is the same as the billing address</translation>
        </message>
        <message>
            <source>Partner Mail Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Contact</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Contact Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Phone</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Mobile Phone</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Email</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Comment on Contact</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Comment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Comments on Partner</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>PartnerFinder</name>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>City</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>PartnerTable</name>
        <message>
            <source>Partner Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo nevet meg kell adni.</source>
            <translation>Partner Mail Name field must have a value.</translation>
        </message>
        <message>
            <source>Partners</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Partner</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a partner to edit.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a partner to delete.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected partner?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a partner.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>ZIP</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>City</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Address</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Other Data</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Payment Method</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Due Days</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Type in first characters of partner name and press Enter to find</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There are more matching partners then displayed. Try more specific filter.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add Partner</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Partner szerkesztese:</source>
            <translation>Edit Partner:</translation>
        </message>
    </context>
    <context>
        <name>PaymentMethodEditLayout</name>
        <message>
            <source>Payment Method</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Payment Method Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Default payment due days</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Round Invoice Totals To 5</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Paid when invoice creataed</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Keszitsen csekket szamlanyomtatas utan</source>
            <translation>Make a cheque after printing the invoice</translation>
        </message>
        <message>
            <source>Comment on invoice when this method selected</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to fill these below width both foreign and native language comments.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>PaymentMethodTable</name>
        <message>
            <source>Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message numerus="yes">
            <source>This payment method is used by %n partner(s).</source>
            <translation>
                <numerusform>This payment method is used by %n partner.</numerusform>
                <numerusform>This payment method is used by %n partners.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This payment method is used by %n order(s).</source>
            <translation>
                <numerusform>This payment method is used by %n order.</numerusform>
                <numerusform>This payment method is used by %n orders.</numerusform>
            </translation>
        </message>
        <message>
            <source>Payment Methods</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Payment Method</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a payment metod to edit.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected payment method?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a payment method.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Due Days</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Comment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add Payment Method</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit Payment Method</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ProductEdit</name>
        <message>
            <source>Product Name Translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Comment Translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unit Translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>"%1" is not a price: type a number.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ProductEditLayout</name>
        <message>
            <source>Product</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Product Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Product ID nuber in the webshop</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Product Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Comment</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Find Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Quantity Unit</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>VAT Key</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Find VAT Key</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Net Price</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Gross Price</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Translations</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Prices In Foreign Currencies</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Prices In Different Currencies</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ProductFinder</name>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Price</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ProductPriceModel</name>
        <message>
            <source>Currency</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Rate</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Calculated Price</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Overridden Price</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ProductTable</name>
        <message>
            <source>Error in deleting product.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Price (%s)</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Products</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Product</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a product to edit.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a product to delete.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected product?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a product.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unit</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Price</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Type in first characters of product name and press Enter to find</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>There are more matching products then displayed. Try more specific filter.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add Product</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit Product</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Product Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ReceivablesReport</name>
        <message>
            <source>Fizetesi hatarido szerinti szures</source>
            <translation>Filter by payment deadline</translation>
        </message>
        <message>
            <source>Szures a fizetesi hatarido datuma szerint</source>
            <translation>Filter by the date of the payment deadline</translation>
        </message>
        <message>
            <source>Szures a fizetesi hatarido lejarta utan eltelt napok szama szerint</source>
            <translation>Filter by the number of days elapsed since the payment deadline</translation>
        </message>
    </context>
    <context>
        <name>RecordBrowse</name>
        <message>
            <source>Select a record to edit.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Select a record to delete.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Insert</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Delete	Delete</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>RecordBrowseLayout</name>
        <message>
            <source>&amp;Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Find</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Delete</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>OK</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Help</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>RecordImporter</name>
        <message>
            <source>[G1 Eddig nem szereplo fizetesi mod.&amp;&amp;Partner neve: "%s",&amp;Fizetesi mod kodja: "%s"&amp;Fizetesi mod megnevezese: "%s"&amp;&amp; Valassza ki a megfelelo fizetesi modot a kovetkezo ablakbol!]</source>
            <translation>[G1 Payment method not seen before.&amp;&amp;Partner name: "%s",&amp;Payment method code: "%s"&amp;Payment method name: "%s"&amp;&amp; Choose the matching payment method in the next window.]</translation>
        </message>
    </context>
    <context>
        <name>Report</name>
        <message>
            <source>Unable to start printing.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to write file %s.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ReportPrinter</name>
        <message>
            <source>Print Preview</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>ReportQuery</name>
        <message>
            <source>Kifizetetlen szamlak In Local Currency (HUF)</source>
            <translation>Unpaid Invoices In Local Currency (HUF)</translation>
        </message>
        <message>
            <source>Kifizetetlen szamlak In Original Currency</source>
            <translation>Unpaid Invoices In Original Currency</translation>
        </message>
        <message>
            <source>Tartozo partnerek In Local Currency (HUF)</source>
            <translation>Partners In Debt In Local Currency (HUF)</translation>
        </message>
        <message>
            <source>Tartozo partnerek In Original Currency</source>
            <translation>Partners In Debt In Original Currency</translation>
        </message>
    </context>
    <context>
        <name>Schema</name>
        <message>
            <source>Creating database tables</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Creating database indexes</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to insert basic data to database.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>Setup</name>
        <message>
            <source>Unable to update SETUP record.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error loading setup data.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>SetupChequePage</name>
        <message>
            <source>Csekk vizszintes (x) pozicioja a lapon (mm)</source>
            <translation>Horizontal (x) position of the cheque on the page (mm)</translation>
        </message>
        <message>
            <source>Csekk fuggoleges (y) pozicioja a lapon (mm)</source>
            <translation>Vertical (y) position of the cheque on the page (mm)</translation>
        </message>
        <message>
            <source>Teszt</source>
            <translation>Test</translation>
        </message>
        <message>
            <source>Csekk-nyomtatas kiprobalasa</source>
            <translation>Try printing a cheque</translation>
        </message>
        <message>
            <source>Csekk</source>
            <translation>Cheque</translation>
        </message>
    </context>
    <context>
        <name>SetupInvoiceTemplatePage</name>
        <message>
            <source>Logo nyomtatasa a szamlara</source>
            <translation>Print logo on invoice</translation>
        </message>
        <message>
            <source>Logo merete a szamlan (%)</source>
            <translation>Logo size on invoice (%)</translation>
        </message>
        <message>
            <source>Megnyitás...</source>
            <translation>Open...</translation>
        </message>
        <message>
            <source>A kivalasztott kep betoltese nem sikerult.&amp;Ellenorizze, biztosan kepet tartalmaz-e a fajl!</source>
            <translation>The selected picture could not be loaded.&amp;Check that the file holds a picture!</translation>
        </message>
    </context>
    <context>
        <name>SetupSave</name>
        <message>
            <source>A logo adatbazisba mentese nem sikerult.</source>
            <translation>Saving the logo into the database failed.</translation>
        </message>
        <message>
            <source>A számlaszám előtagjában szerepel az évszám.&amp;Az előtag az első számla kinyomtatása után már nem változtatható meg, a számlák sorszámozása pedig az év végén sem kezdődik újra. Új évhez új előtaggal új cégadatbázist kell kezdeni.</source>
            <translation>The invoice number prefix contains the year.&amp;The prefix cannot be changed once the first invoice has been printed, and the numbering does not start again at the end of the year. A new year with a new prefix needs a new company database.</translation>
        </message>
    </context>
    <context>
        <name>SqlErrorLayout</name>
        <message>
            <source>SQL error</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>SQL error:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Error statement:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Retry</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Cancel</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>StatNoEditLayout</name>
        <message>
            <source>Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>StatNoTable</name>
        <message>
            <source>Stat No field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message numerus="yes">
            <source>This stat number is used by %n product(s).</source>
            <translation>
                <numerusform>This stat number is used by %n product.</numerusform>
                <numerusform>This stat number is used by %n products.</numerusform>
            </translation>
        </message>
        <message>
            <source>Often Used Stat Numbers</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected Stat No?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a stat no.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add Stat No</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit Stat No:</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>TableStore</name>
        <message>
            <source>Unable to save translation data.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to save currency data.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to load data from database.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to save data.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>The code "%1" is already used.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Unable to delete data.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>TranslationModel</name>
        <message>
            <source>Language</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>VatEditLayout</name>
        <message>
            <source>Vat Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>VAT Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Percent</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>VatTable</name>
        <message>
            <source>VAT Name field must have a value.</source>
            <translation type="unfinished" />
        </message>
        <message numerus="yes">
            <source>This VAT key is used by %n product(s).</source>
            <translation>
                <numerusform>This VAT key is used by %n product.</numerusform>
                <numerusform>This VAT key is used by %n products.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This VAT key is used by %n order item(s).</source>
            <translation>
                <numerusform>This VAT key is used by %n order item.</numerusform>
                <numerusform>This VAT key is used by %n order items.</numerusform>
            </translation>
        </message>
        <message>
            <source>VAT keys</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>&amp;New VAT key</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Do you really want to delete the selected VAT key?</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>You have to select a VAT key.</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Code</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Name</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Percent</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Add VAT</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Edit VAT:</source>
            <translation type="unfinished" />
        </message>
        <message>
            <source>Percent field must have a value.</source>
            <translation type="unfinished" />
        </message>
    </context>
    <context>
        <name>WebshopCommands</name>
        <message>
            <source>Importalando szamlak (*.xml)</source>
            <translation>Invoices to import (*.xml)</translation>
        </message>
        <message>
            <source>Importalando partnerek (*.xml)</source>
            <translation>Partners to import (*.xml)</translation>
        </message>
        <message>
            <source>Importalando termekek/szolgaltatasok (*.xml)</source>
            <translation>Products/services to import (*.xml)</translation>
        </message>
    </context>
    <context>
        <name>WebshopExchange</name>
        <message>
            <source>A fajlban nincsenek importalhato szamlak.</source>
            <translation>The file holds no invoices to import.</translation>
        </message>
        <message>
            <source>A szamlak importalasa nem sikerult.</source>
            <translation>Importing the invoices failed.</translation>
        </message>
        <message>
            <source>Szamlak nem lettek importalva.</source>
            <translation>No invoices were imported.</translation>
        </message>
        <message>
            <source>%d db szamla importalasa sikerult.</source>
            <translation>%d invoices imported.</translation>
        </message>
    </context>
</TS>
