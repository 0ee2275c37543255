#pragma once

#include "html/PageScope.h"

namespace ostrel::html {

// The parts of a page, and the way from the parts to a file.

/// Empties the properties of the page under construction.
void HelpPageInitialise(HelpProperties& help);
/// Brings the page properties into force for one page.
void PageInitialise(const PageScope& scope);
/// The page options' own part of `PageReset`: page texts, numbers and fonts.
void ResetPage(PageProperties& page, PageFonts& fonts);

Text PageFontStartTag(const PageScope& scope, Long fontType);
Text PageFontEndTag(const PageScope& scope, Long fontType);
Text PageTextBlock(const PageScope& scope, TextView text, Long fontType);
/// Sets `HelpTitle` as well.
Text PageTitleBlock(const PageScope& scope, TextView title);

/// Settles where a page goes. False with a sentence where it cannot be told.
bool PageFilePath(const PageScope& scope, const Text& filePath, Text& fullPath, Text& error);

/// The whole document around a body.
Rope CreatePage(const PageScope& scope, const Rope& body);
/// Breaks long lines at `HelpPageWidth`.
Rope PageLineWrap(const PageScope& scope, const Rope& text);
/// Raises `PageCreateProgress` and remembers the count for the events of `InternalBuild`.
void TellProgress(const PageScope& scope, TextView message, Long records);
/// The page of three parts.
Rope InternalBuild(const PageScope& scope, const Rope& part1, const Rope& part2, const Rope& part3);
/// Builds from the three parts and saves, if the text changed. True also after a write failure, which shows
/// in `error` and `ErrorFound`.
bool HelpPageSaveInternal(const PageScope& scope, const Text& filePath, Text& error);

/// Raises `PageCreated` and `PageCreated2` with the outcome of the last save.
void TellPageCreated(const PageScope& scope, const Text& filePath);

} // namespace ostrel::html
