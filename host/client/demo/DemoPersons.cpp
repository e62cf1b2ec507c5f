#include "demo/DemoPersons.h"

#include "demo/Portrait.h"

#include <QBuffer>
#include <QImage>
#include <QUuid>

#include <array>
#include <random>

using qarn_data::PersonInfo;

namespace
{

struct FirstName {
    const char* text;
    int sex;
};

const std::array<FirstName, 28> firstNames{{
    {"Anna", 2},   {"Bela", 1},    {"Chioma", 2}, {"David", 1},    {"Elif", 2},   {"Farid", 1}, {"Greta", 2},
    {"Haruto", 1}, {"Ingrid", 2},  {"Jonas", 1},  {"Katarina", 2}, {"Luis", 1},   {"Mei", 2},   {"Nadim", 1},
    {"Olivia", 2}, {"Pavel", 1},   {"Quynh", 2},  {"Rasmus", 1},   {"Sofia", 2},  {"Tariq", 1}, {"Uma", 2},
    {"Viktor", 1}, {"Wanjiru", 2}, {"Xavier", 1}, {"Yara", 2},     {"Zoltan", 1}, {"Åsa", 2},   {"Ömer", 1},
}};
const std::array<const char*, 26> lastNames{
    {"Andersson", "Bauer",    "Costa",    "Dubois", "Eriksen", "Ferrari", "García", "Horváth", "Ito",
     "Jansen",    "Kowalski", "Lindgren", "Müller", "Nguyen",  "Okafor",  "Petrov", "Quispe",  "Rossi",
     "Sato",      "Tanaka",   "Ude",      "Varga",  "Weber",   "Yilmaz",  "Zhang",  "O’Brien"}};
const std::array<const char*, 8> otherScripts{
    {"王小明", "李娜", "Иван Соколов", "Ελένη Αλεξίου", "佐藤 桜", "김민준", "ليلى حسن", "अनिता राव"}};
constexpr int everyOtherScript = 16; // each so-manieth person has a name in another script
constexpr QSize portraitSize(300, 400);
constexpr int portraitQuality = 82;

QByteArray portraitBytes(quint32 seed, PortraitKind kind)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    drawPortrait(seed, portraitSize, kind).save(&buffer, "jpg", portraitQuality);
    return bytes;
}

QString identityOf(std::mt19937& random)
{
    return QStringLiteral("%1").arg(random() % 100000000U, 8, 10, QLatin1Char('0'));
}

} // namespace

namespace demoPersons
{

QList<QStringList> organizationPaths()
{
    return {
        {QStringLiteral("Headquarters"), QStringLiteral("Administration")},
        {QStringLiteral("Headquarters"), QStringLiteral("Finance")},
        {QStringLiteral("Headquarters"), QStringLiteral("Security")},
        {QStringLiteral("Research"), QStringLiteral("Laboratory A")},
        {QStringLiteral("Research"), QStringLiteral("Laboratory B")},
        {QStringLiteral("Production"), QStringLiteral("Assembly"), QStringLiteral("Day shift")},
        {QStringLiteral("Production"), QStringLiteral("Assembly"), QStringLiteral("Night shift")},
        {QStringLiteral("Production"), QStringLiteral("Logistics")},
        {QStringLiteral("Visitors")},
    };
}

PersonInfo make(int index)
{
    std::mt19937 random(static_cast<quint32>(index) + 1U);
    const FirstName& first = firstNames[random() % firstNames.size()];
    PersonInfo person;
    person.id = QUuid::createUuid().toString();
    person.serialNum = QStringLiteral("D%1").arg(index + 1, 5, 10, QLatin1Char('0'));
    person.sex = first.sex;
    person.name = index % everyOtherScript == everyOtherScript - 1
                      ? QString::fromUtf8(otherScripts[random() % otherScripts.size()])
                      : QString::fromUtf8(first.text) + QLatin1Char(' ') +
                            QString::fromUtf8(lastNames[random() % lastNames.size()]);
    person.email = person.serialNum.toLower() + QStringLiteral("@example.com");
    person.phoneNum = QStringLiteral("0555%1").arg(random() % 10000000U, 7, 10, QLatin1Char('0'));
    person.identityId = identityOf(random);
    person.birthDate = QDate(1960, 1, 1).addDays(static_cast<qint64>(random() % 16000U));
    const bool expired = random() % 9U == 0U;
    person.validStartTime = person.validStartTime.addDays(-static_cast<qint64>(random() % 300U) - 40);
    person.validEndTime = expired ? person.validStartTime.addDays(30) : person.validEndTime.addYears(1);
    person.faceImage1 = portraitBytes(static_cast<quint32>(index) + 1U,
                                      first.sex == 1 ? PortraitKind::Male : PortraitKind::Female);
    return person;
}

} // namespace demoPersons
