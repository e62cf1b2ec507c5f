#include <qarn_contact/SystemMsg.h>

namespace qarn_contact
{

SystemMsg::SystemMsg() = default;

SystemMsg& SystemMsg::instance()
{
    static SystemMsg systemMsg;
    return systemMsg;
}

} // namespace qarn_contact
