#include "platform/posix/arguments.h"

#include "platform/posix/paths.h"
#include "text/ascii.h"

namespace platform {
namespace {

std::string ForTheEngine(std::string argument) {
    if (LowerCase(std::string_view(argument).substr(0, 3)) != "z:\\") {
        return argument;
    }
    return TargetPath(argument).value_or(argument);
}

}  // namespace

std::vector<std::string> SplitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    std::string argument;
    bool begun = false;
    bool quoted = false;
    for (const char character : text) {
        if (character == '"') {
            quoted = !quoted;
            begun = true;
        } else if (character != ' ' || quoted) {
            argument += character;
            begun = true;
        } else if (begun) {
            arguments.push_back(ForTheEngine(std::move(argument)));
            argument.clear();
            begun = false;
        }
    }
    if (begun) {
        arguments.push_back(ForTheEngine(std::move(argument)));
    }
    return arguments;
}

}  // namespace platform
