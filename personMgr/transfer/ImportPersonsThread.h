#pragma once

#include "transfer/ImportedDays.h"

#include <XCOMMON/XThread.h>
#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

class QFileInfo;

namespace qarn_personMgr
{

/// One import: rows of a person file, or photographs of a directory. A person is known again by serial
/// number, else by name; known ones are updated as they are met, new ones are added together at the end.
/// The main form starts it; the outcome is also told to the operator.
class ImportPersonsThread : public XCOMMON::XThread
{
    Q_OBJECT
public:
    /// Imports a person file.
    ImportPersonsThread(const QString& filePath, QObject* parent);
    /// Imports the photographs of a directory; new persons come into the organization.
    ImportPersonsThread(const QString& dirPath, const QString& organizationId, const QList<int>& namingRule,
                        QObject* parent);
    ~ImportPersonsThread() override;

signals:
    /// Once a run, before the operator is told.
    void signalImportPersonsInfoResult(bool success);

protected:
    void run() override;

private:
    void importFile();
    void importRow(const QStringList& fields);
    void importFaces();
    void importFace(const QFileInfo& file);

    qarn_data::PersonInfo findPerson(const QString& serialNum, const QString& name) const;
    QString organizationOf(const QString& path);
    void store(qarn_data::PersonInfo& person);
    void finish();
    void fail(const QString& reason);

    const QString m_path; ///< the person file or the directory of photographs
    const bool m_faceMode;
    const QString m_organizationId;             ///< of new persons; photographs only
    QMap<QString, QString> m_organizationCache; ///< id by path
    QSet<QString> m_serialNums;                 ///< all known ones, with those met in this run
    QSet<QString> m_names;                      ///< likewise
    const QList<int> m_namingRule;              ///< ImportNameElement codes; photographs only
    QList<qarn_data::PersonInfo> m_newPersons;
    qarn_data::PersonInfo m_blankPerson; ///< a new person; valid from the start of the run
    ImportedDays m_validDays{QTime(0, 0)};
    ImportedDays m_invalidDays{QTime(23, 59, 59)};
};

} // namespace qarn_personMgr
