// measure_startup ROUNDS BARE PROGRAM: starts the bare window, the bare window with as many
// controls as PROGRAM has, and PROGRAM in turn, as often as told, and prints the medians of the
// time from the start until the window is on the screen, and until it is drawn. Fails when PROGRAM,
// drawn, takes more than its share beside the bare controls.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr double Limit = 1.3;

double Median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

struct Search {
    DWORD process;
    HWND found;
};

BOOL CALLBACK TakeIfShown(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == search.process && IsWindowVisible(window) &&
        GetWindow(window, GW_OWNER) == nullptr) {
        search.found = window;
    }
    return search.found == nullptr;
}

HWND WaitForWindow(DWORD process) {
    Search search = {process, nullptr};
    while (search.found == nullptr) {
        EnumWindows(TakeIfShown, reinterpret_cast<LPARAM>(&search));
        Sleep(1);  // a busy loop would slow down what it measures
    }
    return search.found;
}

struct Samples {
    std::vector<double> shown;
    std::vector<double> drawn;
};

void MeasureOnce(std::string line, Samples& samples) {
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::duration<double, std::milli>;
    STARTUPINFOA info = {};
    info.cb = sizeof info;
    PROCESS_INFORMATION process = {};
    const auto start = Clock::now();
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info,
                        &process)) {
        std::fprintf(stderr, "cannot start %s\n", line.c_str());
        std::exit(2);
    }
    const HWND window = WaitForWindow(process.dwProcessId);
    samples.shown.push_back(Milliseconds(Clock::now() - start).count());
    // It answers once it is back in its event loop, with its first drawing done.
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 20000, &answer);
    samples.drawn.push_back(Milliseconds(Clock::now() - start).count());
    TerminateProcess(process.hProcess, 0);
    WaitForSingleObject(process.hProcess, INFINITE);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void Report(const char* what, const Samples& samples, const Samples& ours) {
    std::printf("%-28s shown %6.1f ms   drawn %6.1f ms   zorvane takes %.2f and %.2f times that\n",
                what, Median(samples.shown), Median(samples.drawn),
                Median(ours.shown) / Median(samples.shown),
                Median(ours.drawn) / Median(samples.drawn));
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::fputs("usage: measure_startup ROUNDS BARE PROGRAM\n", stderr);
        return 2;
    }
    Samples bare;
    Samples form;
    Samples ours;
    const std::string bareLine = std::string("\"") + arguments[2] + "\"";
    const std::string ourLine = std::string("\"") + arguments[3] + "\"";
    for (int round = 0; round < std::atoi(arguments[1]); ++round) {
        MeasureOnce(bareLine, bare);
        MeasureOnce(bareLine + " form", form);
        MeasureOnce(ourLine, ours);
    }
    Report("a window with one label", bare, ours);
    Report("as many plain controls", form, ours);
    Report("zorvane", ours, ours);
    return Median(ours.drawn) <= Limit * Median(form.drawn) ? 0 : 1;
}
