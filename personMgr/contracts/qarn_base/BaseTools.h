#pragma once

#include <qarn_base/Export.h>

#include <QCoreApplication>
#include <QPair>
#include <QString>

class QWidget;

namespace qarn_base
{

/// Texts and look-ups that all pages share. The texts may be asked for in any thread.
class QARN_BASE_EXPORT BaseTools
{
    Q_DECLARE_TR_FUNCTIONS(qarn_base::BaseTools)
public:
    static BaseTools& instance();

    QString strSex(bool male) const;
    QString strValid(bool valid) const;
    /// "device name-channel name", or "device id-number" when the device is not known.
    QString getChannelName(const QPair<QString, int>& channel) const;
    QWidget* getRootParentWt(QWidget* widget) const; ///< the top-level window; null for null

private:
    BaseTools() = default;
    Q_DISABLE_COPY(BaseTools)
};

} // namespace qarn_base
