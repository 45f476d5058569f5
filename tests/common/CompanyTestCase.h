// A test class whose every test function starts on a fresh company database with its settings
// loaded. A class that needs more calls CompanyTestCase::init() first from its own init().
#pragma once

#include "TestCompany.h"

#include <QObject>

#include <optional>

class CompanyTestCase : public QObject
{
    Q_OBJECT
protected Q_SLOTS:
    void init();
    void cleanup() { m_company.reset(); }

protected:
    std::optional<TestCompany> m_company;
};
