#pragma once

#include <iosfwd>

namespace CLI {
class App;
}

namespace ostrel::cli {

/// The sub-command `call`: a host of the component that any program drives by lines of JSON. It runs at once
/// when the command line asks for it and leaves the exit status in `status`.
void AddCallCommand(CLI::App& app, int& status);

/// Answers each line of the input with one line of the output, to the end of the input.
void AnswerLines(std::istream& input, std::ostream& output, bool virtualClock);

} // namespace ostrel::cli
