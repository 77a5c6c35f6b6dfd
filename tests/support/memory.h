// The machine in memory: windows that nobody sees, dialogs that answer from a script, programs that
// do not run. The files are the real ones of the system.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/facts.h"
#include "toolkit/dialogs.h"

namespace memory {

struct Message {
    std::string text;
    desktop::MessageIcon icon;
};

struct TextQuestion {
    std::string prompt;
    std::string preset;
};

struct StartedProgram {
    std::string file;
    std::string parameters;
    std::string directory;
    int show = 0;
};

/// What was asked of the machine, and what it answers. Answers are queued beforehand; a question
/// that nobody expected fails the test.
struct Machine {
    std::string programDirectory;
    std::string commandLine;
    std::vector<std::string> refusalReasons;
    std::deque<Message> messages;             // that were shown
    int repaints = 0;                         // that were asked for
    std::deque<std::string> files;            // chosen in file dialogs, empty for Cancel
    std::deque<std::string> folders;          // chosen in folder dialogs
    std::deque<std::string> texts;            // typed into input boxes
    std::deque<int> menus;                    // chosen rows, -1 for none
    std::deque<std::function<void()>> steps;  // taken in modal windows
    std::vector<desktop::OpenFileName> fileQuestions;
    std::vector<std::string> folderQuestions;
    std::vector<TextQuestion> textQuestions;

    std::vector<StartedProgram> started;
    bool accepts = true;                                 // the shell's answer
    std::function<void(const StartedProgram&)> program;  // what a started program does
    int rounds = 0;                                      // of a wait, before the program ends
    std::function<void()> onEvents;                      // what happens in each of them
};
extern Machine machine;

struct ProcessEnded {};  // thrown where the process would end

/// A fresh machine; fails the test when the old one has messages, answers or steps left over.
void Reset();

/// The next of the queued answers; fails the test, and returns `otherwise`, if there is none.
template <class Answer>
Answer Take(std::deque<Answer>& queue, const std::string& question, Answer otherwise = {}) {
    if (queue.empty()) {
        ADD_FAILURE() << "unexpected: " << question;
        return otherwise;
    }
    Answer answer = std::move(queue.front());
    queue.pop_front();
    return answer;
}

/// Removes the oldest message that was shown and returns its text, empty if there is none. Another
/// icon than that one fails the test.
std::string TakeMessage(desktop::MessageIcon icon = desktop::MessageIcon::Exclamation);

}  // namespace memory
