// Finding and changing the values of a thing's fields: see field_slots.h.
#include "document/field_slots.h"

#include <algorithm>
#include <utility>

#include "platform/locale.h"

std::string_view FieldValueSlot::Keyword() const {
  const auto colon = Text.find(':');
  return colon == std::string::npos ? std::string_view() : std::string_view(Text).substr(0, colon);
}

std::string_view FieldValueSlot::Value() const {
  const auto colon = Text.find(':');
  return colon == std::string::npos ? std::string_view() : std::string_view(Text).substr(colon + 1);
}

void FieldValueSlot::Set(std::string_view keyword, std::string_view value) {
  std::string text;
  text.reserve(keyword.size() + 1 + value.size());
  Text = std::move(text.append(keyword).append(1, ':').append(value));
}

// An unused slot has no keyword, not an empty one.
const FieldValueSlot* FindSlot(const FieldSlots& slots, std::string_view keyword) {
  const auto found = std::find_if(slots.begin(), slots.end(), [keyword](const FieldValueSlot& slot) {
    if (slot.Text.find(':') != keyword.size()) return false;
    return slot.Text.starts_with(keyword) || UpperCase(slot.Keyword()) == UpperCase(keyword);  // most are in capitals
  });
  return found == slots.end() ? nullptr : &*found;
}

FieldValueSlot* FindSlot(FieldSlots& slots, std::string_view keyword) {
  const FieldValueSlot* found = FindSlot(std::as_const(slots), keyword);
  return found == nullptr ? nullptr : &slots[static_cast<std::size_t>(found - slots.data())];
}

std::string_view ValueOf(const FieldSlots& slots, std::string_view keyword) {
  const FieldValueSlot* slot = FindSlot(slots, keyword);
  return slot == nullptr ? std::string_view() : slot->Value();
}

bool PutValue(FieldSlots& slots, std::string_view keyword, std::string_view value) {
  FieldValueSlot* slot = FindSlot(slots, keyword);
  if (slot == nullptr) {
    if (value.empty()) return true;
    slot = std::find_if(slots.data(), slots.data() + slots.size(),
                        [](const FieldValueSlot& each) { return each.Value().empty(); });
    if (slot == slots.data() + slots.size()) return false;
  }
  slot->Set(keyword, value);
  return true;
}

void RemoveValue(FieldSlots& slots, std::string_view keyword) {
  while (FieldValueSlot* slot = FindSlot(slots, keyword)) {
    std::move(slot + 1, slots.data() + slots.size(), slot);
    slots.back().Text.clear();
  }
}

FieldSlots PackValues(const FieldSlots& slots) {
  FieldSlots packed;
  std::copy_if(slots.begin(), slots.end(), packed.begin(),
               [](const FieldValueSlot& slot) { return !slot.Value().empty(); });
  return packed;
}
