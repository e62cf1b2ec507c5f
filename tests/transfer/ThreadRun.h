#pragma once

#include "transfer/ExportPersonsThread.h"
#include "transfer/ImportPersonsThread.h"

#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QMutex>
#include <QtTest>

/// Runs a worker the way the form does and notes what happens, in order: "stored" for the batch (noted in
/// the worker), "updated" for a single update, "result true", and alerts as "title: text".
class ThreadRun : public QObject
{
public:
    explicit ThreadRun(qarn_personMgr::ImportPersonsThread& thread)
    {
        connect(&thread, &qarn_personMgr::ImportPersonsThread::signalImportPersonsInfoResult, this,
                &ThreadRun::noteResult, Qt::DirectConnection);
        run(thread);
    }

    explicit ThreadRun(qarn_personMgr::ExportPersonsThread& thread)
    {
        connect(&thread, &qarn_personMgr::ExportPersonsThread::signalExportPersonsResult, this,
                &ThreadRun::noteResult, Qt::DirectConnection);
        run(thread);
    }

    QStringList events() const { return m_events; }

private:
    void run(QThread& thread)
    {
        using qarn_data::DataSignals;
        QCoreApplication::processEvents(); // alerts of an earlier run
        connect(
            &DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB, this,
            [this](const qarn_data::PersonList& persons, bool) {
                if (!persons.isEmpty())
                    note(QStringLiteral("stored %1").arg(persons.count()));
            },
            Qt::DirectConnection);
        connect(
            &DataSignals::instance(), &DataSignals::signalUpdatePersonInLocalDB, this,
            [this] { note(QStringLiteral("updated")); }, Qt::DirectConnection);
        connect(&qarn_worker::SystemAssistant::instance(), &qarn_worker::SystemAssistant::signalMessageAlert,
                this, [this](const QString& title, const QString& text) { note(title + ": " + text); });
        thread.start();
        QTRY_VERIFY_WITH_TIMEOUT(thread.isFinished(), 120000);
        QCoreApplication::processEvents(); // alerts posted before the end
    }

    void noteResult(bool success)
    {
        note(success ? QStringLiteral("result true") : QStringLiteral("result false"));
    }

    void note(const QString& event)
    {
        const QMutexLocker lock(&m_mutex);
        m_events.append(event);
    }

    QMutex m_mutex;
    QStringList m_events;
};

namespace importOutcome
{
const QString finished =
    QStringLiteral("Success: import persons finished(Existing persons updated the information)");
const QString notOpened = QStringLiteral("Error: Failed to open the file containing face information");
const QString noImages = QStringLiteral("Error: The directory does not contain face images");
} // namespace importOutcome

/// The person with the serial number; an empty record when there is none.
inline qarn_data::PersonInfo personOf(const QString& serialNum)
{
    return qarn_data::PersonData::instance().getPersonBySerialNum(serialNum, false);
}

/// A stored person that differs from a default one in what matters for an import.
inline qarn_data::PersonInfo addPerson(const QString& serialNum, const QString& name,
                                       const QString& organizationId = QString())
{
    qarn_data::PersonInfo person;
    person.id = QUuid::createUuid().toString();
    person.serialNum = serialNum;
    person.name = name;
    person.organizationId = organizationId;
    if (!qarn_data::PersonData::instance().addPersons({person}))
        qFatal("the store refuses %s", qPrintable(serialNum));
    return personOf(serialNum);
}
