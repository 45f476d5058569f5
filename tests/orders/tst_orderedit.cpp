#include <QtTest>
class TestOrderEdit : public QObject { Q_OBJECT };
QTEST_MAIN(TestOrderEdit)
#include "tst_orderedit.moc"
