#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTest>

#include "driver.h"
#include "tour.h"

namespace tour {
namespace {

namespace fs = std::filesystem;

fs::path pictureFolder;

void Save(const QPixmap& pixmap, const std::string& name) {
    const auto number = std::distance(fs::directory_iterator(pictureFolder), {}) + 1;
    const std::string file = std::to_string(100 + number).substr(1) + "-" + name + ".png";
    Check(pixmap.save(QString::fromStdString(pictureFolder / file)), "a picture saved");
}

void PictureIfNamed(const std::string& name) {
    if (!name.empty()) {
        Picture(name);
    }
}

template <class Dialog>
Dialog& FrontDialog(const std::string& kind) {
    auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    Check(dialog != nullptr && QTest::qWaitForWindowActive(dialog), kind + " in front");
    return *dialog;
}

void TypeAndConfirm(QLineEdit* field, const std::string& typed, const std::string& picture) {
    Check(field != nullptr, "a field to type into");
    field->setFocus();
    Until([field] { return field->hasFocus(); }, "the field takes keys");
    if (!typed.empty()) {
        field->selectAll();
        QTest::keyClicks(field, QString::fromStdString(typed));
    }
    PictureIfNamed(picture);
    QTest::keyClick(field, Qt::Key_Return);
}

std::string FirstWords(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The process of that program, 0 when there is none.
int FindProcess(const std::string& program) {
    for (const auto& entry : fs::directory_iterator("/proc")) {
        const int pid = std::atoi(entry.path().filename().c_str());
        if (pid > 0 && FirstWords(entry.path() / "cmdline").starts_with(program + '\0')) {
            return pid;
        }
    }
    return 0;
}

/// The number of the window of a process, 0 while it has none.
WId FindWindow(int pid) {
    const std::string command = "xdotool search --onlyvisible --pid " + std::to_string(pid);
    FILE* answer = popen((command + " 2>/dev/null").c_str(), "r");
    unsigned long window = 0;
    while (answer != nullptr && std::fscanf(answer, "%lu", &window) == 1) {
    }
    pclose(answer);
    return window;
}

bool ShowsSomething(WId window) {
    constexpr int darkest = 10;
    const QImage image = QGuiApplication::primaryScreen()->grabWindow(window).toImage();
    return !image.isNull() &&
           qGray(image.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0)) >=
               darkest;
}

}  // namespace

void Check(bool fine, const std::string& what) {
    if (!fine) {
        std::cerr << "The tour stops, not as it should be: " << what << '\n';
        Picture("stopped");
        std::_Exit(1);
    }
}

void CheckEqual(const std::string& actual, const std::string& expected) {
    Check(actual == expected, "is      " + actual + "\n should be " + expected);
}

void Until(const std::function<bool()>& ready, const std::string& what) {
    constexpr int patience = 30000;
    Check(QTest::qWaitFor(ready, patience), what);
}

void Pass(int milliseconds) {
    QTest::qWait(milliseconds);
}

void SetPictureFolder(const std::string& folder) {
    pictureFolder = folder;
}

void Picture(const std::string& name) {
    constexpr int settled = 120;
    Pass(settled);
    Save(QGuiApplication::primaryScreen()->grabWindow(), name);
}

void Portrait(const std::string& name) {
    Save(Front().grab(), name);
}

QWidget& Front() {
    const auto front = [] {
        QWidget* modal = QApplication::activeModalWidget();
        return modal != nullptr ? modal : QApplication::activeWindow();
    };
    Until([&] { return front() != nullptr && front()->isActiveWindow(); }, "a window in front");
    return *front();
}

void NextFile(const std::string& typed, const std::string& picture) {
    driver::InNextModal([=] {
        auto& dialog = FrontDialog<QFileDialog>("file dialog");
        TypeAndConfirm(dialog.findChild<QLineEdit*>("fileNameEdit"), typed, picture);
    });
}

void NextText(const std::string& proposed, const std::string& typed, const std::string& picture) {
    driver::InNextModal([=] {
        auto* field = FrontDialog<QDialog>("input box").findChild<QLineEdit*>();
        Check(field != nullptr, "input box in front");
        CheckEqual(field->text().toStdString(), proposed);
        TypeAndConfirm(field, typed, picture);
    });
}

void NextMessage(const std::string& start, const std::string& picture) {
    driver::InNextModal([=] {
        auto& box = FrontDialog<QMessageBox>("message");
        CheckEqual(box.text().toStdString().substr(0, start.size()), start);
        PictureIfNamed(picture);
        QTest::keyClick(&box, Qt::Key_Return);
    });
}

Game::Game(const std::string& program) {
    Until([&] { return (pid_ = FindProcess(program)) != 0; }, program + " runs");
}

Game::~Game() {
    if (pid_ != 0) {
        kill(-pid_, SIGKILL);
        Until([this] { return !fs::exists("/proc/" + std::to_string(pid_)); }, "a game ends");
    }
}

std::string Game::Arguments() const {
    std::string words = FirstWords("/proc/" + std::to_string(pid_) + "/cmdline");
    words.erase(0, words.find('\0') + 1);
    std::ranges::replace(words, '\0', ' ');
    return words.substr(0, words.size() - 1);
}

std::string Game::Folder() const {
    return fs::read_symlink("/proc/" + std::to_string(pid_) + "/cwd");
}

// An engine may replace its window while it starts.
void Game::ShowAt(int x, int y) const {
    constexpr int melting = 1200;  // the title melts into the map
    const std::string place = std::to_string(x) + " " + std::to_string(y);
    const auto move = [&] {
        const WId window = FindWindow(pid_);
        const std::string command = "xdotool windowmove " + std::to_string(window) + " " + place;
        return window != 0 && ShowsSomething(window) && std::system(command.c_str()) == 0;
    };
    Until(move, "a game shows something");
    Pass(melting);
    Until(move, "the game still shows something");
}

}  // namespace tour
