// A growable list of texts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Texts in the order in which they were added, indexed from 0. `Item` and `Remove` trust their
/// index: it has to be between 0 and Count().
class clsStringArray {
  public:
    void Add(std::string AddString) { texts_.push_back(std::move(AddString)); }
    /// Takes one entry out; the later ones move down.
    void Remove(std::int32_t Index) { texts_.erase(texts_.begin() + Index); }
    const std::string& Item(std::int32_t Index) const {
        return texts_[static_cast<std::size_t>(Index)];
    }
    /// The highest index, which is the number of entries minus 1, and -1 for an empty list.
    std::int32_t Count() const { return static_cast<std::int32_t>(texts_.size()) - 1; }
    void Clear() { texts_.clear(); }

  private:
    std::vector<std::string> texts_;
};
