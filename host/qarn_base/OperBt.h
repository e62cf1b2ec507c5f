#pragma once

#include <qarn_base/IconButton.h>

namespace qarn_base
{

/// One small icon button of a row, such as "editBt".
class OperBt : public IconButton
{
    Q_OBJECT
public:
    enum class Kind { Add, Edit, Delete };

    OperBt(Kind kind, QWidget* parent);
};

} // namespace qarn_base
