// What is saved comes back: documents made at random from everything the format can hold, saved, loaded,
// and saved again.
#include <algorithm>
#include <random>

#include "document/document.h"
#include "document/file_handles.h"
#include "document/file_lock.h"
#include "document/reader.h"
#include "document/text.h"
#include "document/writer.h"
#include "platform/files.h"
#include "support/fresh_test.h"

namespace {

// Draws the same on every machine for the same seed.
class Maker {
 public:
  explicit Maker(unsigned seed) : random_(seed) {}

  std::size_t Below(std::size_t bound) { return random_() % bound; }
  bool Chance(std::size_t one_in) { return Below(one_in) == 0; }

  // Text of that many characters: every byte but "~", CR and LF, the ones that mean something in the file
  // more often, and blanks in runs. A blank in front is the caller's choice; the last is none, since the
  // format cannot hold one there.
  std::string Text(std::size_t length) {
    static constexpr std::string_view kSpecial = "+;=*[]'%:,\"\t\x1A\xFF";
    std::string text;
    const std::size_t blanks = 1 + Below(40);  // one in so many
    while (text.size() < length) {
      if (Chance(blanks)) {
        text.append(1 + Below(4), ' ');
      } else if (Chance(6)) {
        text += kSpecial[Below(kSpecial.size())];
      } else {
        text += Character();
      }
    }
    text.resize(length);
    if (text.ends_with(' ')) text.back() = '+';
    return text;
  }
  std::string Text() { return Text(Chance(4) ? 0 : 1 + Below(30)); }

  // A note whose length and blanks lie around those where lines are cut.
  std::string Note() {
    static constexpr std::size_t kLengths[] = {1, 68, 69, 70, 71, 72, 139, 140, 141, 142, 200, 210, 211, 350};
    std::string note = Text(Chance(4) ? Below(300) + 1 : kLengths[Below(std::size(kLengths))]);
    if (Chance(3) && note.size() > 72) note[68 + Below(4)] = Chance(2) ? ' ' : '+';
    return note;
  }

  // A name as the document keeps it: trimmed, and without a comma, which would turn it around.
  std::string Name() {
    std::string name(Trim(Text()));
    std::replace(name.begin(), name.end(), ',', '_');
    return name;
  }

  std::string Keyword() {
    std::string keyword;
    for (std::size_t length = 1 + Below(8); keyword.size() < length;) keyword += static_cast<char>('A' + Below(26));
    return keyword;
  }

 private:
  char Character() {
    for (;;) {
      const char character = static_cast<char>(1 + Below(255));
      if (character != '~' && character != '\r' && character != '\n') return character;
    }
  }

  std::mt19937 random_;
};

void MakeDefinitions(Maker& make) {
  for (int number = 1; number <= kCategories; ++number) {
    TheDocument.CategoryNames[number] = make.Chance(5) ? "" : std::string(Trim(make.Text()));
  }
  TheDocument.Fields.SetCount(static_cast<int>(make.Below(15)));
  for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
    TheDocument.Fields[number] = {make.Keyword(), make.Text(), make.Chance(3) ? "" : make.Keyword()};
  }
  TheDocument.Formulas.SetCount(static_cast<int>(make.Below(15)));
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    TheDocument.Formulas[number] = {make.Text(), make.Text(), make.Text(), make.Text(), make.Note()};
  }
}

void MakeThing(Maker& make, int number, int count) {
  ThingRecord thing;
  if (!make.Chance(10)) {
    thing.NAME = make.Name();
    if (!make.Chance(8)) thing.NOTE = make.Note();
    if (make.Chance(3)) thing.PICFILENAME = make.Text();
    const auto link = [&] { return static_cast<std::int16_t>(make.Below(static_cast<std::size_t>(count) + 1)); };
    thing.XREF1 = make.Chance(2) ? link() : std::int16_t{0};
    thing.XREF2 = make.Chance(2) ? link() : std::int16_t{0};
    if (make.Chance(2)) thing.CATBITMAP = static_cast<std::int32_t>(make.Below(0x100000000));
    const auto fields = static_cast<std::size_t>(TheDocument.Fields.Count());
    const std::size_t values = fields == 0 ? 0 : make.Below(kFieldValues + 1);
    for (std::size_t slot = 0; slot < values; ++slot) {
      const std::string& keyword = TheDocument.Fields[static_cast<int>(1 + make.Below(fields))].Keyword;
      thing.Values[slot].Text = keyword + ":" + std::string(Trim(make.Text()));
    }
  }
  TheDocument.Things[number] = thing;
}

void MakeDocument(unsigned seed, int count) {
  Maker make(seed);
  TheDocument = {};
  MakeDefinitions(make);
  TheDocument.Things.GrowFor(count, 0);
  TheDocument.Things.SetCount(count);
  for (int number = 1; number <= count; ++number) MakeThing(make, number, count);
}

class RoundTripTest : public FreshTest {
 protected:
  static std::string Save() {
    Files::Open(kDataFileHandle, "Test.FIL", Files::Mode::Output);
    SaveFilerFile(kDataFileHandle);
    Files::Close(kDataFileHandle);
    return TestFiles::Get("Test.FIL").value_or("no file");
  }
  static void Load() {
    MakeNew();
    TheDocument = {};
    EXPECT_TRUE(LoadFilerFile(InFolder("Test.FIL")));
    ReleaseFileLock();
  }

  // The first line in which two documents differ, instead of both.
  static void ExpectSame(const std::string& before, const std::string& after) {
    if (before == after) return;
    std::size_t at = 0;
    while (at < before.size() && at < after.size() && before[at] == after[at]) ++at;
    const std::size_t start = before.rfind('\n', at) + 1;
    ADD_FAILURE() << "before: " << before.substr(start, before.find('\n', at) - start)
                  << "\nafter:  " << after.substr(start, after.find('\n', at) - start);
  }
};

TEST_F(RoundTripTest, BringsEveryDocumentBack) {
  for (unsigned seed = 1; seed <= 60 && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    MakeDocument(seed, static_cast<int>(seed * 7 % 80));
    const std::string before = DescribeDocument();
    const std::string file = Save();
    EXPECT_EQ(DescribeDocument(), before);  // saving changes nothing
    Load();
    ExpectSame(before, DescribeDocument());
    EXPECT_TRUE(Save() == file) << "the second save differs";
  }
}

TEST_F(RoundTripTest, BringsEveryNoteBack) {
  for (unsigned seed = 1001; seed <= 1002; ++seed) {
    MakeDocument(seed, 20000);
    const std::string before = DescribeDocument();
    const std::string file = Save();
    Load();
    ExpectSame(before, DescribeDocument());
    EXPECT_TRUE(Save() == file) << "the second save differs";
  }
}

// Every position of a blank, of two and of three, around the places where lines are cut.
TEST_F(RoundTripTest, BringsNotesBackWhereverTheirBlanksAre) {
  std::vector<std::string> notes;
  for (const std::size_t length : {69u, 70u, 71u, 72u, 139u, 140u, 141u, 142u, 200u}) {
    for (std::size_t first = 0; first + 1 < length; ++first) {
      for (std::size_t count = 1; count <= 3 && first + count < length; ++count) {
        for (const char filler : {'x', '+', ';'}) {
          std::string note(length, filler);
          notes.push_back(note.replace(first, count, count, ' '));
        }
      }
    }
  }
  TheDocument.Things.GrowFor(static_cast<int>(notes.size()), 0);
  TheDocument.Things.SetCount(static_cast<int>(notes.size()));
  for (std::size_t index = 0; index < notes.size(); ++index) {
    TheDocument.Things[static_cast<int>(index) + 1].NOTE = notes[index];
  }
  Save();
  Load();
  ASSERT_EQ(TheDocument.Things.Count(), static_cast<int>(notes.size()));
  for (std::size_t index = 0; index < notes.size() && !HasFailure(); ++index) {
    EXPECT_EQ(TheDocument.Things[static_cast<int>(index) + 1].NOTE, notes[index]);
  }
}

// What the format cannot hold, and what it becomes.
TEST_F(RoundTripTest, LosesWhatTheFormatCannotHold) {
  TheDocument.Things.SetCount(1);
  ThingRecord& thing = TheDocument.Things[1];
  thing.NAME = "B, C A";
  thing.NOTE = "one~two\r\nthree  ";
  thing.XREF1 = -1;
  Save();
  Load();
  EXPECT_EQ(DescribeDocument(), "thing 1 name<C A B> note<one?two/three>\n");
  // Blanks at a line's end are lost, but never let a "+" before them join the next line.
  TheDocument.Things[1].NOTE = "n+ ";
  TheDocument.Things[1].CATBITMAP = 3;
  TheDocument.Fields.SetCount(1);
  TheDocument.Fields[1] = {"WEIGHT", "Weight +  ", "DOLLAR"};
  Save();
  Load();
  EXPECT_EQ(DescribeDocument(),
            "field 1 keyword<WEIGHT> title<Weight +> type<DOLLAR>\nthing 1 name<C A B> note<n+> categories 3\n");
}

}  // namespace
