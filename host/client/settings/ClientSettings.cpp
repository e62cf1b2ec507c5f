#include "settings/ClientSettings.h"

#include <QDir>
#include <QStandardPaths>

namespace
{

const QString languageKey = QStringLiteral("language");
const QString storeKey = QStringLiteral("store");
const QString pageSizeKey = QStringLiteral("pageSize");
const QString geometryKey = QStringLiteral("window/geometry");
const QString splitterKey = QStringLiteral("window/splitter");
const QString pageKey = QStringLiteral("window/page");
constexpr int defaultPageSize = 50;

QString settingsFile()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("settings.ini"));
}

} // namespace

ClientSettings::ClientSettings() : m_settings(settingsFile(), QSettings::IniFormat)
{
    m_settings.setIniCodec("UTF-8");
}

QString ClientSettings::language() const
{
    return m_settings.value(languageKey).toString();
}

void ClientSettings::setLanguage(const QString& code)
{
    m_settings.setValue(languageKey, code);
}

QString ClientSettings::storePath() const
{
    return m_settings.value(storeKey).toString();
}

void ClientSettings::setStorePath(const QString& path)
{
    m_settings.setValue(storeKey, path);
}

int ClientSettings::pageSize() const
{
    return m_settings.value(pageSizeKey, defaultPageSize).toInt();
}

void ClientSettings::setPageSize(int size)
{
    m_settings.setValue(pageSizeKey, size);
}

QByteArray ClientSettings::windowGeometry() const
{
    return m_settings.value(geometryKey).toByteArray();
}

QByteArray ClientSettings::splitterState() const
{
    return m_settings.value(splitterKey).toByteArray();
}

int ClientSettings::currentPage() const
{
    return m_settings.value(pageKey, 0).toInt();
}

void ClientSettings::saveWindow(const QByteArray& geometry, const QByteArray& splitter, int page)
{
    m_settings.setValue(geometryKey, geometry);
    m_settings.setValue(splitterKey, splitter);
    m_settings.setValue(pageKey, page);
}
