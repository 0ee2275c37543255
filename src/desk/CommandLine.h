#pragma once

#include <QStringList>

namespace ostrel::desk {

/// The options given on the command line of the application.
struct CommandLine {
    QString file;       ///< to open; may be empty
    bool make = false;  ///< make the report as soon as the file is read
    QString output;     ///< the directory of the report; empty for the usual one
    QString screenshot; ///< the picture to leave behind; empty for a window that stays
    bool timings = false;

    QString trouble; ///< why it is not understood; empty where it is
    QString answer;  ///< the text to print in place of a window
};

CommandLine ReadCommandLine(const QStringList& arguments);

} // namespace ostrel::desk
