// measure_startup ROUNDS BARE PROGRAM: starts both programs in turn, as often as told, and prints
// the medians of the time from the start until the window is on the screen and drawn. Fails when
// PROGRAM takes more than its share.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
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

void MeasureOnce(char* program, Samples& samples) {
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::duration<double, std::milli>;
    STARTUPINFOA info = {};
    info.cb = sizeof info;
    PROCESS_INFORMATION process = {};
    const auto start = Clock::now();
    if (!CreateProcessA(program, nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &info,
                        &process)) {
        std::fprintf(stderr, "cannot start %s\n", program);
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

double Report(const char* what, const std::vector<double>& bare, const std::vector<double>& ours) {
    const double ratio = Median(ours) / Median(bare);
    std::printf("%-12s bare window %6.1f   zorvane %6.1f   ratio %.2f\n", what, Median(bare),
                Median(ours), ratio);
    return ratio;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::fputs("usage: measure_startup ROUNDS BARE PROGRAM\n", stderr);
        return 2;
    }
    Samples bare;
    Samples ours;
    for (int round = 0; round < std::atoi(arguments[1]); ++round) {
        MeasureOnce(arguments[2], bare);
        MeasureOnce(arguments[3], ours);
    }
    Report("drawn, ms", bare.drawn, ours.drawn);
    const double ratio = Report("shown, ms", bare.shown, ours.shown);
    std::printf("%s: at most %.2f\n", ratio <= Limit ? "in time" : "TOO SLOW", Limit);
    return ratio <= Limit ? 0 : 1;
}
