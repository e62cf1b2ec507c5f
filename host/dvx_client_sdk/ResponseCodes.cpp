#include <dvx_client_sdk/ResponseCodes.h>

#include <QCoreApplication>

namespace dvx_sdk
{

namespace
{

struct ResponseText {
    int code;
    const char* text;
};

constexpr ResponseText texts[] = {
    {Success, QT_TRANSLATE_NOOP("dvx_sdk", "The device answered.")},
    {NoRoute, QT_TRANSLATE_NOOP("dvx_sdk", "Nothing answers at this address. Check the address, the network "
                                           "and whether the device is switched on.")},
    {TimedOut,
     QT_TRANSLATE_NOOP("dvx_sdk", "The device did not answer in time. Check the network and whether "
                                  "the device is busy.")},
    {BadAnswer, QT_TRANSLATE_NOOP("dvx_sdk", "What answers at this address is not a face device, or does not "
                                             "work as it should. Check the address.")},
    {UnknownDevice,
     QT_TRANSLATE_NOOP("dvx_sdk", "The device is not known any more. Add it on the Devices page.")},
    {UnknownChannel,
     QT_TRANSLATE_NOOP("dvx_sdk", "The device has no such channel. Test the device on the Devices "
                                  "page to read its channels again.")},
    {UnknownFace, QT_TRANSLATE_NOOP("dvx_sdk", "The face is not known. Read the channel's faces again.")},
    {Untrusted,
     QT_TRANSLATE_NOOP("dvx_sdk", "The device's certificate is not trusted. Test the device on the "
                                  "Devices page to look at it.")},
    {TlsFailed,
     QT_TRANSLATE_NOOP("dvx_sdk", "No encrypted connection could be made. Check whether the address "
                                  "must begin with http:// instead of https://.")},
    {ConnectionLost, QT_TRANSLATE_NOOP("dvx_sdk", "The device closed the connection before it had answered. "
                                                  "Try again.")},
    {BadSettings,
     QT_TRANSLATE_NOOP("dvx_sdk", "The device's address or token cannot be used. Correct it on the "
                                  "Devices page.")},
    {ShuttingDown, QT_TRANSLATE_NOOP("dvx_sdk", "The program is about to end.")},
    {401, QT_TRANSLATE_NOOP("dvx_sdk",
                            "The device refuses the token. Enter the token that is set on the device.")},
    {403, QT_TRANSLATE_NOOP("dvx_sdk", "The token may not do this. Check its rights on the device.")},
    {404, QT_TRANSLATE_NOOP("dvx_sdk", "The device does not have what was asked for. Check the address.")},
    {409, QT_TRANSLATE_NOOP("dvx_sdk", "The device holds a face with this serial number already.")},
    {413, QT_TRANSLATE_NOOP("dvx_sdk", "The photograph is too large for the device.")},
    {503, QT_TRANSLATE_NOOP("dvx_sdk", "The device is busy. Try again in a moment.")},
    {507, QT_TRANSLATE_NOOP("dvx_sdk", "The device is full. Delete faces that are not needed any more.")},
};

} // namespace

QString responseText(int code)
{
    for (const ResponseText& entry : texts) {
        if (entry.code == code)
            return QCoreApplication::translate("dvx_sdk", entry.text);
    }
    return QCoreApplication::translate("dvx_sdk", "The device refused with HTTP status %1.").arg(code);
}

} // namespace dvx_sdk
