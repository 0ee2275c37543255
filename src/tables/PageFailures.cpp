#include "tables/PageFailures.h"

#include "tables/CountText.h"

namespace ostrel::tables {

namespace {

constexpr std::size_t MostNamed = 10;

} // namespace

void PageFailures::Add(const std::string& file, const std::string& reason) {
    if (named_.size() < MostNamed || named_.contains(file))
        named_[file] = reason;
    else
        ++others_;
}

std::vector<std::string> PageFailures::Sentences() const {
    std::vector<std::string> sentences;
    for (const auto& [file, reason] : named_)
        sentences.push_back(file + " can't be written: " + reason + ".");
    if (others_ > 0)
        sentences.push_back(Grouped(others_) + (others_ == 1 ? " more page" : " more pages") +
                            " can't be written.");
    return sentences;
}

} // namespace ostrel::tables
