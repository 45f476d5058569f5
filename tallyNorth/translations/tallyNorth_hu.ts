<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU">
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
        <name>GuiInteraction</name>
        <message>
            <source>Cancel</source>
            <translation>Mégse</translation>
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
        <name>SqlErrorLayout</name>
        <message>
            <source>SQL error:</source>
            <translation>SQL-hiba:</translation>
        </message>
        <message>
            <source>Error statement:</source>
            <translation>Hibás utasítás:</translation>
        </message>
    </context>
</TS>
