#include "startup/TextFiles.h"

#include <QTextCodec>

void useUnicodeTextFiles()
{
    // Letters of four scripts and one beyond the basic plane stand for "every name".
    const QString sample = QString::fromUtf8("ßЖ张अ😀");
    const QTextCodec* codec = QTextCodec::codecForLocale();
    if (codec == nullptr || !codec->canEncode(sample))
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}
