#pragma once

#include <XCOMMON/XWidget.h>
#include <qarn_base/Export.h>

namespace qarn_base
{

/// A page of the client's main window. The host owns it.
class QARN_BASE_EXPORT BaseForm : public XCOMMON::XWidget
{
    Q_OBJECT
public:
    explicit BaseForm(QWidget* parent = nullptr);

    virtual int formType() const; ///< the kind of page; 0 here
};

} // namespace qarn_base
