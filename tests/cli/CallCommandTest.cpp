#include "cli/CallCommand.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace ostrel::cli {

namespace {

std::string Answers(const std::string& lines) {
    std::istringstream input(lines);
    std::ostringstream output;
    AnswerLines(input, output, true);
    return output.str();
}

TEST(CallCommand, AnswersLineByLineToTheEndOfTheInput) {
    const std::string first = Answers("{\"id\":1,\"call\":\"CreateBreak\"}\n");
    EXPECT_EQ(first,
              "{\"id\":1,\"result\":\"<BR>\",\"events\":[[\"StatusTextChange\",\"Web Help - Initialise\"],"
              "[\"StatusTextChange\",\"Web Help - Init Properties\"]]}\n");
    const std::string error = "{\"error\":\"The line is no JSON object.\"}\n";
    EXPECT_EQ(Answers(""), "");
    EXPECT_EQ(Answers("\n"), error);
    EXPECT_EQ(Answers("x\n\ny"), error + error + error);
    // Line ends of both sorts, and a last line without one.
    EXPECT_EQ(Answers("{\"id\":1,\"call\":\"CreateBreak\"}\r\n"), first);
    EXPECT_EQ(Answers("{\"id\":1,\"call\":\"CreateBreak\"}"), first);
}

} // namespace

} // namespace ostrel::cli
