#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/TemporaryDirectory.h"

namespace ostrel::test {

inline const std::string Program = OSTREL_BINARY_DIR "/ostrel";

/// What a run came to.
struct Outcome {
    int status = -1;
    std::string out, errors;
};

/// Runs `ostrel` in the directory.
inline Outcome RunOstrel(const TemporaryDirectory& directory, const std::string& arguments) {
    const std::string command = "cd '" + directory.Path() + "' && '" + Program + "' " + arguments +
                                " >stdout.txt 2>stderr.txt </dev/null";
    const int result = std::system(command.c_str());
    Outcome outcome{WIFEXITED(result) ? WEXITSTATUS(result) : -1, directory.Read("stdout.txt"),
                    directory.Read("stderr.txt")};
    std::filesystem::remove(directory.Path("stdout.txt"));
    std::filesystem::remove(directory.Path("stderr.txt"));
    return outcome;
}

inline Outcome RunReport(const TemporaryDirectory& directory, const std::string& arguments) {
    return RunOstrel(directory, "report " + arguments);
}

} // namespace ostrel::test
