#pragma once

#include <map>
#include <string>
#include <vector>

namespace ostrel::tables {

/// The files that could not be written and why. The first ones are named, the others counted.
class PageFailures {
public:
    void Add(const std::string& file, const std::string& reason);
    bool Empty() const { return named_.empty(); }
    /// A sentence for each file that is named, and one for all others.
    std::vector<std::string> Sentences() const;

private:
    std::map<std::string, std::string> named_;
    std::size_t others_ = 0;
};

} // namespace ostrel::tables
