// How long the windows take over long lists, on real widgets: filling the setup dialog and the main
// window again, and adding files one by one. A list ten times as long should take ten times as
// long; the last column says how far from that it is.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "mainwindow/application.h"
#include "mainwindow/main_window.h"
#include "setup/setup.h"
#include "state/records.h"
#include "state/startup.h"
#include "toolkit/desktop.h"

namespace {

double MedianMilliseconds(const std::function<void()>& work) {
    constexpr int runs = 9;
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        const auto start = std::chrono::steady_clock::now();
        work();
        desktop::DoEvents();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::ranges::nth_element(times, times.begin() + runs / 2);
    return times[runs / 2];
}

void FillState(int count) {
    GameWads.clear();
    FileList.Clear();
    for (int i = 0; i < count; ++i) {
        const std::string name = "game number " + std::to_string(i);
        GameWads.push_back({name, "Z:\\games\\" + name + ".wad"});
        FileList.Add("Z:\\files\\" + name + ".wad");
    }
}

}  // namespace

int main() {
    desktop::StartDesktop();
    ConnectApplication();
    for (toolkit::Window* window : TheApplication.windows) {
        window->Load();
    }
    frmMain.Show();
    frmSetup.Show();
    const struct {
        const char* name;
        std::function<void()> work;
    } cases[] = {
        {"setup dialog, game WADs", [] { frmSetup.SetupLists(); }},
        {"main window, games", [] { frmMain.SetupLists(); }},
        {"main window, additional files", [] { frmMain.FillFileList(); }},
    };
    std::puts(
        "list                             500 rows   5,000 rows  50,000 rows   growth beside "
        "linear");
    for (const auto& row : cases) {
        double times[3] = {};
        int count = 500;
        for (double& time : times) {
            FillState(count);
            time = MedianMilliseconds(row.work);
            count *= 10;
        }
        std::printf("%-30s %7.2f ms  %8.2f ms  %8.2f ms   %.2f, %.2f\n", row.name, times[0],
                    times[1], times[2], times[1] / times[0] / 10, times[2] / times[1] / 10);
    }
    std::fflush(stdout);
    return 0;
}
