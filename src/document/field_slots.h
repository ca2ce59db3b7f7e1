// The values of a thing's fields: ten slots, each with a field's keyword and its value.
#pragma once

#include <array>
#include <string>
#include <string_view>

inline constexpr int kFieldValues = 10;

// "KEYWORD:value" in one text, empty when the slot is unused.
struct FieldValueSlot {
  std::string Text;
  std::string_view Keyword() const;  // the text before the first ":"; empty without one or when it comes first
  std::string_view Value() const;    // the text after the first ":"; empty without one
  void Set(std::string_view keyword, std::string_view value);
  bool operator==(const FieldValueSlot&) const = default;
};

using FieldSlots = std::array<FieldValueSlot, kFieldValues>;

// The slot that holds the field's value, nullptr when there is none. Keywords compare without regard to case.
FieldValueSlot* FindSlot(FieldSlots& slots, std::string_view keyword);
const FieldValueSlot* FindSlot(const FieldSlots& slots, std::string_view keyword);

// The value of a field, empty when the slots have none.
std::string_view ValueOf(const FieldSlots& slots, std::string_view keyword);

// Puts a value into the field's slot, or into the first free one; an empty value leaves the keyword alone in its
// slot. False when there is no slot left: nothing is changed then.
bool PutValue(FieldSlots& slots, std::string_view keyword, std::string_view value);

// Takes the field's slot out. The slots behind move up, so that the other values keep their order.
void RemoveValue(FieldSlots& slots, std::string_view keyword);

// The slots that hold a value, moved together from the first one on.
FieldSlots PackValues(const FieldSlots& slots);
