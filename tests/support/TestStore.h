#pragma once

#include <qarn_data/DataService.h>

#include <QString>
#include <QTemporaryDir>

/// A new store in a temporary directory, open while this object lives. Link qarn_data_host to use it.
class TestStore
{
public:
    TestStore() { reopen(); }
    ~TestStore() { qarn_data::DataService::instance().close(); }

    QString filePath() const { return m_directory.filePath(QStringLiteral("store.db")); }

    void reopen()
    {
        QString error;
        qarn_data::DataService::instance().close();
        if (!m_directory.isValid() || !qarn_data::DataService::instance().open(filePath(), &error))
            qFatal("no test store: %s", qPrintable(error));
    }

private:
    QTemporaryDir m_directory;
};
