#pragma once

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "platform/BrowserPane.h"
#include "platform/Clock.h"
#include "platform/Files.h"
#include "platform/headless/PageText.h"

namespace ostrel {

/// One request to a pane: its name and arguments.
struct PaneCall {
    Text name;
    std::vector<std::variant<Text, Long>> arguments;
};

/// A browser pane without an engine or a picture. It loads local files and their frames, keeps a history,
/// and raises the events from the loop, in this order: BeforeNavigate2, DownloadBegin, StatusTextChange,
/// ProgressChange a chunk, NavigateComplete2, TitleChange and what changed of the forward and back states,
/// the events of the frames, StatusTextChange "done", DocumentComplete, DownloadComplete. A refresh tells no
/// navigation and no DocumentComplete; a load that fails leaves the page that is there and ends with
/// StatusTextChange and DownloadComplete. Addresses other than local files always fail. Local pages are
/// reported by the very text given to `Navigate`.
class HeadlessPane final : public BrowserPane {
public:
    HeadlessPane(Clock& clock, Files& files) : clock_(clock), files_(files) {}

    /// A new listener finds a fresh pane, but for what is held.
    void Listen(BrowserSink* sink) override;
    void Navigate(const Text& url) override;
    /// A target that names a frame loads there; any other, except the page itself, requests a new window.
    void Navigate(const Text& url, const Text& target) override;
    void GoBack() override;
    void GoForward() override;
    void GoHome() override;
    void GoSearch() override;
    void Stop() override;
    void Refresh2(RefreshLevel level) override;
    /// Prints to the list of `TakePrinted`; other commands do nothing.
    void ExecWB(PaneCommand command, PaneCommandOption option) override;
    Text LocationName() const override { return page_.title; }
    Text LocationURL() const override { return page_.url; }
    bool Busy() const override { return busy_; }
    LoadState ReadyState() const override { return readyState_; }
    bool Offline() const override { return offline_; }
    void Offline(bool offline) override { offline_ = offline; }
    Text DocumentText(const Text& word) const override;
    void Focus() override { ++focused_; }

    // For tests and tools that play the engine or check what it was asked.

    /// Only logs requests from now on: no load, no event.
    void Hold();
    /// Sets what a held pane reports; fields that are not given keep their values.
    void Report(std::optional<Text> url, std::optional<Text> name, std::optional<bool> busy,
                std::optional<LoadState> readyState);
    /// Returns the requests since the last call.
    std::vector<PaneCall> TakeLog() { return std::exchange(log_, {}); }
    /// The addresses that were printed since the last taking.
    std::vector<Text> TakePrinted() { return std::exchange(printed_, {}); }
    /// The addresses that were to open in a window of their own since the last taking.
    std::vector<Text> TakeWindows() { return std::exchange(windows_, {}); }
    /// The number of refreshes of that level.
    Long Refreshes(RefreshLevel level) const;
    /// How often it was given the focus.
    Long Focused() const { return focused_; }
    /// The listener of the events, or null. Call it to raise an event by hand.
    BrowserSink* Sink() const { return sink_; }

private:
    enum class Way { Plain, History, Refresh, Frame };
    struct Page {
        Text url;
        Text title;
        Text html;
    };
    /// One load in progress. Only the newest one continues.
    struct Load {
        Way way = Way::Plain;
        Text url;
        Text target;
        std::size_t place = 0;
        bool begun = false;
        std::unique_ptr<FileReader> reader;
        std::uint64_t size = 0;
        std::uint64_t read = 0;
        Text html;
    };
    using LoadPointer = std::shared_ptr<Load>;

    void Note(Text name, std::vector<std::variant<Text, Long>> arguments = {});
    /// A new pane is blank already, so a navigation to the blank page raises no events.
    void ShowBlankPage();
    void Start(Way way, const Text& url, const Text& target = {}, std::size_t place = 0);
    void Abandon();
    /// Runs the step through the loop, unless the load has been replaced by then.
    void Later(const LoadPointer& load, void (HeadlessPane::*step)(const LoadPointer&));
    /// Whether the load still runs and has a listener; checked after every event.
    bool Runs(const LoadPointer& load) const { return load_ == load && sink_; }
    void Begin(const LoadPointer& load);
    void ReadOn(const LoadPointer& load);
    void Commit(const LoadPointer& load);
    void CommitFrame(const LoadPointer& load);
    void Fail(const LoadPointer& load);
    void EndLoad(const LoadPointer& load);
    bool TellStates(const LoadPointer& load);
    bool LoadFrames(const LoadPointer& load, const Text& url, const Text& html, int depth, int& budget);
    bool ReadFrame(const Text& path, Text& content);
    bool HasFrame(const Text& name) const;
    bool OpenFile(Load& load);
    void TellDownloadComplete();

    Clock& clock_;
    Files& files_;
    BrowserSink* sink_ = nullptr;
    bool held_ = false;
    bool offline_ = false;
    bool busy_ = false;
    LoadState readyState_ = LoadState::Uninitialised;
    Page page_;
    std::vector<Text> history_;
    std::size_t place_ = 0;
    /// The last reported ability to go back and forward; empty before the first page.
    std::optional<bool> canForward_;
    std::optional<bool> canBack_;
    LoadPointer load_;
    /// Dies with the pane, so that posted work finds out.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);

    std::vector<PaneCall> log_;
    std::vector<Text> printed_;
    std::vector<Text> windows_;
    std::map<RefreshLevel, Long> refreshes_;
    Long focused_ = 0;
};

} // namespace ostrel
