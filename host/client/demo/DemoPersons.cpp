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
    {"Anna", 2},  {"Bela", 1},   {"Chioma", 2},     {"David", 1},       {"Elif", 2},     {"Farid", 1},
    {"Greta", 2}, {"Haruto", 1}, {"Ingrid", 2},     {"Jonas", 1},       {"Katarina", 2}, {"Luis", 1},
    {"Mei", 2},   {"Nadim", 1},  {"Olivia", 2},     {"Pavel", 1},       {"Quynh", 2},    {"Rasmus", 1},
    {"Sofia", 2}, {"Tariq", 1},  {"Uma", 2},        {"Viktor", 1},      {"Wanjiru", 2},  {"Xavier", 1},
    {"Yara", 2},  {"Zoltan", 1}, {"\xC3\x85sa", 2}, {"\xC3\x96mer", 1},
}};
const std::array<const char*, 26> lastNames{{"Andersson",
                                             "Bauer",
                                             "Costa",
                                             "Dubois",
                                             "Eriksen",
                                             "Ferrari",
                                             "Garc\xC3\xADa",
                                             "Horv\xC3\xA1th",
                                             "Ito",
                                             "Jansen",
                                             "Kowalski",
                                             "Lindgren",
                                             "M\xC3\xBCller",
                                             "Nguyen",
                                             "Okafor",
                                             "Petrov",
                                             "Quispe",
                                             "Rossi",
                                             "Sato",
                                             "Tanaka",
                                             "Ude",
                                             "Varga",
                                             "Weber",
                                             "Yilmaz",
                                             "Zhang",
                                             "O\xE2\x80\x99"
                                             "Brien"}};
const std::array<const char*, 8> otherScripts{
    {"\xE7\x8E\x8B\xE5\xB0\x8F\xE6\x98\x8E", "\xE6\x9D\x8E\xE5\xA8\x9C",
     "\xD0\x98\xD0\xB2\xD0\xB0\xD0\xBD \xD0\xA1\xD0\xBE\xD0\xBA\xD0\xBE\xD0\xBB\xD0\xBE\xD0\xB2",
     "\xCE\x95\xCE\xBB\xCE\xAD\xCE\xBD\xCE\xB7 \xCE\x91\xCE\xBB\xCE\xB5\xCE\xBE\xCE\xAF\xCE\xBF\xCF\x85",
     "\xE4\xBD\x90\xE8\x97\xA4 \xE6\xA1\x9C", "\xEA\xB9\x80\xEB\xAF\xBC\xEC\xA4\x80",
     "\xD9\x84\xD9\x8A\xD9\x84\xD9\x89 \xD8\xAD\xD8\xB3\xD9\x86",
     "\xE0\xA4\x85\xE0\xA4\xA8\xE0\xA4\xBF\xE0\xA4\xA4\xE0\xA4\xBE \xE0\xA4\xB0\xE0\xA4\xBE\xE0\xA4\xB5"}};
constexpr int everyOtherScript = 16; // each so-manieth person has a name in another script
constexpr QSize portraitSize(300, 400);
constexpr int portraitQuality = 82;

QByteArray portraitBytes(quint32 seed)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    drawPortrait(seed, portraitSize).save(&buffer, "jpg", portraitQuality);
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
    person.serialNum = QStringLiteral("P%1").arg(index + 1, 5, 10, QLatin1Char('0'));
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
    person.faceImage1 = portraitBytes(static_cast<quint32>(index) + 1U);
    return person;
}

} // namespace demoPersons
