#pragma once

#include <array>
#include <chrono>
#include <string>
#include <thread>

#include <unistd.h>

#include "platform/Clock.h"

namespace ostrel::test {

/// Both ends of a pipe, closed at the end.
struct Pipe {
    Pipe() {
        if (::pipe(ends.data()) != 0) ends = {-1, -1};
    }
    ~Pipe() {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    std::array<int, 2> ends{};
};

/// What ends the sleeps of a clock, in order. A sleep that nothing has ended shows as "late"; one that ends
/// again and again with nothing done, as "spins".
inline Text SleepLog(Clock& clock) {
    Text log;
    const Pipe silent, speaking;
    std::array<WakeSource, 3> sources{{{.descriptor = silent.ends[0]}, {.descriptor = -1}, {}}};
    const auto late = clock.MakeTimer([&] { log += "late "; });
    const auto sleepUntil = [&](const char* word) {
        for (int sleeps = 0; log.find(word) == Text::npos && log.find("late") == Text::npos; ++sleeps) {
            if (sleeps == 100) log += "spins ";
            if (sleeps >= 100) return;
            if (!clock.Sleep(20'000, sources)) continue;
            for (std::size_t i = 0; i < sources.size(); ++i)
                if (sources[i].ready) log += "source" + std::to_string(i) + " ";
        }
    };
    late->Start(10'000, false);
    const auto early = clock.MakeTimer([&] { log += "timer "; });
    early->Start(30, false);
    sleepUntil("timer");
    clock.Post([&] { log += "posted "; });
    sleepUntil("posted");
    sources[2].descriptor = speaking.ends[0];
    std::thread other([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        (void)!::write(speaking.ends[1], "x", 1);
    });
    sleepUntil("source2");
    other.join();
    sources[2] = {.descriptor = speaking.ends[1], .read = false, .write = true};
    sources[1].descriptor = speaking.ends[0];
    sleepUntil("source1 source2");
    log += clock.Sleep(20, std::span(sources).first(1)) ? "ready" : "over";
    return log;
}

inline constexpr const char* ExpectedSleepLog = "timer posted source2 source1 source2 over";

} // namespace ostrel::test
