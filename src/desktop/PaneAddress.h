#pragma once

#include <QUrl>

#include "text/Text.h"

namespace ostrel::desktop {

/// The engine's address of what a host names: a path of the component (`C:\data\a.htm`, with `#part` behind
/// it where no file has that name), a `file:` address with or without a drive, or any other address.
QUrl UrlOf(const Text& address);

/// Whether it is a page of the engine itself, such as the blank one, for which no request is sent.
bool IsBlank(const QUrl& url);

/// Converts an address of the engine to the component's form: local files by their paths, all others
/// unchanged.
Text AddressOf(const QUrl& url);

} // namespace ostrel::desktop
