#include "control/ControlLayout.h"

#include <algorithm>
#include <limits>

#include "control/State.h"
#include "control/ToolbarButtons.h"
#include "text/CodePage.h"
#include "text/NumberText.h"

namespace ostrel {

namespace {

constexpr Long SmallestButtonWidth = 360;
constexpr Long LabelGap = 120;

/// Lengths come from the host and may be anything; they are added in 64 bits and kept within 32.
using Twips = std::int64_t;

Long Fit(Twips length) {
    return static_cast<Long>(
        std::clamp<Twips>(length, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()));
}

Long HalfOf(Twips length) { return ToLong(static_cast<double>(length) / 2).value_or(0); }

/// The tokens of one part of a format, in lower case.
std::vector<Text> TokensOf(TextView part) {
    std::vector<Text> tokens;
    for (std::size_t at = 0; at < part.size();) {
        const std::size_t end = std::min(part.find(' ', at), part.size());
        if (end > at) tokens.push_back(Lower(part.substr(at, end - at)));
        at = end + 1;
    }
    return tokens;
}

/// The two parts of a format.
struct Format {
    Text left;
    Text right;
};

Format FormatOf(const State& state, const ToolbarButtons& buttons) {
    const Text& format = state.toolbar.ToolbarFormat;
    const std::size_t slash = format.find('/');
    const TextView left = TrimBlanks(TextView(format).substr(0, slash));
    const TextView right = slash == NotFound ? TextView() : TextView(format).substr(slash + 1);
    if (!left.empty()) return {Text(left), Text(TrimBlanks(right))};

    Text usual = "Open Space Back Forward Space Stop Refresh Home";
    if (!state.control.IndexPage.empty()) usual += " Index";
    if (state.search.SearchLocation != 0) usual += " Search";
    usual += " Space Print Full";
    if (!buttons.Names().empty()) {
        usual += " Space";
        for (const Text& name : buttons.Names()) usual += " " + name;
    }
    return {usual, "Close"};
}

/// One layout.
class LayoutRun {
public:
    LayoutRun(Children& children, const ToolbarButtons& buttons, const State& state, const Screen& screen,
              Long keptRoom)
        : children_(children), buttons_(buttons), state_(state), wanted_(state.toolbar), screen_(screen),
          pixel_(screen.Pixel()), keptRoom_(keptRoom) {}

    /// Returns the sizes of the toolbar's buttons.
    ButtonSizes Run() {
        Child& browser = children_.picBrowser;
        browser.left = browser.top = 0;
        browser.width = children_.control.width;
        browser.height = children_.control.height;
        children_.brwBrowser.left = 0;
        children_.picTest.visible = false;
        if (wanted_.ToolbarVisible) {
            FitStrip();
            PlaceButtons();
            if (wanted_.ToolbarAddressVisible) PlaceAddress();
        } else {
            children_.brwBrowser.top = 0;
            children_.brwBrowser.height = browser.height;
        }
        children_.picToolbar.visible = wanted_.ToolbarVisible;
        children_.brwBrowser.width = browser.width;
        return sizes_;
    }

private:
    void FitStrip() {
        const Long width = std::max<Long>(wanted_.ToolbarButtonWidth, SmallestButtonWidth);
        const Long height = std::max(wanted_.ToolbarButtonHeight,
                                     Fit(Twips{children_.picTest.height} + 5 * Twips{pixel_.height}));
        Child& strip = children_.picToolbar;
        strip.height = wanted_.ToolbarHeight;
        Twips needed = Twips{height} + 2 * pixel_.height;
        children_.txtURL.visible = children_.lblURL.visible = wanted_.ToolbarAddressVisible;
        children_.cmdURL.visible = wanted_.ToolbarAddressVisible && wanted_.ToolbarAddressButton;
        if (wanted_.ToolbarAddressVisible) needed += Twips{children_.txtURL.height} + 2 * pixel_.height;
        sizes_.height = height;
        sizes_.width = width;
        needed_ = Fit(needed);
        strip.height = std::max(strip.height, needed_);
        const Twips covered = Twips{strip.height} + keptRoom_;
        children_.brwBrowser.top = Fit(covered);
        children_.brwBrowser.height = Fit(children_.picBrowser.height - covered);
        strip.left = strip.top = 0;
        strip.width = children_.picBrowser.width;
    }

    void PlaceButtons() {
        sizes_.top = HalfOf(Twips{children_.picToolbar.height} - needed_);
        for (int i = 0; i < ActionCount; ++i)
            children_.Default(static_cast<ToolbarAction>(i)).visible = false;
        for (Long i = 1; i <= children_.UserButtons(); ++i) children_.UserButton(i)->visible = false;

        const Format format = FormatOf(state_, buttons_);
        Twips position = wanted_.ToolbarButtonMargin;
        for (const Text& token : TokensOf(format.left)) {
            if (token == "space") {
                position += wanted_.ToolbarButtonSpace;
            } else if (Child* button = buttons_.Find(token)) {
                Place(*button, position);
                position += sizes_.width;
            }
        }
        const Twips leftLimit = position + wanted_.ToolbarButtonSpace;
        rightEdge_ =
            Twips{children_.picToolbar.width} - 2 * Twips{pixel_.width} - wanted_.ToolbarButtonMargin;
        PlaceRight(TokensOf(format.right), leftLimit);
    }

    void PlaceRight(const std::vector<Text>& tokens, Twips leftLimit) {
        Twips position = rightEdge_;
        for (auto token = tokens.rbegin(); token != tokens.rend() && position > leftLimit; ++token) {
            if (*token == "space") {
                position -= wanted_.ToolbarButtonSpace;
            } else if (Child* button = buttons_.Find(*token)) {
                position -= sizes_.width;
                if (position <= leftLimit) return;
                Place(*button, position);
            }
        }
    }

    void Place(Child& button, Twips position) {
        button.left = Fit(position);
        button.top = sizes_.top;
        button.width = sizes_.width;
        button.height = sizes_.height;
        button.visible = true;
        children_.txtURL.top = Fit(Twips{button.top} + button.height + 2 * pixel_.height);
    }

    void PlaceAddress() {
        Child& label = children_.lblURL;
        Child& box = children_.txtURL;
        Child& go = children_.cmdURL;
        AlignLabel(label, box, true);
        label.left = wanted_.ToolbarButtonMargin;
        box.left = Fit(Twips{label.left} + label.width + LabelGap);
        if (wanted_.ToolbarAddressButton) {
            go.left = Fit(rightEdge_ - go.width);
            go.height = sizes_.height;
            AlignLabel(go, box, false);
            box.width = Fit(Twips{go.left} - box.left - LabelGap);
        } else {
            box.width = Fit(rightEdge_ - box.left);
        }
        box.locked = wanted_.ToolbarAddressLocked;
        children_.Default(ActionIndex).enabled = !state_.control.IndexPage.empty();
    }

    /// Centres a label on its anchor; aligned right, it ends before it. Only a label takes the size of its
    /// text.
    void AlignLabel(Child& label, const Child& anchor, bool alignRight) {
        if (label.kind == ChildKind::Label) {
            const Extent size = screen_.Measure(label.caption);
            label.width = size.width;
            label.height = size.height;
        }
        // Only the sum becomes a whole number, so an odd difference rounds by the anchor's place.
        label.top = HalfOf(2 * Twips{anchor.top} + anchor.height - label.height);
        if (alignRight) label.left = Fit(Twips{anchor.left} - label.width - LabelGap);
    }

    Children& children_;
    const ToolbarButtons& buttons_;
    const State& state_;
    const ToolbarProperties& wanted_;
    const Screen& screen_;
    const Extent pixel_;
    const Long keptRoom_;
    ButtonSizes sizes_;
    Long needed_ = 0;
    Twips rightEdge_ = 0;
};

} // namespace

void ControlLayout::Resize() {
    guard_([&] {
        sizes_ = LayoutRun(children_, buttons_, state_, *platform_.screen, keptRoom_).Run();
        events_.StatusTextChange.Tell("Web Help - Resize");
    });
}

} // namespace ostrel
