// measure_startup ROUNDS LIMITS PROGRAM BARE...: starts the commands in turn on an X display
// without a window manager and prints the medians of each, and PROGRAM's ratios to each BARE.
// LIMITS are the largest ratios to the first BARE, in the order of the table, separated by commas;
// exceeding one is a failure. "@size" in a command is replaced by the width and height of PROGRAM's
// window.
//
// measure_startup answers COMMAND: starts the command, and prints how long its window takes from a
// key to the repaint: for another row of its first list, and for a letter in the field of Alt+P.
//
// measure_startup once COMMAND: starts the command, ends it by SIGUSR1 once its window is drawn,
// and returns. For a command that counts something itself, such as valgrind.
#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>
#include <X11/keysym.h>
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
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::array Rows = {"start to mapped window, ms", "start to first content, ms",
                             "processor time until settled, ms", "resident memory, KiB"};

/// After a start or an end, nothing goes on any more.
constexpr std::chrono::milliseconds Settling(400);

/// One value per row.
using Sample = std::array<double, Rows.size()>;

struct WindowSize {
    int width = 0;
    int height = 0;
};

[[noreturn]] void Fail(const char* what) {
    std::fprintf(stderr, "%s\n", what);
    std::exit(2);
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

/// Processor time of all threads. /proc/PID/stat counts in ticks of 10 ms, schedstat in
/// nanoseconds.
double ProcessorMilliseconds(pid_t process) {
    double nanoseconds = 0;
    for (const auto& task :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        double ofTask = 0;
        std::ifstream(task.path() / "schedstat") >> ofTask;
        nanoseconds += ofTask;
    }
    return nanoseconds / 1e6;
}

pid_t Start(const std::string& command) {
    const std::string line = "exec " + command;
    const char* const arguments[] = {"sh", "-c", line.c_str(), nullptr};
    pid_t process = 0;
    if (posix_spawn(&process, "/bin/sh", nullptr, nullptr, const_cast<char**>(arguments),
                    environ) != 0) {
        Fail("cannot start /bin/sh");
    }
    return process;
}

/// The X display and what happens to top-level windows there.
class TopLevelWindows {
  public:
    TopLevelWindows() : display_(XOpenDisplay(nullptr)) {
        int firstError = 0;
        if (display_ == nullptr || XDamageQueryExtension(display_, &damage_, &firstError) == 0) {
            Fail("no X display with the extension DAMAGE");
        }
        XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // windows go away at any time
        XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
        // Into a corner, where no window answers it.
        XWarpPointer(display_, None, DefaultRootWindow(display_), 0, 0, 0, 0, 0, 0);
        XSync(display_, False);
    }
    TopLevelWindows(const TopLevelWindows&) = delete;
    TopLevelWindows& operator=(const TopLevelWindows&) = delete;
    ~TopLevelWindows() { XCloseDisplay(display_); }

    /// Drops the events of earlier programs.
    void Forget() { XSync(display_, True); }

    /// Waits until the next program has mapped a window and drawn into it.
    Window WaitForContent(Clock::time_point& mapped, Clock::time_point& drawn, WindowSize& size) {
        Window window = None;
        for (;;) {
            const XEvent event = Next();
            if (event.type == CreateNotify && event.xcreatewindow.override_redirect == 0) {
                XDamageCreate(display_, event.xcreatewindow.window, XDamageReportRawRectangles);
            } else if (event.type == MapNotify && event.xmap.override_redirect == 0) {
                window = event.xmap.window;
                mapped = Clock::now();
            } else if (event.type == damage_ + XDamageNotify && window != None) {
                const auto& damage = reinterpret_cast<const XDamageNotifyEvent&>(event);
                // The program's own drawing covers the window; the frame of some systems does not.
                if (damage.drawable == window) {
                    drawn = Clock::now();
                    size = {damage.geometry.width, damage.geometry.height};
                    return window;
                }
            }
        }
    }

    /// Presses a key in the focused window; returns the milliseconds until something is drawn.
    double PressAndWait(KeySym key, unsigned modifiers = 0) {
        Window focused = None;
        int revert = 0;
        XGetInputFocus(display_, &focused, &revert);
        Forget();
        const auto start = Clock::now();
        for (const int type : {KeyPress, KeyRelease}) {
            XEvent event = {};
            event.type = type;
            event.xkey.window = focused;
            event.xkey.root = DefaultRootWindow(display_);
            event.xkey.keycode = XKeysymToKeycode(display_, key);
            event.xkey.state = modifiers;
            event.xkey.same_screen = True;
            XSendEvent(display_, focused, True, KeyPressMask, &event);
        }
        XFlush(display_);
        while (Next().type != damage_ + XDamageNotify) {
        }
        const std::chrono::duration<double, std::milli> time = Clock::now() - start;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));  // until all is drawn
        return time.count();
    }

    void Focus(Window window) { XSetInputFocus(display_, window, RevertToNone, CurrentTime); }

  private:
    XEvent Next() {
        constexpr int Patience = 120000;  // milliseconds; valgrind is slow
        XEvent event;
        pollfd events = {ConnectionNumber(display_), POLLIN, 0};
        if (XPending(display_) == 0 && poll(&events, 1, Patience) <= 0) {
            Fail("the program shows no window");
        }
        XNextEvent(display_, &event);
        return event;
    }

    Display* display_;
    int damage_ = 0;
};

Sample MeasureOnce(TopLevelWindows& screen, const std::string& command, WindowSize& size) {
    screen.Forget();
    const auto start = Clock::now();
    const pid_t process = Start(command);
    Clock::time_point mapped;
    Clock::time_point drawn;
    screen.WaitForContent(mapped, drawn, size);
    std::this_thread::sleep_for(Settling);
    const std::chrono::duration<double, std::milli> toMapped = mapped - start;
    const std::chrono::duration<double, std::milli> toDrawn = drawn - start;
    const Sample sample = {toMapped.count(), toDrawn.count(), ProcessorMilliseconds(process),
                           ResidentKibibytes(process)};
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    std::this_thread::sleep_for(Settling);  // servers clean up after it
    return sample;
}

int RunOnce(const std::string& command) {
    TopLevelWindows screen;
    const pid_t process = Start(command);
    Clock::time_point mapped;
    Clock::time_point drawn;
    WindowSize size;
    screen.WaitForContent(mapped, drawn, size);
    std::this_thread::sleep_for(std::chrono::seconds(3));
    kill(process, SIGUSR1);
    waitpid(process, nullptr, 0);
    return EXIT_SUCCESS;
}

int MeasureAnswers(const std::string& command) {
    TopLevelWindows screen;
    const pid_t process = Start(command);
    Clock::time_point ignored;
    WindowSize size;
    screen.Focus(screen.WaitForContent(ignored, ignored, size));
    std::this_thread::sleep_for(Settling);
    const auto median = [&](std::array<KeySym, 2> keys) {
        constexpr int Rounds = 31;
        std::vector<double> times;
        for (int round = 0; round < Rounds; ++round) {
            times.push_back(screen.PressAndWait(keys[static_cast<std::size_t>(round % 2)]));
        }
        std::ranges::sort(times);
        return times[times.size() / 2];
    };
    screen.PressAndWait(XK_Down);  // a first start has no row chosen
    std::printf("%-34s %9.2f\n", "another row chosen to repaint, ms", median({XK_Down, XK_Up}));
    screen.PressAndWait(XK_p, Mod1Mask);
    std::printf("%-34s %9.2f\n", "letter typed to repaint, ms", median({XK_a, XK_b}));
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    return EXIT_SUCCESS;
}

double Median(const std::vector<Sample>& samples, std::size_t row) {
    std::vector<double> values;
    for (const Sample& sample : samples) {
        values.push_back(sample[row]);
    }
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Puts the size in the place of "@size".
std::string WithSize(std::string command, const WindowSize& size) {
    const std::string mark = "@size";
    const std::size_t at = command.find(mark);
    return at == std::string::npos
               ? command
               : command.replace(at, mark.size(),
                                 std::to_string(size.width) + " " + std::to_string(size.height));
}

/// Prints the table; returns whether every ratio to the first bare command keeps its limit.
bool Report(const std::vector<std::vector<Sample>>& samples, const std::string& limits) {
    bool allKept = true;
    std::istringstream rest(limits);
    for (std::size_t row = 0; row < Rows.size(); ++row) {
        const double ours = Median(samples[0], row);
        std::printf("%-34s %9.1f", Rows[row], ours);
        for (std::size_t at = 1; at < samples.size(); ++at) {
            const double bare = Median(samples[at], row);
            std::printf("  beside %9.1f: %.2f", bare, ours / bare);
        }
        std::string limit;
        if (std::getline(rest, limit, ',')) {
            const bool kept = ours <= std::stod(limit) * Median(samples[1], row);
            std::printf("  (limit %s%s)", limit.c_str(), kept ? "" : ", exceeded");
            allKept = allKept && kept;
        }
        std::printf("\n");
    }
    return allKept;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const std::vector<std::string> words(arguments + 1, arguments + argumentCount);
    if (words.size() == 2 && words[0] == "once") {
        return RunOnce(words[1]);
    }
    if (words.size() == 2 && words[0] == "answers") {
        return MeasureAnswers(words[1]);
    }
    if (words.size() < 4) {
        Fail("usage, on an X display: measure_startup ROUNDS LIMITS PROGRAM BARE...");
    }
    TopLevelWindows screen;
    WindowSize size;
    MeasureOnce(screen, words[2], size);
    std::vector<std::vector<Sample>> samples(words.size() - 2);
    for (int round = 0; round < std::stoi(words[0]); ++round) {
        for (std::size_t at = 0; at < samples.size(); ++at) {
            WindowSize ignored;
            samples[at].push_back(
                MeasureOnce(screen, WithSize(words[at + 2], size), at == 0 ? size : ignored));
        }
    }
    std::printf("medians of %s starts, window of %d x %d pixels\n", words[0].c_str(), size.width,
                size.height);
    return Report(samples, words[1]) ? EXIT_SUCCESS : EXIT_FAILURE;
}
