#include "transfer/ExportPersonsThread.h"

#include "query/ReadAhead.h"
#include "transfer/FaceFileName.h"
#include "transfer/PersonFileFormat.h"
#include "transfer/PersonFileWriter.h"

#include <XCOMMON/PhotoDecoder.h>
#include <qarn_base/BaseTools.h>
#include <qarn_data/PersonData.h>

#include <QBuffer>
#include <QSaveFile>

using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

ExportPersonsThread::ExportPersonsThread(const QStringList& organizationIds, const QStringList& headerTitles,
                                         int columnMask, const QString& filePath, QObject* parent)
    : XThread(parent),
      m_organizationIds(organizationIds),
      m_headerTitles(headerTitles),
      m_columnMask(columnMask),
      m_faceMode(false),
      m_path(filePath)
{
}

ExportPersonsThread::ExportPersonsThread(const QStringList& organizationIds, const QList<int>& faceElements,
                                         const QString& dirPath, QObject* parent)
    : XThread(parent),
      m_organizationIds(organizationIds),
      m_faceElements(faceElements),
      m_faceMode(true),
      m_path(dirPath)
{
}

ExportPersonsThread::~ExportPersonsThread()
{
    wait(); // the run uses the members, which are gone before the base class would wait
}

void ExportPersonsThread::run()
{
    const QList<PersonInfo> persons = PersonData::instance().getPersons(m_organizationIds, false);
    if (!m_faceMode) {
        emit signalExportPersonsResult(exportFile(persons));
        return;
    }
    for (const PersonInfo& person : persons)
        exportFace(person);
    emit signalExportPersonsResult(true);
}

bool ExportPersonsThread::exportFile(const QList<PersonInfo>& persons)
{
    PersonFileWriter writer(m_path);
    if (!writer.open())
        return false;
    m_organizationNames.clear();
    m_maleWord = qarn_base::BaseTools::instance().strSex(true);
    m_femaleWord = qarn_base::BaseTools::instance().strSex(false);
    writer.writeRow(m_headerTitles);
    const ReadAhead readAhead(persons);
    for (int i = 0; i < persons.count(); ++i) {
        readAhead.passingName(i);
        if (i + ReadAhead::Copies < persons.count())
            readAhead.beforeCopying(i + ReadAhead::Copies);
        writer.writeRow(row(persons.at(i)));
    }
    return writer.finish();
}

QStringList ExportPersonsThread::row(const PersonInfo& person)
{
    QStringList values;
    values.reserve(m_headerTitles.count());
    const auto has = [this](PersonColumn column) { return (m_columnMask & column) != 0; };
    if (has(SerialNumColumn))
        values.append(person.serialNum);
    if (has(NameColumn))
        values.append(person.name);
    if (has(OrganizationColumn))
        values.append(organizationName(person.organizationId));
    if (has(SexColumn))
        values.append(person.sex == 1 ? m_maleWord : m_femaleWord);
    if (has(EmailColumn))
        values.append(person.email);
    if (has(PhoneNumColumn))
        values.append(person.phoneNum);
    if (has(IdentityIdColumn))
        values.append(person.identityId);
    if (has(ValidTimeColumn))
        values.append(exportedDate(person.validStartTime));
    if (has(InvalidTimeColumn))
        values.append(exportedDate(person.validEndTime));
    return values;
}

QString ExportPersonsThread::organizationName(const QString& organizationId)
{
    auto known = m_organizationNames.constFind(organizationId);
    if (known == m_organizationNames.constEnd())
        known = m_organizationNames.insert(
            organizationId, PersonData::instance().getOrganizationNameRecursively(organizationId));
    return *known;
}

void ExportPersonsThread::exportFace(const PersonInfo& person) const
{
    const QImage image = XCOMMON::PhotoDecoder::decode(person.faceImage1);
    if (image.isNull())
        return;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "jpg"))
        return;
    // Only a whole picture takes the place of the file of that name.
    QSaveFile file(m_path + QLatin1Char('/') + exportedFaceFileName(person, m_faceElements) +
                   QLatin1String(".jpg"));
    file.setDirectWriteFallback(true);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        file.commit();
}

} // namespace qarn_personMgr
