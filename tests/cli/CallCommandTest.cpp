#include "cli/CallCommand.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <sys/wait.h>

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

TEST(CallCommand, RefusesALineThatIsTooLongAndGoesOn) {
#if !defined(__OPTIMIZE__) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "takes long without optimisation and under sanitizers";
#endif
    /// A line of that many bytes, without ever holding it, and a short one behind it.
    class Lines : public std::streambuf {
    public:
        explicit Lines(std::size_t length) : length_(length), block_(1 << 20, ' ') {}

    protected:
        int_type underflow() override {
            const std::size_t size = std::min(block_.size(), length_);
            if (size == 0 && ended_) return traits_type::eof();
            ended_ = size == 0;
            if (ended_) block_ = "\n{\"call\":\"CreateBreak\",\"quiet\":true}\n";
            setg(block_.data(), block_.data(), block_.data() + (ended_ ? block_.size() : size));
            length_ -= size;
            return traits_type::to_int_type(block_[0]);
        }

    private:
        std::size_t length_;
        std::string block_;
        bool ended_ = false;
    };
    Lines lines((std::size_t(256) << 20) + 1);
    std::istream input(&lines);
    std::ostringstream output;
    AnswerLines(input, output, true);
    EXPECT_EQ(output.str(), "{\"error\":\"The line is longer than 256 MiB.\"}\n{\"result\":\"<BR>\"}\n");
}

TEST(CallCommand, EndsWithAFailureWhereItsStreamsFail) {
    for (const auto& [streams, expected] : std::vector<std::pair<std::string, int>>{
             {"/dev/null >/dev/full", 0},
             {"- </proc/self/status >/dev/full", 1},
             {"/ >/dev/null", 1},
             {"- </ >/dev/null", 1},
             {"/nowhere >/dev/null", 1},
         }) {
        const std::string command = OSTREL_BINARY_DIR "/ostrel call " + streams + " 2>/dev/null";
        const int result = std::system(command.c_str());
        EXPECT_TRUE(WIFEXITED(result)) << streams;
        EXPECT_EQ(WEXITSTATUS(result), expected) << streams;
    }
}

} // namespace

} // namespace ostrel::cli
