#include "cli/CallCommand.h"

#include <cstddef>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "bridge/Bridge.h"
#include "cli/MemoryLimit.h"

namespace ostrel::cli {

namespace {

/// A longer line is passed over and refused, so that a missing line end does not take all memory.
constexpr std::size_t MaxLineBytes = std::size_t(256) << 20;

enum class LineRead { Whole, TooLong, End };

LineRead ReadLine(std::streambuf& input, std::string& line) {
    constexpr int end = std::char_traits<char>::eof();
    line.clear();
    int byte = input.sbumpc();
    if (byte == end) return LineRead::End;
    bool tooLong = false;
    for (; byte != end && byte != '\n'; byte = input.sbumpc()) {
        if (line.size() < MaxLineBytes)
            line.push_back(static_cast<char>(byte));
        else
            tooLong = true;
    }
    return tooLong ? LineRead::TooLong : LineRead::Whole;
}

struct CallOptions {
    bool virtualClock = false;
    std::string file;
};

int RunCall(const CallOptions& options) {
    LimitMemory();
    std::ios::sync_with_stdio(false);
    const bool standardInput = options.file.empty() || options.file == "-";
    std::ifstream file;
    if (!standardInput) file.open(options.file, std::ios::binary);
    const auto fail = [&] {
        std::cerr << "ostrel call: can't read "
                  << (standardInput ? "standard input" : "file [" + options.file + "]") << ".\n";
        return 1;
    };
    if (!file) return fail();
    try {
        AnswerLines(standardInput ? std::cin : file, std::cout, options.virtualClock);
    } catch (const std::ios_base::failure&) {
        return fail();
    }
    if (std::cout) return 0;
    std::cerr << "ostrel call: can't write the answers.\n";
    return 1;
}

} // namespace

void AnswerLines(std::istream& input, std::ostream& output, bool virtualClock) {
    HeadlessPlatform platform = MakeHeadlessPlatform(virtualClock);
    bridge::Bridge bridge(platform);
    std::string line;
    while (output) {
        const LineRead read = ReadLine(*input.rdbuf(), line);
        if (read == LineRead::End) return;
        output << (read == LineRead::Whole ? bridge.Answer(line)
                                           : "{\"error\":\"The line is longer than 256 MiB.\"}")
               << '\n'
               << std::flush;
    }
}

void AddCallCommand(CLI::App& app, int& status) {
    auto options = std::make_shared<CallOptions>();
    CLI::App* command = app.add_subcommand("call", "Drive the component by lines of JSON");
    command->footer("One JSON object a line is read, and one is written for each, in the same order:\n"
                    "  {\"call\": \"CreateStringBold\", \"args\": [\"sale\"]}\n"
                    "  {\"get\": \"PageTitle\"}   {\"set\": \"PageTitle\", \"value\": \"Sales\"}\n"
                    "  {\"describe\": \"all\"} lists the members, properties, events and forms.\n"
                    "docs/bridge.md tells all requests and answers.");
    command->add_flag("--virtual-clock", options->virtualClock,
                      "Let time stand still but for requests and the component's own waits");
    command->add_option("FILE", options->file, "File of requests; standard input without it");
    command->callback([options, &status] { status = RunCall(*options); });
}

} // namespace ostrel::cli
