#include "transfer/ImportPersonsThread.h"

#include "shared/Alerts.h"
#include "transfer/FaceFileName.h"
#include "transfer/PersonFileFormat.h"
#include "transfer/PersonFileReader.h"

#include <XCOMMON/ToolsCollection.h>
#include <qarn_data/PersonData.h>

#include <QDir>
#include <QFileInfo>
#include <QUuid>

using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

namespace
{

void setUnlessEmpty(QString& member, const QString& field)
{
    const QString text = field.trimmed();
    if (!text.isEmpty())
        member = text;
}

void setUnlessInvalid(QDateTime& member, const QDateTime& dateTime)
{
    if (dateTime.isValid())
        member = dateTime;
}

} // namespace

ImportPersonsThread::ImportPersonsThread(const QString& filePath, QObject* parent)
    : XThread(parent),
      m_path(filePath),
      m_faceMode(false)
{
}

ImportPersonsThread::ImportPersonsThread(const QString& dirPath, const QString& organizationId,
                                         const QList<int>& namingRule, QObject* parent)
    : XThread(parent),
      m_path(dirPath),
      m_faceMode(true),
      m_organizationId(organizationId),
      m_namingRule(namingRule)
{
}

ImportPersonsThread::~ImportPersonsThread()
{
    wait(); // the run uses the members, which are gone before the base class would wait
}

void ImportPersonsThread::run()
{
    m_serialNums = PersonData::instance().getAllPersonsSerialNum();
    m_names = PersonData::instance().getAllPersonsName();
    m_newPersons.clear();
    m_blankPerson = PersonInfo();
    if (m_faceMode)
        importFaces();
    else
        importFile();
}

void ImportPersonsThread::importFile()
{
    PersonFileReader reader(m_path, serialNumTitle());
    if (!reader.open())
        return fail(tr("Failed to open the file containing face information"));
    QStringList fields;
    while (reader.readRow(fields))
        importRow(fields);
    QString error;
    if (reader.hasFailed(&error))
        return fail(
            tr("Failed to read %1: %2. No new persons were added; import the file again").arg(m_path, error));
    finish();
}

void ImportPersonsThread::importRow(const QStringList& fields)
{
    const QString serialNum = importedSerialNum(fields[SerialNumField]);
    const QString name = fields[NameField].trimmed();
    PersonInfo person = findPerson(serialNum, name);
    if (!fields[OrganizationField].trimmed().isEmpty() || person.serialNum.isEmpty())
        person.organizationId = organizationOf(fields[OrganizationField]);
    const QString sex = fields[SexField].trimmed();
    if (!sex.isEmpty())
        person.sex = sex.toInt();
    setUnlessEmpty(person.phoneNum, fields[PhoneNumField]);
    setUnlessEmpty(person.email, fields[EmailField]);
    setUnlessInvalid(person.validStartTime, m_validDays.read(fields[ValidTimeField]));
    setUnlessInvalid(person.validEndTime, m_invalidDays.read(fields[InvalidTimeField]));
    if (!serialNum.isEmpty())
        m_serialNums.insert(serialNum);
    if (!name.isEmpty())
        m_names.insert(name);
    store(person);
}

void ImportPersonsThread::importFaces()
{
    const QFileInfoList files =
        QDir(m_path).entryInfoList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Unsorted);
    if (files.isEmpty())
        return fail(tr("The directory does not contain face images"));
    for (const QFileInfo& file : files)
        importFace(file);
    finish();
}

void ImportPersonsThread::importFace(const QFileInfo& file)
{
    const FaceFileName told = readFaceFileName(file.baseName(), m_namingRule, tr("Male"));
    PersonInfo person = findPerson(told.serialNum, told.name);
    if (told.hasSex)
        person.sex = told.sex;
    // A file that cannot be loaded, which the operator is told of, takes no picture away.
    const QByteArray image = XCOMMON::ToolsCollection::loadImage(file.absoluteFilePath());
    if (!image.isEmpty())
        person.faceImage1 = image;
    if (!told.serialNum.isEmpty())
        m_serialNums.insert(told.serialNum);
    if (!told.name.isEmpty())
        m_names.insert(told.name);
    if (person.id.isEmpty())
        person.organizationId = m_organizationId;
    store(person);
}

/// A new person has an empty id. So has one whose serial number was met before in this run, since the new
/// persons are not in the register yet; it gets a serial number of its own.
PersonInfo ImportPersonsThread::findPerson(const QString& serialNum, const QString& name) const
{
    if (!serialNum.isEmpty() && m_serialNums.contains(serialNum)) {
        PersonInfo person = PersonData::instance().getPersonBySerialNum(serialNum, false);
        if (!name.isEmpty())
            person.name = name;
        return person;
    }
    if (serialNum.isEmpty() && !name.isEmpty() && m_names.contains(name))
        return PersonData::instance().getPersonByName(name, false);
    PersonInfo person = m_blankPerson;
    person.serialNum = serialNum;
    person.name = name;
    return person;
}

/// Looked up without the blanks around the path but kept with them, so that only paths without such
/// blanks are found again.
QString ImportPersonsThread::organizationOf(const QString& path)
{
    const auto known = m_organizationCache.constFind(path.trimmed());
    if (known != m_organizationCache.constEnd())
        return *known;
    return *m_organizationCache.insert(path,
                                       PersonData::instance().createOrganization(organizationLevels(path)));
}

void ImportPersonsThread::store(PersonInfo& person)
{
    if (!person.id.isEmpty()) {
        PersonData::instance().updatePerson(person);
        return;
    }
    person.id = QUuid::createUuid().toString();
    if (person.serialNum.isEmpty())
        person.serialNum = randomSerialNum();
    m_newPersons.append(person);
}

void ImportPersonsThread::finish()
{
    PersonData::instance().addPersons(m_newPersons);
    m_newPersons.clear();
    emit signalImportPersonsInfoResult(true);
    alertSuccess(tr("import persons finished(Existing persons updated the information)"));
}

void ImportPersonsThread::fail(const QString& reason)
{
    emit signalImportPersonsInfoResult(false);
    alertError(reason);
}

} // namespace qarn_personMgr
