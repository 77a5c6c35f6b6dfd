// measure_startup ROUNDS TIME MEMORY PROGRAM BARE...: starts the commands in turn, as often as
// told, on a screen without a window manager, and prints the medians of the time from the start to
// the window on the screen and of the memory in use once it is drawn. Fails when PROGRAM takes more
// than TIME times as long or MEMORY times as much as the first BARE.
#include <X11/Xlib.h>
#include <poll.h>
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

/// Waits for the next window that a program, and not a menu or a tip, puts on the screen.
void WaitForWindow(Display* display) {
    constexpr int patience = 30000;  // milliseconds
    XEvent event;
    do {
        pollfd events = {ConnectionNumber(display), POLLIN, 0};
        if (XPending(display) == 0 && poll(&events, 1, patience) <= 0) {
            std::fputs("The program shows no window\n", stderr);
            std::exit(2);
        }
        XNextEvent(display, &event);
    } while (event.type != MapNotify || event.xmap.override_redirect != 0);
}

void MeasureOnce(Display* display, const std::string& command, Samples& samples) {
    using Clock = std::chrono::steady_clock;
    XSync(display, True);  // nothing that the program before it did counts
    const auto start = Clock::now();
    const std::string line = "exec " + command;
    const char* const arguments[] = {"sh", "-c", line.c_str(), nullptr};
    pid_t process = 0;
    if (posix_spawn(&process, "/bin/sh", nullptr, nullptr, const_cast<char**>(arguments),
                    environ) != 0) {
        std::perror("/bin/sh");
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

}  // namespace

int main(int argumentCount, char** arguments) {
    Display* display = argumentCount > 5 ? XOpenDisplay(nullptr) : nullptr;
    if (display == nullptr) {
        std::fputs("usage, on an X display: measure_startup ROUNDS TIME MEMORY PROGRAM BARE...\n",
                   stderr);
        return 2;
    }
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    const std::vector<std::string> commands(arguments + 4, arguments + argumentCount);
    std::vector<Samples> samples(commands.size());
    for (int round = 0; round < std::atoi(arguments[1]); ++round) {
        for (std::size_t at = 0; at < commands.size(); ++at) {
            MeasureOnce(display, commands[at], samples[at]);
        }
    }
    const double time = Median(samples[0].milliseconds);
    const double memory = Median(samples[0].kibibytes);
    std::printf("shown after %6.1f ms, %7.0f KiB   %s\n", time, memory, commands[0].c_str());
    for (std::size_t at = 1; at < commands.size(); ++at) {
        const double bareTime = Median(samples[at].milliseconds);
        const double bareMemory = Median(samples[at].kibibytes);
        std::printf("shown after %6.1f ms, %7.0f KiB   %s: %.2f times the time, %.2f the memory\n",
                    bareTime, bareMemory, commands[at].c_str(), time / bareTime,
                    memory / bareMemory);
    }
    const bool isFast = time <= std::atof(arguments[2]) * Median(samples[1].milliseconds);
    const bool isSmall = memory <= std::atof(arguments[3]) * Median(samples[1].kibibytes);
    return isFast && isSmall ? 0 : 1;
}
