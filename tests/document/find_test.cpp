// Finding things, and the way back to those that were shown.
#include "document/find.h"

#include "document/document.h"
#include "document/things.h"
#include "support/fresh_test.h"
#include "support/rows.h"

namespace {

class FindTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    for (const char* name : {"Big Red_Barn", "Garden Shed", "\xC9table", "rake", "Zoo"}) InsertThing(name);
    Document& document = TheDocument;
    document.CategoryNames.Writable(1) = "Rooms";
    document.CategoryNames.Writable(32) = "On loan";
    const FieldDefinition fields[] = {{"PRICE", "Price", "DOLLAR"}, {"ODDS", "Odds", "ODDS"}, {"MAKER", "Maker", ""}};
    document.Fields.SetCount(3);
    for (int number = 1; number <= 3; ++number) document.Fields.Writable(number) = fields[number - 1];
    document.Formulas.SetCount(2);
    document.Formulas.Writable(1) = {"TWICE", "Doubled", "DOLLAR", "", "[PRICE] * 2"};
    document.Formulas.Writable(2) = {"RATE", "Rate", "INTEREST", "", "[PRICE] / 5"};
    Put(1, "It stands in the field.", 1, {"PRICE:12.50", "MAKER:Voss"});
    Put(2, "", CategoryBit(32), {"MAKER:field & Son", "PRICE:3"});
    Put(3, "Rooms with caf\xE9s", 0, {"ODDS:33.3%", "PRICE:x"});
    Put(5, "barn", 1 | CategoryBit(32), {"ODDS:50%"});
  }
  static void Put(int record, const char* note, int categories, std::initializer_list<const char*> values) {
    ThingRecord& thing = TheDocument.Things.Writable(record == 3 ? 5 : record == 5 ? 4 : record);
    thing.NOTE = note;
    thing.CATBITMAP = categories;
    std::size_t slot = 0;
    for (const char* value : values) thing.Values[slot++].Text = value;
  }
  // "words @place ?FIELD sign text": the first letter of a place, a sign of kSigns.
  static FindRequest Asked(const std::string& text) {
    const std::string places = "ENTVC", signs = "=!<[>]eE";
    const auto [words, value] = Halves(text, '?');
    const auto [plain, place] = Halves(words, '@');
    FindRequest request;
    request.Words = plain;
    if (!place.empty()) request.Where = static_cast<FindPlace>(places.find(place[0]));
    const auto [name, rest] = Halves(value, ' ');
    request.Value.Name = name;
    if (!rest.empty()) request.Value.How = static_cast<Comparison>(signs.find(rest[0]));
    if (rest.size() > 2) request.Value.Text = rest.substr(2);
    return request;
  }
};

// Etable stands behind Zoo: its capital is greater.
TEST_F(FindTest, FindsAllWordsAndTheValue) {
  for (const auto& [asked, found] : Rows("barn => 1Name<Big Red_Barn> 4Note<barn>\n"
                                         "BARN field => 1Name<Big Red_Barn>\n"
                                         "field => 1Note<It stands in the field.> 2Maker<field & Son>\n"
                                         "field @T => 1Note<It stands in the field.>\n"
                                         "\"red barn\" => 1Name<Big Red_Barn>\n"
                                         "\"red  barn => \n"
                                         "red \"barn => 1Name<Big Red_Barn>\n"
                                         "e\"ta\"ble => 5Name<\xC9table>\n"
                                         "\"\" => \n"
                                         "etABle => 5Name<\xC9table>\n"
                                         "caf\xC9 => 5Note<Rooms with caf\xE9s>\n"
                                         "rooms => 1Category<Rooms> 4Category<Rooms> 5Note<Rooms with caf\xE9s>\n"
                                         "loan @C => 2Category<On loan> 4Category<On loan>\n"
                                         "loan rooms @C => 4Category<On loan>\n"
                                         "loan @N => \n"
                                         "price => \n"
                                         "12.5 @V => 1Price<12.50>\n"
                                         "zoo => 4Name<Zoo>\n"
                                         "q => \n"
                                         "?PRICE => \n"
                                         "?PRICE = => \n"
                                         "?PRICE = 12.5 => 1Price<12.50>\n"
                                         "?PRICE = 12.496 + 5% => \n"
                                         "?PRICE = 12.496 => 1Price<12.50>\n"
                                         "?PRICE ! 3 => 1Price<12.50>\n"
                                         "?PRICE < 12.50 => 2Price<3>\n"
                                         "?PRICE [ 12.50 => 1Price<12.50> 2Price<3>\n"
                                         "?PRICE > 3 => 1Price<12.50>\n"
                                         "?PRICE ] 1.5 * 2 => 1Price<12.50> 2Price<3>\n"
                                         "?PRICE ] -1 => 1Price<12.50> 2Price<3>\n"
                                         "?PRICE ] 1,5 => \n"
                                         "?PRICE e => 3Price<> 4Price<>\n"
                                         "?PRICE E => 1Price<12.50> 2Price<3> 5Price<x>\n"
                                         "?PRICE > ten => \n"
                                         "?ODDS = 33.3% => 5Odds<33.3%>\n"
                                         "?ODDS < 150% => 4Odds<50%> 5Odds<33.3%>\n"
                                         "?MAKER = voss => 1Maker<Voss>\n"
                                         "?MAKER > VOS => 1Maker<Voss>\n"
                                         "?MAKER ] ten => 1Maker<Voss>\n"
                                         "?TWICE = 25 => 1Doubled<25.00>\n"
                                         "?TWICE e => 3Doubled<> 4Doubled<>\n"
                                         "?RATE > 100% => 1Rate<250.00%>\n"
                                         "?GONE e => \n"
                                         "barn @E?PRICE E => 1Name<Big Red_Barn>\n"
                                         "barn?PRICE = => 1Name<Big Red_Barn> 4Note<barn>\n")) {
    const FindRequest request = Asked(asked);
    std::string text;
    for (const Hit& hit : FindThings(request)) {
      text += (text.empty() ? "" : " ") + std::to_string(hit.Record) + PlaceOf(hit, request) + "<" +
              WordsAround(hit, request) + ">";
    }
    EXPECT_EQ(text, found) << asked;
  }
  for (const auto& [asked, read] : Rows("?PRICE < ten => 0 | ?PRICE e ten => 1 | ?MAKER < ten => 1 | ?ODDS < 2 => 1")) {
    EXPECT_EQ(std::to_string(CanBeRead(Asked(asked).Value)), read) << asked;
  }
}

TEST_F(FindTest, FindsEveryPieceOfAText) {
  const std::string text = "mississippi_caf\xE9 isSIP sip";
  TheDocument.Things.Writable(4).NOTE = text;
  std::string plain = "MISSISSIPPI CAFE ISSIP SIP";
  for (std::size_t first = 0; first < text.size(); ++first) {
    for (std::size_t size = 1; first + size <= text.size(); ++size) {
      const auto hits = FindThings({'"' + text.substr(first, size) + '"', FindPlace::Notes, {}});
      const auto hit = std::find_if(hits.begin(), hits.end(), [](const Hit& each) { return each.Record == 4; });
      ASSERT_NE(hit, hits.end()) << first << " " << size;
      EXPECT_EQ(hit->At, plain.find(plain.substr(first, size))) << first << " " << size;
    }
  }
}

TEST_F(FindTest, ShowsTheWordsAround) {
  std::string words, letters;
  for (int number = 100; number < 200; ++number) words += std::to_string(number) + " ", letters += "xxx";
  TheDocument.Things.Writable(3).NOTE = words;
  TheDocument.Things.Writable(2).NOTE = letters + "y" + letters;
  const auto around = [](const char* word) {
    const FindRequest request{word, FindPlace::Notes, {}};
    return WordsAround(FindThings(request).at(0), request);
  };
  EXPECT_EQ(around("101"), words.substr(0, 79) + " ...");
  EXPECT_EQ(around("150"), "... " + words.substr(44 * 4, 25 * 4 - 1) + " ...");
  EXPECT_EQ(around("198"), "... " + words.substr(92 * 4));
  EXPECT_EQ(around("y"), "... y" + letters.substr(0, 75) + " ...");
}

TEST_F(FindTest, GoesOnRoundTheEnd) {
  const std::vector<Hit> hits = {{2}, {4}};
  const int next[] = {2, 2, 4, 4, 2, 2}, previous[] = {4, 4, 4, 2, 2, 4};
  for (int record = 0; record < 6; ++record) {
    EXPECT_EQ(NextHit(hits, record, true), next[record]) << record;
    EXPECT_EQ(NextHit(hits, record, false), previous[record]) << record;
  }
  EXPECT_EQ(NextHit({}, 1, true), 0);
}

// A letter each: a record is visited; back, forward; -N: that one goes, and those above move down.
TEST(TrailTest, LeadsBackAndForward) {
  for (const auto& [acts, seen] :
       Rows("1 2 3 b b f => 2 1 2 | 1 2 b 3 f => 1 . | b => . | 1 1 b => . | "
            "1 2 3 4 -2 b b => 2 1 | 1 2 1 -2 b => . | 1 2 3 b -2 f => 2 2 | 1 2 3 b -2 b => 2 .")) {
    Trail trail;
    std::string told;
    for (std::size_t at = 0; at < acts.size(); ++at) {
      if (acts[at] == ' ') continue;
      if (acts[at] == '-') {
        const int gone = acts[++at] - '0';
        trail.Follow([gone](int record) { return record == gone ? 0 : record > gone ? record - 1 : record; });
      } else if (acts[at] == 'b') {
        told += (told.empty() ? "" : " ") + (trail.CanGoBack() ? std::to_string(trail.GoBack()) : ".");
      } else if (acts[at] == 'f') {
        told += (told.empty() ? "" : " ") + (trail.CanGoForward() ? std::to_string(trail.GoForward()) : ".");
      } else {
        trail.Visit(acts[at] - '0');
      }
    }
    EXPECT_EQ(told, seen) << acts;
  }
  Trail trail;
  for (int record = 1; record <= 200; ++record) trail.Visit(record);
  int back = 0;
  while (trail.CanGoBack()) back = trail.GoBack();
  EXPECT_EQ(back, 101);
}

}  // namespace
