// The searchable form of names behind every ..._NAME_ASCII column and every name search: the
// lists find stored folded names that begin with the folded typed text.
#include "DataTable.h"

#include "base/FoldName.h"

#include <QtTest>

class TestFoldName : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void fold_data()
    {
        AddColumns<QString, QString>({"name", "folded"});
        const auto row = [](const char* name, const QString& text, const char* folded) {
            QTest::newRow(name) << text << QString::fromUtf8(folded);
        };
        // Hungarian in both cases, the double acute of ő and ű included.
        row("upper", "ÁRVÍZTŰRŐ TÜKÖRFÚRÓGÉP", "ARVIZTURO TUKORFUROGEP");
        row("combining accents", QString::fromUtf8("A\xcc\x81rvi\xcc\x81z"), "ARVIZ");
        row("sharp s", "Größe Straße GROẞE", "GROSSE STRASSE GROSSE");
        // Other Latin letters: with marks, and those that do not decompose.
        row("with marks", "Čapek façade Ñandú Şişli İstanbul", "CAPEK FACADE NANDU SISLI ISTANBUL");
        row("own letters", "Łódź Øresund Ærø Đorđe cœur ılık Þór",
            "LODZ ORESUND AERO DORDE COEUR ILIK THOR");
        row("compatibility forms", "ﬁnom ＡＢＣ", "FINOM ABC");
        // Everything else stays, only upper-cased.
        row("punctuation and digits", "1. sz. Bt. & Co (kft)", "1. SZ. BT. & CO (KFT)");
        row("cyrillic", "Москва", "МОСКВА");
    }

    void fold()
    {
        auto [name, folded] = Fetch<QString, QString>({"name", "folded"});
        QCOMPARE(FoldName(name), folded);
    }
};

QTEST_GUILESS_MAIN(TestFoldName)
#include "tst_foldname.moc"
