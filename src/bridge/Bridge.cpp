#include "bridge/Bridge.h"

#include <new>

#include "bridge/FieldValues.h"
#include "bridge/Refusal.h"
#include "bridge/Values.h"

namespace ostrel::bridge {

namespace {

/// How deep the requests of listener rules may be nested, and how many one line may carry out inside the
/// events of one another. Rules that raise the events that they listen to would otherwise run without an end.
constexpr int MaxNestedRequests = 64;
constexpr long MaxInnerRequests = 100'000;

/// Runs the work. Returns an empty text, or the error message if it failed.
template <class Work>
std::string Attempt(const Work& work) {
    try {
        work();
        return {};
    } catch (const Refusal& refusal) {
        return refusal.sentence;
    } catch (const std::bad_alloc&) {
        return "There is not enough memory for this request.";
    } catch (...) {
        return "The request failed.";
    }
}

/// Returns the request's id as JSON, or an empty text if it has no id.
std::string IdOf(const Json& request) {
    const auto id = request.find("id");
    if (id == request.end()) return {};
    if (!id->is_string() && !id->is_number()) throw Refusal("The id must be a text or a number.");
    return id->dump();
}

bool IsQuiet(const Json& request) {
    const auto quiet = request.find("quiet");
    if (quiet == request.end()) return false;
    Flag value;
    Read(*quiet, Place{"quiet"}, value);
    return value;
}

/// Adds a key with the array of what was gathered, where anything was.
void AddGathered(JsonWriter& writer, std::string_view key, const std::string& inside) {
    if (inside.empty()) return;
    writer.Key(key);
    writer.Array(inside);
}
template <class Element, class WriteElement>
void AddGathered(JsonWriter& writer, std::string_view key, const std::vector<Element>& gathered,
                 const WriteElement& write) {
    if (gathered.empty()) return;
    writer.Key(key);
    writer.BeginArray();
    for (const Element& element : gathered) write(element);
    writer.EndArray();
}

std::string_view WordOf(MessageKind kind) {
    switch (kind) {
    case MessageKind::Error:
        return "error";
    case MessageKind::Info:
        return "info";
    case MessageKind::Warn:
        return "warn";
    case MessageKind::Query:
        return "query";
    }
    return {};
}

} // namespace

Bridge::Bridge(HeadlessPlatform& platform)
    : platform_(platform), user_(platform),
      events_([this](const Json& request) { CarryOutNested(request); }) {
    MakeControl();
    web_->InitProperties();
}

Bridge::~Bridge() { EndControl(); }

void Bridge::MakeControl() {
    web_ = std::make_unique<OstrelWebHelp>(
        platform_,
        [this](EventBase& event, std::span<const ArgumentRef> arguments) { events_.Hear(event, arguments); });
    web_->PropertyChanged = [this](const Text& name) {
        if (!changed_.empty()) changed_ += ',';
        JsonWriter(changed_).String(name);
    };
}

void Bridge::EndControl() {
    if (web_) web_->Terminate();
    web_.reset();
}

std::string Bridge::Answer(std::string_view line) {
    std::string id, text;
    std::string error = Attempt([&] {
        const Json request = ParseRequest(line);
        id = IdOf(request);
        const bool quiet = IsQuiet(request);
        events_.NoteEvents(!quiet);
        inner_ = 0;
        // Real time has passed since the last line. Virtual time has not.
        if (!platform_.VirtualTime() && platform_.clock->Pending()) platform_.clock->Yield();
        CallAnswer answer;
        CarryOut(request, answer);
        text = Compose(id, answer, quiet);
    });
    if (error.empty()) return text;
    text.clear();
    JsonWriter writer(text);
    writer.BeginObject();
    if (!id.empty()) {
        writer.Key("id");
        writer.Raw(id);
    }
    writer.Key("error");
    writer.Utf8(error);
    writer.EndObject();
    return text;
}

const std::vector<Bridge::Verb>& Bridge::Verbs() {
    static const std::vector<Verb> verbs{
        {"on", &Bridge::On},
        {"off", &Bridge::Off},
        {"form", &Bridge::QueueUser},
        {"call", &Bridge::Call},
        {"get", &Bridge::Get},
        {"set", &Bridge::Set},
        {"resize", &Bridge::ResizeControl},
        {"press", &Bridge::Press},
        {"type", &Bridge::Type},
        {"look", &Bridge::Look},
        {"mouse", &Bridge::Mouse},
        {"pane", &Bridge::Pane},
        {"browser", &Bridge::Browser},
        {"advance", &Bridge::Advance},
        {"clipboard", &Bridge::UseClipboard},
        {"screen", &Bridge::SizeScreen},
        {"transfer", &Bridge::Transfer},
        {"ticks", &Bridge::Ticks},
        {"new", &Bridge::Renew},
        {"write", &Bridge::WriteBag},
        {"describe", &Bridge::Describe},
    };
    return verbs;
}

void Bridge::CarryOut(const Json& request, CallAnswer& answer) {
    // An event of the construction or of the end finds no control to carry a request out on.
    if (!web_) throw Refusal("There is no control at this moment.");
    for (const Verb& verb : Verbs())
        if (request.contains(verb.name)) return (this->*verb.carry)(request, answer);
    throw Refusal("The request has no verb that is known.");
}

void Bridge::CarryOutNested(const Json& request) {
    if (depth_ >= MaxNestedRequests || inner_ >= MaxInnerRequests) return;
    if (depth_ > 0) ++inner_;
    ++depth_;
    Attempt([&] {
        CallAnswer dropped;
        CarryOut(request, dropped);
    });
    --depth_;
}

std::string Bridge::Compose(const std::string& id, const CallAnswer& answer, bool quiet) {
    std::string text;
    JsonWriter writer(text);
    writer.BeginObject();
    if (!id.empty()) {
        writer.Key("id");
        writer.Raw(id);
    }
    writer.Key("result");
    writer.Raw(answer.result);
    if (!answer.out.empty()) {
        writer.Key("out");
        writer.Object(answer.out);
    }
    const std::string events = events_.TakeEvents();
    if (!quiet) AddGathered(writer, "events", events);
    AddScreen(writer);
    writer.EndObject();
    return text;
}

void Bridge::AddScreen(JsonWriter& writer) {
    AddGathered(writer, "messages", user_.TakeMessages(), [&](const ShownMessage& message) {
        writer.BeginArray();
        writer.Utf8(WordOf(message.kind));
        writer.String(message.text);
        writer.String(message.title);
        writer.EndArray();
    });
    AddGathered(writer, "seen", user_.TakeSeen(), [&](const Sight& sight) {
        writer.BeginArray();
        writer.String(sight.form);
        writer.String(sight.what);
        std::visit([&](const auto& value) { Write(writer, value); }, sight.value);
        writer.EndArray();
    });
    if (const Long beeps = platform_.Display().TakeBeeps()) {
        writer.Key("beeps");
        writer.Whole(beeps);
    }
    AddGathered(writer, "changed", std::exchange(changed_, {}));
    AddGathered(writer, "shown", user_.TakeShown(), [&](const Text& form) { writer.String(form); });
}

} // namespace ostrel::bridge
