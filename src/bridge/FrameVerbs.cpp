#include "bridge/Arguments.h"
#include "bridge/Bridge.h"
#include "bridge/FieldValues.h"
#include "control/Children.h"
#include "text/CodePage.h"

namespace ostrel::bridge {

namespace {

MouseAction MouseActionOf(const Text& word) {
    if (word == "Down") return MouseAction::Down;
    if (word == "Move") return MouseAction::Move;
    if (word == "Up") return MouseAction::Up;
    RefuseUnknown("Mouse action", ToUtf8(word));
}

} // namespace

const Child& Bridge::ChildOf(const Text& name) const {
    const Child* child = web_->View().Find(name);
    if (!child) RefuseUnknown("Child", ToUtf8(name));
    return *child;
}

void Bridge::ResizeControl(const Json& request, CallAnswer&) {
    Arguments size(request.at("resize"), "resize");
    const Long width = size.Take<Long>("width");
    const Long height = size.Take<Long>("height");
    size.End();
    web_->ResizeTo(width, height);
}

void Bridge::Press(const Json& request, CallAnswer& answer) {
    Text name;
    Read(request.at("press"), Place{"press"}, name);
    answer.Give(web_->PressChild(name));
}

void Bridge::Type(const Json& request, CallAnswer& answer) {
    Arguments arguments(request.at("type"), "type");
    const Text name = arguments.Take<Text>("child");
    const Text text = arguments.Take<Text>("text");
    arguments.End();
    ChildOf(name);
    answer.Give(web_->TypeIntoChild(name, text));
}

void Bridge::Look(const Json& request, CallAnswer& answer) {
    Text name;
    Read(request.at("look"), Place{"look"}, name);
    answer.Give(ChildOf(name).Look());
}

void Bridge::Mouse(const Json& request, CallAnswer& answer) {
    Arguments arguments(request.at("mouse"), "mouse");
    const MouseAction action = MouseActionOf(arguments.Take<Text>("action"));
    const Text name = arguments.Take<Text>("child");
    const Integer button = arguments.Take<Integer>("button");
    const Integer shift = arguments.Take<Integer>("shift");
    const Single x = arguments.Take<Single>("x");
    const Single y = arguments.Take<Single>("y");
    arguments.End();
    ChildOf(name);
    answer.Give(web_->MouseOverChild(action, name, button, shift, x, y));
}

} // namespace ostrel::bridge
