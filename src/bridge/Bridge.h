#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "bridge/EventDesk.h"
#include "bridge/JsonText.h"
#include "bridge/Members.h"
#include "control/OstrelWebHelp.h"
#include "ui/ScriptedUser.h"

namespace ostrel {
struct Child;
}

namespace ostrel::bridge {

/// A host of the component that is driven by lines of JSON: it holds one control and reaches everything of it
/// by name. docs/bridge.md describes the requests and the answers.
class Bridge {
public:
    /// Makes a control with `InitProperties` run, on a platform of its own.
    explicit Bridge(HeadlessPlatform& platform);
    /// Terminates the control.
    ~Bridge();
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;

    /// Returns the answer to one line, without a line end. Never throws, whatever the line holds.
    std::string Answer(std::string_view line);

private:
    using Carrier = void (Bridge::*)(const Json& request, CallAnswer& answer);
    struct Verb {
        std::string_view name;
        Carrier carry;
    };
    /// In the order in which a request is searched for them.
    static const std::vector<Verb>& Verbs();

    void CarryOut(const Json& request, CallAnswer& answer);
    void CarryOutNested(const Json& request);
    std::string Compose(const std::string& id, const CallAnswer& answer, bool quiet);
    void AddScreen(JsonWriter& writer);

    void MakeControl();
    void EndControl();

    void Call(const Json& request, CallAnswer& answer);
    void Get(const Json& request, CallAnswer& answer);
    void Set(const Json& request, CallAnswer& answer);
    void On(const Json& request, CallAnswer& answer);
    void Off(const Json& request, CallAnswer& answer);
    void QueueUser(const Json& request, CallAnswer& answer);
    void ResizeControl(const Json& request, CallAnswer& answer);
    void Press(const Json& request, CallAnswer& answer);
    void Type(const Json& request, CallAnswer& answer);
    void Look(const Json& request, CallAnswer& answer);
    void Mouse(const Json& request, CallAnswer& answer);
    void Pane(const Json& request, CallAnswer& answer);
    void Browser(const Json& request, CallAnswer& answer);
    void Advance(const Json& request, CallAnswer& answer);
    void UseClipboard(const Json& request, CallAnswer& answer);
    void SizeScreen(const Json& request, CallAnswer& answer);
    void Transfer(const Json& request, CallAnswer& answer);
    void Ticks(const Json& request, CallAnswer& answer);
    void Renew(const Json& request, CallAnswer& answer);
    void WriteBag(const Json& request, CallAnswer& answer);
    void Describe(const Json& request, CallAnswer& answer);

    /// Returns a visual child of the control. Throws `Refusal` if there is no child of that name.
    const Child& ChildOf(const Text& name) const;
    /// The clock that can be moved; a Refusal where time is real.
    VirtualClock& Time() const;

    HeadlessPlatform& platform_;
    ScriptedUser user_;
    EventDesk events_;
    /// The inside of a JSON array of the names given to `PropertyChanged`.
    std::string changed_;
    /// How deep requests are nested in events now, and how many the line has carried out inside events of one
    /// another.
    int depth_ = 0;
    long inner_ = 0;
    std::unique_ptr<OstrelWebHelp> web_;
};

} // namespace ostrel::bridge
