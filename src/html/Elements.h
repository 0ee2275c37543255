#pragma once

#include "html/PageScope.h"

namespace ostrel::html {

// Builders of single elements. Attribute values and texts go out as they stand. The forms that begin with
// Append write into a text that the caller keeps, so that loops build in place.

/// Adds one attribute to a tag that is being built; one that is already there is left alone. An empty value
/// gives a bare attribute.
void AddHTMLTag(Text& tag, TextView name, TextView value);

Text CreateAnchor(TextView anchor);
/// A name that is safe as an anchor: upper case, runs of other characters as one "-", a letter first.
Text CreateAnchorName(TextView name);
Text CreateFontStart(TextView face, TextView size, TextView colour);
Text CreateLine(TextView height, TextView width, TextView colour);
Text CreateListStart(bool ordered);
Text CreateListEnd(bool ordered);
Text CreateListItem(TextView element, bool space);
Text CreateMeta(TextView name, TextView content);
Text CreateMetaClientPull(Long seconds, TextView url);
Text CreateParagraph(TextView paragraph, bool centre);
Text CreateParagraphFixed(TextView font, TextView paragraph);
Text CreateParagraphsFromText(TextView text, bool breaks, bool multiple, bool ignoreReturn,
                              bool ignoreLineFeed);
Text CreateSpaces(Long count);
Text CreateString(TextView text, bool bold, bool italic, bool underline = false);
Text CreateStringBold(TextView text);
Text CreateStringItalic(TextView text);
Text CreateStringUnderline(TextView text);
Text CreateStringColour(TextView text, TextView colour, bool bold, bool italic, bool underline);
Text CreateStringJavaScript(TextView text);
Text CreateStringURL(TextView text);
Text CreateTableStart(TextView tags);
Text CreateTableRowStart(TextView tags);
Text CreateTableCellStart(TextView tags);

/// The head element, with the page's own properties where an argument is empty.
Text CreateHeader(const PageScope& scope, TextView title, TextView author, TextView keywords,
                  TextView description, TextView metaTags);

struct BodyLook {
    TextView background, backgroundColour, linkColour, linkVisibleColour, linkActiveColour;
};
/// The body element around a body that is shared, not copied.
Rope CreateBody(const PageScope& scope, Rope body, const BodyLook& look);

/// The local path that a link leads to, or empty where it is not tested.
Text LocalPathFromLink(const PageScope& scope, TextView link);
Text CreateImage(const PageScope& scope, TextView image, TextView alt, TextView border, TextView width,
                 TextView height, TextView align);
Text CreateLinkTitle(const PageScope& scope, TextView hyperlink, TextView description, TextView title,
                     bool bold, bool italic, bool newWindow);
void AppendLinkTitle(const PageScope& scope, Text& output, TextView hyperlink, TextView description,
                     TextView title, bool bold, bool italic, bool newWindow);
Text CreateLink(const PageScope& scope, TextView hyperlink, TextView description, bool bold, bool italic,
                bool newWindow);
Text CreateLinkTitleSplit(const PageScope& scope, TextView hyperlink, TextView description, TextView title,
                          bool bold, bool italic, bool newWindow);

} // namespace ostrel::html
