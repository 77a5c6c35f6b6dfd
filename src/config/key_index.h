// Finds the place of a key in a map that is too large to be walked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// A hash table of places, with the keys themselves left where they are: open addressing, at most
/// half full. The hash's high bits choose the slot, so that a table that grows is copied in one
/// sequential walk.
class KeyIndex {
  public:
    static constexpr std::uint32_t absent = 0xFFFFFFFF;

    static std::uint32_t Hash(std::string_view key);

    /// An empty index with room for so many keys.
    explicit KeyIndex(std::size_t keys);

    /// The place entered with this hash for which `isWanted` answers true, or `absent`.
    template <class Predicate>
    std::uint32_t Find(std::uint32_t hash, Predicate isWanted) const {
        for (std::size_t at = hash >> shift_; slots_[at].place != absent; at = Next(at)) {
            if (slots_[at].hash == hash && slots_[at].place != removed &&
                isWanted(slots_[at].place)) {
                return slots_[at].place;
            }
        }
        return absent;
    }

    /// Tells the processor that this hash is going to be asked for.
    void Prefetch(std::uint32_t hash) const { __builtin_prefetch(&slots_[hash >> shift_]); }

    /// Enters a place below 2^31 that is not there yet.
    void Insert(std::uint32_t hash, std::uint32_t place);

    /// Takes a place out that was entered with this hash.
    void Remove(std::uint32_t hash, std::uint32_t place);

  private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t place = absent;
    };
    static constexpr std::uint32_t removed = 0xFFFFFFFE;

    std::size_t Next(std::size_t at) const { return at + 1 < slots_.size() ? at + 1 : 0; }
    void Resize(int bits);

    std::vector<Slot> slots_;
    std::size_t used_ = 0;
    int shift_ = 0;
};
