#include <XCOMMON/OperatorNotice.h>

namespace XCOMMON
{

OperatorNotice::OperatorNotice() = default;

OperatorNotice& OperatorNotice::instance()
{
    static OperatorNotice notice;
    return notice;
}

void OperatorNotice::refuse(const QString& text)
{
    emit signalRefused(text);
}

} // namespace XCOMMON
