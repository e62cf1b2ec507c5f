#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace qarn_personMgr
{

/// A naming rule is a text: the words of its elements in the order of the file name, joined by "_".

/// The rule of the import dialog after a box was checked: the word comes last.
QString namingRuleWithWord(const QString& rule, const QString& word);

/// The rule of the import dialog after a box was unchecked: loses "_word", else "word_", else "word",
/// wherever the first of these that it holds occurs.
QString namingRuleWithoutWord(QString rule, const QString& word);

/// The rule of the export dialog after an element was checked (it comes last) or unchecked (it goes).
QString namingRuleWithElement(const QString& rule, const QString& element, bool checked);

/// The parts of a rule as positions in `words`; a part that is no word gives -1.
QList<int> namingRulePositions(const QString& rule, const QStringList& words);

} // namespace qarn_personMgr
