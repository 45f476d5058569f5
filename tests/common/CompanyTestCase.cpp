#include "CompanyTestCase.h"

#include "base/Setup.h"

#include <QTest>

void CompanyTestCase::init()
{
    QVERIFY(m_company.emplace().isValid());
    QVERIFY(Setup::current().load());
}
