// One node of a configuration document: a map that remembers the order in which keys were added.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "config/config_value.h"

struct ConfigEntry {
    std::string key;
    ConfigValue value;
};

/// Keys are unique, may be any text, and are compared byte by byte. A key keeps its place when its
/// value is replaced. References that the map returns stay valid until a key is added or removed.
/// Maps may be nested to any depth; a map must not contain itself.
class ConfigMap {
  public:
    ConfigMap();
    /// Moves the keys and values out of `entries`. Of a repeated key the last value counts, at the
    /// first one's place.
    explicit ConfigMap(std::span<ConfigEntry> entries);
    ConfigMap(const ConfigMap&) = delete;
    ConfigMap& operator=(const ConfigMap&) = delete;
    ~ConfigMap();

    /// The value of the key, to be read or replaced. An absent key is added at the end with the
    /// value nothing; use Exists or Find to look without adding.
    ConfigValue& Item(std::string_view key);
    /// The value of the key, or null when it is absent.
    const ConfigValue* Find(std::string_view key) const;
    bool Exists(std::string_view key) const { return Find(key) != nullptr; }
    /// Adds a key at the end. Returns false, and changes nothing, when the key is present.
    bool Add(std::string_view key, ConfigValue value);

    /// Removes one key, in time linear in the size of the map; the others keep their order. Returns
    /// whether the key was present.
    bool Remove(std::string_view key);
    void RemoveAll();

    /// Number of keys.
    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
    /// All keys with their values, in the map's order.
    const std::vector<ConfigEntry>& Entries() const { return entries_; }
    /// Copies of all keys, and of all values, in the map's order.
    std::vector<std::string> Keys() const;
    std::vector<ConfigValue> Items() const;

  private:
    struct Index;

    std::uint32_t Place(std::string_view key) const;
    void Reindex();

    std::vector<ConfigEntry> entries_;
    std::unique_ptr<Index> index_;  // null while the map is small
};

/// A deep copy, which shares no map with the original.
ConfigMapRef CopyBlock(const ConfigMap& map);
