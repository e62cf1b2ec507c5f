#pragma once

#include "BulkFixture.h"

#include <QTemporaryDir>

/// The page and a directory to import from and export to.
class TransferFixture : public BulkFixture
{
public:
    ~TransferFixture() { delete form.data(); } // before the files that it may be working on

    QString directory() const { return m_files.path(); }
    QString path(const char* name) const { return m_files.filePath(QLatin1String(name)); }

private:
    QTemporaryDir m_files;
};
