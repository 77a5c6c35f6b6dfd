// measure_startup ROUNDS BARE PROGRAM: starts both programs in turn, as often as told, on a screen
// without a window manager, and prints the medians of the time from the start to the window on the
// screen and of the memory in use once it is drawn. Fails when PROGRAM takes more than its share.
#include <X11/Xlib.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr double timeLimit = 1.25;
constexpr double memoryLimit = 1.15;

struct Samples {
    std::vector<double> milliseconds;
    std::vector<double> kibibytes;
};

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

double ResidentKibibytes(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            return std::stod(line.substr(6));
        }
    }
    return 0;
}

void WaitForWindow(Display* display) {
    XEvent event;
    do {
        XNextEvent(display, &event);
    } while (event.type != MapNotify || event.xmap.override_redirect != 0);
}

void MeasureOnce(Display* display, const char* program, Samples& samples) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    std::array<char*, 2> arguments = {const_cast<char*>(program), nullptr};
    pid_t process = 0;
    if (posix_spawn(&process, program, nullptr, nullptr, arguments.data(), environ) != 0) {
        std::perror(program);
        std::exit(2);
    }
    WaitForWindow(display);
    const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
    samples.milliseconds.push_back(taken.count());
    std::this_thread::sleep_for(std::chrono::milliseconds(400));
    samples.kibibytes.push_back(ResidentKibibytes(process));
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

bool Report(const char* what, const std::vector<double>& bare, const std::vector<double>& ours,
            double limit) {
    const double ratio = Median(ours) / Median(bare);
    std::printf("%-18s bare window %8.1f   zorvane %8.1f   ratio %.2f (at most %.2f)\n", what,
                Median(bare), Median(ours), ratio, limit);
    return ratio <= limit;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    Display* display = argumentCount == 4 ? XOpenDisplay(nullptr) : nullptr;
    if (display == nullptr) {
        std::fputs("usage, on an X display: measure_startup ROUNDS BARE PROGRAM\n", stderr);
        return 2;
    }
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, False);
    Samples bare;
    Samples ours;
    for (int round = 0; round < std::atoi(arguments[1]); ++round) {
        MeasureOnce(display, arguments[2], bare);
        MeasureOnce(display, arguments[3], ours);
    }
    const bool fast = Report("time shown, ms", bare.milliseconds, ours.milliseconds, timeLimit);
    const bool small = Report("memory, KiB", bare.kibibytes, ours.kibibytes, memoryLimit);
    return fast && small ? 0 : 1;
}
