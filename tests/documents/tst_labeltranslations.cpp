// The invoice labels as loaded from a new company's shipped rows, and their no-fallback rules.
#include "DataTable.h"
#include "TestCompany.h"

#include "base/SqlStatement.h"
#include "documents/LabelTranslations.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class TestLabelTranslations : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_company = std::make_unique<TestCompany>();
        QVERIFY(m_company->isValid());
        // A label known only abroad: without a Hungarian text it never prints.
        QVERIFY(ExecSql(u"insert into ORDERLABELTRANSLATION values (?, ?, ?)"_s,
                        {1, u"TR_ONLY_ENGLISH"_s, u"English only"_s}));
        QVERIFY(m_labels.load());
    }
    void cleanup() { m_company.reset(); }

    void labels_data()
    {
        // own: Get: exactly this language's text; shown: bilingual(), and the TR.* placeholder's
        // value
        AddColumns<QString, QVariant, QString, QString>({"key", "language", "own", "shown"});
        const auto row = [](const char* name, const char* key, const QVariant& language,
                            const char* own, const char* shown) {
            QTest::newRow(name) << key << language << QString::fromUtf8(own)
                                << QString::fromUtf8(shown);
        };
        row("english", "TR_INVOICE", 1, "Invoice", "Invoice / Számla");
        row("trailing blank kept", "TR_BANK_ACCOUNT_NUMBER", 2, "Bank-Kontonummer ",
            "Bank-Kontonummer  / Bankszámla");
        row("language as stored text", "TR_VAT", "2", "MwSt", "MwSt / ÁFA");
        row("upgraded text", "TR_PAYMENT_METHOD", 0, "Fizetési mód", "Fizetési mód");
        // No fallback between languages.
        row("german missing", "TR_STAT_CODE", 2, "", "VTSZ/SZJ");
        row("language without labels", "TR_INVOICE", 9, "", "Számla");
        row("no language", "TR_INVOICE", QVariant(), "Számla", "Számla");
    }

    void labels()
    {
        auto [key, language, own, shown] =
            Fetch<QString, QVariant, QString, QString>({"key", "language", "own", "shown"});
        QCOMPARE(m_labels.get(key, language.toInt()), own);
        QCOMPARE(m_labels.bilingual(key, language), shown);
        // Filling replaces what the map held and leaves other entries alone.
        const QString name = QString(key).replace(u'_', u'.');
        QMap<QString, QString> map = {{name, u"old"_s}, {u"ORDERHEAD.SUBJECT"_s, u"kept"_s}};
        m_labels.fillPlaceholders(map, language);
        QCOMPARE(map.value(name), shown);
        QCOMPARE(map.value(u"ORDERHEAD.SUBJECT"_s), u"kept"_s);
        QVERIFY(!map.contains(u"TR.ONLY.ENGLISH"_s));
        QCOMPARE(m_labels.bilingual(u"TR_ONLY_ENGLISH"_s, language), QString());
    }

    // The label editor deletes a cleared foreign text: after reloading it prints Hungarian only. A
    // failed load keeps nothing stale.
    void reload()
    {
        QVERIFY(
            ExecSql(u"delete from ORDERLABELTRANSLATION where ORDERLABELTRANSLATION_LANG_ID = ? "
                    "and ORDERLABELTRANSLATION_KEY = ?"_s,
                    {2, u"TR_INVOICE"_s}));
        QVERIFY(m_labels.load());
        QCOMPARE(m_labels.bilingual(u"TR_INVOICE"_s, 2), u"Számla"_s);
        QVERIFY(ExecSql(u"drop table ORDERLABELTRANSLATION"_s));
        QCOMPARE(m_labels.load().message(), u"Unable to load invoice label translations."_s);
        QVERIFY(m_labels.keys().isEmpty());
    }

private:
    std::unique_ptr<TestCompany> m_company;
    LabelTranslations m_labels;
};

QTEST_GUILESS_MAIN(TestLabelTranslations)
#include "tst_labeltranslations.moc"
