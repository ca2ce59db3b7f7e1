// The type keywords: see field_types.h.
#include "values/field_types.h"

#include <algorithm>

#include "platform/locale.h"
#include "platform/text.h"

bool IsNumberType(std::string_view type) {
  const std::string keyword = UpperCase(type);
  return std::find(kOfferedTypes.begin(), kOfferedTypes.end(), keyword) != kOfferedTypes.end() || keyword == "BYTE" ||
         keyword == "INTRATE";
}

std::string StorageType(std::string_view type) {
  if (Trim(type).empty()) return "DOUBLE";
  if (!IsNumberType(type)) return {};
  const std::string keyword = UpperCase(type);
  return keyword == "INTEREST" ? "INTRATE" : keyword;
}
