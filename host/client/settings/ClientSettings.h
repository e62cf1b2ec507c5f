#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>

/// What the client remembers between runs, in settings.ini of the user's configuration directory.
class ClientSettings
{
public:
    ClientSettings();

    QString language() const; ///< code; empty: the language of the system
    void setLanguage(const QString& code);

    QString storePath() const; ///< empty: the default place
    void setStorePath(const QString& path);

    int pageSize() const; ///< rows a page
    void setPageSize(int size);

    QByteArray windowGeometry() const;
    QByteArray splitterState() const;
    int currentPage() const; ///< index in the page list
    void saveWindow(const QByteArray& geometry, const QByteArray& splitter, int page);

private:
    QSettings m_settings;
};
