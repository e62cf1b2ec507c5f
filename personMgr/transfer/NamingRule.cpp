#include "transfer/NamingRule.h"

namespace qarn_personMgr
{

namespace
{

constexpr QChar Separator('_');

} // namespace

QString namingRuleWithWord(const QString& rule, const QString& word)
{
    return rule.isEmpty() ? word : rule + Separator + word;
}

QString namingRuleWithoutWord(QString rule, const QString& word)
{
    const QString forms[] = {Separator + word, word + Separator, word};
    for (const QString& form : forms) {
        if (rule.contains(form))
            return rule.remove(form);
    }
    return rule;
}

QString namingRuleWithElement(const QString& rule, const QString& element, bool checked)
{
    // An empty rule has no part, not one empty part: else its first element would come second.
    QStringList elements = rule.split(Separator, Qt::SkipEmptyParts);
    if (checked)
        elements.append(element);
    else
        elements.removeAll(element);
    return elements.join(Separator);
}

QList<int> namingRulePositions(const QString& rule, const QStringList& words)
{
    QList<int> positions;
    for (const QString& part : rule.split(Separator))
        positions.append(words.indexOf(part));
    return positions;
}

} // namespace qarn_personMgr
