// A growable list of texts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Texts in the order in which they were added, indexed from 0. `Item` and `Remove` do not check
/// their index: it must be between 0 and Count().
class clsStringArray {
  public:
    void Add(std::string text) { texts_.push_back(std::move(text)); }
    /// Removes one entry; the later ones move down by one.
    void Remove(std::int32_t index) { texts_.erase(texts_.begin() + index); }
    const std::string& Item(std::int32_t index) const {
        return texts_[static_cast<std::size_t>(index)];
    }
    /// The highest index: the number of entries minus 1, so -1 for an empty list.
    std::int32_t Count() const { return static_cast<std::int32_t>(texts_.size()) - 1; }
    void Clear() { texts_.clear(); }

  private:
    std::vector<std::string> texts_;
};
