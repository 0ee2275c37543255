#pragma once

#include "platform/Clipboard.h"

namespace ostrel {

/// A clipboard of the process.
class HeadlessClipboard final : public Clipboard {
public:
    Text GetText() override { return text_; }
    void SetText(const Text& text) override { text_ = text; }
    void Clear() override { text_.clear(); }

private:
    Text text_;
};

} // namespace ostrel
