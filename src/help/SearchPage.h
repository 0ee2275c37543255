#pragma once

#include <cstddef>

#include "services/PreparedSearch.h"

namespace ostrel::help {

/// One help page in memory, made ready to be searched again and again. All texts are empty where the page
/// could not be read, or where its robots tag keeps it out.
class SearchPage {
public:
    explicit SearchPage(Text fileName) : fileName_(std::move(fileName)) {}

    /// Takes the page's texts over. A robots tag whose content is no number keeps the page out, unless
    /// `ignoreRobots`.
    void Read(TextView html, bool ignoreRobots);

    /// The name of the file, without its directory.
    const Text& FileName() const { return fileName_; }
    const Text& Title() const { return title_; }
    const Text& Author() const { return author_; }
    const Text& Keywords() const { return keywords_; }
    const Text& Description() const { return description_; }

    const services::SearchText& TitleToSearch() const { return titleToSearch_; }
    const services::SearchText& HeadToSearch() const { return headToSearch_; }
    /// Returns the body with its tags or without them. It is prepared where it was last asked for otherwise.
    const services::SearchText& BodyToSearch(bool withoutTags);

    /// The memory that the texts take, in bytes.
    std::size_t Size() const;

private:
    enum class Prepared { Not, WithTags, WithoutTags };

    Text fileName_;
    Text title_, author_, keywords_, description_;
    Text body_; // as it is in the file
    services::SearchText titleToSearch_{TextView()}, headToSearch_{TextView()}, bodyToSearch_{TextView()};
    Prepared prepared_ = Prepared::Not;
};

} // namespace ostrel::help
