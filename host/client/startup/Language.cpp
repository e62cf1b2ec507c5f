#include "startup/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

QList<Language> availableLanguages()
{
    return {
        {QString(), QCoreApplication::translate("Language", "Language of the system")},
        {QStringLiteral("en"), QStringLiteral("English")},
        {QStringLiteral("zh_CN"), QString::fromUtf8("简体中文")},
        {QStringLiteral("de"), QStringLiteral("Deutsch")},
    };
}

namespace
{

void install(const QLocale& locale, const QString& name, const QString& directory)
{
    auto* translator = new QTranslator(qApp);
    if (translator->load(locale, name, QStringLiteral("_"), directory))
        QCoreApplication::installTranslator(translator);
    else
        translator->deleteLater();
}

} // namespace

void useLanguage(const QString& code)
{
    const QLocale locale = code.isEmpty() ? QLocale::system() : QLocale(code);
    QLocale::setDefault(locale);
    install(locale, QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    install(locale, QStringLiteral("qarn"), QStringLiteral(":/i18n"));
}
