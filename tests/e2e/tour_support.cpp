#include <csignal>
#include <cstdlib>
#include <iostream>

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QTest>

#include "driver.h"
#include "tour.h"

namespace tour {
namespace {

/// Widgets that the simulated pointer left while a dialog was open still look hovered.
void ForgetPointer() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->underMouse()) {
            widget->setAttribute(Qt::WA_UnderMouse, false);
            widget->update();
        }
    }
}

void Save(const QPixmap& pixmap, const std::string& name) {
    const QDir pictures(pictureFolder.c_str(), "*.png");
    const QString number = QString::number(100 + pictures.count() + 1).mid(1);
    Check(pixmap.save(pictures.filePath(number + "-" + name.c_str() + ".png")), "a picture");
}

/// Returns the output of a command.
std::string Output(const std::string& command) {
    QProcess process;
    process.startCommand(command.c_str());
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().toStdString();
}

/// Moves the windows of a process to the right of ours; returns whether something is drawn there.
bool ShowsSomething(int process) {
    constexpr int Dark = 10;
    Output("xdotool search --all --onlyvisible --pid " + std::to_string(process) +
           " --name . windowmove %@ 740 140");
    const QPixmap inside = QGuiApplication::primaryScreen()->grabWindow(0, 1150, 250, 200, 200);
    return qGray(inside.scaled(1, 1, {}, Qt::SmoothTransformation).toImage().pixel(0, 0)) >= Dark;
}

}  // namespace

void Check(bool fine, const std::string& what) {
    if (!fine) {
        std::cerr << "The tour failed: " << what << '\n';
        Picture("failed");
        std::_Exit(1);
    }
}

void CheckEqual(const std::string& actual, const std::string& expected) {
    Check(actual == expected, "is        " + actual + "\nshould be " + expected);
}

void Until(const std::function<bool()>& ready, const std::string& what) {
    constexpr int Patience = 30000;
    Check(QTest::qWaitFor(ready, Patience), what);
}

QWidget& Front() {
    const auto front = [] {
        QWidget* modal = QApplication::activeModalWidget();
        return modal != nullptr ? modal : QApplication::activeWindow();
    };
    const auto isActive = [&] {
        if (front() == nullptr) {  // a game or a menu that closed may leave the focus nowhere
            for (QWidget* window : QApplication::topLevelWidgets()) {
                window->activateWindow();
            }
        }
        return front() != nullptr && front()->isActiveWindow();
    };
    Until(isActive, "a window in front");
    return *front();
}

void Picture(const std::string& name) {
    constexpr int SettleTime = 120;
    ForgetPointer();
    QTest::qWait(SettleTime);
    Save(QGuiApplication::primaryScreen()->grabWindow(), name);
}

void Portrait(const std::string& name) {
    ForgetPointer();
    Save(Front().grab(), name);
}

void Press(toolkit::Button& button, const std::vector<Answer>& answers) {
    for (const Answer& answer : answers) {
        driver::InNextModal([answer] {
            QWidget& dialog = Front();
            const auto* message = qobject_cast<QMessageBox*>(&dialog);
            auto* field = dialog.findChild<QLineEdit*>();
            const QString text = message != nullptr ? message->text() : field->text();
            CheckEqual(text.toStdString().substr(0, answer.shown.size()), answer.shown);
            if (!answer.typed.empty()) {
                field->selectAll();
                QTest::keyClicks(field, answer.typed.c_str());
            }
            if (!answer.picture.empty()) {
                Picture(answer.picture);
            }
            QTest::keyClick(message != nullptr ? &dialog : field, Qt::Key_Return);
        });
    }
    driver::Click(button);
}

void WatchGame(const std::string& engine, const std::string& arguments) {
    constexpr int MeltTime = 1200;  // the title screen melts into the map
    const std::string program = folder + "/ports/" + engine + "/" + engine + " ";
    std::string found;  // the number of the process and its command line
    Until([&] { return !(found = Output("pgrep -af \"^" + program + '"')).empty(); }, program);
    CheckEqual(found.substr(found.find(' ') + 1), program + arguments);
    const int process = std::stoi(found);
    for (const int pause : {MeltTime, 0}) {  // an engine may replace its window while it starts
        Until([&] { return ShowsSomething(process); }, program + "shows something");
        QTest::qWait(pause);
    }
    Picture("game");
    kill(-process, SIGKILL);
    Until([&] { return kill(process, 0) != 0; }, "a game ends");
}

}  // namespace tour
