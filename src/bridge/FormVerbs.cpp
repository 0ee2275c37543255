#include <array>

#include "bridge/Arguments.h"
#include "bridge/Bridge.h"
#include "bridge/Forms.h"
#include "text/CodePage.h"

namespace ostrel::bridge {

namespace {

using Verb = UserStep::Verb;

struct StepWord {
    std::string_view word;
    Verb verb;
};
constexpr std::array<StepWord, 8> StepWords{{{"set", Verb::Set},
                                             {"click", Verb::Click},
                                             {"dblclick", Verb::DoubleClick},
                                             {"select", Verb::Select},
                                             {"key", Verb::Key},
                                             {"menu", Verb::Menu},
                                             {"look", Verb::Look},
                                             {"close", Verb::Close}}};

Verb VerbOf(const Text& word) {
    for (const StepWord& row : StepWords)
        if (row.word == word) return row.verb;
    RefuseUnknown("Step", ToUtf8(word));
}

UserValue ReadUserValue(const Json& json) {
    if (json.is_boolean()) return Flag(json.get<bool>());
    if (json.is_number()) {
        Long line = 0;
        Read(json, Place{"value"}, line);
        return line;
    }
    Text text;
    if (!json.is_string()) throw Refusal("value must be a text, a flag or a number.");
    Read(json, Place{"value"}, text);
    return text;
}

UserStep ReadStep(const Json& json) {
    Arguments arguments(json, "step");
    UserStep step{VerbOf(arguments.Take<Text>("verb")), {}, {}};
    switch (step.verb) {
    case Verb::Set:
        step.target = arguments.Take<Text>("control");
        step.value = ReadUserValue(arguments.TakeAny("value"));
        break;
    case Verb::Select:
        step.start = arguments.Take<Long>("start");
        step.length = arguments.Take<Long>("length");
        break;
    case Verb::Close:
        break;
    default:
        step.target = arguments.Take<Text>("name");
        break;
    }
    arguments.End();
    return step;
}

} // namespace

void Bridge::QueueUser(const Json& request, CallAnswer&) {
    Text name;
    Read(request.at("form"), Place{"form"}, name);
    if (!FindForm(name)) RefuseUnknown("Form", ToUtf8(name));
    std::vector<UserStep> steps;
    if (const auto list = request.find("do"); list != request.end()) {
        RequireArray(*list, Place{"do"});
        for (const Json& step : *list) steps.push_back(ReadStep(step));
    }
    user_.Queue(name, std::move(steps));
}

} // namespace ostrel::bridge
