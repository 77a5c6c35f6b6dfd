#include "config/config_map.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// Above this number of keys a hash is quicker than a walk.
constexpr std::size_t walkedKeys = 12;

/// Keys of equal length differ most often at their ends.
bool AreSame(std::string_view key, std::string_view other) {
    return key.size() == other.size() &&
           (key.empty() || (key.back() == other.back() && key == other));
}

/// Moves the maps that the entries hold into `maps`.
void TakeMaps(std::vector<ConfigEntry>& entries, std::vector<ConfigMapRef>& maps) {
    for (ConfigEntry& entry : entries) {
        if (entry.value.IsMap()) {
            maps.push_back(entry.value.AsMap());
            entry.value = {};
        }
    }
}

}  // namespace

ConfigMap::ConfigMap(std::vector<ConfigEntry> entries) : entries_(std::move(entries)) {
    if (entries_.size() > walkedKeys) {
        large_ = std::make_unique<Large>(Large{KeyIndex(entries_.size()), {}});
    }
    // The hashes come first, a batch at a time, so that the slots are on their way from memory.
    std::array<std::uint32_t, 64> hashes{};
    std::uint32_t kept = 0;
    for (std::size_t at = 0; at < entries_.size(); ++at) {
        if (large_ && at % hashes.size() == 0) {
            const std::size_t batch = std::min(hashes.size(), entries_.size() - at);
            for (std::size_t ahead = 0; ahead < batch; ++ahead) {
                hashes[ahead] = KeyIndex::Hash(entries_[at + ahead].key);
                large_->index.Prefetch(hashes[ahead]);
            }
        }
        Keep(entries_[at], hashes[at % hashes.size()], kept);
    }
    entries_.erase(entries_.begin() + kept, entries_.end());
}

/// Moves an entry behind the `kept` ones, or its value to the one of the same key.
void ConfigMap::Keep(ConfigEntry& entry, std::uint32_t hash, std::uint32_t& kept) {
    const std::uint32_t first = Place(entry.key, hash, kept);
    if (first != KeyIndex::absent) {
        entries_[first].value = std::move(entry.value);
        return;
    }
    if (&entry != &entries_[kept]) {
        entries_[kept] = std::move(entry);
    }
    if (large_) {
        large_->index.Insert(hash, kept);
    }
    ++kept;
}

/// Nested maps are let go of one by one and not by each other, so that depth costs no stack.
ConfigMap::~ConfigMap() {
    std::vector<ConfigMapRef> maps;
    TakeMaps(entries_, maps);
    while (!maps.empty()) {
        const ConfigMapRef map = std::move(maps.back());
        maps.pop_back();
        if (map.use_count() == 1) {
            TakeMaps(map->entries_, maps);
        }
    }
}

ConfigValue& ConfigMap::Item(std::string_view key) {
    const std::uint32_t place = Place(key);
    return place != KeyIndex::absent ? entries_[place].value : Append(std::string(key), {});
}

const ConfigValue* ConfigMap::Find(std::string_view key) const {
    const std::uint32_t place = Place(key);
    return place != KeyIndex::absent ? &entries_[place].value : nullptr;
}

bool ConfigMap::Add(std::string key, ConfigValue value) {
    if (Exists(key)) {
        return false;
    }
    Append(std::move(key), std::move(value));
    return true;
}

bool ConfigMap::Remove(std::string_view key) {
    const std::uint32_t hash = Hash(key);
    const std::uint32_t place = Place(key, hash, entries_.size());
    if (place == KeyIndex::absent) {
        return false;
    }
    if (!large_) {
        entries_.erase(entries_.begin() + place);
        return true;
    }
    large_->index.Remove(hash, place);
    large_->emptyPlaces.push_back(place);
    entries_[place] = {};
    if (large_->emptyPlaces.size() * 2 > entries_.size()) {
        CloseGaps();
    }
    return true;
}

void ConfigMap::RemoveAll() {
    large_.reset();
    entries_.clear();
}

std::int32_t ConfigMap::Count() const {
    const std::size_t empty = large_ ? large_->emptyPlaces.size() : 0;
    return static_cast<std::int32_t>(entries_.size() - empty);
}

std::span<const ConfigEntry> ConfigMap::Entries() const {
    CloseGaps();
    return entries_;
}

std::uint32_t ConfigMap::Hash(std::string_view key) const {
    return large_ ? KeyIndex::Hash(key) : 0;
}

/// The place of the key among the first `count` ones.
std::uint32_t ConfigMap::Place(std::string_view key, std::uint32_t hash, std::size_t count) const {
    const auto isWanted = [&](std::uint32_t place) { return AreSame(entries_[place].key, key); };
    if (large_) {
        return large_->index.Find(hash, isWanted);
    }
    for (std::uint32_t place = 0; place < count; ++place) {
        if (isWanted(place)) {
            return place;
        }
    }
    return KeyIndex::absent;
}

std::uint32_t ConfigMap::Place(std::string_view key) const {
    return Place(key, Hash(key), entries_.size());
}

ConfigValue& ConfigMap::Append(std::string key, ConfigValue value) {
    entries_.push_back({std::move(key), std::move(value)});
    if (large_) {
        large_->index.Insert(KeyIndex::Hash(entries_.back().key),
                             static_cast<std::uint32_t>(entries_.size() - 1));
    } else if (entries_.size() > walkedKeys) {
        IndexAll();
    }
    return entries_.back().value;
}

void ConfigMap::IndexAll() const {
    large_ = std::make_unique<Large>(Large{KeyIndex(entries_.size()), {}});
    std::uint32_t place = 0;
    for (const ConfigEntry& entry : entries_) {
        large_->index.Insert(KeyIndex::Hash(entry.key), place++);
    }
}

void ConfigMap::CloseGaps() const {
    if (!large_ || large_->emptyPlaces.empty()) {
        return;
    }
    std::vector<std::uint32_t> empty = std::move(large_->emptyPlaces);
    std::ranges::sort(empty);
    empty.push_back(static_cast<std::uint32_t>(entries_.size()));
    auto kept = entries_.begin() + empty.front();
    for (std::size_t gap = 0; gap + 1 < empty.size(); ++gap) {
        kept =
            std::move(entries_.begin() + empty[gap] + 1, entries_.begin() + empty[gap + 1], kept);
    }
    entries_.erase(kept, entries_.end());
    large_.reset();
    if (entries_.size() > walkedKeys) {
        IndexAll();
    }
}

ConfigMapRef CopyBlock(const ConfigMap& map) {
    struct Pair {
        const ConfigMap* from;
        ConfigMap* to;
    };
    auto copy = std::make_shared<ConfigMap>();
    std::vector<Pair> pending{{&map, copy.get()}};
    while (!pending.empty()) {
        const Pair pair = pending.back();
        pending.pop_back();
        for (const ConfigEntry& entry : pair.from->Entries()) {
            ConfigValue value = entry.value;
            if (const ConfigMapRef nested = value.AsMap()) {
                auto nestedCopy = std::make_shared<ConfigMap>();
                pending.push_back({nested.get(), nestedCopy.get()});
                value = ConfigValue(nestedCopy);
            }
            pair.to->Add(entry.key, std::move(value));
        }
    }
    return copy;
}
