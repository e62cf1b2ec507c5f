#include "settings/BackupThread.h"

#include <qarn_data/DataService.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QDir>

using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

BackupThread::BackupThread(const QString& filePath, QObject* parent) : XThread(parent), m_filePath(filePath)
{
}

BackupThread::~BackupThread()
{
    wait(); // the run uses the path, which is gone before the base class would wait
}

void BackupThread::run()
{
    QString error;
    if (qarn_data::DataService::instance().backup(m_filePath, &error))
        SystemAssistant::instance().messageAlert(
            DictDef::instance().successAlertTitle,
            tr("The person register was backed up to %1").arg(QDir::toNativeSeparators(m_filePath)));
    else
        SystemAssistant::instance().messageAlert(DictDef::instance().errorAlertTitle, error);
}
