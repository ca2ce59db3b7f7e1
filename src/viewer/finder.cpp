// Finding text: see finder.h.
#include "viewer/finder.h"

#include <algorithm>

#include "platform/locale.h"
#include "platform/references.h"

Finder::Finder(std::string_view sought) {
  for (std::size_t at = 0, size = 1; at < sought.size(); at += size) {
    const ShownCharacter shown = CharacterAt(sought, at);
    size = shown.Bytes;
    const bool is_far = size > 1 && shown.Code != '&';
    sought_ += is_far ? kFarCharacter : UpperCase(sought[at]);
    far_ += is_far ? shown.Code : 0;
  }
  has_far_ = sought_.find(kFarCharacter) != std::string::npos;
  for (std::size_t code = 0; code < capital_.size(); ++code) capital_[code] = UpperCase(static_cast<char>(code));
}

std::size_t Finder::In(const ReportText& text, std::string_view part, std::size_t from) const {
  if (sought_.empty() || part.size() < sought_.size()) return std::string_view::npos;
  const auto capital = [this](char each) { return capital_[static_cast<unsigned char>(each)]; };
  const std::size_t last = part.size() - sought_.size();
  const char first = sought_.front();
  for (std::size_t at = from; at <= last; ++at) {
    if (capital(part[at]) != first) continue;
    const bool found = std::equal(sought_.begin() + 1, sought_.end(), part.begin() + static_cast<Index>(at) + 1,
                                  [capital](char ours, char theirs) { return ours == capital(theirs); });
    if (found && (!has_far_ || SameFarCharacters(text, part.data() + at))) return at;
  }
  return std::string_view::npos;
}

bool Finder::SameFarCharacters(const ReportText& text, const char* column) const {
  return std::all_of(far_.begin(), far_.end(), [&](char32_t each) {
    const char* const theirs = column++;
    return *theirs != kFarCharacter || text.FarCharacter(theirs) == each;
  });
}

std::size_t Finder::CountIn(const ReportText& text, std::string_view part) const {
  std::size_t count = 0;
  for (std::size_t at = In(text, part, 0); at != std::string_view::npos; at = In(text, part, at + sought_.size())) {
    ++count;
  }
  return count;
}

std::optional<Place> Finder::Next(const ReportText& text, const Place& from) const {
  const std::string_view body = text.Body();
  // From the beginning of its line, so that what overlaps an earlier hit is none.
  const std::size_t wanted = text.OffsetOf(from);
  std::size_t at = In(text, body, text.OffsetOf({from.Line, 0}));
  while (at != std::string_view::npos && at < wanted) at = In(text, body, at + sought_.size());
  if (at == std::string_view::npos) return std::nullopt;
  return text.PlaceOf(at);
}

std::optional<Place> Finder::Previous(const ReportText& text, const Place& before) const {
  for (Index line = std::min(before.Line, text.Count() - 1); line >= 0; --line) {
    const std::string_view bytes = text.Line(line);
    std::optional<Place> last;
    for (std::size_t at = In(text, bytes, 0); at != std::string_view::npos; at = In(text, bytes, at + sought_.size())) {
      const Place place{line, static_cast<Index>(at)};
      if (place >= before) break;
      last = place;
    }
    if (last) return last;
  }
  return std::nullopt;
}
