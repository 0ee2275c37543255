#include "desk/CommandLine.h"

#include <QCommandLineParser>

#include "control/Version.h"
#include "desk/Menus.h"

namespace ostrel::desk {

CommandLine ReadCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Makes reports of CSV files and SQLite databases, and shows them and other help pages.");
    parser.addPositionalArgument("FILE", "A CSV file, a SQLite database or a directory of help pages.",
                                 "[FILE]");
    const QCommandLineOption make("make", "Make the report of FILE at once.");
    const QCommandLineOption output("output", "The directory of the report.", "DIR");
    const QCommandLineOption screenshot(
        "screenshot", "Leave a picture (PNG) of the window when all is loaded, and end.", "FILE");
    const QCommandLineOption timings("timings",
                                     "Tell on standard error how long the window and the page took.");
    parser.addOptions({make, output, screenshot, timings});
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();

    CommandLine line;
    if (!parser.parse(arguments)) {
        line.trouble = parser.errorText();
    } else if (parser.isSet(help)) {
        line.answer = parser.helpText();
    } else if (parser.isSet(version)) {
        line.answer = QString("%1 %2.%3.%4\n")
                          .arg(ApplicationTitle)
                          .arg(VersionMajor)
                          .arg(VersionMinor)
                          .arg(VersionRevision);
    } else if (parser.positionalArguments().size() > 1) {
        line.trouble = "There is one FILE too many.";
    } else {
        line.file = parser.positionalArguments().value(0);
        line.make = parser.isSet(make);
        line.output = parser.value(output);
        line.screenshot = parser.value(screenshot);
        line.timings = parser.isSet(timings);
        if (line.make && line.file.isEmpty()) line.trouble = "--make needs a FILE.";
        if (!line.output.isEmpty() && line.file.isEmpty()) line.trouble = "--output needs a FILE.";
        for (const auto& [option, value] :
             {std::pair{&output, &line.output}, {&screenshot, &line.screenshot}})
            if (parser.isSet(*option) && value->isEmpty())
                line.trouble = "--" + option->names().front() + " needs a name.";
    }
    return line;
}

} // namespace ostrel::desk
