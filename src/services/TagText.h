#pragma once

#include "text/Text.h"

namespace ostrel::services {

/// Position (from 1) of the ">" that ends a tag, looked for from `start` (from 1); a ">" inside double quotes
/// does not end it. 0 where the text ends first.
Long FindTagClose(TextView text, Long start);

/// Plain text of HTML: tags become line ends and blanks, or vanish. An unterminated tag cuts the text off.
/// Linear.
Text StripTags(TextView html);
/// As `StripTags`, reusing the buffer of `result`.
void StripTagsInto(TextView html, Text& result);

Text ExtractContent(TextView html, bool removeDouble, bool removeSpecials);
Text RemoveComments(TextView html, bool trimBlanks);
Text RemoveBetweenTags(TextView html, TextView tag, TextView tagEnd, bool trimBlanks);
Text RemoveDoubleTag(TextView html, TextView tag, TextView subTag, bool trimBlanks);

/// CR becomes a blank, LF goes, double blanks collapse.
Text NormaliseSearchText(TextView text);

/// The leading number of the stripped text; 0 where there is none.
Double CellNumericValue(TextView html);
/// Seconds of a time such as "1:02:03"; 0 for what is none.
Long CellTimeSeconds(TextView html);

} // namespace ostrel::services
