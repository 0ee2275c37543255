#include "platform/NullRoles.h"

#include <algorithm>

#include "platform/native/WaitForSources.h"

namespace ostrel {

namespace {

constexpr TextView Unavailable = "Device unavailable.";

class NullTimer final : public Timer {
public:
    void Start(Long milliseconds, bool) override { running_ = milliseconds > 0; }
    void Stop() override { running_ = false; }
    bool Running() const override { return running_; }

private:
    bool running_ = false;
};

class NullClock final : public Clock {
public:
    std::uint32_t Ticks() const override { return 0; }
    Date Now() const override { return {}; }
    std::unique_ptr<Timer> MakeTimer(std::function<void()>) override { return std::make_unique<NullTimer>(); }
    void Post(std::function<void()>) override {}
    bool Pending() const override { return false; }
    void Yield() override {}
    void Wait(Long) override {}
    bool Sleep(Long longest, std::span<WakeSource> sources) override {
        return !sources.empty() && WaitForSources(sources, std::max<Long>(longest, 0));
    }
};

class NullFiles final : public Files {
public:
    bool IsFile(const Text&) override { return false; }
    bool IsDirectory(const Text&) override { return false; }
    FileResult Size(const Text&, std::uint64_t&) override { return Failure(); }
    FileResult Written(const Text&, Date&) override { return Failure(); }
    FileResult Read(const Text&, Text&) override { return Failure(); }
    FileResult Open(const Text&, std::unique_ptr<FileReader>&) override { return Failure(); }
    FileResult Replace(const Text&, std::span<const TextView>, const Text&) override { return Failure(); }
    FileResult Delete(const Text&) override { return Failure(); }
    FileResult Rename(const Text&, const Text&) override { return Failure(); }
    FileResult ClearAttributes(const Text&) override { return Failure(); }
    FileResult MakeDirectory(const Text&) override { return Failure(); }
    FileResult ChangeDirectory(const Text&) override { return Failure(); }
    FileResult ChangeDrive(const Text&) override { return Failure(); }
    Text CurrentDirectory() override { return {}; }
    std::vector<Text> List(const Text&) override { return {}; }
    Text TemporaryDirectory() override { return {}; }
    FileResult MakeTemporary(const Text&, Text&) override { return Failure(); }
    Text ApplicationDirectory() override { return {}; }
    Text SystemErrorText(Long) override { return {}; }

private:
    static FileResult Failure() { return {68, Text(Unavailable)}; }
};

class NullSettings final : public SettingsStore {
public:
    std::optional<Text> Get(const Text&, const Text&, const Text&) override { return std::nullopt; }
    Text Save(const Text&, const Text&, const Text&, const Text&) override { return Text(Unavailable); }
    Text DeleteKey(const Text&, const Text&, const Text&) override { return Text(Unavailable); }
    Text DeleteSection(const Text&, const Text&) override { return Text(Unavailable); }
    std::optional<Variant> Query(Long, const Text&, const Text&) override { return std::nullopt; }
    Text Set(Long, const Text&, const Text&, const Variant&) override { return Text(Unavailable); }
};

class NullScreen final : public Screen {
public:
    void ShowModal(Form&) override {}
    MessageAnswer Message(MessageKind, const Text&, const Text&, MessageButtons) override {
        return MessageAnswer::None;
    }
    Bounds Area() const override { return {}; }
    /// Of 96 to the inch; layouts divide by it.
    Extent Pixel() const override { return {15, 15}; }
    Extent Measure(const Text&) const override { return {}; }
    void Beep() override {}
    void MousePointer(PointerShape) override {}
};

class NullClipboard final : public Clipboard {
public:
    Text GetText() override { return {}; }
    void SetText(const Text&) override {}
    void Clear() override {}
};

class NullPane final : public BrowserPane {
public:
    void Listen(BrowserSink*) override {}
    void Navigate(const Text&) override {}
    void Navigate(const Text&, const Text&) override {}
    void GoBack() override {}
    void GoForward() override {}
    void GoHome() override {}
    void GoSearch() override {}
    void Stop() override {}
    void Refresh2(RefreshLevel) override {}
    void ExecWB(PaneCommand, PaneCommandOption) override {}
    Text LocationName() const override { return {}; }
    Text LocationURL() const override { return {}; }
    bool Busy() const override { return false; }
    LoadState ReadyState() const override { return LoadState::Uninitialised; }
    bool Offline() const override { return false; }
    void Offline(bool) override {}
    Text DocumentText(const Text&) const override { return {}; }
    void Focus() override {}
};

class NullTransfers final : public Transfers {
public:
    bool Connected() override { return false; }
};

template <class Interface, class Null>
Interface& Only() {
    static Null object;
    return object;
}

} // namespace

template <>
Clock& NullObject<Clock>() {
    return Only<Clock, NullClock>();
}

template <>
Files& NullObject<Files>() {
    return Only<Files, NullFiles>();
}

template <>
SettingsStore& NullObject<SettingsStore>() {
    return Only<SettingsStore, NullSettings>();
}

template <>
Screen& NullObject<Screen>() {
    return Only<Screen, NullScreen>();
}

template <>
Clipboard& NullObject<Clipboard>() {
    return Only<Clipboard, NullClipboard>();
}

template <>
BrowserPane& NullObject<BrowserPane>() {
    return Only<BrowserPane, NullPane>();
}

template <>
Transfers& NullObject<Transfers>() {
    return Only<Transfers, NullTransfers>();
}

} // namespace ostrel
