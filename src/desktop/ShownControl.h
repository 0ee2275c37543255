#pragma once

#include <QLabel>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

#include "ui/Controls.h"
#include "ui/RichText.h"

namespace ostrel::desktop {

/// How a control takes its place in a dialog.
enum class Room {
    Row,    ///< a row of its own
    Field,  ///< one line, with its heading before it
    Choice, ///< no more than it needs, in one row with its neighbours of the same sort
    Button, ///< likewise
    List,   ///< as much as the window gives, under its heading
    Editor  ///< likewise, before all others
};

/// Remembers which revision of a field is shown.
class ShownRevision {
public:
    /// Whether the field has changed since the last call; true at the first.
    template <class Value>
    bool Follow(const Tracked<Value>& field) {
        return std::exchange(revision_, field.Revision()) != field.Revision();
    }

private:
    std::optional<std::uint64_t> revision_;
};

/// Where shown controls tell what the user does.
class UserActions {
public:
    virtual ~UserActions() = default;
    /// Carries out an action of the user at a control, if that can be reached, and shows what came of it.
    virtual void Act(Control& control, const std::function<void()>& action) = 0;
};

/// A control of a form on the screen. The model is the truth: what the user does goes there first, and comes
/// back from there.
class ShownControl {
public:
    ShownControl(Control& control, QWidget& widget, Room room);
    virtual ~ShownControl() = default;
    ShownControl(const ShownControl&) = delete;
    ShownControl& operator=(const ShownControl&) = delete;

    Control& Model() const { return control_; }
    /// Belongs to its parent widget.
    QWidget& Widget() const { return widget_; }
    Room TakenRoom() const { return room_; }
    /// The label that stands before or above it; null for a kind that has none.
    QLabel* Heading() const { return heading_; }
    /// Asks for no more room than it needs, among many of its kind or beside another.
    virtual void MakeCompact() {}
    /// Shows what the model says now, where that or the widget has changed.
    void Sync();
    /// The user has changed the widget, whatever the model makes of it.
    void Outdate() { revision_.reset(); }

protected:
    /// Called when something has changed. A field that is costly to show is shown when it has changed itself.
    virtual void SyncContent() = 0;
    /// Gives it a heading; called by each kind that has one as it is built.
    void AddHeading();
    /// An empty heading takes no room.
    void SyncHeading(const Tracked<Text>& text);

private:
    Control& control_;
    QWidget& widget_;
    const Room room_;
    QLabel* heading_ = nullptr;
    std::optional<std::uint64_t> revision_; ///< of the model that is shown
    ShownRevision tip_, headingText_;
};

// Each makes its widget a child of the dialog, named as the control; the layout moves it where it belongs.
#define SHOWN(Kind) std::unique_ptr<ShownControl> Show(Kind& control, QWidget& dialog, UserActions& user);
#define UNSHOWN(Kind)
#include "ui/ControlKinds.def"
#undef SHOWN
#undef UNSHOWN

/// Any control as its kind is shown; null for kinds without a place in the layout.
std::unique_ptr<ShownControl> ShowControl(Control& control, QWidget& dialog, UserActions& user);

} // namespace ostrel::desktop
