#include "help/SearchPage.h"

#include "services/TagExtraction.h"
#include "services/TagText.h"
#include "text/NumberText.h"

namespace ostrel::help {

namespace {

Text Content(TextView html, TextView element) {
    Text remain;
    return services::ExtractDoubleTag(html, element, true, false, remain);
}

Text Meta(TextView head, TextView name) {
    Text remain;
    return services::ExtractMetaTag(head, name, remain);
}

} // namespace

void SearchPage::Read(TextView html, bool ignoreRobots) {
    const Text head = Content(html, "HEAD");
    if (!ignoreRobots) {
        const Text robots = Meta(head, "Robots");
        if (!robots.empty() && !ToDouble(robots)) return;
    }
    title_ = Content(head, "TITLE");
    author_ = Meta(head, "Author");
    keywords_ = Meta(head, "Keywords");
    description_ = Meta(head, "Description");
    body_ = Content(html, "BODY");
    titleToSearch_ = services::SearchText(title_);
    headToSearch_ = services::SearchText(head);
    prepared_ = Prepared::Not;
}

const services::SearchText& SearchPage::BodyToSearch(bool withoutTags) {
    const Prepared wanted = withoutTags ? Prepared::WithoutTags : Prepared::WithTags;
    if (prepared_ != wanted) {
        bodyToSearch_ = services::SearchText(withoutTags ? services::StripTags(body_) : body_);
        prepared_ = wanted;
    }
    return bodyToSearch_;
}

std::size_t SearchPage::Size() const {
    return sizeof *this + fileName_.size() + title_.size() + author_.size() + keywords_.size() +
           description_.size() + body_.size() + titleToSearch_.Spaced().size() +
           headToSearch_.Spaced().size() + bodyToSearch_.Spaced().size();
}

} // namespace ostrel::help
