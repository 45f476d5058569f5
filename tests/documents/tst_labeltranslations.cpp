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
    void cleanup();
    void get_data();
    void get();
    void bilingual_data();
    void bilingual();
    void placeholders_data();
    void placeholders();
    void hungarianPartnerGetsHungarianAlone();
    void fillingReplacesAndKeepsOtherEntries();
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
    // A label known only abroad: no Hungarian text, so it never prints.
    QVERIFY(ExecSql(QStringLiteral("insert into ORDERLABELTRANSLATION values (?, ?, ?)"),
                    {1, QStringLiteral("TR_ONLY_ENGLISH"), QStringLiteral("English only")}));
    QVERIFY(m_labels.Load());
}

void TestLabelTranslations::cleanup()
{
    m_company.reset();
}

void TestLabelTranslations::get_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("hungarian") << "TR_INVOICE" << 0 << "Számla";
    QTest::newRow("english") << "TR_INVOICE" << 1 << "Invoice";
    QTest::newRow("german") << "TR_INVOICE" << 2 << "Rechnung";
    QTest::newRow("trailing blank kept") << "TR_BANK_ACCOUNT_NUMBER" << 2 << "Bank-Kontonummer ";
    QTest::newRow("upgraded hungarian") << "TR_PAYMENT_METHOD" << 0 << "Fizetési mód";
    QTest::newRow("added by upgrade") << "TR_MAIL_TO" << 2 << "Adresse";
    // No fallback to another language.
    QTest::newRow("german missing") << "TR_STAT_CODE" << 2 << "";
    QTest::newRow("unknown language") << "TR_INVOICE" << 7 << "";
    QTest::newRow("unknown key") << "TR_NOTHING" << 0 << "";
}

void TestLabelTranslations::get()
{
    QFETCH(QString, key);
    QFETCH(int, language);
    QFETCH(QString, text);
    QCOMPARE(m_labels.Get(key, language), text);
}

void TestLabelTranslations::bilingual_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("language");
    QTest::addColumn<QString>("text");
    QTest::newRow("english") << "TR_INVOICE" << QVariant(1) << "Invoice / Számla";
    QTest::newRow("german") << "TR_BILL_TO" << QVariant(2) << "Firma/Kundenname / Vevő";
    QTest::newRow("language as stored text") << "TR_VAT" << QVariant("2") << "MwSt / ÁFA";
    QTest::newRow("german missing") << "TR_STAT_CODE" << QVariant(2) << "VTSZ/SZJ";
    QTest::newRow("no language") << "TR_INVOICE" << QVariant() << "Számla";
    QTest::newRow("hungarian once") << "TR_INVOICE" << QVariant(0) << "Számla";
    QTest::newRow("no hungarian") << "TR_ONLY_ENGLISH" << QVariant(1) << "";
    QTest::newRow("unknown key") << "TR_NOTHING" << QVariant(1) << "";
}

void TestLabelTranslations::bilingual()
{
    QFETCH(QString, key);
    QFETCH(QVariant, language);
    QFETCH(QString, text);
    QCOMPARE(m_labels.GetBilingual(key, language), text);
}

void TestLabelTranslations::placeholders_data()
{
    QTest::addColumn<QVariant>("language");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("value");
    QTest::newRow("german") << QVariant(2) << "TR.BILL.TO"
                            << "Firma/Kundenname / Vevő";
    QTest::newRow("german, no text of its own") << QVariant(2) << "TR.STAT.CODE"
                                                << "VTSZ/SZJ";
    QTest::newRow("english, long key") << QVariant(1) << "TR.ROUNDING.ERROR.CORRECTION"
                                       << "Rounding error correction / Korrekciós tényező";
    QTest::newRow("language without labels") << QVariant(9) << "TR.INVOICE"
                                             << "Számla";
    QTest::newRow("no language") << QVariant() << "TR.GROSS.TOTAL.IN.HUNGARIAN"
                                 << "Bruttó végösszeg";
}

void TestLabelTranslations::placeholders()
{
    QFETCH(QVariant, language);
    QFETCH(QString, name);
    QFETCH(QString, value);
    QMap<QString, QString> map;
    m_labels.FillPlaceholders(map, language);
    QCOMPARE(map.value(name), value);
    QVERIFY(!map.contains(QStringLiteral("TR.ONLY.ENGLISH")));
}

void TestLabelTranslations::hungarianPartnerGetsHungarianAlone()
{
    QMap<QString, QString> map;
    m_labels.FillPlaceholders(map, 0);
    // Every shipped key has a Hungarian text: 44 of them.
    QCOMPARE(map.size(), 44);
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        QVERIFY2(it.key().startsWith(QLatin1String("TR.")), qPrintable(it.key()));
        QVERIFY2(!it.value().contains(QLatin1String(" / ")), qPrintable(it.key()));
    }
    QCOMPARE(map.value(QStringLiteral("TR.INVOICE")), QStringLiteral("Számla"));
}

void TestLabelTranslations::fillingReplacesAndKeepsOtherEntries()
{
    QMap<QString, QString> map = {{QStringLiteral("TR.INVOICE"), QStringLiteral("old")},
                                  {QStringLiteral("ORDERHEAD.SUBJECT"), QStringLiteral("Subject")}};
    m_labels.FillPlaceholders(map, 1);
    QCOMPARE(map.value(QStringLiteral("TR.INVOICE")), QStringLiteral("Invoice / Számla"));
    QCOMPARE(map.value(QStringLiteral("ORDERHEAD.SUBJECT")), QStringLiteral("Subject"));
}

void TestLabelTranslations::reloadShowsAClearedTranslation()
{
    // The label editor deletes a cleared foreign text; after reloading it prints Hungarian only.
    QVERIFY(ExecSql(
        QStringLiteral("delete from ORDERLABELTRANSLATION where "
                       "ORDERLABELTRANSLATION_LANG_ID = ? and ORDERLABELTRANSLATION_KEY = ?"),
        {2, QStringLiteral("TR_INVOICE")}));
    QCOMPARE(m_labels.GetBilingual(QStringLiteral("TR_INVOICE"), 2),
             QStringLiteral("Rechnung / Számla"));
    QVERIFY(m_labels.Load());
    QCOMPARE(m_labels.GetBilingual(QStringLiteral("TR_INVOICE"), 2), QStringLiteral("Számla"));
}

void TestLabelTranslations::failedLoadLeavesTheStoreEmpty()
{
    QVERIFY(ExecSql(QStringLiteral("drop table ORDERLABELTRANSLATION")));
    const Result r = m_labels.Load();
    QVERIFY(!r);
    QCOMPARE(r.message(), QStringLiteral("Unable to load invoice label translations."));
    QVERIFY(m_labels.Keys().isEmpty());
    QCOMPARE(m_labels.Get(QStringLiteral("TR_INVOICE"), 0), QString());
}

QTEST_GUILESS_MAIN(TestLabelTranslations)
#include "tst_labeltranslations.moc"
