// Temporary company databases for tests, built by the real schema scripts.
#pragma once

#include <QString>
#include <QTemporaryDir>

class TestCompany
{
public:
    // Creates a fresh company file in a temporary folder and opens it as the current database.
    TestCompany();
    ~TestCompany();

    bool isValid() const { return m_valid; }
    QString path() const { return m_path; }
    QString dir() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    QString m_path;
    bool m_valid = false;
};
