#include "platform/posix/arguments.h"

#include "platform/posix/paths.h"
#include "text/ascii.h"

namespace platform {
namespace {

std::string NativeArgument(std::string argument, FolderNames& names) {
    if (LowerCase(std::string_view(argument).substr(0, 3)) != "z:\\") {
        return argument;
    }
    return TargetPath(argument, names).value_or(argument);
}

}  // namespace

std::vector<std::string> SplitArguments(std::string_view text) {
    std::vector<std::string> arguments;
    FolderNames names;
    std::string argument;
    bool hasBegun = false;
    bool isQuoted = false;
    for (const char character : text) {
        if (character == '"') {
            isQuoted = !isQuoted;
            hasBegun = true;
        } else if (character != ' ' || isQuoted) {
            argument += character;
            hasBegun = true;
        } else if (hasBegun) {
            arguments.push_back(NativeArgument(std::move(argument), names));
            argument.clear();
            hasBegun = false;
        }
    }
    if (hasBegun) {
        arguments.push_back(NativeArgument(std::move(argument), names));
    }
    return arguments;
}

}  // namespace platform
