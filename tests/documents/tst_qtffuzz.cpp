// The QTF reader on random and mutated input: it must neither crash nor hang, and the rich text
// built from whatever it read must lay out and paint. Seeded, so a failure repeats.
#include "documents/QtfReader.h"
#include "documents/QtfTextDocument.h"
#include "documents/Report.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTextDocument>
#include <QtTest>

namespace {

const QStringList kSeeds = {
    QStringLiteral("[* a[* b]c]&[= Title&]Body"),
    QStringLiteral("{{1:1:1 A::-1 B:: x:: C:: D:: E}}"),
    QStringLiteral("{{1:1h1@7 Qty:: Price::@2 1:: 9.99}}&{{1:2~^ {{1:1 a:: b}}:: c}}"),
    QStringLiteral("[~>.>0 Total-|12.00]&[l200;4 x][o a&][N1a b&][H20h6L1 ruled&]"),
    QStringLiteral("@@PNG:600&300("
                   "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mP8z8BQDwAEhQGAhKmMIQA"
                   "AAABJRU5ErkJggg==)"),
    QStringLiteral("^H[1 head $$P]^^^F{:VALUE:PAGENUMBER:}^^x^^y\x01raw\ntext\x01 `[ \\] @$20AC;"),
    QStringLiteral("[ $$0,0#00000000000000000000000000000000:Default][s0; a]C++ x||y--z::w"),
    QStringLiteral("{{1:1<100>50B20A30f20F3g8G4h1KPl20/40r5t6/7b8@K|2 x:: y:: z}}"),
};

const QString kAlphabet = QStringLiteral(
    "[]{}:|-+^@$&_`\\*/=<>#~!.;,0123456789 abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
    "\x01\n\t()áőű");

QString RandomText(QRandomGenerator& rng, int length)
{
    QString s;
    for (int i = 0; i < length; ++i)
        s += kAlphabet.at(rng.bounded(int(kAlphabet.size())));
    return s;
}

QString Mutate(QRandomGenerator& rng, QString s)
{
    const int edits = 1 + rng.bounded(8);
    for (int e = 0; e < edits; ++e) {
        const int at = s.isEmpty() ? 0 : rng.bounded(int(s.size()));
        switch (rng.bounded(4)) {
        case 0:
            s.insert(at, RandomText(rng, 1 + rng.bounded(4)));
            break;
        case 1:
            s.remove(at, 1 + rng.bounded(4));
            break;
        case 2:
            s.insert(at, s.mid(rng.bounded(int(s.size()) + 1), 1 + rng.bounded(20)));
            break;
        default:
            if (!s.isEmpty())
                s[at] = kAlphabet.at(rng.bounded(int(kAlphabet.size())));
            break;
        }
    }
    return s;
}

void Exercise(const QString& qtf, bool paint)
{
    const Qtf::Document d = ReadQtf(qtf);
    PlainText(d.blocks, true);
    QtfLayout layout;
    layout.units = QtfUnits::Dots;
    layout.width = 2000;
    auto doc = MakeTextDocument(d, layout);
    doc->setPageSize(QSizeF(2000, 3000));
    doc->documentLayout()->documentSize();
    if (!paint)
        return;
    Report report;
    report.setPageSize(QSize(2000, 3000));
    report.setHeader(qtf.left(40));
    report.setBody(qtf);
    QImage image(200, 300, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(0.1, 0.1);
    const int pages = report.pageCount();
    for (int i = 0; i < std::min(pages, 3); ++i)
        report.paintPage(painter, i);
}

} // namespace

class TestQtfFuzz : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void randomInput();
    void mutatedInput();
    void sampleDocumentMutated();
    void pathologicalInput();
};

void TestQtfFuzz::randomInput()
{
    QRandomGenerator rng(20240305);
    for (int i = 0; i < 1500; ++i)
        Exercise(RandomText(rng, 1 + rng.bounded(200)), i % 10 == 0);
}

void TestQtfFuzz::mutatedInput()
{
    QRandomGenerator rng(4724);
    for (int i = 0; i < 1500; ++i) {
        QString s = kSeeds.at(rng.bounded(int(kSeeds.size())));
        for (int round = rng.bounded(4); round >= 0; --round)
            s = Mutate(rng, s);
        Exercise(s, i % 10 == 0);
    }
}

void TestQtfFuzz::sampleDocumentMutated()
{
    QFile file(QFINDTESTDATA("../data/report/long_table.qtf"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString sample = QString::fromUtf8(file.readAll());
    QRandomGenerator rng(2125);
    for (int i = 0; i < 20; ++i)
        Exercise(Mutate(rng, sample), i % 5 == 0);
}

void TestQtfFuzz::pathologicalInput()
{
    const QStringList inputs = {
        QString(20000, u'['),
        QString(20000, u']'),
        QStringLiteral("{{") + QString(5000, u':') + QStringLiteral(" x}}"),
        QStringLiteral("{{1-99999|99999 x}}"),
        QStringLiteral("[+99999999 big][l-99999999 x]@@PNG:99999999*99999999(AAAA)"),
        QStringLiteral("[~1~2~3~4~5~6~7~8~9~10~11~12~13~14~15~16~17~18~19~20") +
            QString(300, u'~') + QStringLiteral(" x]"),
        QString(3000, u'&'),
        QStringLiteral("@@"),
        QStringLiteral("{:"),
        QStringLiteral("$$"),
        QStringLiteral("^H"),
        QStringLiteral("[t0 a-|b]"),
        QStringLiteral("[N11111111! a&][N-------- b&][Ni c&][NA d]"),
    };
    for (const QString& s : inputs)
        Exercise(s, true);
    QString nested;
    for (int i = 0; i < 30; ++i)
        nested += QStringLiteral("{{1:1 a:: ");
    Exercise(nested, true);
}

QTEST_MAIN(TestQtfFuzz)
#include "tst_qtffuzz.moc"
