#pragma once

#include "text/Text.h"

namespace ostrel {

class Clipboard {
public:
    virtual ~Clipboard() = default;
    virtual Text GetText() = 0;
    virtual void SetText(const Text& text) = 0;
    virtual void Clear() = 0;
};

} // namespace ostrel
