// The QTF reader on random and mutated input: it must neither crash nor hang, and the rich text
// built from whatever it read must lay out, page and paint. Seeded, so a failure repeats.
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

using namespace Qt::StringLiterals;

namespace {

const QString kAlphabet = u"[]{}:|-+^@$&_`\\*/=<>#~!.;,0123456789 abcdefghijklmnopqrstuvwxyz"
                          "ABCDEFGHIJKLMNOPQRSTUVWXYZ\x01\n\t()áőű"_s;

QString RandomText(QRandomGenerator& rng, int length)
{
    QString s;
    for (int i = 0; i < length; ++i)
        s += kAlphabet.at(rng.bounded(int(kAlphabet.size())));
    return s;
}

// Inserts random text, removes a piece or copies a piece of the text elsewhere.
QString Mutate(QRandomGenerator& rng, QString s)
{
    for (int e = 1 + rng.bounded(8); e > 0; --e) {
        const int at = rng.bounded(int(s.size()) + 1);
        const int op = rng.bounded(3);
        if (op == 0)
            s.insert(at, RandomText(rng, 1 + rng.bounded(4)));
        else if (op == 1)
            s.remove(at, 1 + rng.bounded(4));
        else
            s.insert(at, s.mid(rng.bounded(int(s.size()) + 1), 1 + rng.bounded(20)));
    }
    return s;
}

// Reads and lays out the text; now and then pages and paints it too.
void Exercise(const QString& qtf, bool paint)
{
    const Qtf::Document d = ReadQtf(qtf);
    PlainText(d.blocks, true);
    auto doc = MakeTextDocument(d, {QtfUnits::Dots, 2000});
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
    for (int i = 0; i < std::min(report.pageCount(), 3); ++i)
        report.paintPage(painter, i);
}

} // namespace

class TestQtfFuzz : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Random text, and valid documents using most of the format and a long sample broken in small
    // ways.
    void randomAndMutatedInput()
    {
        QFile file(QFINDTESTDATA("../data/report/long_table.qtf"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList seeds = {
            u"[* a[* b]c]&[= Title&]Body&[~>.>0 Total-|12.00]&[l200;4 x][o a&][N1a b&][H20h6L1 r&]"_s,
            u"{{1:1:1 A::-1 B:: x:: C:: D:: E}}&{{1:2~^ {{1:1 a:: b}}:: c}}"_s,
            u"{{1:1<100>50B20A30f20F3g8G4h1KPl20/40r5t6/7b8@K|2 x:: y:: z}}"_s,
            u"@@PNG:600&300("
            u"iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mP8z8BQDwAEhQGAhKmMIQ"
            "AAAABJRU5ErkJggg==)"_s,
            u"^H[1 head $$P]^^^F{:VALUE:PAGENUMBER:}^^x^^y\x01raw\ntext\x01 `[ \\] @$20AC;"_s,
            u"[ $$0,0#00000000000000000000000000000000:Default][s0; a]C++ x||y--z::w"_s};
        QRandomGenerator rng(4724);
        for (int i = 0; i < 2500; ++i) {
            if (i % 3 == 0) {
                Exercise(RandomText(rng, 1 + rng.bounded(200)), i % 10 == 0);
                continue;
            }
            QString s = seeds.at(rng.bounded(int(seeds.size())));
            for (int round = rng.bounded(4); round >= 0; --round)
                s = Mutate(rng, s);
            Exercise(s, i % 10 == 0);
        }
        const QString sample = QString::fromUtf8(file.readAll());
        for (int i = 0; i < 20; ++i)
            Exercise(Mutate(rng, sample), i % 5 == 0);
    }

    void pathologicalInput()
    {
        QStringList inputs;
        inputs << QString(20000, u'[') << QString(20000, u']') << QString(3000, u'&')
               << u"{{"_s + QString(5000, u':') + u" x}}"_s << u"{{1:1 a:: "_s.repeated(30)
               << u"{{1-99999|99999 x}}"_s
               << u"[+99999999 big][l-99999999 x]@@PNG:99999999*99999999(AAAA)"_s
               << u"[~1~2~3~4~5~6~7~8~9~10~11~12~13~14~15~16~17~18~19~20"_s + QString(300, u'~') +
                      u" x]"_s
               << u"@@"_s << u"{:"_s << u"$$"_s << u"^H"_s << u"[t0 a-|b]"_s
               << u"[N11111111! a&][N-------- b&][Ni c&][NA d]"_s;
        for (const QString& s : inputs)
            Exercise(s, true);
        // Deep nesting stops with an error instead of exhausting the stack.
        QVERIFY(ReadQtf(u"{{1 "_s.repeated(5000) + u'x').error.startsWith(u"ERROR: "_s));
        // So does "}}{{" over and over, each table going into the next one's first cell.
        QVERIFY(ReadQtf(u"{{1 x}}"_s.repeated(5000)).error.startsWith(u"ERROR: "_s));
        Exercise(u"{{1 x}}"_s.repeated(11), true);
    }
};

QTEST_MAIN(TestQtfFuzz)
#include "tst_qtffuzz.moc"
