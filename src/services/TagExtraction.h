#pragma once

#include "text/Array.h"

namespace ostrel::services {

// The tag scanner. `remain` is the text left over by the last extraction; each call sets it.

Text ExtractTag(TextView html, Text& remain);
Text ExtractSingleTag(TextView html, TextView tag, bool trimOutput, bool includeTag, Text& remain);
Text ExtractDoubleTag(TextView html, TextView tag, bool trimOutput, bool includeTag, Text& remain);
Text ExtractMetaTag(TextView html, TextView tag, Text& remain);

/// The number of name="value" pairs of one tag, stored from 1 on; names in upper case.
Long ExtractTagValues(TextView tag, Array<Text>& names, Array<Text>& values, Long maximum);
/// The value of one attribute among the first ten.
Text ExtractTagValue(TextView tag, TextView name);
bool ExtractMetaTagValues(TextView tag, Text& name, Text& content);

Long ExtractAllSingleTagValues(TextView html, TextView tag, TextView attribute, Array<Text>& values,
                               Long maximum, Text& remain);
Long ExtractAllDoubleTagValues(TextView html, TextView tag, TextView attribute, Array<Text>& values,
                               Long maximum, Text& remain);

} // namespace ostrel::services
