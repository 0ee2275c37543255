#pragma once

#include "text/Text.h"

namespace ostrel::services {

// A colour has three forms: a browser's name ("navy"), a browser's hexadecimal form ("#000080"), and the
// system's number, which has red in its low byte (red + green * 256 + blue * 65536).

/// The hexadecimal form with lower-case digits. A number that is no colour gives that of its low three bytes.
Text ColourActualToHex(Long colour);
/// The name, or the hexadecimal form in capitals where the colour has none.
Text ColourActualToName(Long colour);
/// The number, or -1 for a text that is no hexadecimal form.
Long ColourHexToActual(TextView colour);
/// The name, or the text trimmed and in capitals, whatever it is.
Text ColourHexToName(TextView colour);
/// The hexadecimal form in capitals, or empty for an unknown name.
Text ColourNameToHex(TextView colour);
/// The number of a name or of a hexadecimal form, or -1.
Long ColourNameToActual(TextView colour);

} // namespace ostrel::services
