// What is saved comes back: documents made at random from everything the format can hold, saved, loaded,
// and saved again.
#include <algorithm>
#include <random>

#include "document/document.h"
#include "platform/text.h"
#include "support/fresh_test.h"

namespace {

// Draws the same on every machine for the same seed.
class Maker {
 public:
  explicit Maker(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t bound) { return random_() % bound; }
  bool Chance(std::size_t one_in) { return Below(one_in) == 0; }

  // Text of that many characters: every byte but "~", CR and LF, the ones that mean something in the file and blanks
  // more often. A blank in front is the caller's choice; the last is none, since the format cannot hold one there.
  std::string Text(std::size_t length) {
    static constexpr std::string_view kSpecial = "+;=*[]'%:,\"\t\x1A\xFF";
    std::string text;
    const std::size_t blanks = 1 + Below(40);  // one in so many
    while (text.size() < length) {
      const auto any = static_cast<char>(1 + Below(255));
      text += Chance(6) ? kSpecial[Below(kSpecial.size())] : Chance(blanks) || any == '~' ? ' ' : any;
    }
    std::replace_if(
        text.begin(), text.end(), [](char each) { return each == '\r' || each == '\n'; }, ' ');
    if (text.ends_with(' ')) text.back() = '+';
    return text;
  }
  std::string Text() { return Text(Chance(4) ? 0 : 1 + Below(30)); }
  std::string Trimmed() { return std::string(Trim(Text())); }

  // A note whose length and blanks lie around those where lines are cut.
  std::string Note() {
    std::string note = Text(Chance(4) ? 1 + Below(300) : 68 + 70 * Below(4) + Below(5));
    if (Chance(3) && note.size() > 72) note[68 + Below(4)] = Chance(2) ? ' ' : '+';
    return note;
  }

  std::string Keyword() { return std::string(1 + Below(8), static_cast<char>('A' + Below(26))); }

  ThingRecord Thing(int things) {
    ThingRecord thing;
    if (Chance(10)) return thing;
    thing.NAME = Trimmed();
    std::replace(thing.NAME.begin(), thing.NAME.end(), ',', '_');  // which would turn it around
    if (!Chance(8)) thing.NOTE = Note();
    if (Chance(3)) thing.PICFILENAME = Text();
    for (std::int16_t* link : {&thing.XREF1, &thing.XREF2}) {
      if (Chance(2)) *link = static_cast<std::int16_t>(Below(static_cast<std::size_t>(things) + 1));
    }
    if (Chance(2)) thing.CATBITMAP = static_cast<std::int32_t>(Below(0x100000000));
    const auto fields = static_cast<std::size_t>(TheDocument.Fields.Count());
    for (std::size_t slot = 0, values = Below(kFieldValues + 1); fields > 0 && slot < values; ++slot) {
      thing.Values[slot].Text = TheDocument.Fields[static_cast<int>(1 + Below(fields))].Keyword + ":" + Trimmed();
    }
    return thing;
  }

  void MakeDocument(int things) {
    TheDocument = {};
    for (int number = 1; number <= kCategories; ++number) {
      TheDocument.CategoryNames.Writable(number) = Chance(5) ? "" : Trimmed();
    }
    TheDocument.Fields.SetCount(static_cast<int>(Below(15)));
    for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
      TheDocument.Fields.Writable(number) = {Keyword(), Text(), Chance(3) ? "" : Keyword()};
    }
    TheDocument.Formulas.SetCount(static_cast<int>(Below(15)));
    for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
      TheDocument.Formulas.Writable(number) = {Text(), Text(), Text(), Text(), Note()};
    }
    TheDocument.Things.GrowFor(things, 0);
    TheDocument.Things.SetCount(things);
    for (int number = 1; number <= things; ++number) TheDocument.Things.Writable(number) = Thing(things);
  }

 private:
  std::mt19937 random_;
};

class RoundTripTest : public FreshTest {};

TEST_F(RoundTripTest, BringsEveryDocumentBack) {
  for (unsigned seed = 0; seed <= 60 && !HasFailure(); ++seed) {
    Maker(seed).MakeDocument(seed > 0 ? static_cast<int>(seed * 7 % 80) : 10000);
    // One text is larger than the pieces in which the file is written.
    if (seed == 0) TheDocument.Things.Writable(1).PICFILENAME.assign(300000, ';');
    EXPECT_NO_THROW(RequireRoundTrip()) << "seed " << seed;
  }
}

}  // namespace
