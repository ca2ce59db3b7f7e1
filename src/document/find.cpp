// Finding things: see find.h.
#include "document/find.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "document/document.h"
#include "document/value_test.h"
#include "platform/locale.h"
#include "platform/text.h"
#include "values/templates.h"

namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

// A word to be found. Looking at the last letter of where it might be, most places are passed over by its whole
// length: a document of full size is searched between two keys.
class Word {
 public:
  explicit Word(std::string_view text) : plain_(PlainText(text)) {
    const std::size_t last = plain_.size() - 1;
    steps_.fill(static_cast<std::uint32_t>(plain_.size()));
    for (std::size_t code = 0; code < steps_.size(); ++code) {
      const char letter = PlainLetters()[code];
      const std::size_t before = last == 0 ? kNowhere : plain_.rfind(letter, last - 1);
      if (before != kNowhere) steps_[code] = static_cast<std::uint32_t>(last - before);
      if (letter == plain_[last]) steps_[code] = 0;
    }
  }

  std::size_t size() const { return plain_.size(); }

  // Where it first is in a text, or kNowhere.
  std::size_t In(std::string_view text) const {
    const std::size_t last = plain_.size() - 1;
    for (std::size_t end = last; end < text.size();) {
      const std::uint32_t step = StepAt(text[end]);
      if (step == 0 && EndsAt(text, end)) return end - last;
      // A short step must wait for the one before; looking at each byte need not.
      end += last >= kLongSteps ? std::max(step, 1U) : 1;
      while (last < kLongSteps && end < text.size() && StepAt(text[end]) != 0) ++end;
    }
    return kNowhere;
  }

 private:
  static constexpr std::size_t kLongSteps = 4;

  std::uint32_t StepAt(char byte) const { return steps_[static_cast<unsigned char>(byte)]; }

  // The last letter fits: the others as well.
  bool EndsAt(std::string_view text, std::size_t end) const {
    const PlainBytes& bytes = PlainLetters();
    const std::string_view before = text.substr(end + 1 - plain_.size(), plain_.size() - 1);
    return std::equal(before.begin(), before.end(), plain_.begin(),
                      [&bytes](char one, char other) { return bytes[static_cast<unsigned char>(one)] == other; });
  }

  std::string plain_;
  std::array<std::uint32_t, 256> steps_{};  // by the text's byte at the end: how far on the next place is; 0: look here
};

std::vector<Word> WordsOf(std::string_view text) {
  std::vector<Word> words;
  while (!(text = TrimLeft(text)).empty()) {
    const bool quoted = text.front() == '"';
    if (quoted) text.remove_prefix(1);
    const std::size_t end = std::min(text.find_first_of(quoted ? "\"" : " \""), text.size());
    if (end > 0) words.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + (quoted ? 1 : 0), text.size()));
  }
  return words;
}

// Looks for one word in the places of one thing after another.
class Search {
 public:
  Search(const Word& word, FindPlace where) : word_(word), where_(where) {
    for (int number = 1; number <= kCategories; ++number) {
      if (word.In(TheDocument.CategoryNames[number]) != kNowhere) categories_ |= CategoryBit(number);
    }
  }

  bool Finds(const ThingRecord& thing, Hit& hit) const {
    return (Takes(FindPlace::Names) && IsIn(thing.NAME, FindPlace::Names, 0, hit)) ||
           (Takes(FindPlace::Notes) && IsIn(thing.NOTE, FindPlace::Notes, 0, hit)) ||
           (Takes(FindPlace::Values) && IsInValues(thing, hit)) ||
           (Takes(FindPlace::Categories) && IsInCategories(thing, hit));
  }

 private:
  bool Takes(FindPlace place) const { return where_ == FindPlace::Everything || where_ == place; }

  bool IsIn(std::string_view text, FindPlace place, int number, Hit& hit) const {
    const std::size_t at = word_.In(text);
    if (at == kNowhere) return false;
    hit = {hit.Record, place, number, at, word_.size()};
    return true;
  }

  bool IsInValues(const ThingRecord& thing, Hit& hit) const {
    for (std::size_t slot = 0; slot < thing.Values.size(); ++slot) {
      const std::string& text = thing.Values[slot].Text;
      if (text.size() > word_.size() &&
          IsIn(thing.Values[slot].Value(), FindPlace::Values, static_cast<int>(slot), hit)) {
        return true;
      }
    }
    return false;
  }

  bool IsInCategories(const ThingRecord& thing, Hit& hit) const {
    const std::int32_t both = thing.CATBITMAP & categories_;
    for (int number = 1; both != 0 && number <= kCategories; ++number) {
      if ((both & CategoryBit(number)) == 0) continue;
      return IsIn(TheDocument.CategoryNames[number], FindPlace::Categories, number, hit);
    }
    return false;
  }

  const Word& word_;
  FindPlace where_;
  std::int32_t categories_ = 0;  // those whose names have the word
};

// The text that a hit is in.
std::string TextOf(const Hit& hit, const FindRequest& request) {
  const ThingRecord& thing = TheDocument.Things[hit.Record];
  switch (hit.In) {
    case FindPlace::Names:
      return thing.NAME;
    case FindPlace::Notes:
      return thing.NOTE;
    case FindPlace::Categories:
      return TheDocument.CategoryNames[hit.Number];
    default:
      if (hit.Number >= 0) return std::string(thing.Values[static_cast<std::size_t>(hit.Number)].Value());
      return ValueTester(request.Value).ShownValue(thing);
  }
}

}  // namespace

bool CanBeRead(const ValueTest& test) { return ValueTester(test).CanBeRead(); }

std::vector<Hit> FindThings(const FindRequest& request) {
  const std::vector<Word> words = WordsOf(request.Words);
  const ValueTester tester(request.Value);
  std::vector<Hit> hits;
  if (!tester.CanBeRead() || (words.empty() && tester.PassesAll())) return hits;
  std::vector<Search> searches;
  searches.reserve(words.size());
  for (const Word& word : words) searches.emplace_back(word, request.Where);
  const auto& things = TheDocument.Things;
  for (int record = 1; record <= things.Count(); ++record) {
    const ThingRecord& thing = things[record];
    Hit first{record};
    Hit other;
    bool all = true;
    for (const Search& search : searches) all = all && search.Finds(thing, &search == searches.data() ? first : other);
    if (all && tester.Passes(thing)) hits.push_back(first);
  }
  return hits;
}

int NextHit(const std::vector<Hit>& hits, int record, bool forward) {
  if (hits.empty()) return 0;
  const auto behind = [&](int number) {
    return std::partition_point(hits.begin(), hits.end(), [number](const Hit& hit) { return hit.Record <= number; });
  };
  if (forward) {
    const auto next = behind(record);
    return (next == hits.end() ? hits.front() : *next).Record;
  }
  const auto next = behind(record - 1);
  return (next == hits.begin() ? hits.back() : next[-1]).Record;
}

std::string PlaceOf(const Hit& hit, const FindRequest& request) {
  if (hit.In == FindPlace::Names) return "Name";
  if (hit.In == FindPlace::Notes) return "Note";
  if (hit.In == FindPlace::Categories) return "Category";
  if (hit.Number < 0) return ValueTester(request.Value).Title();
  const auto slot = static_cast<std::size_t>(hit.Number);
  return ValueTester({std::string(TheDocument.Things[hit.Record].Values[slot].Keyword()), {}, {}}).Title();
}

std::string WordsAround(const Hit& hit, const FindRequest& request) {
  constexpr std::size_t kBefore = 25;
  constexpr std::size_t kBehind = 75;
  const std::string text = TextOf(hit, request);
  const std::size_t end = hit.At + hit.Size;
  // Cut between words, where there are some.
  std::size_t first = hit.At <= kBefore ? 0 : std::min(text.find(' ', hit.At - kBefore), hit.At);
  std::size_t last = text.size() - std::min(end, text.size()) <= kBehind ? text.size() : text.rfind(' ', end + kBehind);
  if (last == kNowhere || last < end) last = end + kBehind;
  if (first > 0) ++first;
  first = std::min(first, hit.At);
  return (first > 0 ? "... " : "") + text.substr(first, last - first) + (last < text.size() ? " ..." : "");
}
