#include "config/config_map.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <iterator>
#include <utility>

namespace {

/// Up to this number of keys a linear search is faster than hashing.
constexpr std::size_t MostSearched = 12;

/// Marks the end of a chain in the index, and a key that is absent.
constexpr std::uint32_t NoPlace = 0xFFFFFFFF;

std::uint32_t Hash(std::string_view key) {
    return static_cast<std::uint32_t>(std::hash<std::string_view>{}(key));
}

}  // namespace

/// A hash table of indexes into the entries. New links go to the head of their chain, so that
/// adding one touches no other link, which would be a cache miss in a large map.
struct ConfigMap::Index {
    struct Link {
        std::uint32_t hash;
        std::uint32_t next;
    };
    std::vector<std::uint32_t> buckets;  // the newest place of each
    std::vector<Link> links;             // one for each place

    explicit Index(std::span<const ConfigEntry> entries)
        : buckets(std::bit_ceil(entries.size()), NoPlace) {
        links.reserve(entries.size());
        for (const ConfigEntry& entry : entries) {
            Append(Hash(entry.key));
        }
    }
    std::uint32_t& Bucket(std::uint32_t hash) { return buckets[hash & (buckets.size() - 1)]; }
    void Append(std::uint32_t hash) {
        const auto place = static_cast<std::uint32_t>(links.size());
        links.push_back({hash, std::exchange(Bucket(hash), place)});
    }
    /// The place of the key in the chain that begins at `place`, or NoPlace.
    std::uint32_t Find(std::span<const ConfigEntry> entries, std::string_view key,
                       std::uint32_t hash, std::uint32_t place) const {
        while (place != NoPlace && (links[place].hash != hash || entries[place].key != key)) {
            place = links[place].next;
        }
        return place;
    }
    bool HasRepeatedKey(std::span<const ConfigEntry> entries) const {
        return std::ranges::any_of(links, [&, place = std::size_t{0}](const Link& link) mutable {
            return Find(entries, entries[place++].key, link.hash, link.next) != NoPlace;
        });
    }
};

ConfigMap::ConfigMap() = default;

/// All entries of a large map are indexed at once, as if no key were repeated. This is twice as
/// fast as adding them one by one, which is left to texts with a repeated key.
ConfigMap::ConfigMap(std::span<ConfigEntry> entries) {
    entries_.reserve(entries.size());
    if (entries.size() > MostSearched) {
        index_ = std::make_unique<Index>(entries);
        if (!index_->HasRepeatedKey(entries)) {
            std::ranges::move(entries, std::back_inserter(entries_));
            return;
        }
        index_.reset();
    }
    for (ConfigEntry& entry : entries) {
        Item(entry.key) = std::move(entry.value);
    }
}

/// Destroys nested maps iteratively, because recursion would overflow the stack on a deep document.
/// Needs no memory: the way back up is kept in the entries that held the nested maps.
ConfigMap::~ConfigMap() {
    ConfigMapRef map;    // the nested map that is being emptied, null for this one
    ConfigMapRef outer;  // the map that contains it
    const auto entriesOf = [this](const ConfigMapRef& any) -> std::vector<ConfigEntry>& {
        return any ? any->entries_ : entries_;
    };
    while (map || !entries_.empty()) {
        std::vector<ConfigEntry>& entries = entriesOf(map);
        ConfigMapRef nested = entries.empty() ? nullptr : entries.back().value.AsMap();
        if (nested && nested.use_count() == 2) {  // nobody else holds it
            entries.back().value = std::exchange(outer, std::exchange(map, std::move(nested)));
        } else if (!entries.empty()) {
            entries.pop_back();
        } else {
            map = std::move(outer);
            outer = entriesOf(map).back().value.AsMap();
            entriesOf(map).pop_back();
        }
    }
}

ConfigValue& ConfigMap::Item(std::string_view key) {
    const std::uint32_t place = Place(key);
    if (place != NoPlace) {
        return entries_[place].value;
    }
    entries_.push_back({std::string(key), {}});
    if (index_ && entries_.size() <= index_->buckets.size()) {
        index_->Append(Hash(key));
    } else {
        Reindex();
    }
    return entries_.back().value;
}

const ConfigValue* ConfigMap::Find(std::string_view key) const {
    const std::uint32_t place = Place(key);
    return place != NoPlace ? &entries_[place].value : nullptr;
}

bool ConfigMap::Add(std::string_view key, ConfigValue value) {
    const bool absent = !Exists(key);
    if (absent) {
        Item(key) = std::move(value);
    }
    return absent;
}

bool ConfigMap::Remove(std::string_view key) {
    const std::uint32_t place = Place(key);
    if (place == NoPlace) {
        return false;
    }
    entries_.erase(entries_.begin() + place);
    Reindex();
    return true;
}

void ConfigMap::RemoveAll() {
    entries_.clear();
    index_.reset();
}

std::vector<std::string> ConfigMap::Keys() const {
    std::vector<std::string> keys;
    std::ranges::transform(entries_, std::back_inserter(keys), &ConfigEntry::key);
    return keys;
}

std::vector<ConfigValue> ConfigMap::Items() const {
    std::vector<ConfigValue> items;
    std::ranges::transform(entries_, std::back_inserter(items), &ConfigEntry::value);
    return items;
}

std::uint32_t ConfigMap::Place(std::string_view key) const {
    if (index_) {
        const std::uint32_t hash = Hash(key);
        return index_->Find(entries_, key, hash, index_->Bucket(hash));
    }
    const auto found = std::ranges::find(entries_, key, &ConfigEntry::key);
    return found != entries_.end() ? static_cast<std::uint32_t>(found - entries_.begin()) : NoPlace;
}

void ConfigMap::Reindex() {
    index_ = entries_.size() > MostSearched ? std::make_unique<Index>(entries_) : nullptr;
}

ConfigMapRef CopyBlock(const ConfigMap& map) {
    auto copy = std::make_shared<ConfigMap>();
    std::vector<std::pair<const ConfigMap*, ConfigMap*>> pending{{&map, copy.get()}};
    while (!pending.empty()) {
        const auto [from, to] = pending.back();
        pending.pop_back();
        for (const auto& [key, value] : from->Entries()) {
            ConfigValue& target = to->Item(key);
            if (const ConfigMapRef nested = value.AsMap()) {
                const auto nestedCopy = std::make_shared<ConfigMap>();
                pending.emplace_back(nested.get(), nestedCopy.get());
                target = nestedCopy;
            } else {
                target = value;
            }
        }
    }
    return copy;
}
