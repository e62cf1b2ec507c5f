// Opening the person editor on three photographs of 12 megapixels, against decoding the three of them; and
// saving them, against decoding and encoding them. Milliseconds; without a display.

#include "support/Figure.h"
#include "support/Photographs.h"

#include "editor/PersonInfoModifyDlg.h"
#include "editor/PersonInfoModifyWt.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonInfo.h>

#include <QApplication>
#include <QImage>

using namespace qarn_bench;
using qarn_data::PersonInfo;
using qarn_personMgr::PersonInfoModifyDlg;
using qarn_personMgr::PersonInfoModifyWt;

namespace
{

constexpr QSize PhotoSize(4000, 3000);
constexpr int Rounds = 11;

double timeToOpen(const PersonInfo& person)
{
    return milliseconds([&] {
        PersonInfoModifyDlg dialog(nullptr);
        dialog.init(PersonInfoModifyDlg::EditMode, person);
        dialog.show();
        QCoreApplication::processEvents();
        dialog.grab();
    });
}

double timeToDecode(const QList<QByteArray>& photos)
{
    return milliseconds([&] {
        for (const QByteArray& photo : photos) {
            if (QImage::fromData(photo, "jpg").size() != PhotoSize)
                qFatal("the peer does not decode");
        }
    });
}

double timeToSave(const PersonInfo& person)
{
    PersonInfoModifyWt form(nullptr);
    form.setPersonInfo(person);
    return milliseconds([&] {
        if (form.getPersonInfo().faceImage3.isEmpty())
            qFatal("the editor does not encode");
    });
}

double timeToEncode(const QList<QByteArray>& photos)
{
    return milliseconds([&] {
        for (const QByteArray& photo : photos)
            encodeJpeg(QImage::fromData(photo, "jpg"));
    });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (!qarn_data::DataService::instance().open(QStringLiteral(":memory:")))
        qFatal("no store");
    const QList<QByteArray> photos = photographs(3, PhotoSize);
    PersonInfo person;
    person.id = QStringLiteral("{person}");
    person.name = QStringLiteral("Ann");
    person.faceImage1 = photos.at(0);
    person.faceImage2 = photos.at(1);
    person.faceImage3 = photos.at(2);
    timeToOpen(person); // the first window also loads fonts

    Figure opening{"open_editor_3x12mp_ms"};
    opening.limit = 1.2;
    measureAlternately(
        opening, Rounds, [&] { return timeToOpen(person); }, [&] { return timeToDecode(photos); });
    Figure saving{"save_editor_3x12mp_ms"};
    saving.limit = 1.2;
    measureAlternately(
        saving, Rounds, [&] { return timeToSave(person); }, [&] { return timeToEncode(photos); });
    const int openingResult = report(opening);
    const int savingResult = report(saving);
    qarn_data::DataService::instance().close();
    return openingResult != 0 ? openingResult : savingResult;
}
