<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU">
    <context>
        <name>AppCommands</name>
        <message>
            <source>Choose one with --db FILE.</source>
            <translation>Válasszon egyet a --db FILE kapcsolóval.</translation>
        </message>
        <message>
            <source>Demonstration company created: %s</source>
            <translation>A bemutató cég létrejött: %s</translation>
        </message>
    </context>
    <context>
        <name>AuthenticationLayout</name>
        <message>
            <source>Download invoices</source>
            <translation>Számlák letöltése</translation>
        </message>
        <message>
            <source>Download invoices from this URL</source>
            <translation>Számlák letöltése erről a címről</translation>
        </message>
        <message>
            <source>Login name</source>
            <translation>Felhasználónév</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Jelszó</translation>
        </message>
        <message>
            <source>Save password</source>
            <translation>Jelszó mentése</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
    </context>
    <context>
        <name>Backup</name>
        <message>
            <source>The previous database file is kept here:&amp;%s</source>
            <translation>Az előző adatbázisfájl itt található:&amp;%s</translation>
        </message>
        <message>
            <source>Backup file saved successfully.</source>
            <translation>A biztonsági mentés sikeresen elkészült.</translation>
        </message>
        <message>
            <source>Error backing up database file.</source>
            <translation>Hiba történt az adatbázisfájl biztonsági mentése közben.</translation>
        </message>
        <message>
            <source>The content of current database will be overwritten&amp;by the backup file you select to restore.&amp;Do you want to continue?</source>
            <translation>A jelenlegi adatbázis tartalmát felülírja&amp;a visszaállításra kiválasztott biztonsági mentés.&amp;Folytatja?</translation>
        </message>
        <message>
            <source>The selected file is not a backup of currently active database/company.</source>
            <translation>A kiválasztott fájl nem a jelenleg használt adatbázis/cég biztonsági mentése.</translation>
        </message>
        <message>
            <source>Error restoring backup database file.</source>
            <translation>Hiba történt a biztonsági mentés visszaállítása közben.</translation>
        </message>
        <message>
            <source>Database restored successfully.&amp;Do you want to open it now?</source>
            <translation>Az adatbázis visszaállítása sikerült.&amp;Megnyitja most?</translation>
        </message>
        <message>
            <source>Unable to open restored database file.</source>
            <translation>A visszaállított adatbázisfájl nem nyitható meg.</translation>
        </message>
        <message>
            <source>Backup file restored successfully.</source>
            <translation>A biztonsági mentés visszaállítása sikerült.</translation>
        </message>
    </context>
    <context>
        <name>BankItemListDlg</name>
        <message>
            <source>Previous Bank Items</source>
            <translation>Korábbi banki tételek</translation>
        </message>
        <message>
            <source>Record No</source>
            <translation>Tételszám</translation>
        </message>
        <message>
            <source>Transfer Date</source>
            <translation>Átutalás dátuma</translation>
        </message>
        <message>
            <source>Paid</source>
            <translation>Fizetve</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
    </context>
    <context>
        <name>BankItemStore</name>
        <message>
            <source>Unable to load invoice data from database.</source>
            <translation>Nem sikerült betölteni a számla adatait az adatbázisból.</translation>
        </message>
        <message>
            <source>Only an issued invoice can be paid. This order has no invoice number yet.</source>
            <translation>Csak kiállított számla fizethető. Ennek a rendelésnek még nincs számlaszáma.</translation>
        </message>
        <message>
            <source>A cancelling invoice can not be paid.</source>
            <translation>Sztornó számla nem fizethető.</translation>
        </message>
        <message>
            <source>This invoice is cancelled by %s, it can not be paid.</source>
            <translation>Ezt a számlát a(z) %s sztornózta, nem fizethető.</translation>
        </message>
        <message>
            <source>Bank Paid Total field must have a value.</source>
            <translation>A Fizetett összeg mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>"%s" is not an amount. Type digits, with a decimal comma or point.</source>
            <translation>„%s” nem összeg. Számjegyeket írjon, tizedesvesszővel vagy -ponttal.</translation>
        </message>
        <message>
            <source>Bankitem Transfer Date mustn't not be empty.</source>
            <translation>Az átutalás dátuma nem lehet üres.</translation>
        </message>
        <message>
            <source>The paid total is too large.</source>
            <translation>A fizetett összeg túl nagy.</translation>
        </message>
        <message>
            <source>Unable to insert bank item.</source>
            <translation>Nem sikerült rögzíteni a banki tételt.</translation>
        </message>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Can't create bank item in database.</source>
            <translation>A banki tétel nem hozható létre az adatbázisban.</translation>
        </message>
    </context>
    <context>
        <name>BankitemEdit</name>
        <message>
            <source>List past payments</source>
            <translation>Korábbi befizetések</translation>
        </message>
        <message>
            <source>Add Bank Item</source>
            <translation>Banki tétel hozzáadása</translation>
        </message>
        <message>
            <source>Invoice Number</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Bankitem Record No</source>
            <translation>Bankszámlakivonat tételszáma</translation>
        </message>
        <message>
            <source>Bank Transfer Date</source>
            <translation>Átutalás dátuma</translation>
        </message>
        <message>
            <source>Bank Paid Total</source>
            <translation>Fizetett összeg</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
        <message>
            <source>The transfer date is not a date.</source>
            <translation>Az átutalás dátuma nem érvényes dátum.</translation>
        </message>
        <message>
            <source>Bankitem Transfer Date mustn't not be empty.</source>
            <translation>Az átutalás dátuma nem lehet üres.</translation>
        </message>
        <message>
            <source>There are no bank items to this invoice.</source>
            <translation>Ehhez a számlához nincs banki tétel.</translation>
        </message>
        <message>
            <source>Record a payment received for this invoice, as it stands on the bank statement: its record number, the date of the transfer and the amount in the invoice's currency.&amp;When the payments reach the invoice's total the invoice becomes paid; an overpayment stays as a negative unpaid total.</source>
            <translation>Rögzítse a számlára érkezett befizetést a bankszámlakivonat szerint: a tétel számát, az átutalás dátumát és az összeget a számla pénznemében.&amp;Amikor a befizetések elérik a számla végösszegét, a számla fizetetté válik; a túlfizetés negatív kifizetetlen összegként marad meg.</translation>
        </message>
    </context>
    <context>
        <name>ByDateReport</name>
        <message>
            <source>Filter by partner</source>
            <translation>Szűrés partnerre</translation>
        </message>
        <message>
            <source>You can search by the start of partner's name</source>
            <translation>A partner nevének elejére lehet keresni</translation>
        </message>
        <message>
            <source>Filter by date</source>
            <translation>Szűrés dátumra</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Hiba</translation>
        </message>
        <message>
            <source>Enter the first and the last day.</source>
            <translation>Adja meg az első és az utolsó napot.</translation>
        </message>
    </context>
    <context>
        <name>CancelInvoice</name>
        <message>
            <source>Can't create Cancel Invoice.</source>
            <translation>A sztornó számlát nem sikerült létrehozni.</translation>
        </message>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>Only an issued invoice can be cancelled.</source>
            <translation>Csak kiállított számla sztornózható.</translation>
        </message>
        <message>
            <source>Cancelled invoice can not be cancelled.</source>
            <translation>Sztornózott számla nem sztornózható.</translation>
        </message>
        <message>
            <source>A cancelling invoice can not be cancelled.</source>
            <translation>Sztornó számla nem sztornózható.</translation>
        </message>
        <message>
            <source>This invoice already has a cancelling invoice waiting to be printed.</source>
            <translation>Ennek a számlának már van nyomtatásra váró sztornó számlája.</translation>
        </message>
        <message>
            <source>Unable to create cancel invoice in database.</source>
            <translation>A sztornó számlát nem sikerült létrehozni az adatbázisban.</translation>
        </message>
        <message>
            <source>Unable to create items of cancel invoice in database.</source>
            <translation>A sztornó számla tételeit nem sikerült létrehozni az adatbázisban.</translation>
        </message>
        <message>
            <source>This is the cancel invoice of No %s</source>
            <translation>Ez a(z) %s sorszámú számla sztornó számlája</translation>
        </message>
        <message>
            <source>Date Shipped field must have a value.</source>
            <translation>A teljesítés dátumát meg kell adni.</translation>
        </message>
        <message>
            <source>Date Payment Due field must have a value.</source>
            <translation>A fizetési határidőt meg kell adni.</translation>
        </message>
        <message>
            <source>Payment Method field is required.</source>
            <translation>A fizetési módot meg kell adni.</translation>
        </message>
        <message>
            <source>The payment due date can not be before the shipping date.</source>
            <translation>A fizetési határidő nem lehet korábbi a teljesítés dátumánál.</translation>
        </message>
    </context>
    <context>
        <name>ChequeCommands</name>
        <message>
            <source>Cheques printed: %d</source>
            <translation>Kinyomtatott csekkek: %d</translation>
        </message>
        <message>
            <source>Not a cheque ID: %s</source>
            <translation>Nem csekkazonosító: %s</translation>
        </message>
        <message>
            <source>Nyomtatas napja</source>
            <translation>Nyomtatás napja</translation>
        </message>
        <message>
            <source>Osszeg</source>
            <translation>Összeg</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>Szamlaszam</source>
            <translation>Számlaszám</translation>
        </message>
    </context>
    <context>
        <name>ChequeEdit</name>
        <message>
            <source>Create Cheque</source>
            <translation>Csekk létrehozása</translation>
        </message>
        <message>
            <source>Edit Cheque</source>
            <translation>Csekk szerkesztése</translation>
        </message>
        <message>
            <source>Print Preview</source>
            <translation>Nyomtatási kép</translation>
        </message>
    </context>
    <context>
        <name>ChequeEditLayout</name>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Település</translation>
        </message>
        <message>
            <source>Street Address</source>
            <translation>Utca, házszám</translation>
        </message>
        <message>
            <source>Szamlaszam</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Osszeg</source>
            <translation>Összeg</translation>
        </message>
        <message>
            <source>Jogcim (bal oldalon)</source>
            <translation>Jogcím (bal oldalon)</translation>
        </message>
        <message>
            <source>Kozlemeny (jobb oldalon)</source>
            <translation>Közlemény (jobb oldalon)</translation>
        </message>
        <message>
            <source>Partner keresese vagy uj partner letrehozasa</source>
            <translation>Partner keresése vagy új partner létrehozása</translation>
        </message>
        <message>
            <source>&amp;Find Partner</source>
            <translation>&amp;Partner keresése</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Nyomtatás</translation>
        </message>
        <message>
            <source>Later</source>
            <translation>Később</translation>
        </message>
        <message>
            <source>Csekk letrehozasa/szerkesztese</source>
            <translation>Csekk létrehozása/szerkesztése</translation>
        </message>
        <message>
            <source>Print Preview</source>
            <translation>Nyomtatási kép</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
    </context>
    <context>
        <name>ChequeFilter</name>
        <message>
            <source>Filter by partner</source>
            <translation>Szűrés partnerre</translation>
        </message>
        <message>
            <source>Filter</source>
            <translation>Szűrés</translation>
        </message>
        <message>
            <source>You can search by the start of partner's name</source>
            <translation>A partner nevének elejére kereshet</translation>
        </message>
    </context>
    <context>
        <name>ChequeList</name>
        <message>
            <source>Csekkek nyomtatasa</source>
            <translation>Csekkek nyomtatása</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Törlés</translation>
        </message>
        <message>
            <source>Delete	Delete</source>
            <translation>Törlés	Delete</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Szerkesztés</translation>
        </message>
        <message>
            <source>Filter list of cheques</source>
            <translation>A csekkek listájának szűrése</translation>
        </message>
        <message>
            <source>Filter</source>
            <translation>Szűrés</translation>
        </message>
        <message>
            <source>Insert</source>
            <translation>Új</translation>
        </message>
        <message>
            <source>Refresh list of cheques</source>
            <translation>A csekkek listájának frissítése</translation>
        </message>
        <message>
            <source>Refresh</source>
            <translation>Frissítés</translation>
        </message>
        <message>
            <source>Valassza ki a torlendo csekket!</source>
            <translation>Válassza ki a törlendő csekket!</translation>
        </message>
    </context>
    <context>
        <name>ChequeListModel</name>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Szamlaszam</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>Osszeg</source>
            <translation>Összeg</translation>
        </message>
        <message>
            <source>Nyomtatas napja</source>
            <translation>Nyomtatás napja</translation>
        </message>
    </context>
    <context>
        <name>ChequePrinterLayout</name>
        <message>
            <source>Csak a kivalasztott csekkeket nyomtatja</source>
            <translation>Csak a kiválasztott csekkeket nyomtatja</translation>
        </message>
        <message>
            <source>Csekknyomtatas modja</source>
            <translation>Csekknyomtatás módja</translation>
        </message>
        <message>
            <source>Minden csekket nyomtat, amik meg nem voltak nyomtatva</source>
            <translation>Minden csekket nyomtat, amely még nem volt nyomtatva</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Nyomtatás</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
    </context>
    <context>
        <name>ChequePrinting</name>
        <message>
            <source>Csekk-nyomtatas kiprobalasa</source>
            <translation>Csekknyomtatás kipróbálása</translation>
        </message>
        <message>
            <source>Csekk: %s, %d Ft</source>
            <translation>Csekk: %s, %d Ft</translation>
        </message>
        <message>
            <source>Csekkek nyomtatasa - Vantrell Szamlazo</source>
            <translation>Csekkek nyomtatása - Vantrell Számlázó</translation>
        </message>
        <message>
            <source>Csekkek nyomtatasa</source>
            <translation>Csekkek nyomtatása</translation>
        </message>
        <message>
            <source>Nem sikerult a csekk adatainak betoltese az adatbazisbol.</source>
            <translation>Nem sikerült a csekk adatainak betöltése az adatbázisból.</translation>
        </message>
        <message>
            <source>Nincsenek nyomtatando csekkek</source>
            <translation>Nincsenek nyomtatandó csekkek</translation>
        </message>
        <message>
            <source>Nyomtatas nem sikerult.</source>
            <translation>A nyomtatás nem sikerült.</translation>
        </message>
    </context>
    <context>
        <name>ChequeStore</name>
        <message>
            <source>%d db csekk torlese.&amp;Biztosan torolni szeretne a kijelolt csekkeket?</source>
            <translation>%d db csekk törlése.&amp;Biztosan törölni szeretné a kijelölt csekkeket?</translation>
        </message>
        <message>
            <source>%d kijelolt csekk nem torolheto,&amp;mert mar korabban ki lettek nyomtatva.</source>
            <translation>%d kijelölt csekk nem törölhető,&amp;mert már korábban ki lettek nyomtatva.</translation>
        </message>
        <message>
            <source>A csekk osszege nem lehet negativ.</source>
            <translation>A csekk összege nem lehet negatív.</translation>
        </message>
        <message>
            <source>A csekk osszege tul nagy.</source>
            <translation>A csekk összege túl nagy.</translation>
        </message>
        <message>
            <source>Az osszeget meg kell adnia.</source>
            <translation>Az összeget meg kell adnia.</translation>
        </message>
        <message>
            <source>Biztosan torolni szeretne a kivalasztott csekket?</source>
            <translation>Biztosan törölni szeretné a kiválasztott csekket?</translation>
        </message>
        <message>
            <source>Csekk adatainak betoltese nem sikerult.&amp;Elkepzelheto, hogy egy masik felhasznalo mar torolte.</source>
            <translation>A csekk adatainak betöltése nem sikerült.&amp;Elképzelhető, hogy egy másik felhasználó már törölte.</translation>
        </message>
        <message>
            <source>Csekk csak kiallitott szamlahoz nyomtathato.</source>
            <translation>Csekk csak kiállított számlához nyomtatható.</translation>
        </message>
        <message>
            <source>Csekk mentese nem sikerult.</source>
            <translation>A csekk mentése nem sikerült.</translation>
        </message>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Hiba: Csekkek lekerdezese nem sikerult&amp;%s</source>
            <translation>Hiba: a csekkek lekérdezése nem sikerült&amp;%s</translation>
        </message>
        <message>
            <source>Kelt: %1:s
Fiz. hatarido: %2:s
%3:s</source>
            <translation>Kelt: %1:s
Fiz. határidő: %2:s
%3:s</translation>
        </message>
        <message>
            <source>Kelt:
%1:s
Fiz. hatarido:
%2:s
%3:s</source>
            <translation>Kelt:
%1:s
Fiz. határidő:
%2:s
%3:s</translation>
        </message>
        <message>
            <source>There are more matching cheques then displayed. Try more specific filter.</source>
            <translation>Több csekk felel meg a szűrésnek, mint amennyi megjelenik. Adjon meg pontosabb szűrést.</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>"%s" is not an amount. Type digits, with a decimal comma or point.</source>
            <translation>„%s” nem összeg. Számjegyeket írjon, tizedesvesszővel vagy -ponttal.</translation>
        </message>
    </context>
    <context>
        <name>ChequeTemplates</name>
        <message>
            <source>Select a cheque template in Setup.</source>
            <translation>Válasszon csekksablont a Beállításokban.</translation>
        </message>
        <message>
            <source>The cheque template %s is missing from %s.</source>
            <translation>A(z) %s csekksablon hiányzik innen: %s.</translation>
        </message>
    </context>
    <context>
        <name>Cli</name>
        <message>
            <source>unexpected argument %1</source>
            <translation>váratlan argumentum: %1</translation>
        </message>
        <message>
            <source>give the company's name once</source>
            <translation>a cég nevét pontosan egyszer adja meg</translation>
        </message>
        <message>
            <source>--tax-no is missing</source>
            <translation>hiányzik a --tax-no</translation>
        </message>
        <message>
            <source>unknown option %1</source>
            <translation>ismeretlen kapcsoló: %1</translation>
        </message>
        <message>
            <source>%1 needs a value</source>
            <translation>a(z) %1 kapcsolónak értéket kell adni</translation>
        </message>
        <message>
            <source>unknown language %1 (hu or en)</source>
            <translation>ismeretlen nyelv: %1 (hu vagy en)</translation>
        </message>
        <message>
            <source>no command given</source>
            <translation>nincs megadva parancs</translation>
        </message>
        <message>
            <source>unknown command %1</source>
            <translation>ismeretlen parancs: %1</translation>
        </message>
        <message>
            <source>give exactly one backup file</source>
            <translation>pontosan egy biztonsági mentés fájlt adjon meg</translation>
        </message>
    </context>
    <context>
        <name>CompanyChoice</name>
        <message>
            <source>%s does not exists.</source>
            <translation>%s nem létezik.</translation>
        </message>
        <message>
            <source>Missing database files. Maybe you have to reinstall the application.</source>
            <translation>Hiányoznak az adatbázisfájlok. Lehet, hogy újra kell telepítenie a programot.</translation>
        </message>
        <message>
            <source>Error: there are no databases.</source>
            <translation>Hiba: nincsenek adatbázisok.</translation>
        </message>
        <message>
            <source>There is only one database.</source>
            <translation>Csak egy adatbázis van.</translation>
        </message>
        <message>
            <source>Database/company changed successfully to:&amp;%s</source>
            <translation>Az adatbázis/cég sikeresen átváltva erre:&amp;%s</translation>
        </message>
        <message>
            <source>A restore of the company file was interrupted. The previous file has been put back:&amp;%s</source>
            <translation>A cégadatbázis visszaállítása megszakadt. Az előző fájl vissza lett téve a helyére:&amp;%s</translation>
        </message>
        <message>
            <source>The company file is read-only:&amp;%s</source>
            <translation>A cégadatbázis fájlja csak olvasható:&amp;%s</translation>
        </message>
    </context>
    <context>
        <name>CompanyCreate</name>
        <message>
            <source>Name field must have a value.</source>
            <translation>A Név mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Tax No field must have a value.</source>
            <translation>Az Adószám mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>The file name must end with ".db", be longer than three characters and must not begin with ".".</source>
            <translation>A fájlnév ".db" végződésű, háromnál több karakter hosszú legyen, és nem kezdődhet "." karakterrel.</translation>
        </message>
        <message>
            <source>%s already exists.</source>
            <translation>%s már létezik.</translation>
        </message>
        <message>
            <source>It is not possible to create a new database with an existing tax no.</source>
            <translation>Már meglévő adószámmal nem hozható létre új adatbázis.</translation>
        </message>
    </context>
    <context>
        <name>CompanyFile</name>
        <message>
            <source>The file is not a company database:&amp;%s</source>
            <translation>A fájl nem cégadatbázis:&amp;%s</translation>
        </message>
        <message>
            <source>The company database file is damaged:&amp;%s</source>
            <translation>A cégadatbázis fájlja sérült:&amp;%s</translation>
        </message>
        <message>
            <source>The company database file is in use by another program:&amp;%s&amp;Try again later.</source>
            <translation>A cégadatbázis fájlját egy másik program használja:&amp;%s&amp;Próbálja újra később.</translation>
        </message>
        <message>
            <source>The file cannot be read:&amp;%s</source>
            <translation>A fájl nem olvasható:&amp;%s</translation>
        </message>
        <message>
            <source>The file cannot be written:&amp;%s</source>
            <translation>A fájl nem írható:&amp;%s</translation>
        </message>
    </context>
    <context>
        <name>CompanyListModel</name>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Város</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
        <message>
            <source>Tax No</source>
            <translation>Adószám</translation>
        </message>
    </context>
    <context>
        <name>CompanyLock</name>
        <message>
            <source>The company file is being upgraded, restored or backed up by another program:&amp;%s&amp;Try again when it has finished.</source>
            <translation>A cégadatbázis fájlját egy másik program éppen frissíti, visszaállítja vagy menti:&amp;%s&amp;Próbálja újra, ha az befejeződött.</translation>
        </message>
    </context>
    <context>
        <name>ConvertOrderType</name>
        <message>
            <source>Unverified</source>
            <translation>Nem ellenőrzött</translation>
        </message>
        <message>
            <source>Unprinted</source>
            <translation>Nem nyomtatott</translation>
        </message>
        <message>
            <source>Cancelled Invoice (consolidated)</source>
            <translation>Sztornózott számla (gyűjtő)</translation>
        </message>
        <message>
            <source>Cancelled Invoice</source>
            <translation>Sztornózott számla</translation>
        </message>
        <message>
            <source>Consolidated Invoice</source>
            <translation>Gyűjtőszámla</translation>
        </message>
        <message>
            <source>Invoice</source>
            <translation>Számla</translation>
        </message>
        <message>
            <source>Cancel Invoice (consolidated)</source>
            <translation>Sztornó számla (gyűjtő)</translation>
        </message>
        <message>
            <source>Cancel Invoice</source>
            <translation>Sztornó számla</translation>
        </message>
    </context>
    <context>
        <name>CountryEditLayout</name>
        <message>
            <source>Country Name (In English)</source>
            <translation>Ország neve</translation>
        </message>
        <message>
            <source>International Country Code (e.g. US, DE)</source>
            <translation>Nemzetközi országkód (pl. US, DE)</translation>
        </message>
        <message>
            <source>Country Name In Mailing Addresses</source>
            <translation>Ország neve a postai címekben</translation>
        </message>
        <message>
            <source>Second Invoice Language</source>
            <translation>A számla második nyelve</translation>
        </message>
        <message>
            <source>Languages...</source>
            <translation>Nyelvek...</translation>
        </message>
        <message>
            <source>Default Currency</source>
            <translation>Alapértelmezett pénznem</translation>
        </message>
        <message>
            <source>Currencies...</source>
            <translation>Pénznemek...</translation>
        </message>
    </context>
    <context>
        <name>CountryTable</name>
        <message>
            <source>Country Name field must have a value.</source>
            <translation>Az ország neve mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>International Country Code field must have a value.</source>
            <translation>A nemzetközi országkód mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>This country can not be deleted.</source>
            <translation>Ez az ország nem törölhető.</translation>
        </message>
        <message>
            <source>Add Country</source>
            <translation>Új ország</translation>
        </message>
        <message>
            <source>Edit Country:</source>
            <translation>Ország szerkesztése:</translation>
        </message>
        <message>
            <source>Countries</source>
            <translation>Országok</translation>
        </message>
        <message>
            <source>&amp;New Country</source>
            <translation>Ú&amp;j ország</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected Country?</source>
            <translation>Biztosan törli a kijelölt országot?</translation>
        </message>
        <message>
            <source>You have to select a country.</source>
            <translation>Ki kell választania egy országot.</translation>
        </message>
        <message>
            <source>Country Name</source>
            <translation>Ország neve</translation>
        </message>
        <message>
            <source>International Code</source>
            <translation>Nemzetközi kód</translation>
        </message>
        <message>
            <source>Name In Addresses</source>
            <translation>Név a postai címben</translation>
        </message>
        <message numerus="yes">
            <source>This country is used by %n partner(s).</source>
            <translation>
                <numerusform>Ezt az országot %n partner használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This country is the mailing country of %n partner(s).</source>
            <translation>
                <numerusform>Ez az ország %n partner levelezési címének országa.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This country is used by %n order(s).</source>
            <translation>
                <numerusform>Ezt az országot %n rendelés használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This country is the default of the settings.</source>
            <translation>
                <numerusform>Ez az ország a beállítások alapértelmezett országa.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>CurrencyEditLayout</name>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Currency Name</source>
            <translation>Pénznem neve</translation>
        </message>
        <message>
            <source>Abbreviation (e.g. USD, EUR)</source>
            <translation>Rövidítés (pl. USD, EUR)</translation>
        </message>
        <message>
            <source>Arfolyam (1 %s ennyi HUF)</source>
            <translation>Árfolyam (1 %s ennyi HUF)</translation>
        </message>
        <message>
            <source>Use default bank account data</source>
            <translation>A cég alapértelmezett bankszámlájának használata</translation>
        </message>
        <message>
            <source>Bank Name</source>
            <translation>Bank neve</translation>
        </message>
        <message>
            <source>Bank Account No</source>
            <translation>Bankszámlaszám</translation>
        </message>
        <message>
            <source>SWIFT</source>
            <translation>SWIFT</translation>
        </message>
        <message>
            <source>IBAN</source>
            <translation>IBAN</translation>
        </message>
        <message>
            <source>Rounding</source>
            <translation>Kerekítés</translation>
        </message>
    </context>
    <context>
        <name>CurrencyRoundingLayout</name>
        <message>
            <source>Round Calculated Unit Price To</source>
            <translation>Számított egységár kerekítése (tizedesjegy)</translation>
        </message>
        <message>
            <source>Round Line Totals To</source>
            <translation>Tételösszegek kerekítése (tizedesjegy)</translation>
        </message>
        <message>
            <source>Print Line Totals With</source>
            <translation>Tételösszegek nyomtatása (tizedesjegy)</translation>
        </message>
        <message>
            <source>Round Invoice Totals To</source>
            <translation>Számlaösszegek kerekítése (tizedesjegy)</translation>
        </message>
        <message>
            <source>Print Invoice Totals With</source>
            <translation>Számlaösszegek nyomtatása (tizedesjegy)</translation>
        </message>
    </context>
    <context>
        <name>CurrencyTable</name>
        <message>
            <source>Currency Name field must have a value.</source>
            <translation>A pénznem neve mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Exchange Rate field must have a value.</source>
            <translation>Az árfolyam mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>This currency can not be deleted.</source>
            <translation>Ez a pénznem nem törölhető.</translation>
        </message>
        <message>
            <source>Add Currency</source>
            <translation>Új pénznem</translation>
        </message>
        <message>
            <source>Edit Currency:</source>
            <translation>Pénznem szerkesztése:</translation>
        </message>
        <message>
            <source>Currencies</source>
            <translation>Pénznemek</translation>
        </message>
        <message>
            <source>&amp;New Currency</source>
            <translation>Ú&amp;j pénznem</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected Currency?</source>
            <translation>Biztosan törli a kijelölt pénznemet?</translation>
        </message>
        <message>
            <source>You have to select a currency.</source>
            <translation>Ki kell választania egy pénznemet.</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Abbreviation</source>
            <translation>Rövidítés</translation>
        </message>
        <message>
            <source>Rate</source>
            <translation>Árfolyam</translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n partner(s).</source>
            <translation>
                <numerusform>Ezt a pénznemet %n partner használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n country(s).</source>
            <translation>
                <numerusform>Ezt a pénznemet %n ország használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n product price(s).</source>
            <translation>
                <numerusform>Ezt a pénznemet %n termékár használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is used by %n order(s).</source>
            <translation>
                <numerusform>Ezt a pénznemet %n rendelés használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This currency is the default of the settings.</source>
            <translation>
                <numerusform>Ez a pénznem a beállítások alapértelmezett pénzneme.</numerusform>
            </translation>
        </message>
        <message>
            <source>Abbreviation field must have a value.</source>
            <translation>A rövidítés mezőt ki kell tölteni.</translation>
        </message>
    </context>
    <context>
        <name>Database</name>
        <message>
            <source>Missing filename opening database.</source>
            <translation>Hiányzik az adatbázis fájlneve.</translation>
        </message>
        <message>
            <source>Can't create or open database file:
%s</source>
            <translation>Az adatbázisfájl nem hozható létre, vagy nem nyitható meg:
%s</translation>
        </message>
    </context>
    <context>
        <name>DatabasePrepare</name>
        <message>
            <source>The database version is newer, than the version of the billing software.&amp;Upgrade the software to a newer version.</source>
            <translation>Az adatbázis verziója újabb, mint a számlázó programé.&amp;Frissítse a programot újabb verzióra.</translation>
        </message>
        <message>
            <source>Upgrading database.</source>
            <translation>Adatbázis frissítése.</translation>
        </message>
        <message>
            <source>Error backing up database file before upgrade.</source>
            <translation>Hiba az adatbázisfájl frissítés előtti biztonsági mentésekor.</translation>
        </message>
        <message>
            <source>Unable to upgrade database.</source>
            <translation>Az adatbázis nem frissíthető.</translation>
        </message>
        <message>
            <source>Upgrading database aborted.</source>
            <translation>Az adatbázis frissítése megszakítva.</translation>
        </message>
        <message>
            <source>Error restoring database file after failed upgrade.&amp;The saved original database file is here:&amp;&amp;%s</source>
            <translation>Hiba az adatbázisfájl visszaállításakor a sikertelen frissítés után.&amp;Az eredeti adatbázisfájl mentett példánya itt található:&amp;&amp;%s</translation>
        </message>
        <message>
            <source>Error upgrading database.&amp;You can uninstall current version of the software&amp;and reinstall the previously used version to continue your work.&amp;&amp;Please report this problem to the developers.</source>
            <translation>Hiba az adatbázis frissítésekor.&amp;Eltávolíthatja a program jelenlegi verzióját,&amp;és a korábban használt verzió újratelepítésével folytathatja a munkát.&amp;&amp;Kérjük, jelezze a hibát a fejlesztőknek.</translation>
        </message>
        <message>
            <source>Error in finding invoices in database.</source>
            <translation>Hiba a számlák keresésekor az adatbázisban.</translation>
        </message>
        <message>
            <source>Select Payment Methods To Set Unpaid</source>
            <translation>Kifizetetlenre állítandó fizetési módok kiválasztása</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Set To Unpaid</source>
            <translation>Kifizetetlenre állít</translation>
        </message>
        <message>
            <source>Operation aborted.</source>
            <translation>A művelet megszakítva.</translation>
        </message>
        <message>
            <source>Unable to set paid states.</source>
            <translation>A fizetettségi állapotok nem állíthatók be.</translation>
        </message>
        <message>
            <source>Unable to load rounding setup.</source>
            <translation>A kerekítési beállítás nem tölthető be.</translation>
        </message>
        <message>
            <source>Unable to setup rounding.</source>
            <translation>A kerekítés nem állítható be.</translation>
        </message>
    </context>
    <context>
        <name>DatabaseSelectLayout</name>
        <message>
            <source>Select Database/Company</source>
            <translation>Adatbázis/cég kiválasztása</translation>
        </message>
        <message>
            <source>Select the database/company you want to use</source>
            <translation>Válassza ki a használni kívánt adatbázist/céget</translation>
        </message>
        <message>
            <source>New company...</source>
            <translation>Új cég...</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Súgó</translation>
        </message>
    </context>
    <context>
        <name>DateEdit</name>
        <message>
            <source>yyyy.mm.dd.</source>
            <translation>éééé.hh.nn.</translation>
        </message>
        <message>
            <source>Choose a date from the calendar</source>
            <translation>Dátum választása a naptárból</translation>
        </message>
    </context>
    <context>
        <name>DiscountType</name>
        <message>
            <source>No discount</source>
            <translation>Nincs kedvezmény</translation>
        </message>
        <message>
            <source>Percent from List Price</source>
            <translation>Százalékos kedvezmény a listaárból</translation>
        </message>
        <message>
            <source>Special Price</source>
            <translation>Egyedi ár</translation>
        </message>
    </context>
    <context>
        <name>DocumentCommands</name>
        <message>
            <source>Unable to read file %s.</source>
            <translation>Nem sikerült a(z) %s fájlt beolvasni.</translation>
        </message>
        <message>
            <source>Computed digest: %s</source>
            <translation>Számított ellenőrzőkód: %s</translation>
        </message>
        <message>
            <source>Digest in invoice.cfg: %s</source>
            <translation>Ellenőrzőkód az invoice.cfg fájlban: %s</translation>
        </message>
        <message>
            <source>Certified: yes</source>
            <translation>Hitelesített: igen</translation>
        </message>
        <message>
            <source>Certified: no</source>
            <translation>Hitelesített: nem</translation>
        </message>
        <message>
            <source>Give an existing company database with --db FILE.</source>
            <translation>Adjon meg egy létező cégadatbázist a --db FÁJL kapcsolóval.</translation>
        </message>
        <message>
            <source>The template is installed, but it is not certified: invoices can't be printed with it.</source>
            <translation>A sablon telepítése megtörtént, de nem hitelesített: számlát nem lehet vele nyomtatni.</translation>
        </message>
        <message>
            <source>Template directory %s does not exist.</source>
            <translation>A(z) %s sablonkönyvtár nem létezik.</translation>
        </message>
        <message>
            <source>Warning: %s</source>
            <translation>Figyelmeztetés: %s</translation>
        </message>
        <message>
            <source>Computed cheque digest: %s</source>
            <translation>Számított csekkivonat: %s</translation>
        </message>
        <message>
            <source>Digest in cheque.cfg: %s</source>
            <translation>Kivonat a cheque.cfg fájlban: %s</translation>
        </message>
        <message>
            <source>The cheque template is installed, but it is not certified.</source>
            <translation>A csekksablon telepítve, de nem hitelesített.</translation>
        </message>
    </context>
    <context>
        <name>FileCommands</name>
        <message>
            <source>Database backup files (*.dbk)</source>
            <translation>Adatbázis biztonsági mentések (*.dbk)</translation>
        </message>
        <message>
            <source>Do backup</source>
            <translation>Biztonsági mentés készítése</translation>
        </message>
        <message>
            <source>Restore backup</source>
            <translation>Biztonsági mentés visszaállítása</translation>
        </message>
        <message>
            <source>The new company database has been created.&amp;Do you want to work with it now?</source>
            <translation>Az új cég adatbázisa elkészült.&amp;Szeretne most ezzel a céggel dolgozni?</translation>
        </message>
    </context>
    <context>
        <name>FirstStart</name>
        <message>
            <source>Welcome! There is no company database yet.&amp;You can try the program on the demonstration company, or start with the data of your own company.</source>
            <translation>Üdvözöljük! Még nincs cégadatbázis.&amp;Kipróbálhatja a programot a bemutató cégen, vagy rögtön a saját cége adataival kezdhet.</translation>
        </message>
        <message>
            <source>Demonstration company</source>
            <translation>Bemutató cég</translation>
        </message>
        <message>
            <source>New company...</source>
            <translation>Új cég...</translation>
        </message>
        <message>
            <source>Exit</source>
            <translation>Kilépés</translation>
        </message>
    </context>
    <context>
        <name>GuiInteraction</name>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
    </context>
    <context>
        <name>HelpWindow</name>
        <message>
            <source>Vantrell Számlázó Súgó</source>
            <translation>Vantrell Számlázó Súgó</translation>
        </message>
        <message>
            <source>About Program</source>
            <translation>A program névjegye</translation>
        </message>
    </context>
    <context>
        <name>InvoiceCancel</name>
        <message>
            <source>Cancel the Invoice</source>
            <translation>A számla sztornózása</translation>
        </message>
        <message>
            <source>Original Invoice Data</source>
            <translation>Az eredeti számla adatai</translation>
        </message>
        <message>
            <source>Partner</source>
            <translation>Partner</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Date Shipped</source>
            <translation>Teljesítés</translation>
        </message>
        <message>
            <source>By Items</source>
            <translation>Tételenként</translation>
        </message>
        <message>
            <source>Date Created</source>
            <translation>Kelt</translation>
        </message>
        <message>
            <source>Date Payment Due</source>
            <translation>Fizetési határidő</translation>
        </message>
        <message>
            <source>Invoice No</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Total Net</source>
            <translation>Nettó összesen</translation>
        </message>
        <message>
            <source>Total VAT</source>
            <translation>ÁFA összesen</translation>
        </message>
        <message>
            <source>Total Gross</source>
            <translation>Bruttó összesen</translation>
        </message>
        <message>
            <source>Cancel Invoice Data</source>
            <translation>A sztornó számla adatai</translation>
        </message>
        <message>
            <source>The cancelling invoice repeats this invoice with negative quantities and totals.&amp;It gets its number when it is printed; the invoice is marked as cancelled then.</source>
            <translation>A sztornó számla negatív mennyiségekkel és összegekkel ismétli meg ezt a számlát.&amp;Sorszámát a nyomtatáskor kapja; a számla ekkor válik sztornózottá.</translation>
        </message>
        <message>
            <source>Invalid date.</source>
            <translation>Érvénytelen dátum.</translation>
        </message>
    </context>
    <context>
        <name>InvoiceData</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázis hiba:&amp;</translation>
        </message>
        <message>
            <source>There is no invoice with No. %s.</source>
            <translation>Nincs %s sorszámú számla.</translation>
        </message>
        <message>
            <source>The order has no invoice number yet.</source>
            <translation>A rendelésnek még nincs számlaszáma.</translation>
        </message>
        <message>
            <source>The company's tax number is not a Hungarian tax number (12345678-1-12).</source>
            <translation>A cég adószáma nem magyar adószám (12345678-1-12).</translation>
        </message>
        <message>
            <source>The company's name, postal code, city and address must be filled in.</source>
            <translation>Ki kell tölteni a cég nevét, irányítószámát, városát és címét.</translation>
        </message>
        <message>
            <source>The currency %s of the invoice has no ISO code or exchange rate.</source>
            <translation>A számla %s pénznemének nincs ISO kódja vagy árfolyama.</translation>
        </message>
        <message>
            <source>The invoice has no items.</source>
            <translation>A számlának nincsenek tételei.</translation>
        </message>
        <message>
            <source>The invoice has no printing or delivery date.</source>
            <translation>A számlának nincs kiállítási vagy teljesítési dátuma.</translation>
        </message>
        <message>
            <source>The cancelling invoice does not name the invoice it cancels.</source>
            <translation>A sztornó számla nem nevezi meg az általa érvénytelenített számlát.</translation>
        </message>
    </context>
    <context>
        <name>InvoiceIssue</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>It is not allowed to print an invoice without items.</source>
            <translation>Tételek nélküli számlát nem szabad nyomtatni.</translation>
        </message>
        <message>
            <source>Invoice copies to print</source>
            <translation>Nyomtatandó számlapéldányok</translation>
        </message>
        <message>
            <source>Printing invoices. Please wait.</source>
            <translation>Számlák nyomtatása. Kérem, várjon.</translation>
        </message>
        <message>
            <source>Invoice template currently set up is not certified.&amp;Change it to a certified one in Setup</source>
            <translation>A jelenleg beállított számlasablon nem hitelesített.&amp;Cserélje hitelesítettre a Beállításokban</translation>
        </message>
        <message>
            <source>Can't print invoice</source>
            <translation>A számlát nem sikerült kinyomtatni</translation>
        </message>
        <message>
            <source>Invoice Sample</source>
            <translation>Számlaminta</translation>
        </message>
    </context>
    <context>
        <name>InvoiceNumbering</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Maybe an other user changed this order.</source>
            <translation>Lehet, hogy egy másik felhasználó módosította ezt a rendelést.</translation>
        </message>
        <message>
            <source>Printing date of invoice No. %s is in the future.&amp;Printing this invoice with No. %s would be against the law.</source>
            <translation>A(z) %s sorszámú számla kelte a jövőben van.&amp;Ennek a számlának a kinyomtatása %s sorszámmal törvénybe ütközne.</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>Cancelled invoice can not be cancelled.</source>
            <translation>Sztornózott számla nem sztornózható.</translation>
        </message>
        <message>
            <source>The invoice of this order is missing from the database.</source>
            <translation>A rendelés számlája hiányzik az adatbázisból.</translation>
        </message>
        <message>
            <source>There is no invoice with No. %s.</source>
            <translation>Nincs %s sorszámú számla.</translation>
        </message>
    </context>
    <context>
        <name>InvoiceRender</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>By Items</source>
            <translation>Tételenként</translation>
        </message>
        <message>
            <source>This is an invoice sample. You can not get VAT back on this.</source>
            <translation>Ez egy számlaminta. Az ÁFA nem igényelhető vissza rá.</translation>
        </message>
        <message>
            <source>The comment of the invoice is printed here: the payment terms, a word of thanks.</source>
            <translation>Itt jelenik meg a számla megjegyzése: a fizetési feltételek, egy köszönő szó.</translation>
        </message>
        <message>
            <source>Current invoice template in setup doesn't support consolidated invoice.&amp;Setup an other template.</source>
            <translation>A beállított számlasablon nem támogatja a gyűjtőszámlát.&amp;Állítson be másik sablont.</translation>
        </message>
        <message>
            <source>Tetelek nelkuli szamla nem nyomtathato.</source>
            <translation>Tételek nélküli számla nem nyomtatható.</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>The logo set up for invoices is not a picture.&amp;Choose another one in Setup or do not print a logo.</source>
            <translation>A számlákhoz beállított logó nem kép.&amp;Válasszon másikat a Beállításokban, vagy ne nyomtasson logót.</translation>
        </message>
        <message>
            <source>Original copy</source>
            <translation>eredeti</translation>
        </message>
        <message>
            <source>Invoice Sample</source>
            <translation>Számlaminta</translation>
        </message>
    </context>
    <context>
        <name>InvoiceTemplate</name>
        <message>
            <source>%s, line %s: the paragraph codes of the block closed before "&amp;" are lost; put the "&amp;" inside the block.</source>
            <translation>%s, %s. sor: a "&amp;" előtt lezárt blokk bekezdéskódjai elvesznek; tegye a "&amp;" jelet a blokkon belülre.</translation>
        </message>
    </context>
    <context>
        <name>LabelTranslations</name>
        <message>
            <source>Unable to load invoice label translations.</source>
            <translation>Nem sikerült betölteni a számlafeliratok fordításait.</translation>
        </message>
        <message>
            <source>Unable to save data.</source>
            <translation>Az adatok mentése nem sikerült.</translation>
        </message>
    </context>
    <context>
        <name>LangEditLayout</name>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
    </context>
    <context>
        <name>LangTable</name>
        <message>
            <source>(Hungarian only)</source>
            <translation>(csak magyar)</translation>
        </message>
        <message>
            <source>Languages</source>
            <translation>Nyelvek</translation>
        </message>
        <message>
            <source>&amp;New Language</source>
            <translation>Ú&amp;j nyelv</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected Language?</source>
            <translation>Biztosan törli a kijelölt nyelvet?</translation>
        </message>
        <message>
            <source>You have to select a language.</source>
            <translation>Ki kell választania egy nyelvet.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Add Language</source>
            <translation>Új nyelv</translation>
        </message>
        <message>
            <source>Edit Language:</source>
            <translation>Nyelv szerkesztése:</translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n partner(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n partner használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n country(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n ország használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n order(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n rendelés használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n product translation(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n termékfordítás használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n payment method translation(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n fizetésimód-fordítás használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n no-VAT reason translation(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n ÁFA-mentességi ok fordítása használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is used by %n invoice label(s).</source>
            <translation>
                <numerusform>Ezt a nyelvet %n számlafelirat használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This language is the default of the settings.</source>
            <translation>
                <numerusform>Ez a nyelv a beállítások alapértelmezett nyelve.</numerusform>
            </translation>
        </message>
        <message>
            <source>Code field must have a value.</source>
            <translation>A kód mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Name field must have a value.</source>
            <translation>A megnevezés mezőt ki kell tölteni.</translation>
        </message>
    </context>
    <context>
        <name>MainWindow</name>
        <message>
            <source>This list is not available yet.</source>
            <translation>Ez a lista még nem érhető el.</translation>
        </message>
        <message>
            <source>Create new order / invoice</source>
            <translation>Új rendelés / számla készítése</translation>
        </message>
        <message>
            <source>Setup your company's data and application defaults</source>
            <translation>A cég adatainak és a program alapbeállításainak megadása</translation>
        </message>
        <message>
            <source>Do or restore backup</source>
            <translation>Biztonsági mentés készítése vagy visszaállítása</translation>
        </message>
        <message>
            <source>Do backup of your database</source>
            <translation>Biztonsági mentés készítése az adatbázisról</translation>
        </message>
        <message>
            <source>Restore backup of your database</source>
            <translation>Az adatbázis visszaállítása biztonsági mentésből</translation>
        </message>
        <message>
            <source>Change database to an other one if you want to work with an other company</source>
            <translation>Váltás másik adatbázisra, ha egy másik cég adataival szeretne dolgozni</translation>
        </message>
        <message>
            <source>Finish editing and close this window</source>
            <translation>A munka befejezése és az ablak bezárása</translation>
        </message>
        <message>
            <source>Change VAT keys</source>
            <translation>Az ÁFA-kulcsok módosítása</translation>
        </message>
        <message>
            <source>Manage No VAT Reasons</source>
            <translation>Az ÁFA-mentesség okainak kezelése</translation>
        </message>
        <message>
            <source>Change payment methods</source>
            <translation>A fizetési módok módosítása</translation>
        </message>
        <message>
            <source>Change often used stat numbers</source>
            <translation>A gyakran használt VTSZ/SZJ számok módosítása</translation>
        </message>
        <message>
            <source>Change languages</source>
            <translation>A nyelvek módosítása</translation>
        </message>
        <message>
            <source>Manage countries</source>
            <translation>Az országok kezelése</translation>
        </message>
        <message>
            <source>Manage currencies, bank accounts and rates</source>
            <translation>A pénznemek, bankszámlák és árfolyamok kezelése</translation>
        </message>
        <message>
            <source>Manage invoice label translations</source>
            <translation>A számlán megjelenő feliratok fordításainak kezelése</translation>
        </message>
        <message>
            <source>Download external orders from web, based on Setup</source>
            <translation>Külső rendelések letöltése a webről a beállítások alapján</translation>
        </message>
        <message>
            <source>Download external products from web, based on Setup</source>
            <translation>Külső termékek letöltése a webről a beállítások alapján</translation>
        </message>
        <message>
            <source>Download external partners from web, based on Setup</source>
            <translation>Külső partnerek letöltése a webről a beállítások alapján</translation>
        </message>
        <message>
            <source>Print or export list of invoices</source>
            <translation>A számlák listájának nyomtatása vagy exportálása</translation>
        </message>
        <message>
            <source>Print or export list of invoice items</source>
            <translation>A számlatételek listájának nyomtatása vagy exportálása</translation>
        </message>
        <message>
            <source>Print or export sum of sales grouped by partners</source>
            <translation>Az eladások partnerenkénti összesítésének nyomtatása vagy exportálása</translation>
        </message>
        <message>
            <source>Print or export sum of sales grouped by products</source>
            <translation>Az eladások termékenkénti összesítésének nyomtatása vagy exportálása</translation>
        </message>
        <message>
            <source>Print or export unpaid invoices</source>
            <translation>A kifizetetlen számlák nyomtatása vagy exportálása</translation>
        </message>
        <message>
            <source>Print or export unpaid invoices grouped by partners</source>
            <translation>A kifizetetlen számlák partnerenkénti nyomtatása vagy exportálása</translation>
        </message>
        <message>
            <source>Show the list of Help topics</source>
            <translation>A súgótémakörök listájának megjelenítése</translation>
        </message>
        <message>
            <source>Information about the program, its version and developer</source>
            <translation>Tájékoztatás a programról, a verziójáról és a fejlesztőjéről</translation>
        </message>
        <message>
            <source>Main toolbar</source>
            <translation>Fő eszköztár</translation>
        </message>
        <message>
            <source>Orders/Invoices</source>
            <translation>Rendelések/számlák</translation>
        </message>
        <message>
            <source>Products</source>
            <translation>Termékek</translation>
        </message>
        <message>
            <source>Partners</source>
            <translation>Partnerek</translation>
        </message>
        <message>
            <source>Create a new company database</source>
            <translation>Új cégadatbázis létrehozása</translation>
        </message>
        <message>
            <source>Szamlakat tartalmazo fajl megnyitasa es importalasa</source>
            <translation>Számlákat tartalmazó fájl megnyitása és importálása</translation>
        </message>
        <message>
            <source>Termekeket/szolgaltatasokat tartalmazo fajl megnyitasa es importalasa</source>
            <translation>Termékeket/szolgáltatásokat tartalmazó fájl megnyitása és importálása</translation>
        </message>
        <message>
            <source>Partnereket tartalmazo fajl megnyitasa es importalasa</source>
            <translation>Partnereket tartalmazó fájl megnyitása és importálása</translation>
        </message>
        <message>
            <source>24/1995. (XI. 22.) PM rendelet szerinti nyilatkozat megjelenitese</source>
            <translation>24/1995. (XI. 22.) PM rendelet szerinti nyilatkozat megjelenítése</translation>
        </message>
        <message>
            <source>Csekkek</source>
            <translation>Csekkek</translation>
        </message>
        <message>
            <source>&amp;File</source>
            <translation>&amp;Fájl</translation>
        </message>
        <message>
            <source>&amp;New Order / Invoice...</source>
            <translation>Új &amp;rendelés / számla...</translation>
        </message>
        <message>
            <source>&amp;Setup...</source>
            <translation>&amp;Beállítások...</translation>
        </message>
        <message>
            <source>&amp;Backup</source>
            <translation>Biztonsági &amp;mentés</translation>
        </message>
        <message>
            <source>&amp;Do backup...</source>
            <translation>Mentés &amp;készítése...</translation>
        </message>
        <message>
            <source>&amp;Restore backup...</source>
            <translation>Mentés &amp;visszaállítása...</translation>
        </message>
        <message>
            <source>&amp;Change database/company...</source>
            <translation>Adatbázis/cég &amp;váltása...</translation>
        </message>
        <message>
            <source>E&amp;xit</source>
            <translation>&amp;Kilépés</translation>
        </message>
        <message>
            <source>&amp;Basic Data</source>
            <translation>&amp;Alapadatok</translation>
        </message>
        <message>
            <source>&amp;VAT Keys</source>
            <translation>Á&amp;FA-kulcsok</translation>
        </message>
        <message>
            <source>&amp;No VAT Reasons</source>
            <translation>ÁFA-&amp;mentesség okai</translation>
        </message>
        <message>
            <source>&amp;Payment methods</source>
            <translation>Fi&amp;zetési módok</translation>
        </message>
        <message>
            <source>&amp;Stat Numbers</source>
            <translation>&amp;VTSZ/SZJ számok</translation>
        </message>
        <message>
            <source>&amp;Languages</source>
            <translation>&amp;Nyelvek</translation>
        </message>
        <message>
            <source>C&amp;ountries</source>
            <translation>O&amp;rszágok</translation>
        </message>
        <message>
            <source>&amp;Currencies, Bank Accounts and Rates</source>
            <translation>&amp;Pénznemek, bankszámlák és árfolyamok</translation>
        </message>
        <message>
            <source>&amp;Invoice Label Translations</source>
            <translation>Számlafeliratok f&amp;ordításai</translation>
        </message>
        <message>
            <source>&amp;Webshop</source>
            <translation>&amp;Webáruház</translation>
        </message>
        <message>
            <source>Download &amp;orders</source>
            <translation>&amp;Rendelések letöltése</translation>
        </message>
        <message>
            <source>Download pro&amp;ducts</source>
            <translation>&amp;Termékek letöltése</translation>
        </message>
        <message>
            <source>Download p&amp;artners</source>
            <translation>P&amp;artnerek letöltése</translation>
        </message>
        <message>
            <source>&amp;Reports</source>
            <translation>&amp;Kimutatások</translation>
        </message>
        <message>
            <source>Outgoing &amp;Invoices</source>
            <translation>Kimenő &amp;számlák</translation>
        </message>
        <message>
            <source>Outgoing Invoice I&amp;tems</source>
            <translation>Kimenő számlák &amp;tételei</translation>
        </message>
        <message>
            <source>&amp;Customers Report</source>
            <translation>&amp;Vevők szerinti kimutatás</translation>
        </message>
        <message>
            <source>&amp;Products Sold Report</source>
            <translation>&amp;Eladott termékek kimutatása</translation>
        </message>
        <message>
            <source>&amp;Receivables</source>
            <translation>&amp;Kintlévőségek</translation>
        </message>
        <message>
            <source>Receivables by &amp;invoices</source>
            <translation>Kintlévőségek &amp;számlánként</translation>
        </message>
        <message>
            <source>Receivables by &amp;partners</source>
            <translation>Kintlévőségek &amp;partnerenként</translation>
        </message>
        <message>
            <source>&amp;Help</source>
            <translation>&amp;Súgó</translation>
        </message>
        <message>
            <source>&amp;Help Topics</source>
            <translation>&amp;Súgótémakörök</translation>
        </message>
        <message>
            <source>&amp;About</source>
            <translation>Név&amp;jegy</translation>
        </message>
        <message>
            <source>Ne&amp;w company...</source>
            <translation>Új &amp;cég...</translation>
        </message>
        <message>
            <source>&amp;Szamlak importalasa fajlbol</source>
            <translation>&amp;Számlák importálása fájlból</translation>
        </message>
        <message>
            <source>Termekek/szolgaltatasok &amp;importalasa fajlbol</source>
            <translation>Termékek/szolgáltatások &amp;importálása fájlból</translation>
        </message>
        <message>
            <source>&amp;Partnerek importalasa fajlbol</source>
            <translation>&amp;Partnerek importálása fájlból</translation>
        </message>
        <message>
            <source>&amp;Nyilatkozat</source>
            <translation>&amp;Nyilatkozat</translation>
        </message>
        <message>
            <source>&amp;NAV</source>
            <translation>&amp;NAV</translation>
        </message>
        <message>
            <source>&amp;Report invoices to NAV</source>
            <translation>Számlák &amp;beküldése a NAV-nak</translation>
        </message>
        <message>
            <source>Send the issued invoices waiting for their report to the online invoice system</source>
            <translation>A beküldésre váró kiállított számlák elküldése az Online Számla rendszerbe</translation>
        </message>
        <message>
            <source>NAV &amp;settings...</source>
            <translation>NAV beállítá&amp;sok...</translation>
        </message>
        <message>
            <source>The technical user of the online invoice system</source>
            <translation>Az Online Számla rendszer technikai felhasználója</translation>
        </message>
    </context>
    <context>
        <name>NavClient</name>
        <message>
            <source>The service answered with HTTP status %1.</source>
            <translation>A szolgáltatás %1 HTTP állapotkóddal válaszolt.</translation>
        </message>
        <message>
            <source>The service's answer could not be read (HTTP status %1).</source>
            <translation>A szolgáltatás válasza nem olvasható (HTTP állapotkód: %1).</translation>
        </message>
        <message>
            <source>The online invoice service can not be reached:&amp;%1</source>
            <translation>Az Online Számla szolgáltatás nem érhető el:&amp;%1</translation>
        </message>
        <message>
            <source>The exchange token could not be decrypted. Check the exchange key.</source>
            <translation>Az adatcsere token nem fejthető vissza. Ellenőrizze a cserekulcsot.</translation>
        </message>
    </context>
    <context>
        <name>NavCommands</name>
        <message>
            <source>Stopped: the rest is sent at the next report.</source>
            <translation>Leállítva: a többi számla a következő adatszolgáltatáskor megy el.</translation>
        </message>
        <message>
            <source>Can't write %1.</source>
            <translation>Nem írható: %1.</translation>
        </message>
        <message>
            <source>There is no invoice with No. %1.</source>
            <translation>Nincs %1 sorszámú számla.</translation>
        </message>
        <message>
            <source>Can't create the folder %1.</source>
            <translation>A(z) %1 mappa nem hozható létre.</translation>
        </message>
        <message>
            <source>sent %1, accepted %2, with warnings %3, rejected %4, waiting %5</source>
            <translation>elküldve %1, befogadva %2, figyelmeztetéssel %3, elutasítva %4, várakozik %5</translation>
        </message>
        <message>
            <source>The invoice %1 is not in the reporting queue.</source>
            <translation>A(z) %1 számla nincs a beküldési sorban.</translation>
        </message>
        <message>
            <source>The invoice %1 has not been rejected.</source>
            <translation>A(z) %1 számlát nem utasították el.</translation>
        </message>
        <message>
            <source>NAV online invoice settings</source>
            <translation>NAV Online Számla beállítások</translation>
        </message>
        <message>
            <source>Reporting invoices to NAV. Please wait.</source>
            <translation>Számlák beküldése a NAV-nak. Kérem, várjon.</translation>
        </message>
        <message>
            <source>Sent: %1&amp;Accepted: %2&amp;Accepted with warnings: %3&amp;Rejected: %4&amp;Waiting for a later try: %5</source>
            <translation>Elküldve: %1&amp;Befogadva: %2&amp;Figyelmeztetéssel befogadva: %3&amp;Elutasítva: %4&amp;Későbbi próbálkozásra vár: %5</translation>
        </message>
    </context>
    <context>
        <name>NavQueue</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázis hiba:&amp;</translation>
        </message>
    </context>
    <context>
        <name>NavReporter</name>
        <message>
            <source>The technical user of the online invoice system is not set up.&amp;Fill in the NAV settings first.</source>
            <translation>Az Online Számla rendszer technikai felhasználója nincs beállítva.&amp;Előbb töltse ki a NAV beállításokat.</translation>
        </message>
    </context>
    <context>
        <name>NavSettingsStore</name>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>Unable to save data.</source>
            <translation>Nem sikerült menteni az adatokat.</translation>
        </message>
    </context>
    <context>
        <name>NavSetupPage</name>
        <message>
            <source>Test system</source>
            <translation>Tesztrendszer</translation>
        </message>
        <message>
            <source>Production system</source>
            <translation>Éles rendszer</translation>
        </message>
        <message>
            <source>The authority's address for the chosen system</source>
            <translation>A választott rendszer hatósági címe</translation>
        </message>
        <message>
            <source>The technical user is made on the online invoice system's web page by the taxpayer's primary user; its login, password, signing key and exchange key are given here.</source>
            <translation>A technikai felhasználót az adózó elsődleges felhasználója hozza létre az Online Számla rendszer weboldalán; itt kell megadni a felhasználónevét, jelszavát, aláírókulcsát és cserekulcsát.</translation>
        </message>
        <message>
            <source>Technical user's login</source>
            <translation>Technikai felhasználó neve</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Jelszó</translation>
        </message>
        <message>
            <source>Signing key</source>
            <translation>Aláírókulcs</translation>
        </message>
        <message>
            <source>Exchange key</source>
            <translation>Cserekulcs</translation>
        </message>
        <message>
            <source>Taxpayer id (8 digits)</source>
            <translation>Adótörzsszám (8 számjegy)</translation>
        </message>
        <message>
            <source>System</source>
            <translation>Rendszer</translation>
        </message>
        <message>
            <source>Service address</source>
            <translation>Szolgáltatás címe</translation>
        </message>
        <message>
            <source>(unchanged)</source>
            <translation>(változatlan)</translation>
        </message>
        <message>
            <source>The login of the technical user is 6 to 15 letters or digits.</source>
            <translation>A technikai felhasználó neve 6–15 betű vagy számjegy.</translation>
        </message>
        <message>
            <source>Password field must have a value.</source>
            <translation>A Jelszó mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Signing key field must have a value.</source>
            <translation>Az Aláírókulcs mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>The exchange key is 16 characters long.</source>
            <translation>A cserekulcs 16 karakter hosszú.</translation>
        </message>
        <message>
            <source>The taxpayer id is the first 8 digits of the tax number.</source>
            <translation>Az adótörzsszám az adószám első 8 számjegye.</translation>
        </message>
        <message>
            <source>The service address must begin with https:// (or name this computer).</source>
            <translation>A szolgáltatás címének https://-sel kell kezdődnie (vagy ezt a számítógépet kell megneveznie).</translation>
        </message>
    </context>
    <context>
        <name>NewCompanyLayout</name>
        <message>
            <source>New company</source>
            <translation>Új cég</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>Tax No</source>
            <translation>Adószám</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Város</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
    </context>
    <context>
        <name>NoVatReasonEditLayout</name>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>No VAT Reason Code</source>
            <translation>ÁFA-mentességi ok kódja</translation>
        </message>
        <message>
            <source>Text To Invoice</source>
            <translation>Számlára kerülő szöveg</translation>
        </message>
        <message>
            <source>Text To Invoice Translations</source>
            <translation>A számlára kerülő szöveg fordításai</translation>
        </message>
    </context>
    <context>
        <name>NoVatReasonTable</name>
        <message>
            <source>Name field must have a value.</source>
            <translation>A megnevezés mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>No VAT Reasons</source>
            <translation>ÁFA-mentesség okai</translation>
        </message>
        <message>
            <source>&amp;New</source>
            <translation>Ú&amp;j</translation>
        </message>
        <message>
            <source>Select a no vat reason to edit.</source>
            <translation>Válassza ki a szerkesztendő ÁFA-mentességi okot.</translation>
        </message>
        <message>
            <source>Select a no vat reason to delete.</source>
            <translation>Válassza ki a törlendő ÁFA-mentességi okot.</translation>
        </message>
        <message>
            <source>Do you really want to delete the no vat reason?</source>
            <translation>Biztosan törli az ÁFA-mentességi okot?</translation>
        </message>
        <message>
            <source>You have to select a no vat reason.</source>
            <translation>Ki kell választania egy ÁFA-mentességi okot.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Text To Invoice</source>
            <translation>Számlára kerülő szöveg</translation>
        </message>
        <message>
            <source>Add No VAT Reason</source>
            <translation>Új ÁFA-mentességi ok</translation>
        </message>
        <message>
            <source>Edit No VAT Reason</source>
            <translation>ÁFA-mentességi ok szerkesztése</translation>
        </message>
        <message numerus="yes">
            <source>This no-VAT reason is used by %n order(s).</source>
            <translation>
                <numerusform>Ezt az ÁFA-mentességi okot %n rendelés használja.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>OrderBasicData</name>
        <message>
            <source>Can't insert partner. Probably there is an other partner with the same name.</source>
            <translation>Nem sikerült felvenni a partnert. Valószínűleg van már ilyen nevű partner.</translation>
        </message>
        <message>
            <source>This partner is not in basic data yet. Do you want to store it there?</source>
            <translation>Ez a partner még nincs a törzsadatok között. Szeretné felvenni?</translation>
        </message>
        <message>
            <source>The partner's data has changed. You can update these changes of partner or create a new partner with this data.&amp;What you want to do?</source>
            <translation>A partner adatai megváltoztak. Frissítheti a partner adatait, vagy új partnert hozhat létre ezekkel az adatokkal.&amp;Mit szeretne tenni?</translation>
        </message>
        <message>
            <source>Update changes of partner</source>
            <translation>Partner adatainak frissítése</translation>
        </message>
        <message>
            <source>Create a new partner</source>
            <translation>Új partner létrehozása</translation>
        </message>
        <message>
            <source>Do not save partner data</source>
            <translation>Ne mentse a partner adatait</translation>
        </message>
        <message>
            <source>Can't update partner. Probably this partner does not exist in database.</source>
            <translation>Nem sikerült frissíteni a partnert. Valószínűleg ez a partner már nincs az adatbázisban.</translation>
        </message>
        <message>
            <source>Can't update partner. Probably there is an other partner with the same name.</source>
            <translation>Nem sikerült frissíteni a partnert. Valószínűleg van már ilyen nevű partner.</translation>
        </message>
        <message>
            <source>Can't insert product. Probably there is an other product with the same name.</source>
            <translation>Nem sikerült felvenni a terméket. Valószínűleg van már ilyen nevű termék.</translation>
        </message>
        <message>
            <source>This product is not in basic data yet. Do you want to store it there?</source>
            <translation>Ez a termék még nincs a törzsadatok között. Szeretné felvenni?</translation>
        </message>
        <message>
            <source>The product's data has changed. You can update these changes of product or create a new product with this data.&amp;What you want to do?</source>
            <translation>A termék adatai megváltoztak. Frissítheti a termék adatait, vagy új terméket hozhat létre ezekkel az adatokkal.&amp;Mit szeretne tenni?</translation>
        </message>
        <message>
            <source>Update changes of product</source>
            <translation>Termék adatainak frissítése</translation>
        </message>
        <message>
            <source>Create a new product</source>
            <translation>Új termék létrehozása</translation>
        </message>
        <message>
            <source>Do not save product data</source>
            <translation>Ne mentse a termék adatait</translation>
        </message>
        <message>
            <source>Can't update product. Probably this product does not exist in database.</source>
            <translation>Nem sikerült frissíteni a terméket. Valószínűleg ez a termék már nincs az adatbázisban.</translation>
        </message>
        <message>
            <source>Can't update product. Probably there is an other product with the same name.</source>
            <translation>Nem sikerült frissíteni a terméket. Valószínűleg van már ilyen nevű termék.</translation>
        </message>
    </context>
    <context>
        <name>OrderCalc</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült betölteni az adatokat az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>The forint (currency 0) is missing from the currencies.</source>
            <translation>A forint (0-s pénznem) hiányzik a pénznemek közül.</translation>
        </message>
    </context>
    <context>
        <name>OrderCommands</name>
        <message>
            <source>Order</source>
            <translation>Rendelés</translation>
        </message>
        <message>
            <source>Kind</source>
            <translation>Típus</translation>
        </message>
        <message>
            <source>Invoice No</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Date Shipped</source>
            <translation>Teljesítés</translation>
        </message>
        <message>
            <source>Date Created</source>
            <translation>Kelt</translation>
        </message>
        <message>
            <source>Date Payment Due</source>
            <translation>Fizetési határidő</translation>
        </message>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Currency Rate</source>
            <translation>Árfolyam</translation>
        </message>
        <message>
            <source>Subject</source>
            <translation>Tárgy</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Quantity</source>
            <translation>Mennyiség</translation>
        </message>
        <message>
            <source>Unit</source>
            <translation>Egység</translation>
        </message>
        <message>
            <source>Price</source>
            <translation>Egységár</translation>
        </message>
        <message>
            <source>Line Total</source>
            <translation>Sorösszeg</translation>
        </message>
        <message>
            <source>Total Net</source>
            <translation>Nettó összesen</translation>
        </message>
        <message>
            <source>Total VAT</source>
            <translation>ÁFA összesen</translation>
        </message>
        <message>
            <source>Total Gross</source>
            <translation>Bruttó összesen</translation>
        </message>
        <message>
            <source>Rounding</source>
            <translation>Kerekítés</translation>
        </message>
        <message>
            <source>Unable to load data from database.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.</translation>
        </message>
        <message>
            <source>More than one partner matches "%s"; give its id.</source>
            <translation>Több partner is illeszkedik erre: „%s”; adja meg az azonosítóját.</translation>
        </message>
        <message>
            <source>Partner not found: %s</source>
            <translation>A partner nem található: %s</translation>
        </message>
        <message>
            <source>Invalid order item "%s": give PRODUCT_ID:QTY or PRODUCT_ID:QTY:PRICE.</source>
            <translation>Hibás rendelési tétel: „%s”; formája TERMÉK_AZONOSÍTÓ:MENNYISÉG vagy TERMÉK_AZONOSÍTÓ:MENNYISÉG:ÁR.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Unpaid Total</source>
            <translation>Kifizetetlen összeg</translation>
        </message>
    </context>
    <context>
        <name>OrderEdit</name>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>Quantity</source>
            <translation>Mennyiség</translation>
        </message>
        <message>
            <source>Unit</source>
            <translation>Egység</translation>
        </message>
        <message>
            <source>Price</source>
            <translation>Ár</translation>
        </message>
        <message>
            <source>Line Total</source>
            <translation>Sorösszeg</translation>
        </message>
        <message>
            <source>Create order</source>
            <translation>Megrendelés létrehozása</translation>
        </message>
        <message>
            <source>Edit order</source>
            <translation>Megrendelés szerkesztése</translation>
        </message>
        <message>
            <source>Insert %1</source>
            <translation>Új %1</translation>
        </message>
        <message>
            <source>order item</source>
            <translation>tétel</translation>
        </message>
        <message>
            <source>Select an order item to edit</source>
            <translation>Válassza ki a szerkesztendő tételt</translation>
        </message>
        <message>
            <source>Select an order item to delete</source>
            <translation>Válassza ki a törlendő tételt</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected item ?</source>
            <translation>Valóban törölni szeretné a kijelölt tételt?</translation>
        </message>
        <message>
            <source>It is not allowed to print an invoice without items.</source>
            <translation>Tételek nélküli számlát nem lehet nyomtatni.</translation>
        </message>
        <message>
            <source>The invoice can not be printed yet.</source>
            <translation>A számla még nem nyomtatható.</translation>
        </message>
        <message>
            <source>View invoice</source>
            <translation>Számla megtekintése</translation>
        </message>
    </context>
    <context>
        <name>OrderEditLayout</name>
        <message>
            <source>Edit order</source>
            <translation>Megrendelés szerkesztése</translation>
        </message>
        <message>
            <source>Vevo</source>
            <translation>Vevő</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>Find Partner</source>
            <translation>Partner keresése</translation>
        </message>
        <message>
            <source>Partner keresese vagy uj partner letrehozasa</source>
            <translation>Partner keresése vagy új partner létrehozása</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Zip</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Település</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
        <message>
            <source>Country</source>
            <translation>Ország</translation>
        </message>
        <message>
            <source>Tax No</source>
            <translation>Adószám</translation>
        </message>
        <message>
            <source>EU Tax No</source>
            <translation>Közösségi adószám</translation>
        </message>
        <message>
            <source>Language</source>
            <translation>Nyelv</translation>
        </message>
        <message>
            <source>Other Data</source>
            <translation>Egyéb adatok</translation>
        </message>
        <message>
            <source>Other Billing Data</source>
            <translation>Egyéb számlázási adatok</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Paid on issue</source>
            <translation>Fizetve a számla kiállításakor</translation>
        </message>
        <message>
            <source>Date Shipped</source>
            <translation>Teljesítés dátuma</translation>
        </message>
        <message>
            <source>Payment Due</source>
            <translation>Fizetési határidő</translation>
        </message>
        <message>
            <source>If you leave it empty, default due days will be calculated, based on data in payment method window</source>
            <translation>Ha üresen hagyja, a fizetési határidő a partner, illetve a fizetési mód adatai alapján számítódik ki</translation>
        </message>
        <message>
            <source>Consolidated invoice</source>
            <translation>Gyűjtőszámla</translation>
        </message>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Currency Rate</source>
            <translation>Árfolyam</translation>
        </message>
        <message>
            <source>No VAT</source>
            <translation>ÁFA nélkül</translation>
        </message>
        <message>
            <source>No VAT Reason</source>
            <translation>ÁFA-mentesség oka</translation>
        </message>
        <message>
            <source>Subject</source>
            <translation>Tárgy</translation>
        </message>
        <message>
            <source>Invoice No</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Levelezesi cim</source>
            <translation>Levelezési cím</translation>
        </message>
        <message>
            <source>Mailing address is the same</source>
            <translation>A levelezési cím azonos a számlázási címmel</translation>
        </message>
        <message>
            <source>Order Items</source>
            <translation>Tételek</translation>
        </message>
        <message>
            <source>Insert</source>
            <translation>Új tétel</translation>
        </message>
        <message>
            <source>Add new order item to the order.</source>
            <translation>Új tétel hozzáadása a megrendeléshez.</translation>
        </message>
        <message>
            <source>Edit order item</source>
            <translation>Tétel szerkesztése</translation>
        </message>
        <message>
            <source>Edit active order item.</source>
            <translation>A kijelölt tétel szerkesztése.</translation>
        </message>
        <message>
            <source>Delete order item</source>
            <translation>Tétel törlése</translation>
        </message>
        <message>
            <source>Delete active order item.</source>
            <translation>A kijelölt tétel törlése.</translation>
        </message>
        <message>
            <source>Total Net</source>
            <translation>Nettó összesen</translation>
        </message>
        <message>
            <source>Total VAT</source>
            <translation>ÁFA összesen</translation>
        </message>
        <message>
            <source>Total Gross</source>
            <translation>Bruttó összesen</translation>
        </message>
        <message>
            <source>Other Invoice Data</source>
            <translation>Egyéb számlaadatok</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
        <message>
            <source>Verified</source>
            <translation>Ellenőrizve</translation>
        </message>
        <message>
            <source>Print Preview</source>
            <translation>Nyomtatási kép</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Nyomtatás</translation>
        </message>
    </context>
    <context>
        <name>OrderFill</name>
        <message>
            <source>Unable to load data from database.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>Translation not found for payment method.</source>
            <translation>A fizetési mód fordítása nem található.</translation>
        </message>
        <message>
            <source>Default currency not found in database.&amp;The database needs to be repaired.</source>
            <translation>Az alapértelmezett pénznem nem található az adatbázisban.&amp;Az adatbázist javítani kell.</translation>
        </message>
        <message>
            <source>Error in loading product from database.</source>
            <translation>Hiba a termék betöltésekor az adatbázisból.</translation>
        </message>
        <message>
            <source>Order item name field must have a value.</source>
            <translation>A rendelési tétel megnevezését meg kell adni.</translation>
        </message>
        <message>
            <source>Quantity field must have a value.</source>
            <translation>A mennyiséget meg kell adni.</translation>
        </message>
        <message>
            <source>Price field must have a value.</source>
            <translation>Az árat meg kell adni.</translation>
        </message>
        <message>
            <source>Date Shipped field must have a value.</source>
            <translation>A teljesítés dátumát meg kell adni.</translation>
        </message>
        <message>
            <source>The amount of the order item is too large.</source>
            <translation>A rendelési tétel összege túl nagy.</translation>
        </message>
        <message>
            <source>Partner Name field is required.</source>
            <translation>A partner nevét meg kell adni.</translation>
        </message>
        <message>
            <source>Partner City field is required.</source>
            <translation>A partner települését meg kell adni.</translation>
        </message>
        <message>
            <source>Partner Address field is required.</source>
            <translation>A partner címét meg kell adni.</translation>
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo nevet meg kell adni.</source>
            <translation>A partner levelezési címéhez tartozó nevet meg kell adni.</translation>
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo telepulest meg kell adni.</source>
            <translation>A partner levelezési címéhez tartozó települést meg kell adni.</translation>
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo cimet meg kell adni.</source>
            <translation>A partner levelezési címéhez tartozó címet meg kell adni.</translation>
        </message>
        <message>
            <source>Payment Method field is required.</source>
            <translation>A fizetési módot meg kell adni.</translation>
        </message>
        <message>
            <source>Currency field is required.</source>
            <translation>A pénznemet meg kell adni.</translation>
        </message>
        <message>
            <source>Currency Rate field is required.</source>
            <translation>Az árfolyamot meg kell adni.</translation>
        </message>
        <message>
            <source>A teljesítés 15 napnál régebbi.&amp;Előfordulhat, hogy ez nem felel meg az ÁFA törvény (2007. évi CXXVII. tv. 163. §) előírásainak.&amp;&amp;Biztos benne, hogy folytatja?</source>
            <translation>A teljesítés 15 napnál régebbi.&amp;Előfordulhat, hogy ez nem felel meg az ÁFA törvény (2007. évi CXXVII. tv. 163. §) előírásainak.&amp;&amp;Biztos benne, hogy folytatja?</translation>
        </message>
        <message>
            <source>The payment due is in the past.
Do you want to continue?</source>
            <translation>A fizetési határidő a múltban van.
Folytatja?</translation>
        </message>
    </context>
    <context>
        <name>OrderFilter</name>
        <message>
            <source>Filter by date shipped</source>
            <translation>Szűrés teljesítés dátumára</translation>
        </message>
        <message>
            <source>Filter by date created</source>
            <translation>Szűrés kiállítás dátumára</translation>
        </message>
        <message>
            <source>Filter by payment due</source>
            <translation>Szűrés fizetési határidőre</translation>
        </message>
        <message>
            <source>All orders/invoices</source>
            <translation>Minden rendelés/számla</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>From:</source>
            <translation>Ettől:</translation>
        </message>
        <message>
            <source>To:</source>
            <translation>Eddig:</translation>
        </message>
        <message>
            <source>Partner:</source>
            <translation>Partner:</translation>
        </message>
        <message>
            <source>Not printed invoices</source>
            <translation>Nem nyomtatott számlák</translation>
        </message>
        <message>
            <source>Printed invoices</source>
            <translation>Nyomtatott számlák</translation>
        </message>
        <message>
            <source>Unverified invoices</source>
            <translation>Ellenőrizetlen számlák</translation>
        </message>
        <message>
            <source>Verified invoices</source>
            <translation>Ellenőrzött számlák</translation>
        </message>
        <message>
            <source>Cancel invoices</source>
            <translation>Sztornó számlák</translation>
        </message>
        <message>
            <source>Cancelled invoices</source>
            <translation>Sztornózott számlák</translation>
        </message>
        <message>
            <source>Kifizetetlen szamlak</source>
            <translation>Kifizetetlen számlák</translation>
        </message>
        <message>
            <source>Lejart hatarideju szamlak</source>
            <translation>Lejárt határidejű számlák</translation>
        </message>
        <message>
            <source>Not yet accepted by NAV</source>
            <translation>NAV által még be nem fogadott számlák</translation>
        </message>
    </context>
    <context>
        <name>OrderImporter</name>
        <message>
            <source>No XML tags in document.</source>
            <translation>A dokumentumban nincsenek XML elemek.</translation>
        </message>
        <message>
            <source>Error in reading database.</source>
            <translation>Hiba az adatbázis olvasásakor.</translation>
        </message>
        <message>
            <source>Operation canceled.</source>
            <translation>A művelet megszakítva.</translation>
        </message>
        <message>
            <source>Order without items. ORDERHEAD_CODE is %s</source>
            <translation>Tételek nélküli rendelés. ORDERHEAD_CODE: %s</translation>
        </message>
        <message>
            <source>Can't insert order %s.</source>
            <translation>A(z) %s rendelés nem menthető az adatbázisba.</translation>
        </message>
        <message>
            <source>ORDERHEAD_CODE is missing</source>
            <translation>Hiányzik az ORDERHEAD_CODE</translation>
        </message>
        <message>
            <source>Error loading currency data (%s).</source>
            <translation>Hiba a pénznem adatainak betöltésekor (%s).</translation>
        </message>
        <message>
            <source>There is no %s currency in database.&amp;You have to set it up in the next window.</source>
            <translation>Az adatbázisban nincs %s pénznem.&amp;A következő ablakban fel kell vennie.</translation>
        </message>
        <message>
            <source>Setting up currency aborted.</source>
            <translation>A pénznem felvétele megszakítva.</translation>
        </message>
        <message>
            <source>There is no lang with code %s in database.&amp;&amp;Add this language and the translations and try downloading orders again.</source>
            <translation>Az adatbázisban nincs %s kódú nyelv.&amp;&amp;Vegye fel ezt a nyelvet és a fordításokat, majd töltse le újra a rendeléseket.</translation>
        </message>
        <message>
            <source>Error loading country data (%s).</source>
            <translation>Hiba az ország adatainak betöltésekor (%s).</translation>
        </message>
        <message>
            <source>There is no %s country in database.&amp;You have to set it up in the next window.</source>
            <translation>Az adatbázisban nincs %s ország.&amp;A következő ablakban fel kell vennie.</translation>
        </message>
        <message>
            <source>Setting up country aborted.</source>
            <translation>Az ország felvétele megszakítva.</translation>
        </message>
        <message>
            <source>Unable to load novatreason.</source>
            <translation>Az áfamentesség oka nem tölthető be.</translation>
        </message>
        <message>
            <source>There is no novatreason with code %s in database.&amp;&amp;Add or select this novatreason in the next window.</source>
            <translation>Az adatbázisban nincs %s kódú áfamentességi ok.&amp;&amp;A következő ablakban vegye fel vagy válassza ki.</translation>
        </message>
        <message>
            <source>Error saving novatreason selection.</source>
            <translation>Hiba a kiválasztott áfamentességi ok mentésekor.</translation>
        </message>
        <message>
            <source>There is no %s translation for %s novatreason in database.&amp;You have to set it up in the next window.</source>
            <translation>Az adatbázisban nincs %s fordítás a(z) %s áfamentességi okhoz.&amp;A következő ablakban fel kell vennie.</translation>
        </message>
        <message>
            <source>Setting up novatreason translation aborted.</source>
            <translation>Az áfamentességi ok fordításának felvétele megszakítva.</translation>
        </message>
        <message>
            <source>Unable to load novatreason translation.</source>
            <translation>Az áfamentességi ok fordítása nem tölthető be.</translation>
        </message>
        <message>
            <source>ORDERHEAD_PAYMENTMETHOD_CODE is missing.&amp;&amp;ORDERHEAD_CODE=%s</source>
            <translation>Hiányzik az ORDERHEAD_PAYMENTMETHOD_CODE.&amp;&amp;ORDERHEAD_CODE=%s</translation>
        </message>
        <message>
            <source>Unable to load payment method.</source>
            <translation>A fizetési mód nem tölthető be.</translation>
        </message>
        <message>
            <source>There is no payment method with code %s in database.&amp;&amp;Add or select this payment method and the translations in the next window.</source>
            <translation>Az adatbázisban nincs %s kódú fizetési mód.&amp;&amp;A következő ablakban vegye fel vagy válassza ki, a fordításaival együtt.</translation>
        </message>
        <message>
            <source>Error saving payment method selection.</source>
            <translation>Hiba a kiválasztott fizetési mód mentésekor.</translation>
        </message>
        <message>
            <source>There is no %s translation for %s payment method in database.&amp;You have to set it up in the next window.</source>
            <translation>Az adatbázisban nincs %s fordítás a(z) %s fizetési módhoz.&amp;A következő ablakban fel kell vennie.</translation>
        </message>
        <message>
            <source>Setting up payment method translation aborted.</source>
            <translation>A fizetési mód fordításának felvétele megszakítva.</translation>
        </message>
        <message>
            <source>Unable to load payment method translation.</source>
            <translation>A fizetési mód fordítása nem tölthető be.</translation>
        </message>
        <message>
            <source>Error loading partner data.</source>
            <translation>Hiba a partner adatainak betöltésekor.</translation>
        </message>
        <message>
            <source>Error saving partner data.</source>
            <translation>Hiba a partner adatainak mentésekor.</translation>
        </message>
        <message>
            <source>Error loading VAT data.</source>
            <translation>Hiba az áfakulcs adatainak betöltésekor.</translation>
        </message>
        <message>
            <source>Error saving VAT data.</source>
            <translation>Hiba az áfakulcs adatainak mentésekor.</translation>
        </message>
        <message>
            <source>Error loading product data.</source>
            <translation>Hiba a termék adatainak betöltésekor.</translation>
        </message>
        <message>
            <source>Error saving product data.</source>
            <translation>Hiba a termék adatainak mentésekor.</translation>
        </message>
        <message>
            <source>Error saving product price data.</source>
            <translation>Hiba a termék árának mentésekor.</translation>
        </message>
        <message>
            <source>Error loading product price data.</source>
            <translation>Hiba a termék árának betöltésekor.</translation>
        </message>
        <message>
            <source>Error saving product translation data.</source>
            <translation>Hiba a termék fordításának mentésekor.</translation>
        </message>
        <message>
            <source>Error loading product translation data.</source>
            <translation>Hiba a termék fordításának betöltésekor.</translation>
        </message>
        <message>
            <source>Error creating orderitem in database with CODE %s.</source>
            <translation>Hiba a(z) %s kódú rendeléstétel létrehozásakor.</translation>
        </message>
        <message>
            <source>%s is not a number: "%s"&amp;&amp;ORDERHEAD_CODE=%s</source>
            <translation>A(z) %s értéke nem szám: "%s"&amp;&amp;ORDERHEAD_CODE=%s</translation>
        </message>
        <message>
            <source>Error creating order in database with CODE %s.</source>
            <translation>Hiba a(z) %s kódú rendelés létrehozásakor.</translation>
        </message>
    </context>
    <context>
        <name>OrderItemEditDlg</name>
        <message>
            <source>New order item</source>
            <translation>Új tétel</translation>
        </message>
        <message>
            <source>Edit order item</source>
            <translation>Tétel szerkesztése</translation>
        </message>
        <message>
            <source>Unset</source>
            <translation>Nincs megadva</translation>
        </message>
        <message>
            <source>Name In %1</source>
            <translation>Név (%1)</translation>
        </message>
        <message>
            <source>Comment In %1</source>
            <translation>Megjegyzés (%1)</translation>
        </message>
        <message>
            <source>Unit In %1</source>
            <translation>Egység (%1)</translation>
        </message>
    </context>
    <context>
        <name>OrderItemEditLayout</name>
        <message>
            <source>Edit order item</source>
            <translation>Tétel szerkesztése</translation>
        </message>
        <message>
            <source>Product Name</source>
            <translation>Termék neve</translation>
        </message>
        <message>
            <source>Find Product</source>
            <translation>Termék keresése</translation>
        </message>
        <message>
            <source>Termek keresese vagy uj termek letrehozasa</source>
            <translation>Termék keresése vagy új termék létrehozása</translation>
        </message>
        <message>
            <source>Name In %s</source>
            <translation>Név (%s)</translation>
        </message>
        <message>
            <source>Item Comment on Invoice</source>
            <translation>Tétel megjegyzése a számlán</translation>
        </message>
        <message>
            <source>Comment In %s</source>
            <translation>Megjegyzés (%s)</translation>
        </message>
        <message>
            <source>Statistical Number</source>
            <translation>VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Find Stat No</source>
            <translation>VTSZ/SZJ keresése</translation>
        </message>
        <message>
            <source>VTSZ/SZJ keresese vagy uj felvitele</source>
            <translation>VTSZ/SZJ keresése vagy új felvitele</translation>
        </message>
        <message>
            <source>Date Shipped</source>
            <translation>Teljesítés dátuma</translation>
        </message>
        <message>
            <source>Quantity</source>
            <translation>Mennyiség</translation>
        </message>
        <message>
            <source>Quantity Unit</source>
            <translation>Mennyiségi egység</translation>
        </message>
        <message>
            <source>Unit In %s</source>
            <translation>Egység (%s)</translation>
        </message>
        <message>
            <source>VAT Key</source>
            <translation>ÁFA-kulcs</translation>
        </message>
        <message>
            <source>Find VAT Key</source>
            <translation>ÁFA-kulcs keresése</translation>
        </message>
        <message>
            <source>List Price Net</source>
            <translation>Nettó listaár</translation>
        </message>
        <message>
            <source>List Price Gross</source>
            <translation>Bruttó listaár</translation>
        </message>
        <message>
            <source>Discount / Type Of Price</source>
            <translation>Kedvezmény / ár típusa</translation>
        </message>
        <message>
            <source>%</source>
            <translation>%</translation>
        </message>
        <message>
            <source>Net Price</source>
            <translation>Nettó egységár</translation>
        </message>
        <message>
            <source>Gross Price</source>
            <translation>Bruttó egységár</translation>
        </message>
        <message>
            <source>Total Net</source>
            <translation>Nettó összesen</translation>
        </message>
        <message>
            <source>Total VAT</source>
            <translation>ÁFA összesen</translation>
        </message>
        <message>
            <source>Total Gross</source>
            <translation>Bruttó összesen</translation>
        </message>
    </context>
    <context>
        <name>OrderLabelTranslationBrowse</name>
        <message>
            <source>Invoice Label Translations</source>
            <translation>Számlafeliratok fordításai</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>&amp;Szerkesztés</translation>
        </message>
        <message>
            <source>Every label is printed in Hungarian; the partner's language, when it has a text here, is printed beside it.</source>
            <translation>Minden felirat magyarul kerül a számlára; a partner nyelvén, ha itt van szövege, mellette is.</translation>
        </message>
        <message>
            <source>Key</source>
            <translation>Kulcs</translation>
        </message>
        <message>
            <source>Select a row to edit.</source>
            <translation>Válasszon ki egy sort a szerkesztéshez.</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Szerkesztés</translation>
        </message>
        <message>
            <source>Saving data</source>
            <translation>Adatok mentése</translation>
        </message>
    </context>
    <context>
        <name>OrderList</name>
        <message>
            <source>Select an order/invoice to add bank item.</source>
            <translation>Válasszon ki egy rendelést/számlát a banki tétel felvételéhez.</translation>
        </message>
        <message>
            <source>New Order</source>
            <translation>Új rendelés</translation>
        </message>
        <message>
            <source>Edit Order</source>
            <translation>Rendelés szerkesztése</translation>
        </message>
        <message>
            <source>Delete Order</source>
            <translation>Rendelés törlése</translation>
        </message>
        <message>
            <source>Egyeb muveletek</source>
            <translation>Egyéb műveletek</translation>
        </message>
        <message>
            <source>Print Preview</source>
            <translation>Nyomtatási kép</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Nyomtatás</translation>
        </message>
        <message>
            <source>Add bank item</source>
            <translation>Banki tétel hozzáadása</translation>
        </message>
        <message>
            <source>Sztorno</source>
            <translation>Sztornó</translation>
        </message>
        <message>
            <source>Csekk nyomtatasa</source>
            <translation>Csekk nyomtatása</translation>
        </message>
        <message>
            <source>Clone Order</source>
            <translation>Rendelés másolása</translation>
        </message>
        <message>
            <source>Create and edit a copy of selected order</source>
            <translation>A kiválasztott rendelés másolatának létrehozása és szerkesztése</translation>
        </message>
        <message>
            <source>Select an order/invoice to edit or view.</source>
            <translation>Válasszon ki egy rendelést/számlát a szerkesztéshez vagy megtekintéshez.</translation>
        </message>
        <message>
            <source>Select at least an order/invoice to delete.</source>
            <translation>Válasszon ki legalább egy törlendő rendelést/számlát.</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected order/invoice ?</source>
            <translation>Valóban törölni akarja a kiválasztott rendelést/számlát?</translation>
        </message>
        <message>
            <source>Deleting %d orders/invoices.&amp;Are you sure?</source>
            <translation>%d rendelés/számla törlése.&amp;Biztos benne?</translation>
        </message>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázishiba:&amp;</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Nem sikerült az adatokat betölteni az adatbázisból.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>Invoices, having Invoice No, can only be cancelled.</source>
            <translation>Csak számlaszámmal rendelkező számla sztornózható.</translation>
        </message>
        <message>
            <source>Cancel Invoice can not be cancelled.</source>
            <translation>Sztornó számla nem sztornózható.</translation>
        </message>
        <message>
            <source>This invoice is cancelled by %s.</source>
            <translation>Ezt a számlát a(z) %s számú számla sztornózta.</translation>
        </message>
        <message>
            <source>Cancel Invoice not printed.</source>
            <translation>A sztornó számla még nincs kinyomtatva.</translation>
        </message>
        <message>
            <source>Select an order/invoice to cancel.</source>
            <translation>Válassza ki a sztornózandó rendelést/számlát.</translation>
        </message>
        <message>
            <source>Create the cancel invoice of No %s?</source>
            <translation>Létrehozza a(z) %s számú számla sztornó számláját?</translation>
        </message>
        <message>
            <source>Select at least an order to print.</source>
            <translation>Válasszon ki legalább egy nyomtatandó rendelést.</translation>
        </message>
        <message>
            <source>There are unverified invoices in selection. Verify them before print.</source>
            <translation>A kijelölésben ellenőrizetlen számlák vannak. Nyomtatás előtt ellenőrizze őket.</translation>
        </message>
        <message>
            <source>The invoice can not be printed yet.</source>
            <translation>A számla még nem nyomtatható.</translation>
        </message>
        <message>
            <source>Select an order to print.</source>
            <translation>Válassza ki a nyomtatandó rendelést.</translation>
        </message>
        <message>
            <source>Insert</source>
            <translation>Beszúrás</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Szerkesztés</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Törlés</translation>
        </message>
        <message>
            <source>Sort By Create Order</source>
            <translation>Rendezés létrehozási sorrendben</translation>
        </message>
        <message>
            <source>Printing is not available.</source>
            <translation>A nyomtatás nem érhető el.</translation>
        </message>
    </context>
    <context>
        <name>OrderListModel</name>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Invoice No</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>Date Shipped</source>
            <translation>Teljesítés dátuma</translation>
        </message>
        <message>
            <source>Date Created</source>
            <translation>Kiállítás dátuma</translation>
        </message>
        <message>
            <source>Date Payment Due</source>
            <translation>Fizetési határidő</translation>
        </message>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Total Net</source>
            <translation>Nettó összesen</translation>
        </message>
        <message>
            <source>Total VAT</source>
            <translation>ÁFA összesen</translation>
        </message>
        <message>
            <source>Total Gross</source>
            <translation>Bruttó összesen</translation>
        </message>
        <message>
            <source>Unpaid Total</source>
            <translation>Kifizetetlen összeg</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Kind</source>
            <translation>Típus</translation>
        </message>
        <message>
            <source>NAV</source>
            <translation>NAV</translation>
        </message>
    </context>
    <context>
        <name>OrderListQuery</name>
        <message>
            <source>Unsupported kind selected</source>
            <translation>Nem támogatott típus van kiválasztva</translation>
        </message>
        <message>
            <source>Hiba: Szamlak lekerdezese nem sikerult&amp;%s</source>
            <translation>Hiba: a számlák lekérdezése nem sikerült&amp;%s</translation>
        </message>
        <message>
            <source>There are more matching orders then displayed. Try more specific filter.</source>
            <translation>Több rendelés felel meg a feltételeknek, mint amennyi megjelenik. Adjon meg szűkebb szűrőt.</translation>
        </message>
    </context>
    <context>
        <name>OrderStore</name>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.&amp;Lehet, hogy egy másik felhasználó törölte.</translation>
        </message>
        <message>
            <source>Unable to save changes of order. Maybe an other user changed this order.</source>
            <translation>A rendelés változásait nem sikerült menteni. Lehet, hogy egy másik felhasználó módosította a rendelést.</translation>
        </message>
        <message>
            <source>Unable to load data from database.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.</translation>
        </message>
        <message>
            <source>Can't delete item.</source>
            <translation>A tétel nem törölhető.</translation>
        </message>
        <message>
            <source>Can't insert order item.</source>
            <translation>A rendelési tétel nem vehető fel.</translation>
        </message>
        <message>
            <source>Can't update order item.</source>
            <translation>A rendelési tétel nem módosítható.</translation>
        </message>
        <message>
            <source>Unable to save changes of order.</source>
            <translation>A rendelés változásait nem sikerült menteni.</translation>
        </message>
        <message>
            <source>Unable to create order in database.</source>
            <translation>A rendelést nem sikerült létrehozni az adatbázisban.</translation>
        </message>
        <message>
            <source>Error in deleting order/invoice.</source>
            <translation>Hiba a rendelés/számla törlésekor.</translation>
        </message>
        <message>
            <source>Unable to delete order. It is possible that an other user modified it.</source>
            <translation>A rendelés nem törölhető. Lehet, hogy egy másik felhasználó módosította.</translation>
        </message>
        <message>
            <source>Can't delete record.</source>
            <translation>A rekord nem törölhető.</translation>
        </message>
        <message>
            <source>%d orders/invoices can not be deleted,&amp;because they are printed yet.</source>
            <translation>%d rendelés/számla nem törölhető,&amp;mert már ki lett nyomtatva.</translation>
        </message>
        <message>
            <source>Can't create order in database.</source>
            <translation>A rendelést nem sikerült létrehozni az adatbázisban.</translation>
        </message>
    </context>
    <context>
        <name>PartnerEditLayout</name>
        <message>
            <source>Partner</source>
            <translation>Partner</translation>
        </message>
        <message>
            <source>Partner Code</source>
            <translation>Partnerkód</translation>
        </message>
        <message>
            <source>Partner ID number in webshop</source>
            <translation>A partner azonosítója a webáruházban</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Település</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
        <message>
            <source>Tax No</source>
            <translation>Adószám</translation>
        </message>
        <message>
            <source>e.g tax id or any other data</source>
            <translation>pl. adóazonosító jel vagy egyéb adat</translation>
        </message>
        <message>
            <source>EU Tax No</source>
            <translation>Közösségi adószám</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Payment Due Days</source>
            <translation>Fizetési határidő (nap)</translation>
        </message>
        <message>
            <source>If you leave it empty, default due days will be calculated, based on data in payment method window</source>
            <translation>Ha üresen hagyja, a fizetési határidő a fizetési módnál megadott napok szerint számítódik</translation>
        </message>
        <message>
            <source>Discount / Type Of Price</source>
            <translation>Kedvezmény / ártípus</translation>
        </message>
        <message>
            <source>Discount Percent</source>
            <translation>Kedvezmény (%)</translation>
        </message>
        <message>
            <source>Country</source>
            <translation>Ország</translation>
        </message>
        <message>
            <source>Countries...</source>
            <translation>Országok...</translation>
        </message>
        <message>
            <source>Second Invoice Language</source>
            <translation>A számla második nyelve</translation>
        </message>
        <message>
            <source>Languages...</source>
            <translation>Nyelvek...</translation>
        </message>
        <message>
            <source>Default Currency</source>
            <translation>Alapértelmezett pénznem</translation>
        </message>
        <message>
            <source>Currencies...</source>
            <translation>Pénznemek...</translation>
        </message>
        <message>
            <source>Other Billing Data</source>
            <translation>Egyéb számlázási adatok</translation>
        </message>
        <message>
            <source>Levelezesi cim</source>
            <translation>Levelezési cím</translation>
        </message>
        <message>
            <source>A levelezesi cim megegyezik a szamlazasi cimmel</source>
            <translation>A levelezési cím megegyezik a számlázási címmel</translation>
        </message>
        <message>
            <source>Partner Mail Name</source>
            <translation>Név a levelezési címen</translation>
        </message>
        <message>
            <source>Contact</source>
            <translation>Kapcsolattartó</translation>
        </message>
        <message>
            <source>Contact Name</source>
            <translation>Kapcsolattartó neve</translation>
        </message>
        <message>
            <source>Phone</source>
            <translation>Telefon</translation>
        </message>
        <message>
            <source>Mobile Phone</source>
            <translation>Mobiltelefon</translation>
        </message>
        <message>
            <source>Email</source>
            <translation>E-mail</translation>
        </message>
        <message>
            <source>Comment on Contact</source>
            <translation>Megjegyzés a kapcsolattartóhoz</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
        <message>
            <source>Comments on Partner</source>
            <translation>Megjegyzések a partnerről</translation>
        </message>
    </context>
    <context>
        <name>PartnerFinder</name>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Település</translation>
        </message>
    </context>
    <context>
        <name>PartnerTable</name>
        <message>
            <source>Partner Name field must have a value.</source>
            <translation>A partner neve mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>A partner levelezesi cimehez tartozo nevet meg kell adni.</source>
            <translation>A név a levelezési címen mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Partners</source>
            <translation>Partnerek</translation>
        </message>
        <message>
            <source>&amp;New Partner</source>
            <translation>Ú&amp;j partner</translation>
        </message>
        <message>
            <source>Select a partner to edit.</source>
            <translation>Válassza ki a szerkesztendő partnert.</translation>
        </message>
        <message>
            <source>Select a partner to delete.</source>
            <translation>Válassza ki a törlendő partnert.</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected partner?</source>
            <translation>Biztosan törli a kijelölt partnert?</translation>
        </message>
        <message>
            <source>You have to select a partner.</source>
            <translation>Ki kell választania egy partnert.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Település</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
        <message>
            <source>Other Data</source>
            <translation>Egyéb adatok</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Due Days</source>
            <translation>Fizetési határidő (nap)</translation>
        </message>
        <message>
            <source>Type in first characters of partner name and press Enter to find</source>
            <translation>Írja be a partner nevének első betűit, majd nyomja meg az Entert a kereséshez</translation>
        </message>
        <message>
            <source>There are more matching partners then displayed. Try more specific filter.</source>
            <translation>A feltételnek több partner felel meg, mint amennyi megjeleníthető. Adjon meg pontosabb feltételt.</translation>
        </message>
        <message>
            <source>Add Partner</source>
            <translation>Új partner</translation>
        </message>
        <message>
            <source>Partner szerkesztese:</source>
            <translation>Partner szerkesztése:</translation>
        </message>
    </context>
    <context>
        <name>PaymentCommands</name>
        <message>
            <source>Not a date: %s</source>
            <translation>Nem dátum: %s</translation>
        </message>
        <message>
            <source>%s: paid</source>
            <translation>%s: fizetve</translation>
        </message>
        <message>
            <source>%s: unpaid %s %s</source>
            <translation>%s: kifizetetlen %s %s</translation>
        </message>
        <message>
            <source>There are no bank items to this invoice.</source>
            <translation>Ehhez a számlához nincs banki tétel.</translation>
        </message>
        <message>
            <source>Record No</source>
            <translation>Tételszám</translation>
        </message>
        <message>
            <source>Transfer Date</source>
            <translation>Átutalás dátuma</translation>
        </message>
        <message>
            <source>Paid</source>
            <translation>Fizetve</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
    </context>
    <context>
        <name>PaymentMethodEditLayout</name>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Payment Method Code</source>
            <translation>Fizetési mód kódja</translation>
        </message>
        <message>
            <source>Default payment due days</source>
            <translation>Alapértelmezett fizetési határidő (nap)</translation>
        </message>
        <message>
            <source>Round Invoice Totals To 5</source>
            <translation>Számlavégösszeg kerekítése 5 forintra</translation>
        </message>
        <message>
            <source>Paid when invoice creataed</source>
            <translation>Kiállításkor a számla kiegyenlítettnek számít</translation>
        </message>
        <message>
            <source>Keszitsen csekket szamlanyomtatas utan</source>
            <translation>Készítsen csekket számlanyomtatás után</translation>
        </message>
        <message>
            <source>Comment on invoice when this method selected</source>
            <translation>Megjegyzés a számlán e fizetési mód esetén</translation>
        </message>
        <message>
            <source>Translations</source>
            <translation>Fordítások</translation>
        </message>
        <message>
            <source>You have to fill these below width both foreign and native language comments.</source>
            <translation>Az alábbi megjegyzéseket idegen nyelven és magyarul is ki kell tölteni.</translation>
        </message>
    </context>
    <context>
        <name>PaymentMethodTable</name>
        <message>
            <source>Name field must have a value.</source>
            <translation>A megnevezés mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Payment Methods</source>
            <translation>Fizetési módok</translation>
        </message>
        <message>
            <source>&amp;New Payment Method</source>
            <translation>Ú&amp;j fizetési mód</translation>
        </message>
        <message>
            <source>Select a payment metod to edit.</source>
            <translation>Válassza ki a szerkesztendő fizetési módot.</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected payment method?</source>
            <translation>Biztosan törli a kijelölt fizetési módot?</translation>
        </message>
        <message>
            <source>You have to select a payment method.</source>
            <translation>Ki kell választania egy fizetési módot.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Due Days</source>
            <translation>Fizetési határidő (nap)</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
        <message>
            <source>Add Payment Method</source>
            <translation>Új fizetési mód</translation>
        </message>
        <message>
            <source>Edit Payment Method</source>
            <translation>Fizetési mód szerkesztése</translation>
        </message>
        <message numerus="yes">
            <source>This payment method is used by %n partner(s).</source>
            <translation>
                <numerusform>Ezt a fizetési módot %n partner használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This payment method is used by %n order(s).</source>
            <translation>
                <numerusform>Ezt a fizetési módot %n rendelés használja.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>ProductEdit</name>
        <message>
            <source>Product Name Translations</source>
            <translation>Terméknév fordításai</translation>
        </message>
        <message>
            <source>Comment Translations</source>
            <translation>Megjegyzés fordításai</translation>
        </message>
        <message>
            <source>Unit Translations</source>
            <translation>Mennyiségi egység fordításai</translation>
        </message>
        <message>
            <source>"%1" is not a price: type a number.</source>
            <translation>„%1” nem ár: számot írjon be.</translation>
        </message>
    </context>
    <context>
        <name>ProductEditLayout</name>
        <message>
            <source>Product</source>
            <translation>Termék</translation>
        </message>
        <message>
            <source>Product Code</source>
            <translation>Termékkód</translation>
        </message>
        <message>
            <source>Product ID nuber in the webshop</source>
            <translation>A termék azonosítója a webáruházban</translation>
        </message>
        <message>
            <source>Product Name</source>
            <translation>Termék neve</translation>
        </message>
        <message>
            <source>Comment</source>
            <translation>Megjegyzés</translation>
        </message>
        <message>
            <source>Stat No</source>
            <translation>VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Find Stat No</source>
            <translation>VTSZ/SZJ keresése</translation>
        </message>
        <message>
            <source>Quantity Unit</source>
            <translation>Mennyiségi egység</translation>
        </message>
        <message>
            <source>VAT Key</source>
            <translation>ÁFA-kulcs</translation>
        </message>
        <message>
            <source>Find VAT Key</source>
            <translation>ÁFA-kulcs keresése</translation>
        </message>
        <message>
            <source>Net Price</source>
            <translation>Nettó ár</translation>
        </message>
        <message>
            <source>Gross Price</source>
            <translation>Bruttó ár</translation>
        </message>
        <message>
            <source>Translations</source>
            <translation>Fordítások</translation>
        </message>
        <message>
            <source>Prices In Foreign Currencies</source>
            <translation>Árak idegen pénznemekben</translation>
        </message>
        <message>
            <source>Prices In Different Currencies</source>
            <translation>Árak különböző pénznemekben</translation>
        </message>
    </context>
    <context>
        <name>ProductFinder</name>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>Price</source>
            <translation>Nettó ár</translation>
        </message>
    </context>
    <context>
        <name>ProductPriceModel</name>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Rate</source>
            <translation>Árfolyam</translation>
        </message>
        <message>
            <source>Calculated Price</source>
            <translation>Számított ár</translation>
        </message>
        <message>
            <source>Overridden Price</source>
            <translation>Felülírt ár</translation>
        </message>
    </context>
    <context>
        <name>ProductTable</name>
        <message>
            <source>Error in deleting product.</source>
            <translation>A termék törlése nem sikerült.</translation>
        </message>
        <message>
            <source>Price (%s)</source>
            <translation>Ár (%s)</translation>
        </message>
        <message>
            <source>Products</source>
            <translation>Termékek</translation>
        </message>
        <message>
            <source>&amp;New Product</source>
            <translation>Ú&amp;j termék</translation>
        </message>
        <message>
            <source>Select a product to edit.</source>
            <translation>Válassza ki a szerkesztendő terméket.</translation>
        </message>
        <message>
            <source>Select a product to delete.</source>
            <translation>Válassza ki a törlendő terméket.</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected product?</source>
            <translation>Biztosan törli a kijelölt terméket?</translation>
        </message>
        <message>
            <source>You have to select a product.</source>
            <translation>Ki kell választania egy terméket.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Stat No</source>
            <translation>VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Unit</source>
            <translation>Mennyiségi egység</translation>
        </message>
        <message>
            <source>Price</source>
            <translation>Nettó ár</translation>
        </message>
        <message>
            <source>Type in first characters of product name and press Enter to find</source>
            <translation>Írja be a termék nevének első betűit, majd nyomja meg az Entert a kereséshez</translation>
        </message>
        <message>
            <source>There are more matching products then displayed. Try more specific filter.</source>
            <translation>A feltételnek több termék felel meg, mint amennyi megjeleníthető. Adjon meg pontosabb feltételt.</translation>
        </message>
        <message>
            <source>Add Product</source>
            <translation>Új termék</translation>
        </message>
        <message>
            <source>Edit Product</source>
            <translation>Termék szerkesztése</translation>
        </message>
        <message>
            <source>Product Name field must have a value.</source>
            <translation>A termék neve mezőt ki kell tölteni.</translation>
        </message>
    </context>
    <context>
        <name>ReceivablesReport</name>
        <message>
            <source>Fizetesi hatarido szerinti szures</source>
            <translation>Fizetési határidő szerinti szűrés</translation>
        </message>
        <message>
            <source>Filter by date</source>
            <translation>Szűrés dátumra</translation>
        </message>
        <message>
            <source>Szures a fizetesi hatarido datuma szerint</source>
            <translation>Szűrés a fizetési határidő dátuma szerint</translation>
        </message>
        <message>
            <source>Szures a fizetesi hatarido lejarta utan eltelt napok szama szerint</source>
            <translation>Szűrés a fizetési határidő lejárta után eltelt napok száma szerint</translation>
        </message>
        <message>
            <source>Show Invoice</source>
            <translation>Számla megtekintése</translation>
        </message>
        <message>
            <source>This case must not be run in OnDateType.</source>
            <translation>Ez az eset nem fordulhat elő a dátumtípus választásakor.</translation>
        </message>
        <message>
            <source>Enter the first and the last day.</source>
            <translation>Adja meg az első és az utolsó napot.</translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Hiba</translation>
        </message>
        <message>
            <source>Select an invoice to view.</source>
            <translation>Válassza ki a megtekintendő számlát.</translation>
        </message>
    </context>
    <context>
        <name>RecordBrowse</name>
        <message>
            <source>Select a record to edit.</source>
            <translation>Válassza ki a szerkesztendő sort.</translation>
        </message>
        <message>
            <source>Select a record to delete.</source>
            <translation>Válassza ki a törlendő sort.</translation>
        </message>
        <message>
            <source>Insert</source>
            <translation>Új sor</translation>
        </message>
        <message>
            <source>Edit</source>
            <translation>Szerkesztés</translation>
        </message>
        <message>
            <source>Delete	Delete</source>
            <translation>Törlés	Delete</translation>
        </message>
    </context>
    <context>
        <name>RecordBrowseLayout</name>
        <message>
            <source>&amp;Name</source>
            <translation>&amp;Név</translation>
        </message>
        <message>
            <source>&amp;Find</source>
            <translation>&amp;Keresés</translation>
        </message>
        <message>
            <source>&amp;Edit</source>
            <translation>&amp;Szerkesztés</translation>
        </message>
        <message>
            <source>Delete</source>
            <translation>Törlés</translation>
        </message>
        <message>
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Súgó</translation>
        </message>
    </context>
    <context>
        <name>RecordImporter</name>
        <message>
            <source>No XML tags in document.</source>
            <translation>A dokumentumban nincsenek XML elemek.</translation>
        </message>
        <message>
            <source>No PARTNERS tag. The first tag is: %s</source>
            <translation>Nincs PARTNERS elem. Az első elem: %s</translation>
        </message>
        <message>
            <source>No PRODUCTS tag.</source>
            <translation>Nincs PRODUCTS elem.</translation>
        </message>
        <message>
            <source>NO PARTNER tag.</source>
            <translation>NINCS PARTNER elem.</translation>
        </message>
        <message>
            <source>NO PRODUCT tag.</source>
            <translation>NINCS PRODUCT elem.</translation>
        </message>
        <message>
            <source>Saving partners to database aborted.</source>
            <translation>A partnerek mentése megszakítva.</translation>
        </message>
        <message>
            <source>Saving products to database aborted.</source>
            <translation>A termékek mentése megszakítva.</translation>
        </message>
        <message>
            <source>Error processing data from server:&amp;</source>
            <translation>Hiba a szervertől kapott adatok feldolgozásakor:&amp;</translation>
        </message>
        <message>
            <source>[G1 Eddig nem szereplo fizetesi mod.&amp;&amp;Partner neve: "%s",&amp;Fizetesi mod kodja: "%s"&amp;Fizetesi mod megnevezese: "%s"&amp;&amp; Valassza ki a megfelelo fizetesi modot a kovetkezo ablakbol!]</source>
            <translation>[G1 Eddig nem szereplő fizetési mód.&amp;&amp;Partner neve: "%s",&amp;Fizetési mód kódja: "%s"&amp;Fizetési mód megnevezése: "%s"&amp;&amp; Válassza ki a megfelelő fizetési módot a következő ablakból!]</translation>
        </message>
        <message>
            <source>[G1 New VAT_CODE found.&amp;&amp;PRODUCT_NAME: "%s",&amp;VAT_CODE: "%s"&amp;&amp; Please, select appropriate VAT key in nex dialog.]</source>
            <translation>[G1 Új VAT_CODE érkezett.&amp;&amp;PRODUCT_NAME: "%s",&amp;VAT_CODE: "%s"&amp;&amp; Válassza ki a megfelelő áfakulcsot a következő ablakban.]</translation>
        </message>
        <message>
            <source>Unable to update in DB. CODE: %s, NAME: %s</source>
            <translation>Nem sikerült módosítani az adatbázisban. KÓD: %s, NÉV: %s</translation>
        </message>
        <message>
            <source>Unable to insert into DB. CODE: %s, NAME: %s</source>
            <translation>Nem sikerült felvenni az adatbázisba. KÓD: %s, NÉV: %s</translation>
        </message>
        <message>
            <source>Error: Maybe there is an other partner in the database with the same name and a different code:&amp;</source>
            <translation>Hiba: lehet, hogy van már más partner az adatbázisban ugyanezzel a névvel és más kóddal:&amp;</translation>
        </message>
        <message>
            <source>Error: Maybe there is an other product in the database with the same name and a different code:&amp;</source>
            <translation>Hiba: lehet, hogy van már más termék az adatbázisban ugyanezzel a névvel és más kóddal:&amp;</translation>
        </message>
    </context>
    <context>
        <name>Report</name>
        <message>
            <source>Unable to start printing.</source>
            <translation>Nem sikerült elindítani a nyomtatást.</translation>
        </message>
        <message>
            <source>Unable to write file %s.</source>
            <translation>Nem sikerült a(z) %s fájlt írni.</translation>
        </message>
        <message>
            <source>The report cannot be laid out: a paragraph or table row in it is too long.</source>
            <translation>A jelentés nem tördelhető: egy bekezdése vagy táblázatsora túl hosszú.</translation>
        </message>
    </context>
    <context>
        <name>ReportCommands</name>
        <message>
            <source>Unable to write file %s.</source>
            <translation>A(z) %s fájl nem írható.</translation>
        </message>
        <message>
            <source>name one report</source>
            <translation>adjon meg egy kimutatást</translation>
        </message>
        <message>
            <source>unknown report %1</source>
            <translation>ismeretlen kimutatás: %1</translation>
        </message>
        <message>
            <source>unknown date %1</source>
            <translation>ismeretlen dátum: %1</translation>
        </message>
        <message>
            <source>--from and --to go together</source>
            <translation>a --from és a --to csak együtt adható meg</translation>
        </message>
        <message>
            <source>dates are written as 2024.03.05. or 2024-03-05</source>
            <translation>a dátum formája 2024.03.05. vagy 2024-03-05</translation>
        </message>
        <message>
            <source>--partner or --partner-id, not both</source>
            <translation>vagy --partner, vagy --partner-id, a kettő együtt nem</translation>
        </message>
        <message>
            <source>--partner-id takes a partner's id</source>
            <translation>a --partner-id egy partner azonosítóját várja</translation>
        </message>
        <message>
            <source>unknown currency %1</source>
            <translation>ismeretlen pénznem: %1</translation>
        </message>
        <message>
            <source>unknown format %1</source>
            <translation>ismeretlen formátum: %1</translation>
        </message>
        <message>
            <source>a PDF needs --out FILE</source>
            <translation>PDF-hez meg kell adni: --out FÁJL</translation>
        </message>
    </context>
    <context>
        <name>ReportDlg</name>
        <message>
            <source>Unable to write file %s.</source>
            <translation>A(z) %s fájl nem írható.</translation>
        </message>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Local Currency (HUF)</source>
            <translation>Helyi pénznem (HUF)</translation>
        </message>
        <message>
            <source>Original Currency</source>
            <translation>Eredeti pénznem</translation>
        </message>
        <message>
            <source>Filter</source>
            <translation>Szűrés</translation>
        </message>
        <message>
            <source>Export PDF</source>
            <translation>Exportálás PDF-be</translation>
        </message>
        <message>
            <source>Export to PDF format</source>
            <translation>Exportálás PDF formátumba</translation>
        </message>
        <message>
            <source>Export TXT</source>
            <translation>Exportálás TXT-be</translation>
        </message>
        <message>
            <source>Export to textfile (*.txt)</source>
            <translation>Exportálás szövegfájlba (*.txt)</translation>
        </message>
        <message>
            <source>Export CSV</source>
            <translation>Exportálás CSV-be</translation>
        </message>
        <message>
            <source>Export to spreadsheet file (*.csv)</source>
            <translation>Exportálás táblázatfájlba (*.csv)</translation>
        </message>
        <message>
            <source>Copy</source>
            <translation>Másolás</translation>
        </message>
        <message>
            <source>Copy to clipboard</source>
            <translation>Másolás a vágólapra</translation>
        </message>
        <message>
            <source>Print Preview</source>
            <translation>Nyomtatási kép</translation>
        </message>
        <message>
            <source>Print</source>
            <translation>Nyomtatás</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
        <message>
            <source>Help</source>
            <translation>Súgó</translation>
        </message>
        <message>
            <source>PDF files (*.pdf)</source>
            <translation>PDF-fájlok (*.pdf)</translation>
        </message>
        <message>
            <source>Text files (*.txt)</source>
            <translation>Szövegfájlok (*.txt)</translation>
        </message>
        <message>
            <source>CSV files (*.csv)</source>
            <translation>CSV-fájlok (*.csv)</translation>
        </message>
        <message>
            <source>Running the report...</source>
            <translation>A kimutatás készül...</translation>
        </message>
    </context>
    <context>
        <name>ReportOutput</name>
        <message>
            <source>Unable to write file %s.</source>
            <translation>A(z) %s fájl nem írható.</translation>
        </message>
        <message>
            <source>Printing Date: </source>
            <translation>Nyomtatás dátuma: </translation>
        </message>
    </context>
    <context>
        <name>ReportPrinter</name>
        <message>
            <source>Print Preview</source>
            <translation>Nyomtatási kép</translation>
        </message>
    </context>
    <context>
        <name>ReportQuery</name>
        <message>
            <source>Net</source>
            <translation>Nettó</translation>
        </message>
        <message>
            <source>VAT</source>
            <translation>ÁFA</translation>
        </message>
        <message>
            <source>Gross</source>
            <translation>Bruttó</translation>
        </message>
        <message>
            <source>Currency</source>
            <translation>Pénznem</translation>
        </message>
        <message>
            <source>Kind</source>
            <translation>Fajta</translation>
        </message>
        <message>
            <source>Product Name</source>
            <translation>Termék neve</translation>
        </message>
        <message>
            <source>Qty</source>
            <translation>Menny.</translation>
        </message>
        <message>
            <source>Unit</source>
            <translation>Egység</translation>
        </message>
        <message>
            <source>Partner Name</source>
            <translation>Partner neve</translation>
        </message>
        <message>
            <source>Invoice No</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Város</translation>
        </message>
        <message>
            <source>Address</source>
            <translation>Cím</translation>
        </message>
        <message>
            <source>Date Shipped</source>
            <translation>Teljesítés dátuma</translation>
        </message>
        <message>
            <source>Date Created</source>
            <translation>Kiállítás dátuma</translation>
        </message>
        <message>
            <source>Date Payment Due</source>
            <translation>Fizetési határidő</translation>
        </message>
        <message>
            <source>Payment Method</source>
            <translation>Fizetési mód</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irsz.</translation>
        </message>
        <message>
            <source>Stat No</source>
            <translation>Stat. szám</translation>
        </message>
        <message>
            <source>Unpaid Total</source>
            <translation>Kifizetetlen összeg</translation>
        </message>
        <message>
            <source>Products Sold Report In Local Currency (HUF)</source>
            <translation>Eladott termékek helyi pénznemben (HUF)</translation>
        </message>
        <message>
            <source>Products Sold Report In Original Currency</source>
            <translation>Eladott termékek eredeti pénznemben</translation>
        </message>
        <message>
            <source>Customers Report In Local Currency (HUF)</source>
            <translation>Vevők helyi pénznemben (HUF)</translation>
        </message>
        <message>
            <source>Customers Report In Original Currency</source>
            <translation>Vevők eredeti pénznemben</translation>
        </message>
        <message>
            <source>Outgoing Invoices In Local Currency (HUF)</source>
            <translation>Kimenő számlák helyi pénznemben (HUF)</translation>
        </message>
        <message>
            <source>Outgoing Invoices In Original Currency</source>
            <translation>Kimenő számlák eredeti pénznemben</translation>
        </message>
        <message>
            <source>Outgoing Invoice Items In Local Currency (HUF)</source>
            <translation>Kimenő számlatételek helyi pénznemben (HUF)</translation>
        </message>
        <message>
            <source>Outgoing Invoice Items In Original Currency</source>
            <translation>Kimenő számlatételek eredeti pénznemben</translation>
        </message>
        <message>
            <source>Kifizetetlen szamlak In Local Currency (HUF)</source>
            <translation>Kifizetetlen számlák helyi pénznemben (HUF)</translation>
        </message>
        <message>
            <source>Kifizetetlen szamlak In Original Currency</source>
            <translation>Kifizetetlen számlák eredeti pénznemben</translation>
        </message>
        <message>
            <source>Tartozo partnerek In Local Currency (HUF)</source>
            <translation>Tartozó partnerek helyi pénznemben (HUF)</translation>
        </message>
        <message>
            <source>Tartozo partnerek In Original Currency</source>
            <translation>Tartozó partnerek eredeti pénznemben</translation>
        </message>
        <message>
            <source>Filter by date shipped</source>
            <translation>Szűrés teljesítés dátumára</translation>
        </message>
        <message>
            <source>Filter by date created</source>
            <translation>Szűrés kiállítás dátumára</translation>
        </message>
        <message>
            <source>Filter by payment due</source>
            <translation>Szűrés fizetési határidőre</translation>
        </message>
        <message>
            <source>Partner: </source>
            <translation>Partner: </translation>
        </message>
        <message>
            <source>Error</source>
            <translation>Hiba</translation>
        </message>
        <message>
            <source>Total</source>
            <translation>Összesen</translation>
        </message>
        <message>
            <source>Total (%1)</source>
            <translation>Összesen (%1)</translation>
        </message>
    </context>
    <context>
        <name>ReportingQueue</name>
        <message>
            <source>Database error:&amp;</source>
            <translation>Adatbázis hiba:&amp;</translation>
        </message>
        <message>
            <source>Waiting</source>
            <translation>Várakozik</translation>
        </message>
        <message>
            <source>Sent</source>
            <translation>Elküldve</translation>
        </message>
        <message>
            <source>Accepted</source>
            <translation>Befogadva</translation>
        </message>
        <message>
            <source>Accepted with warnings</source>
            <translation>Figyelmeztetéssel befogadva</translation>
        </message>
        <message>
            <source>Rejected</source>
            <translation>Elutasítva</translation>
        </message>
    </context>
    <context>
        <name>Schema</name>
        <message>
            <source>Creating database tables</source>
            <translation>Adatbázistáblák létrehozása</translation>
        </message>
        <message>
            <source>Creating database indexes</source>
            <translation>Adatbázis-indexek létrehozása</translation>
        </message>
        <message>
            <source>Unable to insert basic data to database.</source>
            <translation>Nem sikerült az alapadatokat az adatbázisba írni.</translation>
        </message>
    </context>
    <context>
        <name>SchemaExtensions</name>
        <message>
            <source>Extending database tables</source>
            <translation>Adatbázistáblák bővítése</translation>
        </message>
        <message>
            <source>Unable to extend database tables.</source>
            <translation>Nem sikerült az adatbázistáblákat bővíteni.</translation>
        </message>
        <message>
            <source>This company file was extended by a newer version of the program.&amp;Upgrade the software to a newer version.</source>
            <translation>Ezt a cégfájlt a program egy újabb változata bővítette.&amp;Frissítse a programot egy újabb változatra.</translation>
        </message>
    </context>
    <context>
        <name>Setup</name>
        <message>
            <source>Error loading setup data.</source>
            <translation>Hiba a beállítások betöltésekor.</translation>
        </message>
        <message>
            <source>Unable to update SETUP record.</source>
            <translation>Nem sikerült a beállításokat menteni.</translation>
        </message>
    </context>
    <context>
        <name>SetupAppPage</name>
        <message>
            <source>Select partner on new order</source>
            <translation>Partner kiválasztása új rendelésnél</translation>
        </message>
        <message>
            <source>Select product on new order</source>
            <translation>Termék kiválasztása új rendelésnél</translation>
        </message>
        <message>
            <source>Maximum number of records on find</source>
            <translation>Keresési találatok legnagyobb száma</translation>
        </message>
        <message>
            <source>Load main window data on start</source>
            <translation>A főablak adatainak betöltése induláskor</translation>
        </message>
        <message>
            <source>Refresh main window data on tab change</source>
            <translation>A főablak adatainak frissítése fülváltáskor</translation>
        </message>
        <message>
            <source>Show list of found partners on find</source>
            <translation>A talált partnerek listájának megjelenítése kereséskor</translation>
        </message>
        <message>
            <source>Show list of found products on find</source>
            <translation>A talált termékek listájának megjelenítése kereséskor</translation>
        </message>
        <message>
            <source>Pressing Enter works like TAB key in data entry windows</source>
            <translation>Az Enter billentyű a TAB billentyűként működik az adatbeviteli ablakokban</translation>
        </message>
        <message>
            <source>Application behaviour</source>
            <translation>Program működése</translation>
        </message>
    </context>
    <context>
        <name>SetupChequePage</name>
        <message>
            <source>Checque Template</source>
            <translation>Csekksablon</translation>
        </message>
        <message>
            <source>Csekk vizszintes (x) pozicioja a lapon (mm)</source>
            <translation>Csekk vízszintes (x) pozíciója a lapon (mm)</translation>
        </message>
        <message>
            <source>Csekk fuggoleges (y) pozicioja a lapon (mm)</source>
            <translation>Csekk függőleges (y) pozíciója a lapon (mm)</translation>
        </message>
        <message>
            <source>Teszt</source>
            <translation>Teszt</translation>
        </message>
        <message>
            <source>Csekk-nyomtatas kiprobalasa</source>
            <translation>Csekknyomtatás kipróbálása</translation>
        </message>
        <message>
            <source>Csekk</source>
            <translation>Csekk</translation>
        </message>
        <message>
            <source>No cheque template installed</source>
            <translation>Nincs telepített csekksablon</translation>
        </message>
    </context>
    <context>
        <name>SetupCompanyPage</name>
        <message>
            <source>Name</source>
            <translation>Név</translation>
        </message>
        <message>
            <source>ZIP</source>
            <translation>Irányítószám</translation>
        </message>
        <message>
            <source>City</source>
            <translation>Település</translation>
        </message>
        <message>
            <source>Street Address</source>
            <translation>Utca, házszám</translation>
        </message>
        <message>
            <source>Phone</source>
            <translation>Telefon</translation>
        </message>
        <message>
            <source>Bank Name</source>
            <translation>Bank neve</translation>
        </message>
        <message>
            <source>Bank Account No</source>
            <translation>Bankszámlaszám</translation>
        </message>
        <message>
            <source>SWIFT</source>
            <translation>SWIFT</translation>
        </message>
        <message>
            <source>IBAN</source>
            <translation>IBAN</translation>
        </message>
        <message>
            <source>Tax No</source>
            <translation>Adószám</translation>
        </message>
        <message>
            <source>Hungarian tax number: 12345678-1-12</source>
            <translation>Magyar adószám: 12345678-1-12</translation>
        </message>
        <message>
            <source>EU VAT Reg. No.</source>
            <translation>Közösségi adószám</translation>
        </message>
        <message>
            <source>Country code and number, for example HU12345678</source>
            <translation>Országkód és szám, például HU12345678</translation>
        </message>
        <message>
            <source>Other Company Data on Invoice</source>
            <translation>Egyéb cégadatok a számlán</translation>
        </message>
        <message>
            <source>Company Data</source>
            <translation>Cégadatok</translation>
        </message>
    </context>
    <context>
        <name>SetupDownloadPage</name>
        <message>
            <source>Download invoices from this URL</source>
            <translation>Rendelések letöltése erről a címről</translation>
        </message>
        <message>
            <source>Update basic data on import</source>
            <translation>Alapadatok frissítése importáláskor</translation>
        </message>
        <message>
            <source>Download products from this URL</source>
            <translation>Termékek letöltése erről a címről</translation>
        </message>
        <message>
            <source>Download partners from this URL</source>
            <translation>Partnerek letöltése erről a címről</translation>
        </message>
        <message>
            <source>Login name</source>
            <translation>Belépési név</translation>
        </message>
        <message>
            <source>Password</source>
            <translation>Jelszó</translation>
        </message>
        <message>
            <source>Save password</source>
            <translation>Jelszó mentése</translation>
        </message>
        <message>
            <source>Advanced Setup..</source>
            <translation>Haladó beállítások...</translation>
        </message>
        <message>
            <source>Advanced Download Setup</source>
            <translation>A letöltés haladó beállításai</translation>
        </message>
        <message>
            <source>Last imported orderhead timestamp</source>
            <translation>Az utoljára importált rendelés időbélyege</translation>
        </message>
        <message>
            <source>Max. number of orders to import</source>
            <translation>Egyszerre importált rendelések legnagyobb száma</translation>
        </message>
        <message>
            <source>Show CODE fields</source>
            <translation>Kódmezők megjelenítése</translation>
        </message>
        <message>
            <source>Last imported product timestamp</source>
            <translation>Az utoljára importált termék időbélyege</translation>
        </message>
        <message>
            <source>Max. number of products to import</source>
            <translation>Egyszerre importált termékek legnagyobb száma</translation>
        </message>
        <message>
            <source>Last imported partner timestamp</source>
            <translation>Az utoljára importált partner időbélyege</translation>
        </message>
        <message>
            <source>Max. number of partners to import</source>
            <translation>Egyszerre importált partnerek legnagyobb száma</translation>
        </message>
        <message>
            <source>Webshop</source>
            <translation>Webáruház</translation>
        </message>
    </context>
    <context>
        <name>SetupInvoicePage</name>
        <message>
            <source>Invoice No</source>
            <translation>Számlaszám</translation>
        </message>
        <message>
            <source>Invoice No prefix</source>
            <translation>Számlaszám előtagja</translation>
        </message>
        <message>
            <source>This text will be printed before the invoice number</source>
            <translation>Ez a szöveg a számlaszám elé kerül</translation>
        </message>
        <message>
            <source>Invoice No padding with zeros</source>
            <translation>Számlaszám hossza (kiegészítés nullákkal)</translation>
        </message>
        <message>
            <source>Defaults</source>
            <translation>Alapértékek</translation>
        </message>
        <message>
            <source>Default Discount Type</source>
            <translation>Alapértelmezett kedvezménytípus</translation>
        </message>
        <message>
            <source>Default Invoice Subject</source>
            <translation>Alapértelmezett számlatárgy</translation>
        </message>
        <message>
            <source>Printing</source>
            <translation>Nyomtatás</translation>
        </message>
        <message>
            <source>Show print preview before printing invoice</source>
            <translation>Nyomtatási kép megjelenítése a számla nyomtatása előtt</translation>
        </message>
        <message>
            <source>Invoice copies</source>
            <translation>Számlapéldányok száma</translation>
        </message>
        <message>
            <source>Ask copies before printing invoice</source>
            <translation>Példányszám megkérdezése a számla nyomtatása előtt</translation>
        </message>
        <message>
            <source>International Setup</source>
            <translation>Nemzetközi beállítások</translation>
        </message>
        <message>
            <source>Default Country</source>
            <translation>Alapértelmezett ország</translation>
        </message>
        <message>
            <source>Countries...</source>
            <translation>Országok...</translation>
        </message>
        <message>
            <source>Default Second Invoice Language</source>
            <translation>A számla alapértelmezett második nyelve</translation>
        </message>
        <message>
            <source>Languages...</source>
            <translation>Nyelvek...</translation>
        </message>
        <message>
            <source>Default Currency</source>
            <translation>Alapértelmezett pénznem</translation>
        </message>
        <message>
            <source>Currencies...</source>
            <translation>Pénznemek...</translation>
        </message>
        <message>
            <source>Invoice</source>
            <translation>Számla</translation>
        </message>
    </context>
    <context>
        <name>SetupInvoiceTemplatePage</name>
        <message>
            <source>Test</source>
            <translation>Teszt</translation>
        </message>
        <message>
            <source>Test the print preview of the selected invoice template</source>
            <translation>A kiválasztott számlasablon nyomtatási képének kipróbálása</translation>
        </message>
        <message>
            <source>Invoice template</source>
            <translation>Számlasablon</translation>
        </message>
        <message>
            <source>Print Discount To Invoice</source>
            <translation>Kedvezmény nyomtatása a számlára</translation>
        </message>
        <message>
            <source>Never</source>
            <translation>Soha</translation>
        </message>
        <message>
            <source>As item-comment if any</source>
            <translation>Tételmegjegyzésként, ha van</translation>
        </message>
        <message>
            <source>Automatically on invoices with discounted items</source>
            <translation>Automatikusan a kedvezményes tételeket tartalmazó számlákon</translation>
        </message>
        <message>
            <source>Always</source>
            <translation>Mindig</translation>
        </message>
        <message>
            <source>Print a form for signings</source>
            <translation>Aláírási mezők nyomtatása</translation>
        </message>
        <message>
            <source>Logo nyomtatasa a szamlara</source>
            <translation>Logó nyomtatása a számlára</translation>
        </message>
        <message>
            <source>Logo merete a szamlan (%)</source>
            <translation>Logó mérete a számlán (%)</translation>
        </message>
        <message>
            <source>Megnyitás...</source>
            <translation>Megnyitás...</translation>
        </message>
        <message>
            <source>Logo</source>
            <translation>Logó</translation>
        </message>
        <message>
            <source>This invoice template is not certified. Printing will not work with it.</source>
            <translation>Ez a számlasablon nem hitelesített. Ezzel a sablonnal nem lehet számlát nyomtatni.</translation>
        </message>
        <message>
            <source>Certified invoice template.</source>
            <translation>Hitelesített számlasablon.</translation>
        </message>
        <message>
            <source>Pictures</source>
            <translation>Képek</translation>
        </message>
        <message>
            <source>A kivalasztott kep betoltese nem sikerult.&amp;Ellenorizze, biztosan kepet tartalmaz-e a fajl!</source>
            <translation>A kiválasztott kép betöltése nem sikerült.&amp;Ellenőrizze, biztosan képet tartalmaz-e a fájl!</translation>
        </message>
        <message>
            <source>No logo</source>
            <translation>Nincs logó</translation>
        </message>
        <message>
            <source>Invoice Template</source>
            <translation>Számlasablon</translation>
        </message>
    </context>
    <context>
        <name>SetupPages</name>
        <message>
            <source>Built-in template</source>
            <translation>Beépített sablon</translation>
        </message>
        <message>
            <source>The template in use</source>
            <translation>A jelenleg használt sablon</translation>
        </message>
    </context>
    <context>
        <name>SetupRoundingPage</name>
        <message>
            <source>Rounding and printing decimals of the forint (HUF).</source>
            <translation>A forint (HUF) kerekítési és nyomtatási tizedesjegyei.</translation>
        </message>
        <message>
            <source>Rounding</source>
            <translation>Kerekítés</translation>
        </message>
    </context>
    <context>
        <name>SetupSave</name>
        <message>
            <source>Company Name is required.</source>
            <translation>A cég nevét meg kell adni.</translation>
        </message>
        <message>
            <source>ZIP is required.</source>
            <translation>Az irányítószámot meg kell adni.</translation>
        </message>
        <message>
            <source>City is required.</source>
            <translation>A települést meg kell adni.</translation>
        </message>
        <message>
            <source>Street Address is required.</source>
            <translation>Az utcát és a házszámot meg kell adni.</translation>
        </message>
        <message>
            <source>Currency is required.</source>
            <translation>A pénznemet meg kell adni.</translation>
        </message>
        <message>
            <source>Field is required.</source>
            <translation>A mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Set the logo size.</source>
            <translation>Adja meg a logó méretét.</translation>
        </message>
        <message>
            <source>Can not count invoices</source>
            <translation>Nem sikerült megszámolni a számlákat</translation>
        </message>
        <message>
            <source>A logo adatbazisba mentese nem sikerult.</source>
            <translation>A logó adatbázisba mentése nem sikerült.</translation>
        </message>
        <message>
            <source>Unable to save setup to database.</source>
            <translation>Nem sikerült a beállításokat az adatbázisba menteni.</translation>
        </message>
        <message>
            <source>A számlaszám előtagjában szerepel az évszám.&amp;Az előtag az első számla kinyomtatása után már nem változtatható meg, a számlák sorszámozása pedig az év végén sem kezdődik újra. Új évhez új előtaggal új cégadatbázist kell kezdeni.</source>
            <translation>A számlaszám előtagjában szerepel az évszám.&amp;Az előtag az első számla kinyomtatása után már nem változtatható meg, a számlák sorszámozása pedig az év végén sem kezdődik újra. Új évhez új előtaggal új cégadatbázist kell kezdeni.</translation>
        </message>
    </context>
    <context>
        <name>SetupWindow</name>
        <message>
            <source>Setup</source>
            <translation>Beállítások</translation>
        </message>
    </context>
    <context>
        <name>SqlErrorLayout</name>
        <message>
            <source>SQL error:</source>
            <translation>SQL-hiba:</translation>
        </message>
        <message>
            <source>Error statement:</source>
            <translation>Hibás utasítás:</translation>
        </message>
        <message>
            <source>SQL error</source>
            <translation>SQL-hiba</translation>
        </message>
        <message>
            <source>Retry</source>
            <translation>Újra</translation>
        </message>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
        </message>
    </context>
    <context>
        <name>SqlScript</name>
        <message>
            <source>Missing SQL script.</source>
            <translation>Hiányzó SQL-parancsfájl.</translation>
        </message>
    </context>
    <context>
        <name>StatNoEditLayout</name>
        <message>
            <source>Stat No</source>
            <translation>VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
    </context>
    <context>
        <name>StatNoTable</name>
        <message>
            <source>Stat No field must have a value.</source>
            <translation>A VTSZ/SZJ szám mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Name field must have a value.</source>
            <translation>A megnevezés mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>Often Used Stat Numbers</source>
            <translation>Gyakran használt VTSZ/SZJ számok</translation>
        </message>
        <message>
            <source>&amp;New Stat No</source>
            <translation>Ú&amp;j VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected Stat No?</source>
            <translation>Biztosan törli a kijelölt VTSZ/SZJ számot?</translation>
        </message>
        <message>
            <source>You have to select a stat no.</source>
            <translation>Ki kell választania egy VTSZ/SZJ számot.</translation>
        </message>
        <message>
            <source>Stat No</source>
            <translation>VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Add Stat No</source>
            <translation>Új VTSZ/SZJ szám</translation>
        </message>
        <message>
            <source>Edit Stat No:</source>
            <translation>VTSZ/SZJ szám szerkesztése:</translation>
        </message>
        <message numerus="yes">
            <source>This stat number is used by %n product(s).</source>
            <translation>
                <numerusform>Ezt a VTSZ/SZJ számot %n termék használja.</numerusform>
            </translation>
        </message>
    </context>
    <context>
        <name>TableStore</name>
        <message>
            <source>Unable to save translation data.</source>
            <translation>A fordítások mentése nem sikerült.</translation>
        </message>
        <message>
            <source>Unable to save currency data.</source>
            <translation>A pénznemenkénti árak mentése nem sikerült.</translation>
        </message>
        <message>
            <source>Unable to load data from database.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.</translation>
        </message>
        <message>
            <source>Unable to load data from database.&amp;Maybe it is deleted by an other user.</source>
            <translation>Az adatok betöltése az adatbázisból nem sikerült.&amp;Lehet, hogy egy másik felhasználó időközben törölte.</translation>
        </message>
        <message>
            <source>Unable to save data.</source>
            <translation>Az adatok mentése nem sikerült.</translation>
        </message>
        <message>
            <source>Unable to delete data.</source>
            <translation>Az adatok törlése nem sikerült.</translation>
        </message>
        <message>
            <source>The code "%1" is already used.</source>
            <translation>A(z) „%1” kód már foglalt.</translation>
        </message>
    </context>
    <context>
        <name>TaxNumber</name>
        <message>
            <source>The tax number must have the form 12345678-1-12 (8, 1 and 2 digits).</source>
            <translation>Az adószám formája 12345678-1-12 (8, 1 és 2 számjegy).</translation>
        </message>
        <message>
            <source>The tax number is not valid: its eighth digit does not match the first seven.&amp;Check for a mistyped digit.</source>
            <translation>Az adószám érvénytelen: a nyolcadik számjegye nem egyezik az első hét számjegyből számolt ellenőrző számmal.&amp;Ellenőrizze, nincs-e elgépelve.</translation>
        </message>
        <message>
            <source>The EU VAT number must begin with a country code of the EU and have that country's form (for example HU12345676).</source>
            <translation>A közösségi adószám egy uniós ország kódjával kezdődik, és az adott ország formáját követi (például HU12345676).</translation>
        </message>
        <message>
            <source>The EU VAT number is not valid: its check digit does not match.</source>
            <translation>A közösségi adószám érvénytelen: az ellenőrző számjegye nem egyezik.</translation>
        </message>
    </context>
    <context>
        <name>TranslationModel</name>
        <message>
            <source>Language</source>
            <translation>Nyelv</translation>
        </message>
    </context>
    <context>
        <name>VatEditLayout</name>
        <message>
            <source>Vat Code</source>
            <translation>ÁFA-kód</translation>
        </message>
        <message>
            <source>VAT Name</source>
            <translation>ÁFA-kulcs neve</translation>
        </message>
        <message>
            <source>Percent</source>
            <translation>Százalék</translation>
        </message>
    </context>
    <context>
        <name>VatTable</name>
        <message>
            <source>VAT Name field must have a value.</source>
            <translation>Az ÁFA-kulcs neve mezőt ki kell tölteni.</translation>
        </message>
        <message>
            <source>VAT keys</source>
            <translation>ÁFA-kulcsok</translation>
        </message>
        <message>
            <source>&amp;New VAT key</source>
            <translation>Ú&amp;j ÁFA-kulcs</translation>
        </message>
        <message>
            <source>Do you really want to delete the selected VAT key?</source>
            <translation>Biztosan törli a kijelölt ÁFA-kulcsot?</translation>
        </message>
        <message>
            <source>You have to select a VAT key.</source>
            <translation>Ki kell választania egy ÁFA-kulcsot.</translation>
        </message>
        <message>
            <source>Code</source>
            <translation>Kód</translation>
        </message>
        <message>
            <source>Name</source>
            <translation>Megnevezés</translation>
        </message>
        <message>
            <source>Percent</source>
            <translation>Százalék</translation>
        </message>
        <message>
            <source>Add VAT</source>
            <translation>Új ÁFA-kulcs</translation>
        </message>
        <message>
            <source>Edit VAT:</source>
            <translation>ÁFA-kulcs szerkesztése:</translation>
        </message>
        <message numerus="yes">
            <source>This VAT key is used by %n product(s).</source>
            <translation>
                <numerusform>Ezt az ÁFA-kulcsot %n termék használja.</numerusform>
            </translation>
        </message>
        <message numerus="yes">
            <source>This VAT key is used by %n order item(s).</source>
            <translation>
                <numerusform>Ezt az ÁFA-kulcsot %n rendelési tétel használja.</numerusform>
            </translation>
        </message>
        <message>
            <source>Percent field must have a value.</source>
            <translation>A százalék mezőt ki kell tölteni.</translation>
        </message>
    </context>
    <context>
        <name>WebshopClient</name>
        <message>
            <source>Operation canceled.</source>
            <translation>A művelet megszakítva.</translation>
        </message>
        <message>
            <source>The server did not answer in time.</source>
            <translation>A szerver nem válaszolt időben.</translation>
        </message>
        <message>
            <source>The connection was closed before the whole answer arrived.</source>
            <translation>A kapcsolat megszakadt, mielőtt a teljes válasz megérkezett.</translation>
        </message>
    </context>
    <context>
        <name>WebshopCommands</name>
        <message>
            <source>Importalando szamlak (*.xml)</source>
            <translation>Importálandó számlák (*.xml)</translation>
        </message>
        <message>
            <source>Importalando partnerek (*.xml)</source>
            <translation>Importálandó partnerek (*.xml)</translation>
        </message>
        <message>
            <source>Importalando termekek/szolgaltatasok (*.xml)</source>
            <translation>Importálandó termékek/szolgáltatások (*.xml)</translation>
        </message>
        <message>
            <source>stored: %1</source>
            <translation>mentve: %1</translation>
        </message>
        <message>
            <source>give the file to import</source>
            <translation>adja meg az importálandó fájlt</translation>
        </message>
        <message>
            <source>no arguments expected</source>
            <translation>a parancsnak nincsenek argumentumai</translation>
        </message>
        <message>
            <source>The webshop login is not saved. Set the login name and the password with "Save password" in the settings to download from the command line.</source>
            <translation>A webáruház belépési adatai nincsenek elmentve. A parancssori letöltéshez adja meg a beállításokban a felhasználónevet és a jelszót, a „Jelszó mentése” bejelölésével.</translation>
        </message>
    </context>
    <context>
        <name>WebshopExchange</name>
        <message>
            <source>Partners not downloaded</source>
            <translation>A partnerek letöltése nem sikerült</translation>
        </message>
        <message>
            <source>Products not downloaded</source>
            <translation>A termékek letöltése nem sikerült</translation>
        </message>
        <message>
            <source>Orders not downloaded</source>
            <translation>A rendelések letöltése nem sikerült</translation>
        </message>
        <message>
            <source>Creating partners in database...</source>
            <translation>Partnerek mentése az adatbázisba...</translation>
        </message>
        <message>
            <source>Creating products in database...</source>
            <translation>Termékek mentése az adatbázisba...</translation>
        </message>
        <message>
            <source>Creating orders in database...</source>
            <translation>Rendelések létrehozása az adatbázisban...</translation>
        </message>
        <message>
            <source>%d partners saved.</source>
            <translation>%d partner mentve.</translation>
        </message>
        <message>
            <source>%d products saved.</source>
            <translation>%d termék mentve.</translation>
        </message>
        <message>
            <source>Authenticate yourself to download orders from server.</source>
            <translation>A rendelések letöltéséhez azonosítsa magát.</translation>
        </message>
        <message>
            <source>Authenticate yourself to download partners from server.</source>
            <translation>A partnerek letöltéséhez azonosítsa magát.</translation>
        </message>
        <message>
            <source>Authenticate yourself to download products from server.</source>
            <translation>A termékek letöltéséhez azonosítsa magát.</translation>
        </message>
        <message>
            <source>Downloading from server...</source>
            <translation>Letöltés a szerverről...</translation>
        </message>
        <message>
            <source>Wrong login name or password. Try again.</source>
            <translation>Hibás felhasználónév vagy jelszó. Próbálja újra.</translation>
        </message>
        <message>
            <source>Communication error with web server.&amp;Code: %d&amp;Error message: %s</source>
            <translation>Hiba a webszerverrel való kommunikációban.&amp;Kód: %d&amp;Hibaüzenet: %s</translation>
        </message>
        <message>
            <source>A fajlban nincsenek importalhato szamlak.</source>
            <translation>A fájlban nincsenek importálható számlák.</translation>
        </message>
        <message>
            <source>A szamlak importalasa nem sikerult.</source>
            <translation>A számlák importálása nem sikerült.</translation>
        </message>
        <message>
            <source>Szamlak nem lettek importalva.</source>
            <translation>Számlák nem lettek importálva.</translation>
        </message>
        <message>
            <source>%d db szamla importalasa sikerult.</source>
            <translation>%d db számla importálása sikerült.</translation>
        </message>
        <message>
            <source>No new orders to download.</source>
            <translation>Nincs új letölthető rendelés.</translation>
        </message>
        <message>
            <source>%d orders downloaded. There can be downloadable orders on the server yet.</source>
            <translation>%d rendelés letöltve. A szerveren még lehetnek letölthető rendelések.</translation>
        </message>
        <message>
            <source>%d orders downloaded.</source>
            <translation>%d rendelés letöltve.</translation>
        </message>
    </context>
    <context>
        <name>SetupNavPage</name>
        <message>
            <source>NAV</source>
            <translation>NAV</translation>
        </message>
    </context>
</TS>
