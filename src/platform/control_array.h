// Controls of one kind whose ids follow each other in the template, as the letter tabs do.
#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "platform/control.h"

// Elements are counted from 0: number i binds to the id `first_id` + i.
template <class Kind, int kCount>
class ControlArray {
 public:
  ControlArray(Form& owner, int first_id) : ControlArray(owner, first_id, std::make_integer_sequence<int, kCount>()) {}

  Kind& operator[](int index) { return items_.at(static_cast<std::size_t>(index)); }
  auto begin() { return items_.begin(); }
  auto begin() const { return items_.begin(); }
  auto end() { return items_.end(); }
  auto end() const { return items_.end(); }

 private:
  template <int... kIndexes>
  ControlArray(Form& owner, int first_id, std::integer_sequence<int, kIndexes...> /*indexes*/)
      : items_{{Kind(owner, first_id + kIndexes)...}} {}

  std::array<Kind, kCount> items_;
};
