#pragma once

#include <QByteArray>
#include <QList>

namespace dvx_sdk
{

/// A face list without its photographs. They are by far its largest part, and the JSON parser would copy and
/// convert each several times.
struct PhotoCut {
    QByteArray body;          ///< with a photograph's index as the text in its place
    QList<QByteArray> photos; ///< Base64 in the alphabet of the device
};

/// Cuts all photographs out, or none: when one is written with escapes, or anything else is unusual, the
/// body stays as it is for the parser.
PhotoCut cutPhotos(const QByteArray& body);

/// Whether a JSON text of these bytes needs no escapes and means them as they are: ASCII, no control
/// characters, quotation marks or backslashes.
bool isPlainText(const char* text, qint64 length);
/// SCIM allows the URL alphabet too (RFC 7643, 2.3.6); who takes the image expects the standard one.
QByteArray toStandardAlphabet(QByteArray base64);

} // namespace dvx_sdk
