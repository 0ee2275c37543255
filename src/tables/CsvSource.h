#pragma once

#include <optional>

#include "tables/CsvReader.h"
#include "tables/TableSource.h"

namespace ostrel::tables {

/// The rows of a CSV input. Without a header row the columns are named by their numbers.
class CsvSource final : public TableSource {
public:
    CsvSource(ByteSource& bytes, const CsvFormat& format, bool header)
        : bytes_(bytes), format_(format), header_(header) {}

    void Begin(InputTable& table) override;
    bool ReadRow() override;
    [[noreturn]] void Fail(const std::string& sentence) const override;

private:
    ByteSource& bytes_;
    CsvFormat format_;
    bool header_;
    std::optional<CsvReader> reader_; ///< after `Begin`
    std::size_t columns_ = 0;
    bool first_ = true;    ///< no row has been given yet
    bool rowRead_ = false; ///< the first row was read for the number of its columns
};

} // namespace ostrel::tables
