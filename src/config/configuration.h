// A configuration document: a tree of named values with a text form.
#pragma once

#include <string>
#include <string_view>

#include "config/config_map.h"
#include "platform/files.h"

/// Owns one tree, whose root is never null. Any text results in some tree, so callers check what
/// they got, for example by a "type" key. A map of a replaced tree stays valid while somebody holds
/// it.
class clsConfiguration {
  public:
    clsConfiguration() = default;
    clsConfiguration(const clsConfiguration&) = delete;
    clsConfiguration& operator=(const clsConfiguration&) = delete;
    ~clsConfiguration() = default;

    /// Replaces the tree by the content of a file; creates an empty file if it is missing. A
    /// failure leaves the tree unchanged.
    platform::Outcome LoadConfiguration(const std::string& fileName);
    /// Replaces the tree by the content of a text. Fails, and leaves the tree unchanged, only if
    /// there is not enough memory.
    platform::Outcome InputConfiguration(std::string_view configuration);
    /// Replaces the tree by an empty one.
    void NewConfiguration();
    /// False if the text that was read last ended inside a structure, a string or a block comment,
    /// as a file does that was cut off.
    bool TextWasComplete() const { return textWasComplete_; }

    /// Removes a key from the root; no-op if it is absent.
    void RemoveSetting(std::string_view setting);

    /// Replaces the file by the text form, atomically: a failure leaves the old file whole.
    /// `newLine` ends each line, `whitespace` chooses the readable form.
    platform::Outcome SaveConfiguration(const std::string& fileName,
                                        std::string_view newLine = "\r\n",
                                        bool whitespace = true) const;
    /// The text form; empty for an empty tree.
    std::string OutputConfiguration(std::string_view newLine = "\r\n",
                                    bool whitespace = true) const;

    /// The value of a key of the root. Returns `fallback`, and adds nothing, if the key is absent.
    /// A stored map is returned as a deep copy, or itself with `reference`.
    ConfigValue ReadSetting(std::string_view setting, ConfigValue fallback = {},
                            bool reference = false) const;

    /// The root itself, or a deep copy of it.
    ConfigMapRef Root(bool reference = true) const;

    /// Stores a value under a key of the root. A map is stored itself if the key is new or with
    /// `reference`, else as a deep copy.
    void WriteSetting(std::string_view setting, ConfigValue value, bool reference = false);

  private:
    ConfigMapRef configurationRoot_ = std::make_shared<ConfigMap>();
    bool textWasComplete_ = true;
};
