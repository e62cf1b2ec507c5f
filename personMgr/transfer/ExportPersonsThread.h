#pragma once

#include <XCOMMON/XThread.h>

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

/// Writes the persons of organizations out: as a person file, or as one face file each. The main form
/// starts it and tells the operator the outcome.
class ExportPersonsThread : public XCOMMON::XThread
{
    Q_OBJECT
public:
    /// Writes a person file; columnMask holds PersonColumn codes and headerTitles their titles.
    ExportPersonsThread(const QStringList& organizationIds, const QStringList& headerTitles, int columnMask,
                        const QString& filePath, QObject* parent);
    /// Writes face files, each named after the elements (PersonColumn codes) in their order.
    ExportPersonsThread(const QStringList& organizationIds, const QList<int>& faceElements,
                        const QString& dirPath, QObject* parent);
    ~ExportPersonsThread() override;

signals:
    /// Once a run. False when the person file could not be written; face files are written where possible.
    void signalExportPersonsResult(bool success);

protected:
    void run() override;

private:
    bool exportFile(const QList<qarn_data::PersonInfo>& persons);
    QStringList row(const qarn_data::PersonInfo& person);
    QString organizationName(const QString& organizationId);
    void exportFace(const qarn_data::PersonInfo& person) const;

    const QStringList m_organizationIds;
    const QStringList m_headerTitles; ///< person file only
    const int m_columnMask = 0;       ///< person file only
    const QList<int> m_faceElements;  ///< face files only
    const bool m_faceMode;
    const QString m_path;                        ///< the person file or the directory of the face files
    QHash<QString, QString> m_organizationNames; ///< full name by id; many persons share one
    QString m_maleWord;
    QString m_femaleWord;
};

} // namespace qarn_personMgr
