#include "config/key_index.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <utility>

namespace {

constexpr int hashBits = 32;

}  // namespace

std::uint32_t KeyIndex::Hash(std::string_view key) {
    const std::uint64_t hash = std::hash<std::string_view>{}(key);
    return static_cast<std::uint32_t>(hash ^ (hash >> hashBits));
}

KeyIndex::KeyIndex(std::size_t keys) {
    Resize(std::max(4, static_cast<int>(std::bit_width(keys)) + 1));
}

void KeyIndex::Insert(std::uint32_t hash, std::uint32_t place) {
    if (used_ * 2 >= slots_.size()) {
        Resize(hashBits - shift_ + 1);
    }
    std::size_t at = hash >> shift_;
    while (slots_[at].place != absent) {
        at = Next(at);
    }
    slots_[at] = {hash, place};
    ++used_;
}

void KeyIndex::Remove(std::uint32_t hash, std::uint32_t place) {
    std::size_t at = hash >> shift_;
    while (slots_[at].place != place) {
        at = Next(at);
    }
    slots_[at].place = removed;
}

void KeyIndex::Resize(int bits) {
    std::vector<Slot> old(std::size_t{1} << bits);
    std::swap(old, slots_);
    shift_ = hashBits - bits;
    used_ = 0;
    for (const Slot& slot : old) {
        if (slot.place < removed) {
            Insert(slot.hash, slot.place);
        }
    }
}
