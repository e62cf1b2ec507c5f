#pragma once

#include <QList>
#include <QString>

/// The languages that the client speaks.
struct Language {
    QString code; ///< for instance "de"; empty: the language of the system
    QString name; ///< in the language itself
};

QList<Language> availableLanguages();

/// Loads the texts of the language with this code; English where there are none. Before any window.
void useLanguage(const QString& code);
