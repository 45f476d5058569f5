// The invoice labels as loaded from a new company's shipped rows, and their no-fallback rules.
#include "TestCompany.h"

#include "app/SqlStatement.h"
#include "documents/LabelTranslations.h"

#include <QtTest>

class TestLabelTranslations : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_company.reset(); }
    void labels_data();
    void labels();
    void hungarianPartnerGetsHungarianAlone();
    void reloadShowsAClearedTranslation();
    void failedLoadLeavesTheStoreEmpty();

private:
    std::unique_ptr<TestCompany> m_company;
    LabelTranslations m_labels;
};

void TestLabelTranslations::init()
{
    m_company = std::make_unique<TestCompany>();
    QVERIFY(m_company->isValid());
    // A label known only abroad: without a Hungarian text it never prints.
    QVERIFY(ExecSql(QStringLiteral("insert into ORDERLABELTRANSLATION values (?, ?, ?)"),
                    {1, QStringLiteral("TR_ONLY_ENGLISH"), QStringLiteral("English only")}));
    QVERIFY(m_labels.Load());
}

void TestLabelTranslations::labels_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("language");
    QTest::addColumn<QString>("own");   // Get: exactly this language's text
    QTest::addColumn<QString>("shown"); // GetBilingual, and the TR.* placeholder's value
    const auto row = [](const char* name, const char* key, const QVariant& language,
                        const char* own, const char* shown) {
        QTest::newRow(name) << key << language << QString::fromUtf8(own)
                            << QString::fromUtf8(shown);
    };
    row("english", "TR_INVOICE", 1, "Invoice", "Invoice / Számla");
    row("german", "TR_BILL_TO", 2, "Firma/Kundenname", "Firma/Kundenname / Vevő");
    row("trailing blank kept", "TR_BANK_ACCOUNT_NUMBER", 2, "Bank-Kontonummer ",
        "Bank-Kontonummer  / Bankszámla");
    row("language as stored text", "TR_VAT", "2", "MwSt", "MwSt / ÁFA");
    row("upgraded text", "TR_PAYMENT_METHOD", 0, "Fizetési mód", "Fizetési mód");
    row("long key", "TR_ROUNDING_ERROR_CORRECTION", 1, "Rounding error correction",
        "Rounding error correction / Korrekciós tényező");
    // No fallback between languages.
    row("german missing", "TR_STAT_CODE", 2, "", "VTSZ/SZJ");
    row("language without labels", "TR_INVOICE", 9, "", "Számla");
    row("no language", "TR_INVOICE", QVariant(), "Számla", "Számla");
}

void TestLabelTranslations::labels()
{
    QFETCH(QString, key);
    QFETCH(QVariant, language);
    QFETCH(QString, own);
    QFETCH(QString, shown);
    QCOMPARE(m_labels.Get(key, language.toInt()), own);
    QCOMPARE(m_labels.GetBilingual(key, language), shown);
    // Filling replaces what the map held and leaves other entries alone.
    QString name = key;
    name.replace(u'_', u'.');
    QMap<QString, QString> map = {{name, QStringLiteral("old")},
                                  {QStringLiteral("ORDERHEAD.SUBJECT"), QStringLiteral("kept")}};
    m_labels.FillPlaceholders(map, language);
    QCOMPARE(map.value(name), shown);
    QCOMPARE(map.value(QStringLiteral("ORDERHEAD.SUBJECT")), QStringLiteral("kept"));
    QVERIFY(!map.contains(QStringLiteral("TR.ONLY.ENGLISH")));
    QCOMPARE(m_labels.GetBilingual(QStringLiteral("TR_ONLY_ENGLISH"), language), QString());
}

void TestLabelTranslations::hungarianPartnerGetsHungarianAlone()
{
    QMap<QString, QString> map;
    m_labels.FillPlaceholders(map, 0);
    QCOMPARE(map.size(), 44); // every shipped key has a Hungarian text
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        QVERIFY2(it.key().startsWith(QLatin1String("TR.")), qPrintable(it.key()));
        QVERIFY2(!it.value().contains(QLatin1String(" / ")), qPrintable(it.key()));
    }
}

void TestLabelTranslations::reloadShowsAClearedTranslation()
{
    // The label editor deletes a cleared foreign text; after reloading it prints Hungarian only.
    QVERIFY(ExecSql(QStringLiteral("delete from ORDERLABELTRANSLATION where "
                                   "ORDERLABELTRANSLATION_LANG_ID = ? and "
                                   "ORDERLABELTRANSLATION_KEY = ?"),
                    {2, QStringLiteral("TR_INVOICE")}));
    QVERIFY(m_labels.Load());
    QCOMPARE(m_labels.GetBilingual(QStringLiteral("TR_INVOICE"), 2), QStringLiteral("Számla"));
}

void TestLabelTranslations::failedLoadLeavesTheStoreEmpty()
{
    QVERIFY(ExecSql(QStringLiteral("drop table ORDERLABELTRANSLATION")));
    const Result r = m_labels.Load();
    QCOMPARE(r.message(), QStringLiteral("Unable to load invoice label translations."));
    QVERIFY(m_labels.Keys().isEmpty());
}

QTEST_GUILESS_MAIN(TestLabelTranslations)
#include "tst_labeltranslations.moc"
