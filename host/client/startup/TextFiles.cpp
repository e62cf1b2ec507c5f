#include "startup/TextFiles.h"

#include <QTextCodec>

void useUnicodeTextFiles()
{
    // Letters of four scripts and one beyond the basic plane stand for "every name".
    const QString sample = QString::fromUtf8("\xC3\x9F\xD0\x96\xE5\xBC\xA0\xE0\xA4\x85\xF0\x9F\x98\x80");
    const QTextCodec* codec = QTextCodec::codecForLocale();
    if (codec == nullptr || !codec->canEncode(sample))
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}
