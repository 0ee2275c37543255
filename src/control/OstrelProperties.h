#pragma once

#include <vector>

#include "control/Bag.h"
#include "control/Guard.h"
#include "platform/Context.h"
#include "text/Array.h"

namespace ostrel {

/// A list of names and values, and the window that shows it. A component of its own, which a host may use
/// alone; `OstrelWebHelp` holds one for the properties of the page on view.
class OstrelProperties {
public:
    /// The platform outlives the component.
    explicit OstrelProperties(Platform& platform);

    /// Adds a pair behind those added before; the same name may come again.
    void AddProperty(const Text& Name, const Text& Value);
    /// Removes all pairs.
    void ClearProperties();
    /// Sets the size of the window in twips; 0 for its own.
    void SetHeightWidth(Long Height, Long Width);
    /// Shows the pairs at that place of the screen, in twips, until the user closes the window; Arg1 is its
    /// top, Arg2 its left, and with Arg3 other than 0 it stays above other windows.
    void Show(Long Arg1, Long Arg2, Long Arg3);
    /// Shows the first Count of Names and Values as `Show` does. A name that does not end in ":" gets one,
    /// in Names as well; an empty one stays empty.
    void ShowProperties(Long Arg1, Long Arg2, Long Arg3, Long Count, Array<Text>& Names,
                        const Array<Text>& Values);
    /// Returns the picture that the window shows as its icon.
    Picture GetIcon() const;
    /// Sets the picture that the window shows as its icon.
    void SetIcon(const Picture& Value);

    /// Reads the icon from a bag, under the key "Icon".
    void ReadProperties(const Bag& bag);
    /// Writes the icon to a bag, where there is one.
    void WriteProperties(Bag& bag);
    /// Sets the caption of the windows to come; empty for "Database Properties".
    void SetCaption(const Text& Caption);

private:
    Guard guard_;
    Events events_;
    Platform& platform_;
    RunFlags run_;
    struct Pair {
        Text name, value;
    };
    std::vector<Pair> pairs_;
    Long height_ = 0, width_ = 0;
    Picture icon_;
    Text caption_;
};

} // namespace ostrel
