// Opening the person editor on three photographs of 12 megapixels, against decoding the three of them; and
// saving them, against decoding and encoding them. Milliseconds; without a display.

#include "support/Figure.h"

#include "editor/PersonInfoModifyDlg.h"
#include "editor/PersonInfoModifyWt.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonInfo.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>

using namespace qarn_bench;
using qarn_data::PersonInfo;
using qarn_personMgr::PersonInfoModifyDlg;
using qarn_personMgr::PersonInfoModifyWt;

namespace
{

constexpr QSize PhotoSize(4000, 3000);
constexpr int Rounds = 11;

QByteArray encode(const QImage& image, int quality = -1)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "jpg", quality);
    return bytes;
}

/// As hard to decode as a camera's picture: soft shapes under the grain of a sensor.
QByteArray photograph(quint32 seed)
{
    QRandomGenerator random(seed);
    QImage shapes(40, 30, QImage::Format_RGB32);
    for (int y = 0; y < shapes.height(); ++y) {
        for (int x = 0; x < shapes.width(); ++x)
            shapes.setPixel(x, y, random.generate());
    }
    QImage photo = shapes.scaled(PhotoSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < photo.width(); ++x)
            line[x] ^= random.generate() & 0x00070707;
    }
    return encode(photo, 90);
}

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
            encode(QImage::fromData(photo, "jpg"));
    });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    if (!qarn_data::DataService::instance().open(QStringLiteral(":memory:")))
        qFatal("no store");
    const QList<QByteArray> photos{photograph(1), photograph(2), photograph(3)};
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
