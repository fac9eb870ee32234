// From the start of the process to the first painted frame: the full window, an empty one and one
// with plain controls, in turn, so that all meet the same machine. Run it on a display, or a
// virtual one.

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Start {
    double seconds;           // on the wall
    double processorSeconds;  // of the process, system time included
    double residentKilobytes;
};

double seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs a program that prints its resident memory and ends at its first frame.
Start start(const char* program) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) std::abort();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    std::string name(program);
    std::array<char*, 2> arguments{name.data(), nullptr};

    const auto begin = std::chrono::steady_clock::now();
    pid_t child = 0;
    if (posix_spawn(&child, program, &actions, nullptr, arguments.data(), environ) != 0) {
        std::abort();
    }
    close(ends[1]);
    std::FILE* output = fdopen(ends[0], "r");
    double resident = 0;
    if (std::fscanf(output, "%lf", &resident) != 1) std::abort();
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
    std::fclose(output);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    return {wall.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime), resident};
}

/// The sum of several starts of one program.
struct Starts {
    const char* program;
    Start sum{};

    double startOnce() {
        const Start one = start(program);
        sum.seconds += one.seconds;
        sum.processorSeconds += one.processorSeconds;
        sum.residentKilobytes += one.residentKilobytes;
        return one.seconds;
    }
};

void startsInTurn(benchmark::State& state) {
    Starts empty{KALVO_START_EMPTY};
    Starts controls{KALVO_START_CONTROLS};
    Starts full{KALVO_START_FULL};
    for ([[maybe_unused]] auto iteration : state) {
        empty.startOnce();
        controls.startOnce();
        state.SetIterationTime(full.startOnce());
    }
    const auto count = static_cast<double>(state.iterations());
    const auto milliseconds = [count](double seconds) { return seconds / count * 1e3; };
    state.counters["full_ms"] = milliseconds(full.sum.seconds);
    state.counters["empty_ms"] = milliseconds(empty.sum.seconds);
    state.counters["ratio"] = full.sum.seconds / empty.sum.seconds;
    state.counters["controls_ratio"] = controls.sum.seconds / empty.sum.seconds;
    state.counters["full_cpu_ms"] = milliseconds(full.sum.processorSeconds);
    state.counters["empty_cpu_ms"] = milliseconds(empty.sum.processorSeconds);
    state.counters["cpu_ratio"] = full.sum.processorSeconds / empty.sum.processorSeconds;
    state.counters["full_MB"] = full.sum.residentKilobytes / count / 1024;
    state.counters["more_MB"] =
        (full.sum.residentKilobytes - empty.sum.residentKilobytes) / count / 1024;
}

BENCHMARK(startsInTurn)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
