// "Invoice Label Translations" on the offscreen platform: only the foreign texts are saved, a
// cleared text loses its row, and the next invoice sees the saved labels.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "documents/LabelTranslations.h"
#include "documents/ui/OrderLabelTranslationBrowse.h"

#include <QTableWidget>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

int RowOf(QTableWidget* table, const QString& key)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        if (table->item(row, 0)->text() == key)
            return row;
    }
    return -1;
}

QString Stored(int language, const QString& key)
{
    return QueryText(u"select group_concat(ORDERLABELTRANSLATION_TEXT, '|') from "
                     "ORDERLABELTRANSLATION where ORDERLABELTRANSLATION_LANG_ID = ? and "
                     "ORDERLABELTRANSLATION_KEY = ?"_s,
                     {language, key});
}

} // namespace

class TestLabelBrowse : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        m_ask = ScriptedInteraction();
        QVERIFY(LabelTranslations::current().load());
    }

    // The Hungarian text is shown, never saved; an emptied text loses its row.
    void savesOnlyForeignTexts()
    {
        OrderLabelTranslationBrowse browse(m_ask);
        QVERIFY(browse.load());
        const int stat = RowOf(browse.table(), u"TR_STAT_CODE"_s);
        const int invoice = RowOf(browse.table(), u"TR_INVOICE"_s);
        browse.setRowTexts(stat, {u"ignored"_s, u"Stat. Code"_s, u"Zolltarifnummer"_s});
        browse.setRowTexts(invoice, {u"Számla"_s, QString(), u"Rechnung"_s});
        browse.accept();
        QCOMPARE(m_ask.lastMessage(), QString());
        QCOMPARE(browse.result(), int(QDialog::Accepted));
        // Untouched rows (TR_CUSTOMER) are written back once, not twice.
        QCOMPARE((QStringList{Stored(0, u"TR_STAT_CODE"_s), Stored(2, u"TR_STAT_CODE"_s),
                              Stored(1, u"TR_INVOICE"_s), Stored(2, u"TR_INVOICE"_s),
                              Stored(1, u"TR_CUSTOMER"_s)}),
                 (QStringList{u"VTSZ/SZJ"_s, u"Zolltarifnummer"_s, QString(), u"Rechnung"_s,
                              u"Customer"_s}));
        // The next invoice is rendered with the saved labels.
        QCOMPARE(LabelTranslations::current().bilingual(u"TR_STAT_CODE"_s, 2),
                 "Zolltarifnummer / VTSZ/SZJ");
        QCOMPARE(LabelTranslations::current().bilingual(u"TR_INVOICE"_s, 1), u"Számla"_s);
    }

private:
    ScriptedInteraction m_ask;
};

QTEST_MAIN(TestLabelBrowse)
#include "tst_labelbrowse.moc"
