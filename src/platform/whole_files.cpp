#include <charconv>
#include <chrono>
#include <new>
#include <vector>

#include "platform/files.h"
#include "platform/temporary_file.h"

namespace platform {
namespace {

constexpr const char* TooLarge = "The file is larger than 64 MiB";
constexpr std::string_view TemporaryPrefix = ".zorvane-";

}  // namespace

Outcome ReadWholeFile(const std::string& path, std::string& bytes) {
    bytes.clear();
    File file;
    if (Outcome opened = file.Open(path, File::Access::Read); !opened) {
        return opened;
    }
    // Before any memory is reserved: a sparse file may claim any size.
    const auto size = static_cast<std::uint64_t>(file.Size());
    if (size > LargestWholeFile) {
        return {false, TooLarge};
    }
    try {
        bytes.resize(static_cast<std::size_t>(size));
    } catch (const std::bad_alloc&) {
        return {false, "There is not enough memory"};
    }
    std::size_t count = 0;
    Outcome outcome = file.ReadAt(0, bytes.data(), bytes.size(), count);
    bytes.resize(count);
    return outcome;
}

Outcome ReplaceWholeFile(const std::string& path, std::string_view bytes) {
    if (bytes.size() > LargestWholeFile) {
        return {false, TooLarge};
    }
    TemporaryFile file;
    Outcome outcome = file.Create(path);
    if (outcome) {
        outcome = file.Append(bytes);
    }
    return outcome ? file.Commit() : outcome;
}

Outcome CopyWholeFile(const std::string& from, const std::string& to) {
    File source;
    TemporaryFile target;
    Outcome outcome = source.Open(from, File::Access::Read);
    if (outcome) {
        outcome = target.Create(to);
    }
    if (outcome && target.Replaces(source)) {
        return {false, "The source and the target are the same file"};
    }
    std::vector<char> buffer(std::size_t{1} << 16);
    std::size_t count = buffer.size();
    for (std::int64_t position = 0; outcome && count == buffer.size();) {
        outcome = source.ReadAt(position, buffer.data(), buffer.size(), count);
        if (outcome) {
            outcome = target.Append({buffer.data(), count});
        }
        position += static_cast<std::int64_t>(count);
    }
    return outcome ? target.Commit() : outcome;
}

std::string TemporaryName() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    return std::string(TemporaryPrefix) + std::to_string(ProcessId()) + '-' + std::to_string(ticks);
}

bool IsAbandoned(std::string_view name) {
    if (!name.starts_with(TemporaryPrefix)) {
        return false;
    }
    name.remove_prefix(TemporaryPrefix.size());
    const char* const end = name.data() + name.size();
    std::uint32_t id = 0;
    const auto [rest, error] = std::from_chars(name.data(), end, id);
    return error == std::errc() && rest != end && *rest == '-' && !IsRunning(id);
}

}  // namespace platform
