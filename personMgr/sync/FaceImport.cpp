#include "sync/FaceImport.h"

#include "sync/FaceConversion.h"

#include <qarn_data/PersonData.h>

#include <QSet>

using qarn_data::PersonData;

namespace qarn_personMgr
{

void importFaces(const QList<dvx_sdk::FaceInfo>& faces, const QString& organizationId)
{
    PersonData& data = PersonData::instance();
    QSet<QString> known = data.getAllPersonsSerialNum();
    qarn_data::PersonInfo
        person; // one for all faces: what a face does not supply stays from the face before it
    for (const dvx_sdk::FaceInfo& face : faces) {
        if (known.contains(face.serialNum)) {
            person = data.getPersonBySerialNum(face.serialNum, false);
            updatePersonFromFace(person, face);
            data.updatePerson(person);
        } else {
            fillPersonFromFace(person, face, organizationId);
            if (data.addPerson(person))
                known.insert(person.serialNum);
        }
    }
}

} // namespace qarn_personMgr
