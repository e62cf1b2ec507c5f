#pragma once

#include <QString>
#include <QStringList>

/// What the operator asked for on the command line.
struct CommandLine {
    QString storePath;      ///< --store; empty: the one from the settings
    QString screenshotPath; ///< --screenshot; empty: none
    bool demo = false;      ///< --demo
    bool selfTest = false;  ///< --self-test

    QString error; ///< what is wrong with the arguments; empty: nothing
    QString help;  ///< the text to print before leaving; empty: go on

    static CommandLine parse(const QStringList& arguments);
};
