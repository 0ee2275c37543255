#pragma once

#include "html/PageScope.h"

namespace ostrel::html {

// The way of a page to its file.

/// Settles where a page goes. False with a sentence where it cannot be told.
bool PageFilePath(const PageScope& scope, const Text& filePath, Text& fullPath, Text& error);

/// What came of saving a page.
struct PageSaved {
    bool built = false;    ///< False where the page has no parts or no path; then nothing else was done
    bool newFile = false;  ///< the file has been written, since it was not there or was another
    Long bytesWritten = 0; ///< the size of the page, written or not
    Text error;            ///< why it could not be built or written; empty for success
};

/// Builds the page under construction from its three parts and saves it where its file is another.
PageSaved SavePage(const PageScope& scope, const Text& filePath);

/// Raises `PageCreated` and `PageCreated2` for a page that was built.
void TellPageCreated(const PageScope& scope, const Text& filePath, const PageSaved& saved);
/// Raises them for a page whose file is left as it is.
void TellPageKept(const PageScope& scope, const Text& filePath);

} // namespace ostrel::html
