#pragma once

#include <vector>

#include "text/Text.h"

namespace ostrel::headless {

// What a pane without an engine reads out of a page.

/// The text of the title, with its entities decoded and its white space collapsed; empty if there is no
/// title.
Text TitleOf(TextView html);

/// A frame inside a page.
struct InnerFrame {
    Text name;
    Text source;
};
std::vector<InnerFrame> FramesOf(TextView html, std::size_t most);

/// The body with its tags, or the content between them.
TextView BodyOf(TextView html, bool withTags);
/// Without its tags.
Text PlainText(TextView html);

/// The path of a local address; empty for one that is not local. Path and `file:` addresses are local.
Text LocalPath(const Text& address);
/// Resolves an address in a page relative to that page.
Text ResolveAddress(const Text& page, const Text& address);

} // namespace ostrel::headless
