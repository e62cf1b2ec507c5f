#pragma once

#include <XCOMMON/Export.h>

#include <QFileDialog>

namespace XCOMMON
{

/// File dialog of the host's look, with the contract of the Qt functions of the same names: an empty
/// result means that the operator cancelled. A name to save under gets the suffix of the chosen filter when
/// it has none of it, and an existing file is only given back after the operator agreed to replace it.
class XCOMMON_EXPORT XFileDialog : public QFileDialog
{
    Q_OBJECT
public:
    explicit XFileDialog(QWidget* parent = nullptr, const QString& caption = QString(),
                         const QString& directory = QString(), const QString& filter = QString());

    static QString getExistingDirectory(QWidget* parent = nullptr, const QString& caption = QString(),
                                        const QString& dir = QString(), Options options = ShowDirsOnly);
    static QString getOpenFileName(QWidget* parent = nullptr, const QString& caption = QString(),
                                   const QString& dir = QString(), const QString& filter = QString(),
                                   QString* selectedFilter = nullptr, Options options = Options());
    static QString getSaveFileName(QWidget* parent = nullptr, const QString& caption = QString(),
                                   const QString& dir = QString(), const QString& filter = QString(),
                                   QString* selectedFilter = nullptr, Options options = Options());

protected:
    void accept() override;
};

} // namespace XCOMMON
