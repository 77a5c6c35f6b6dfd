#include "memory.h"

#include <algorithm>

#include "platform/shell.h"

namespace memory {

Machine machine;

std::string TakeMessage(desktop::MessageIcon icon) {
    if (machine.messages.empty()) {
        return {};
    }
    const Message message = Take(machine.messages, "");
    EXPECT_EQ(message.icon, icon) << message.text;
    return message.text;
}

void Reset() {
    for (const Message& message : machine.messages) {
        ADD_FAILURE() << "unexpected message: " << message.text;
    }
    EXPECT_TRUE(machine.files.empty() && machine.folders.empty() && machine.texts.empty() &&
                machine.menus.empty() && machine.steps.empty())
        << "an answer was never asked for";
    machine = Machine();
}

namespace {

bool AnswerFileDialog(desktop::OpenFileName& record) {
    machine.fileQuestions.push_back(record);
    record.lpstrFile = Take(machine.files, record.lpstrTitle);
    return !record.lpstrFile.empty();
}

}  // namespace
}  // namespace memory

using memory::machine;

namespace platform {

std::string ProgramDirectory() {
    return machine.programDirectory;
}
VersionNumbers ProgramVersion() {
    return {1, 2, 34};
}
std::string OwnCommandLine() {
    return machine.commandLine;
}
std::vector<std::string> RefusalReasons() {
    return machine.refusalReasons;
}
void EndProcess() {
    throw memory::ProcessEnded();
}

ProcessHandle::~ProcessHandle() = default;

Outcome ShellExecuteExA(ShellExecuteInfo& info) {
    machine.started.push_back({info.lpFile, info.lpParameters, info.lpDirectory, info.nShow});
    if (machine.accepts) {
        info.hProcess = ProcessHandle(0);
        if (machine.program) {
            machine.program(machine.started.back());
        }
    }
    return {machine.accepts, machine.accepts ? "" : "refused"};
}

std::uint32_t WaitForSingleObject(const ProcessHandle&, std::uint32_t) {
    constexpr std::uint32_t TimeOut = 258;
    return machine.rounds > 0 ? TimeOut : 0;
}

}  // namespace platform

namespace desktop {

bool GetOpenFileNameA(OpenFileName& record) {
    return memory::AnswerFileDialog(record);
}
bool GetSaveFileNameA(OpenFileName& record) {
    return memory::AnswerFileDialog(record);
}

std::string BrowseForFolderPath(const BrowseInfo& info) {
    machine.folderQuestions.push_back(info.lpszTitle);
    return memory::Take(machine.folders, info.lpszTitle);
}

void ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    EXPECT_EQ(title, "Zorvane");
    machine.messages.push_back({text, icon});
}

std::string AskForText(const std::string& prompt, const std::string&, const std::string& preset) {
    machine.textQuestions.push_back({prompt, preset});
    return memory::Take(machine.texts, prompt);
}

}  // namespace desktop
