// The name forms: see names.h.
#include "document/names.h"

#include <algorithm>

#include "platform/text.h"

std::string JoinWordsWithUnderscores(std::string_view text) {
  std::string joined(Trim(text));
  std::replace(joined.begin(), joined.end(), ' ', '_');
  return joined;
}

std::string JoinUnderscoredWords(std::string_view text) {
  std::string joined(Trim(text));
  std::replace(joined.begin(), joined.end(), '_', ' ');
  return joined;
}

std::string NormaliseName(std::string_view name) {
  const auto comma = name.find(',');
  if (comma == std::string_view::npos) return std::string(Trim(name));
  const std::string joined = JoinWordsWithUnderscores(name.substr(0, comma));
  const std::string turned = std::string(Trim(name.substr(comma + 1))) + " " + joined;
  return std::string(Trim(turned));
}

std::string TurnName(std::string_view name) {
  if (const auto comma = name.find(','); comma != std::string_view::npos) {
    return std::string(Trim(name.substr(0, comma))) + ", " + std::string(Trim(name.substr(comma + 1)));
  }
  const auto blank = name.rfind(' ');
  if (blank == std::string_view::npos) return std::string(name);
  return JoinUnderscoredWords(name.substr(blank + 1)) + ", " + std::string(name.substr(0, blank));
}
