// One node of a configuration document: keys and values in the order in which they were entered.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "config/config_value.h"
#include "config/key_index.h"

struct ConfigEntry {
    std::string key;
    ConfigValue value;
};

/// One side of a map's entries, the keys or the values, where they lie.
template <auto Side>
struct ConfigSequence {
    struct Iterator {
        const ConfigEntry* at;
        const auto& operator*() const { return at->*Side; }
        Iterator& operator++() {
            ++at;
            return *this;
        }
        bool operator==(const Iterator&) const = default;
    };
    std::span<const ConfigEntry> entries;

    std::size_t size() const { return entries.size(); }
    const auto& operator[](std::size_t index) const { return entries[index].*Side; }
    Iterator begin() const { return {entries.data()}; }
    Iterator end() const { return {entries.data() + entries.size()}; }
};

/// Keys are any texts, compared exactly, each of them once. A key keeps its place when its value is
/// replaced. References and sequences that the map gives out last until a key is entered or
/// removed. A map may hold maps to any depth; it must not hold itself.
class ConfigMap {
  public:
    ConfigMap() = default;
    /// Takes the entries. Of a repeated key the last value counts, at the first one's place.
    explicit ConfigMap(std::vector<ConfigEntry> entries);
    ConfigMap(const ConfigMap&) = delete;
    ConfigMap& operator=(const ConfigMap&) = delete;
    ~ConfigMap();

    /// The value of the key, to be read or replaced. A key that is absent is entered at the end
    /// with the value nothing: whoever must leave no trace asks Exists or Find.
    ConfigValue& Item(std::string_view key);
    /// The value of the key, or null when it is absent.
    const ConfigValue* Find(std::string_view key) const;
    bool Exists(std::string_view key) const { return Find(key) != nullptr; }
    /// Enters a key at the end. Gives false, and changes nothing, when the key is there.
    bool Add(std::string key, ConfigValue value);

    /// Takes one key out, the others keep their order; gives whether it was there.
    bool Remove(std::string_view key);
    void RemoveAll();

    /// Number of keys.
    std::int32_t Count() const;
    /// All keys with their values, all keys, all values: indexed from 0, in the map's order.
    std::span<const ConfigEntry> Entries() const;
    ConfigSequence<&ConfigEntry::key> Keys() const { return {Entries()}; }
    ConfigSequence<&ConfigEntry::value> Items() const { return {Entries()}; }

  private:
    /// How a map finds its keys once it is large. Entries taken out stay as empty places until
    /// somebody looks at the map in order.
    struct Large {
        KeyIndex index;
        std::vector<std::uint32_t> emptyPlaces;
    };

    std::uint32_t Hash(std::string_view key) const;
    std::uint32_t Place(std::string_view key, std::uint32_t hash, std::size_t count) const;
    std::uint32_t Place(std::string_view key) const;
    void Keep(ConfigEntry& entry, std::uint32_t hash, std::uint32_t& kept);
    ConfigValue& Append(std::string key, ConfigValue value);
    void IndexAll() const;
    void CloseGaps() const;

    mutable std::vector<ConfigEntry> entries_;
    mutable std::unique_ptr<Large> large_;
};

/// A deep copy: no map is shared between it and the original.
ConfigMapRef CopyBlock(const ConfigMap& map);
