// Finding text: see finder.h.
#include "viewer/finder.h"

#include <algorithm>

#include "platform/locale.h"

Finder::Finder(std::string_view sought) : sought_(UpperCase(sought)) {
  for (std::size_t code = 0; code < capital_.size(); ++code) capital_[code] = UpperCase(static_cast<char>(code));
}

std::size_t Finder::In(std::string_view text, std::size_t from) const {
  if (sought_.empty() || text.size() < sought_.size()) return std::string_view::npos;
  const auto capital = [this](char each) { return capital_[static_cast<unsigned char>(each)]; };
  const std::size_t last = text.size() - sought_.size();
  const char first = sought_.front();
  for (std::size_t at = from; at <= last; ++at) {
    if (capital(text[at]) != first) continue;
    if (std::equal(sought_.begin() + 1, sought_.end(), text.begin() + static_cast<Index>(at) + 1,
                   [capital](char ours, char theirs) { return ours == capital(theirs); })) {
      return at;
    }
  }
  return std::string_view::npos;
}

std::size_t Finder::CountIn(std::string_view text) const {
  std::size_t count = 0;
  for (std::size_t at = In(text, 0); at != std::string_view::npos; at = In(text, at + sought_.size())) ++count;
  return count;
}

std::optional<Place> Finder::Next(const ReportText& text, const Place& from) const {
  const std::string_view body = text.Body();
  // From the beginning of its line, so that what overlaps an earlier hit is none.
  const std::size_t wanted = text.OffsetOf(from);
  std::size_t at = In(body, text.OffsetOf({from.Line, 0}));
  while (at != std::string_view::npos && at < wanted) at = In(body, at + sought_.size());
  if (at == std::string_view::npos) return std::nullopt;
  return text.PlaceOf(at);
}

std::optional<Place> Finder::Previous(const ReportText& text, const Place& before) const {
  for (Index line = std::min(before.Line, text.Count() - 1); line >= 0; --line) {
    const std::string_view bytes = text.Line(line);
    std::optional<Place> last;
    for (std::size_t at = In(bytes, 0); at != std::string_view::npos; at = In(bytes, at + sought_.size())) {
      const Place place{line, static_cast<Index>(at)};
      if (place >= before) break;
      last = place;
    }
    if (last) return last;
  }
  return std::nullopt;
}
