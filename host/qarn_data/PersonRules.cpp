#include "PersonRules.h"

#include <QCoreApplication>

namespace qarn_data
{

namespace
{

QString tr(const char* text, int n = -1)
{
    return QCoreApplication::translate("qarn_data::PersonRules", text, nullptr, n);
}

// Half a surrogate pair cannot be stored; it becomes a question mark, here as in the database.
void mend(QString& text)
{
    if (!text.isValidUtf16())
        text = QString::fromUtf8(text.toUtf8());
}

void makeLocal(QDateTime& time)
{
    const bool isInGap = !time.isValid() && time.date().isValid() && time.time().isValid();
    if (isInGap || time.timeSpec() != Qt::LocalTime)
        time = QDateTime::fromMSecsSinceEpoch(time.toMSecsSinceEpoch());
}

} // namespace

PersonInfo normalised(PersonInfo info)
{
    for (QString PersonInfo::*member : {&PersonInfo::id, &PersonInfo::serialNum, &PersonInfo::name,
                                        &PersonInfo::email, &PersonInfo::phoneNum, &PersonInfo::remarks,
                                        &PersonInfo::identityId, &PersonInfo::job, &PersonInfo::address})
        mend(info.*member);
    if (!info.validStartTime.isNull())
        makeLocal(info.validStartTime);
    if (!info.validEndTime.isNull())
        makeLocal(info.validEndTime);
    if (!info.customFields.isEmpty()) {
        FieldValues fields;
        for (auto field = info.customFields.cbegin(); field != info.customFields.cend(); ++field) {
            QString name = field.key();
            QString value = field.value();
            mend(name);
            mend(value);
            fields.insert(name, value);
        }
        info.customFields = fields;
    }
    return info;
}

QString caption(const PersonInfo& info)
{
    return info.serialNum.isEmpty() ? info.name : QStringLiteral("%1 (%2)").arg(info.name, info.serialNum);
}

QString listed(const QStringList& refusals)
{
    constexpr int named = 5;
    if (refusals.size() <= named)
        return refusals.join(u' ');
    return refusals.mid(0, named).join(u' ') + u' ' + tr("And %n more.", refusals.size() - named);
}

} // namespace qarn_data
