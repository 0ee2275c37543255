#include "platform/headless/HeadlessPane.h"

#include <algorithm>
#include <limits>

#include "text/CodePage.h"

namespace ostrel {

namespace {

constexpr TextView BlankPage = "about:blank";
constexpr std::size_t ChunkSize = 256 * 1024;
/// What is kept of a page; titles, frames and texts come from there.
constexpr std::size_t MostKept = 64 * 1024 * 1024;
/// What is read of a frame inside it.
constexpr std::size_t MostOfFrame = 4 * 1024 * 1024;
constexpr std::size_t MostNoted = 100'000;
constexpr int MostFrames = 64;
constexpr int DeepestFrame = 8;

Text NameOf(const Text& url) {
    const std::size_t cut = url.find_last_of("\\/");
    return cut == NotFound || cut + 1 == url.size() ? url : url.substr(cut + 1);
}

/// Progress is reported in 32 bits; larger files are scaled down.
Long Scaled(std::uint64_t value, std::uint64_t size) {
    constexpr std::uint64_t Most = std::numeric_limits<Long>::max();
    return static_cast<Long>(size <= Most ? value : value / (size / Most + 1));
}

template <class T>
void AppendBounded(std::vector<T>& list, T value) {
    if (list.size() < MostNoted) list.push_back(std::move(value));
}

} // namespace

void HeadlessPane::Listen(BrowserSink* sink) {
    if (sink == sink_) return;
    sink_ = sink;
    load_.reset();
    history_.clear();
    place_ = 0;
    canForward_.reset();
    canBack_.reset();
    offline_ = false;
    if (held_) return;
    busy_ = false;
    readyState_ = LoadState::Uninitialised;
    page_ = {};
}

void HeadlessPane::Note(Text name, std::vector<std::variant<Text, Long>> arguments) {
    AppendBounded(log_, {std::move(name), std::move(arguments)});
}

void HeadlessPane::Navigate(const Text& url) {
    Note("Navigate", {url});
    if (held_) return;
    if (history_.empty() && !load_ && url == BlankPage) return ShowBlankPage();
    Start(Way::Plain, url);
}

void HeadlessPane::ShowBlankPage() {
    page_ = {.url = Text(BlankPage), .title = NameOf(Text(BlankPage)), .html = {}};
    history_ = {page_.url};
    place_ = 0;
    readyState_ = LoadState::Complete;
}

void HeadlessPane::Navigate(const Text& url, const Text& target) {
    Note("Navigate", {url, target});
    if (held_) return;
    const bool same = target.empty() || EqualText(target, "_self") || EqualText(target, "_top") ||
                      EqualText(target, "_parent");
    if (same) return Start(Way::Plain, url, target);
    if (HasFrame(target)) return Start(Way::Frame, url, target);
    AppendBounded(windows_, url);
    clock_.Post([this, alive = std::weak_ptr(alive_)] {
        if (!alive.expired() && sink_) sink_->NewWindow2(true);
    });
}

void HeadlessPane::GoBack() {
    Note("GoBack");
    if (!held_ && place_ > 0 && !history_.empty()) Start(Way::History, history_[place_ - 1], {}, place_ - 1);
}

void HeadlessPane::GoForward() {
    Note("GoForward");
    if (!held_ && place_ + 1 < history_.size()) Start(Way::History, history_[place_ + 1], {}, place_ + 1);
}

void HeadlessPane::GoHome() {
    Note("GoHome");
    if (!held_) Start(Way::Plain, Text(BlankPage));
}

void HeadlessPane::GoSearch() {
    Note("GoSearch");
    if (!held_) Start(Way::Plain, Text(BlankPage));
}

void HeadlessPane::Stop() {
    Note("Stop");
    if (!held_) Abandon();
}

void HeadlessPane::Refresh2(RefreshLevel level) {
    Note("Refresh2", {static_cast<Long>(level)});
    ++refreshes_[level];
    if (!held_ && !page_.url.empty()) Start(Way::Refresh, page_.url);
}

void HeadlessPane::ExecWB(PaneCommand command, PaneCommandOption option) {
    Note("ExecWB", {static_cast<Long>(command), static_cast<Long>(option)});
    if (held_ || command != PaneCommand::Print) return;
    // A page that is still loading would be printed blank.
    while (load_ && clock_.Pending()) clock_.Yield();
    AppendBounded(printed_, page_.url);
}

Text HeadlessPane::DocumentText(const Text& word) const {
    if (word == "innerhtml") return Text(headless::BodyOf(page_.html, false));
    if (word == "outerhtml") return Text(headless::BodyOf(page_.html, true));
    if (word == "innertext" || word == "outertext")
        return headless::PlainText(headless::BodyOf(page_.html, false));
    return {};
}

void HeadlessPane::Hold() {
    held_ = true;
    if (!load_) return;
    load_.reset();
    busy_ = false;
    readyState_ = LoadState::Complete;
}

void HeadlessPane::Report(std::optional<Text> url, std::optional<Text> name, std::optional<bool> busy,
                          std::optional<LoadState> readyState) {
    if (url) page_.url = *url;
    if (name) page_.title = *name;
    if (busy) busy_ = *busy;
    if (readyState) readyState_ = *readyState;
}

Long HeadlessPane::Refreshes(RefreshLevel level) const {
    const auto hit = refreshes_.find(level);
    return hit == refreshes_.end() ? 0 : hit->second;
}

void HeadlessPane::Start(Way way, const Text& url, const Text& target, std::size_t place) {
    Abandon();
    load_ = std::make_shared<Load>();
    load_->way = way;
    load_->url = url;
    load_->target = target;
    load_->place = place;
    busy_ = true;
    readyState_ = LoadState::Loading;
    Later(load_, &HeadlessPane::Begin);
}

void HeadlessPane::Abandon() {
    if (!load_) return;
    const bool begun = load_->begun;
    load_.reset();
    busy_ = false;
    readyState_ = LoadState::Complete;
    if (begun) TellDownloadComplete();
}

void HeadlessPane::TellDownloadComplete() {
    clock_.Post([this, alive = std::weak_ptr(alive_), sink = sink_] {
        if (!alive.expired() && sink_ && sink_ == sink) sink_->DownloadComplete();
    });
}

void HeadlessPane::Later(const LoadPointer& load, void (HeadlessPane::*step)(const LoadPointer&)) {
    // The pane alone owns its load, so a pane that is gone leaves nothing to lock.
    clock_.Post([this, step, waiting = std::weak_ptr(load)] {
        const LoadPointer here = waiting.lock();
        if (here && Runs(here)) (this->*step)(here);
    });
}

bool HeadlessPane::OpenFile(Load& load) {
    if (EqualText(load.url, BlankPage)) return true;
    Text path = headless::LocalPath(load.url);
    if (path.empty()) return false;
    if (!files_.IsFile(path)) path = path.substr(0, path.find('#'));
    if (!files_.IsFile(path)) return false;
    if (!files_.Size(path, load.size)) return false;
    return static_cast<bool>(files_.Open(path, load.reader));
}

void HeadlessPane::Begin(const LoadPointer& load) {
    if (load->way != Way::Refresh) {
        Text url = load->url, target = load->target;
        Flag cancel = false;
        sink_->BeforeNavigate2(url, target, cancel, load->way != Way::Frame);
        if (!Runs(load)) return;
        if (cancel) return Abandon();
    }
    load->begun = true;
    sink_->DownloadBegin();
    if (!Runs(load)) return;
    sink_->StatusTextChange("Opening page " + load->url + "...");
    if (!Runs(load)) return;
    if (!OpenFile(*load)) return Fail(load);
    Later(load, &HeadlessPane::ReadOn);
}

void HeadlessPane::ReadOn(const LoadPointer& load) {
    std::size_t count = 0;
    if (load->reader) {
        Text chunk(ChunkSize, '\0');
        if (!load->reader->Read(chunk.data(), chunk.size(), count)) return Fail(load);
        chunk.resize(count);
        load->read += count;
        if (load->html.size() < MostKept) load->html += chunk;
    }
    if (count == 0) {
        load->reader.reset();
        return load->way == Way::Frame ? CommitFrame(load) : Commit(load);
    }
    load->size = std::max(load->size, load->read);
    sink_->ProgressChange(Scaled(load->read, load->size), Scaled(load->size, load->size));
    if (Runs(load)) Later(load, &HeadlessPane::ReadOn);
}

void HeadlessPane::Commit(const LoadPointer& load) {
    page_.url = load->url;
    page_.html = std::move(load->html);
    page_.title = headless::TitleOf(page_.html);
    if (page_.title.empty()) page_.title = NameOf(page_.url);
    readyState_ = LoadState::Interactive;
    if (load->way == Way::Plain) {
        if (!history_.empty()) history_.resize(place_ + 1);
        history_.push_back(page_.url);
        place_ = history_.size() - 1;
    } else if (load->way == Way::History) {
        place_ = load->place;
    }
    if (load->way != Way::Refresh) {
        sink_->NavigateComplete2(load->url, true);
        if (!Runs(load)) return;
    }
    sink_->TitleChange(page_.title);
    if (!Runs(load) || !TellStates(load)) return;
    int budget = MostFrames;
    if (!LoadFrames(load, load->url, Text(page_.html), 0, budget)) return;
    EndLoad(load);
}

bool HeadlessPane::TellStates(const LoadPointer& load) {
    const bool forward = place_ + 1 < history_.size();
    const bool back = place_ > 0;
    if (std::exchange(canForward_, forward) != forward) {
        sink_->CommandStateChange(HistoryCommand::Forward, forward);
        if (!Runs(load)) return false;
    }
    if (std::exchange(canBack_, back) != back) {
        sink_->CommandStateChange(HistoryCommand::Back, back);
        if (!Runs(load)) return false;
    }
    return true;
}

bool HeadlessPane::LoadFrames(const LoadPointer& load, const Text& url, const Text& html, int depth,
                              int& budget) {
    if (depth >= DeepestFrame) return true;
    for (const auto& frame : headless::FramesOf(html, MostFrames)) {
        if (budget-- <= 0) return true;
        Text address = headless::ResolveAddress(url, frame.source);
        Text name = frame.name;
        const Text inner = address;
        Flag cancel = false;
        sink_->BeforeNavigate2(address, name, cancel, false);
        if (!Runs(load)) return false;
        const Text path = headless::LocalPath(inner);
        Text content;
        if (cancel || path.empty() || !files_.IsFile(path) || !ReadFrame(path, content)) continue;
        sink_->NavigateComplete2(inner, false);
        if (!Runs(load) || !LoadFrames(load, inner, content, depth + 1, budget)) return false;
        sink_->DocumentComplete(inner, false);
        if (!Runs(load)) return false;
    }
    return true;
}

bool HeadlessPane::ReadFrame(const Text& path, Text& content) {
    std::unique_ptr<FileReader> reader;
    if (!files_.Open(path, reader)) return false;
    std::size_t count = ChunkSize;
    Text chunk(ChunkSize, '\0');
    while (count > 0 && content.size() < MostOfFrame) {
        if (!reader->Read(chunk.data(), chunk.size(), count)) return false;
        content.append(chunk, 0, count);
    }
    return true;
}

bool HeadlessPane::HasFrame(const Text& name) const {
    const auto frames = headless::FramesOf(page_.html, MostFrames);
    return std::any_of(frames.begin(), frames.end(),
                       [&](const auto& frame) { return EqualText(frame.name, name); });
}

void HeadlessPane::CommitFrame(const LoadPointer& load) {
    sink_->NavigateComplete2(load->url, false);
    if (!Runs(load)) return;
    int budget = MostFrames;
    if (!LoadFrames(load, load->url, Text(load->html), 1, budget)) return;
    EndLoad(load);
}

void HeadlessPane::EndLoad(const LoadPointer& load) {
    busy_ = false;
    readyState_ = LoadState::Complete;
    sink_->StatusTextChange("done");
    if (!Runs(load)) return;
    // A listener may start the next load from here on; the events of this one are still completed.
    load_.reset();
    if (load->way != Way::Refresh) sink_->DocumentComplete(load->url, load->way != Way::Frame);
    if (sink_) sink_->DownloadComplete();
}

void HeadlessPane::Fail(const LoadPointer& load) {
    load_.reset();
    busy_ = false;
    readyState_ = LoadState::Complete;
    sink_->StatusTextChange("Can't open page " + load->url);
    if (sink_) sink_->DownloadComplete();
}

} // namespace ostrel
