#include <array>
#include <optional>

#include "bridge/Arguments.h"
#include "bridge/Bridge.h"
#include "text/CodePage.h"

namespace ostrel::bridge {

namespace {

template <class T>
std::optional<T> ReadKey(const Json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end()) return {};
    T value{};
    Read(*found, Place{key}, value);
    return value;
}

/// One event of the engine: reads its arguments and calls the pane's listener.
struct PaneEvent {
    std::string_view name;
    void (*raise)(BrowserSink&, Arguments&, CallAnswer&);
};

void BeforeNavigate2(BrowserSink& sink, Arguments& arguments, CallAnswer& answer) {
    Text url = arguments.Take<Text>("URL");
    Text target = arguments.TakeOr<Text>("TargetFrameName", {});
    const Flag topLevel = arguments.TakeOr<Flag>("TopLevel", true);
    arguments.End();
    Flag cancel;
    sink.BeforeNavigate2(url, target, cancel, topLevel);
    JsonWriter writer(answer.out);
    writer.Key("Cancel");
    writer.Flag(cancel);
}

template <void (BrowserSink::*Raise)(const Text&, bool)>
void TellPage(BrowserSink& sink, Arguments& arguments, CallAnswer&) {
    const Text url = arguments.Take<Text>("URL");
    const Flag topLevel = arguments.TakeOr<Flag>("TopLevel", true);
    arguments.End();
    (sink.*Raise)(url, topLevel);
}

template <void (BrowserSink::*Raise)(const Text&)>
void TellText(BrowserSink& sink, Arguments& arguments, CallAnswer&) {
    const Text text = arguments.Take<Text>("Text");
    arguments.End();
    (sink.*Raise)(text);
}

template <void (BrowserSink::*Raise)()>
void TellPlain(BrowserSink& sink, Arguments& arguments, CallAnswer&) {
    arguments.End();
    (sink.*Raise)();
}

void NewWindow2(BrowserSink& sink, Arguments& arguments, CallAnswer&) {
    const Flag own = arguments.TakeOr<Flag>("Own", true);
    arguments.End();
    sink.NewWindow2(own);
}

void CommandStateChange(BrowserSink& sink, Arguments& arguments, CallAnswer&) {
    const Long command = arguments.Take<Long>("Command");
    const Flag enable = arguments.TakeOr<Flag>("Enable", true);
    arguments.End();
    sink.CommandStateChange(static_cast<HistoryCommand>(command), enable);
}

void ProgressChange(BrowserSink& sink, Arguments& arguments, CallAnswer&) {
    const Long progress = arguments.Take<Long>("Progress");
    const Long maximum = arguments.Take<Long>("ProgressMax");
    arguments.End();
    sink.ProgressChange(progress, maximum);
}

constexpr std::array<PaneEvent, 10> PaneEvents{
    {{"BeforeNavigate2", &BeforeNavigate2},
     {"NavigateComplete2", &TellPage<&BrowserSink::NavigateComplete2>},
     {"DocumentComplete", &TellPage<&BrowserSink::DocumentComplete>},
     {"NewWindow2", &NewWindow2},
     {"CommandStateChange", &CommandStateChange},
     {"ProgressChange", &ProgressChange},
     {"StatusTextChange", &TellText<&BrowserSink::StatusTextChange>},
     {"TitleChange", &TellText<&BrowserSink::TitleChange>},
     {"DownloadBegin", &TellPlain<&BrowserSink::DownloadBegin>},
     {"DownloadComplete", &TellPlain<&BrowserSink::DownloadComplete>}}};

void WriteLog(const std::vector<PaneCall>& log, CallAnswer& answer) {
    answer.result.clear();
    JsonWriter writer(answer.result);
    writer.BeginArray();
    for (const PaneCall& call : log) {
        writer.BeginArray();
        writer.String(call.name);
        for (const auto& argument : call.arguments)
            std::visit([&](const auto& value) { Write(writer, value); }, argument);
        writer.EndArray();
    }
    writer.EndArray();
}

} // namespace

void Bridge::Pane(const Json& request, CallAnswer& answer) {
    HeadlessPane& pane = platform_.Pane();
    const Json& what = request.at("pane");
    if (what == "hold") {
        pane.Hold();
    } else if (what == "log") {
        WriteLog(pane.TakeLog(), answer);
    } else if (what.is_object()) {
        const auto busy = ReadKey<Flag>(what, "Busy");
        const auto readyState = ReadKey<Long>(what, "ReadyState");
        pane.Report(ReadKey<Text>(what, "LocationURL"), ReadKey<Text>(what, "LocationName"),
                    busy ? std::optional<bool>(*busy) : std::nullopt,
                    readyState ? std::optional(static_cast<LoadState>(*readyState)) : std::nullopt);
    } else {
        throw Refusal("pane must be hold, log or an object of what a held pane reports.");
    }
}

void Bridge::Browser(const Json& request, CallAnswer& answer) {
    Text name;
    Read(request.at("browser"), Place{"browser"}, name);
    static const Json none = Json::array();
    const auto given = request.find("args");
    Arguments arguments(given == request.end() ? none : *given, "args", name);
    for (const PaneEvent& event : PaneEvents)
        if (event.name == name) {
            BrowserSink* sink = platform_.Pane().Sink();
            if (!sink) throw Refusal("Nobody listens to the pane.");
            return event.raise(*sink, arguments, answer);
        }
    RefuseUnknown("Pane event", ToUtf8(name));
}

} // namespace ostrel::bridge
