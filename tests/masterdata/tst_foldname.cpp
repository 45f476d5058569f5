// The searchable form of names behind every ..._NAME_ASCII column and every name search.
#include "masterdata/FoldName.h"

#include <QtTest>

class TestFoldName : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fold_data();
    void fold();
    void typedBeginningFindsTheName_data();
    void typedBeginningFindsTheName();
};

void TestFoldName::fold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("folded");

    // Hungarian, both cases, including the double acute of ő and ű.
    QTest::newRow("company") << "Árvíztűrő Kft."
                             << "ARVIZTURO KFT.";
    QTest::newRow("lower") << "árvíztűrő tükörfúrógép"
                           << "ARVIZTURO TUKORFUROGEP";
    QTest::newRow("upper") << "ÁRVÍZTŰRŐ TÜKÖRFÚRÓGÉP"
                           << "ARVIZTURO TUKORFUROGEP";
    QTest::newRow("double acute") << "Őrség Űrhajó"
                                  << "ORSEG URHAJO";
    // Typed with combining accents instead of precomposed letters.
    QTest::newRow("combining accents") << QString::fromUtf8("A\xcc\x81rvi\xcc\x81z") << "ARVIZ";

    // German.
    QTest::newRow("umlauts") << "Müller Äpfel Öl"
                             << "MULLER APFEL OL";
    QTest::newRow("sharp s") << "Größe Straße"
                             << "GROSSE STRASSE";
    QTest::newRow("capital sharp s") << "GROẞE"
                                     << "GROSSE";

    // Other Latin letters: with marks, and those without a decomposition.
    QTest::newRow("czech") << "Čapek Škoda Žilina"
                           << "CAPEK SKODA ZILINA";
    QTest::newRow("romance") << "façade Ñandú Şişli"
                             << "FACADE NANDU SISLI";
    QTest::newRow("polish") << "Łódź"
                            << "LODZ";
    QTest::newRow("scandinavian") << "Øresund Ærø"
                                  << "ORESUND AERO";
    QTest::newRow("croatian") << "Đorđe"
                              << "DORDE";
    QTest::newRow("french ligature") << "Œuvre cœur"
                                     << "OEUVRE COEUR";
    QTest::newRow("turkish i") << "İstanbul ılık"
                               << "ISTANBUL ILIK";
    QTest::newRow("icelandic") << "Þór Aðalsteinn"
                               << "THOR ADALSTEINN";
    // Compatibility forms spelled out.
    QTest::newRow("typographic ligature") << "ﬁnom"
                                          << "FINOM";
    QTest::newRow("full-width") << "ＡＢＣ"
                                << "ABC";

    // Everything else stays, only upper-cased.
    QTest::newRow("punctuation and digits") << "1. sz. Bt. & Co (kft)"
                                            << "1. SZ. BT. & CO (KFT)";
    QTest::newRow("cyrillic") << "Москва"
                              << "МОСКВА";
    QTest::newRow("empty") << ""
                           << "";
}

void TestFoldName::fold()
{
    QFETCH(QString, name);
    QFETCH(QString, folded);
    QCOMPARE(FoldName(name), folded);
}

void TestFoldName::typedBeginningFindsTheName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain letters") << "arv"
                                   << "Árvíztűrő Kft.";
    QTest::newRow("accents typed") << "ÁRVÍZ"
                                   << "Arviz Bt.";
    QTest::newRow("ss for sharp s") << "strass"
                                    << "Straße GmbH";
    QTest::newRow("sharp s for ss") << "straß"
                                    << "Strasse GmbH";
}

void TestFoldName::typedBeginningFindsTheName()
{
    // The list searches for stored folded names beginning with the folded typed text.
    QFETCH(QString, typed);
    QFETCH(QString, name);
    QVERIFY(FoldName(name).startsWith(FoldName(typed)));
}

QTEST_GUILESS_MAIN(TestFoldName)
#include "tst_foldname.moc"
