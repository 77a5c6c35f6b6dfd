// A folder of its own for a test, on the real disk, gone with the test.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

class TempFolder {
  public:
    TempFolder()
        : root_(std::filesystem::canonical(std::filesystem::temp_directory_path()) /
                ("zorvane-test-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(root_);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(root_, error);
    }

    /// The folder, or a thing in it, as this system's own library takes it.
    std::filesystem::path Native(std::string_view name = {}) const {
        return name.empty() ? root_ : root_ / name;
    }

    /// The same as the system under test takes it: `Z:\...` where there are no drives.
    std::string Path(std::string_view name = {}) const {
        std::string path = Native(name).generic_string();
        path.insert(0, path.starts_with('/') ? "Z:" : "");
        std::ranges::replace(path, '/', '\\');
        return path;
    }

    /// Writes a file and creates its folders; returns its Path.
    std::string Write(std::string_view name, std::string_view bytes) const {
        std::filesystem::create_directories(Native(name).parent_path());
        std::ofstream(Native(name), std::ios::binary) << bytes;
        return Path(name);
    }

    std::string Read(std::string_view name) const {
        std::ifstream file(Native(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// How many names the folder holds, hidden ones included.
    std::ptrdiff_t Count() const {
        return std::distance(std::filesystem::directory_iterator(root_), {});
    }

  private:
    std::filesystem::path root_;
};
