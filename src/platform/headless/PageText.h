#pragma once

#include <vector>

#include "text/Text.h"

namespace ostrel::headless {

// What a pane without an engine reads out of a page.

/// The text of the title, with its entities decoded and its white space collapsed; empty for none.
Text TitleOf(TextView html);

/// A frame inside a page.
struct InnerFrame {
    Text name;
    Text source;
};
std::vector<InnerFrame> FramesOf(TextView html, std::size_t most);

/// The body with its tags, or what lies between them.
TextView BodyOf(TextView html, bool withTags);
/// Without its tags.
Text PlainText(TextView html);

/// The path of a local address; empty for one that is not local. Path and `file:` addresses are local.
Text LocalPath(const Text& address);
/// An address as it stands in a page, seen from that page.
Text ResolveAddress(const Text& page, const Text& address);

} // namespace ostrel::headless
