// A configuration document: a tree of named values with a text form.
#pragma once

#include <string>
#include <string_view>

#include "config/config_map.h"
#include "platform/files.h"

/// Owns one tree, whose root is never absent. What a setting means is its user's affair: any text
/// gives some tree, and a caller tests the tree that it gets. Whoever holds a map of a tree that is
/// replaced goes on with the old one.
class clsConfiguration {
  public:
    clsConfiguration() = default;
    clsConfiguration(const clsConfiguration&) = delete;
    clsConfiguration& operator=(const clsConfiguration&) = delete;
    ~clsConfiguration() = default;

    /// Replaces the tree by the content of a file. A file that is not there comes into being empty.
    /// A failure leaves the tree as it was.
    platform::Outcome LoadConfiguration(const std::string& fileName);
    /// Replaces the tree by what a text says.
    void InputConfiguration(std::string_view configuration);
    /// Replaces the tree by an empty one.
    void NewConfiguration();

    /// Takes a key out of the root; one that is not there is no error.
    void RemoveSetting(std::string_view setting);

    /// Writes the text form in the place of the file, in one step: a failure leaves the old file
    /// whole. `newLine` ends each line, `whitespace` chooses the readable form.
    platform::Outcome SaveConfiguration(const std::string& fileName,
                                        std::string_view newLine = "\r\n",
                                        bool whitespace = true) const;
    /// The text form, which is empty for an empty tree.
    std::string OutputConfiguration(std::string_view newLine = "\r\n",
                                    bool whitespace = true) const;

    /// The value of a key of the root, or `standard` when the key is absent; enters nothing. A
    /// stored map comes as a deep copy, or as itself with `reference`.
    ConfigValue ReadSetting(std::string_view setting, ConfigValue standard = {},
                            bool reference = false) const;

    /// The root itself, or a deep copy of it.
    ConfigMapRef Root(bool reference = true) const;

    /// Stores a value under a key of the root. A map is stored as itself if the key is new or with
    /// `reference`; else its deep copy takes the place of the old value.
    void WriteSetting(std::string_view setting, ConfigValue value, bool reference = false);

  private:
    ConfigMapRef configurationRoot_ = std::make_shared<ConfigMap>();
};
