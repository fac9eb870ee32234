// From the start of the process to the first painted frame: the full window and an empty one, in
// turn, so that both meet the same machine. Run it on a display, or a virtual one.

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

void startsInTurn(benchmark::State& state) {
    Start full{};
    Start empty{};
    for ([[maybe_unused]] auto iteration : state) {
        for (auto [sum, program] :
             {std::pair{&empty, KALVO_START_EMPTY}, {&full, KALVO_START_FULL}}) {
            const Start one = start(program);
            sum->seconds += one.seconds;
            sum->processorSeconds += one.processorSeconds;
            sum->residentKilobytes += one.residentKilobytes;
            if (sum == &full) state.SetIterationTime(one.seconds);
        }
    }
    const auto count = static_cast<double>(state.iterations());
    state.counters["full_ms"] = full.seconds / count * 1e3;
    state.counters["empty_ms"] = empty.seconds / count * 1e3;
    state.counters["ratio"] = full.seconds / empty.seconds;
    state.counters["full_cpu_ms"] = full.processorSeconds / count * 1e3;
    state.counters["empty_cpu_ms"] = empty.processorSeconds / count * 1e3;
    state.counters["cpu_ratio"] = full.processorSeconds / empty.processorSeconds;
    state.counters["full_MB"] = full.residentKilobytes / count / 1024;
    state.counters["more_MB"] = (full.residentKilobytes - empty.residentKilobytes) / count / 1024;
}

BENCHMARK(startsInTurn)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
