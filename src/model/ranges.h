// Ranges over the lists of the model. They are what the standard views would be, for compilers that do not
// take those yet (clang 14, which builds the fuzz targets).
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>
#include <ranges>
#include <vector>

namespace velk {

// The objects that a list owns, as a range of references.
template <typename T>
class Pointees {
 public:
  class iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = T*;
    using reference = T&;

    iterator() = default;
    explicit iterator(const std::unique_ptr<T>* at) : at_(at) {}
    T& operator*() const { return **at_; }
    T* operator->() const { return at_->get(); }
    iterator& operator++() { return ++at_, *this; }
    iterator operator++(int) { return iterator(at_++); }
    friend bool operator==(const iterator&, const iterator&) = default;

   private:
    const std::unique_ptr<T>* at_ = nullptr;
  };

  explicit Pointees(const std::vector<std::unique_ptr<T>>& owners) : owners_(&owners) {}
  iterator begin() const { return iterator(owners_->data()); }
  iterator end() const { return iterator(owners_->data() + owners_->size()); }

 private:
  const std::vector<std::unique_ptr<T>>* owners_;
};

// A list from its last item to its first.
template <typename T>
class Reversed {
 public:
  explicit Reversed(const std::vector<T>& items) : items_(&items) {}
  auto begin() const { return items_->rbegin(); }
  auto end() const { return items_->rend(); }

 private:
  const std::vector<T>* items_;
};

}  // namespace velk

template <typename T>
inline constexpr bool std::ranges::enable_borrowed_range<velk::Pointees<T>> = true;
template <typename T>
inline constexpr bool std::ranges::enable_borrowed_range<velk::Reversed<T>> = true;
