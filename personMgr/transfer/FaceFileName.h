#pragma once

#include <QList>
#include <QString>

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

/// Elements of the name of a face file on import, as a naming rule lists them.
enum ImportNameElement { SerialNumElement, PersonNameElement, SexElement };

/// What the name of a face file tells of the person. An element that the rule or the name lacks is empty.
struct FaceFileName {
    QString serialNum; ///< normalised
    QString name;
    bool hasSex = false;
    int sex = 1;
};

/// Reads the name up to its first dot, part by part in the order of the rule. `maleWord` is the word for
/// sex 1; any other one stands for 2.
FaceFileName readFaceFileName(const QString& baseName, const QList<int>& namingRule, const QString& maleWord);

/// Name of an exported face file without its suffix, made of PersonColumn codes; any code that is not
/// expected there stands for the identity number. Free of characters that a file name cannot hold.
QString exportedFaceFileName(const qarn_data::PersonInfo& person, const QList<int>& faceElements);

} // namespace qarn_personMgr
