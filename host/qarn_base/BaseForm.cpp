#include <qarn_base/BaseForm.h>

namespace qarn_base
{

BaseForm::BaseForm(QWidget* parent) : XCOMMON::XWidget(parent) {}

int BaseForm::formType() const
{
    return 0;
}

} // namespace qarn_base
