// Finding things, and the way back to those that were shown.
#include "document/find.h"

#include "document/document.h"
#include "support/fresh_test.h"
#include "values/numbers.h"

namespace {

class FindTest : public FreshTest {
 protected:
  void SetUp() override {
    FreshTest::SetUp();
    Load(R"([CATEGORIES]/NAME=Rooms/*32; NAME=On loan/[FIELDS]/NAME=PRICE; TITLE=Price; FIELDTYPE=DOLLAR
*2; NAME=ODDS; TITLE=Odds; FIELDTYPE=ODDS/*3; NAME=MAKER; TITLE=Maker
[FORMULAS]/NAME=TWICE; TITLE=Doubled; FIELDTYPE=DOLLAR; FORMULA=[PRICE] * 2
*2; NAME=RATE; TITLE=Rate; FIELDTYPE=INTEREST; FORMULA=[PRICE] ~/ 5
[THINGS]/NAME=Big Red_Barn; NOTE=It stands in the field.; CATBITMAP=1; %PRICE=12.50; %MAKER=Voss
*2; NAME=Garden Shed; CATBITMAP=-2147483648; %MAKER=field & Son; %PRICE=3/*3; NAME=rake
*4; NAME=Zoo; NOTE=barn; CATBITMAP=-2147483647; %ODDS=50%)"
         "/*5; NAME=\xC9table; NOTE=Rooms with caf\xE9s; %ODDS=33.3%; %PRICE=x");
  }
  // Words/place/field/sign/text: the first letter of a place, one of these signs.
  static FindRequest Asked(const std::string& text) {
    std::vector<std::string> parts = Parts(text, "/");
    parts.resize(5);
    const auto sign = static_cast<Comparison>(std::string("=!<[>]eE").find(parts[3]));
    return {parts[0], static_cast<FindPlace>(std::string("ENTVC").find(parts[1])), {parts[2], sign, parts[4]}};
  }
};

TEST_F(FindTest, FindsAllWordsAndTheValue) {
  ExpectRows(R"(barn => 1Name<Big Red_Barn> 4Note<barn> | BARN field => 1Name<Big Red_Barn>
field => 1Note<It stands in the field.> 2Maker<field & Son> | field/T => 1Note<It stands in the field.>
"red barn" => 1Name<Big Red_Barn> | "red  barn =>  | red "barn => 1Name<Big Red_Barn> | "" =>  | zoo => 4Name<Zoo> | q => 
loan/C => 2Category<On loan> 4Category<On loan> | loan rooms/C => 4Category<On loan> | loan/N =>  | price => 
12.5/V => 1Price<12.50> | //PRICE =>  | //PRICE/= =>  | //PRICE/=/12.5 => 1Price<12.50> | //PRICE/=/12.496 + 5% => 
//PRICE/=/12.496 => 1Price<12.50> | //PRICE/!/3 => 1Price<12.50> | //PRICE/</12.50 => 2Price<3>
//PRICE/[/12.50 => 1Price<12.50> 2Price<3> | //PRICE/>/3 => 1Price<12.50> | //PRICE/]/1.5 * 2 => 1Price<12.50> 2Price<3>
//PRICE/]/-1 => 1Price<12.50> 2Price<3> | //PRICE/]/1,5 =>  | //PRICE/e => 3Price<> 4Price<> | //PRICE/>/ten => 
//PRICE/E => 1Price<12.50> 2Price<3> 5Price<x> | //ODDS/=/33.3% => 5Odds<33.3%> | //ODDS/</150% => 4Odds<50%> 5Odds<33.3%>
//MAKER/=/voss => 1Maker<Voss> | //MAKER/>/VOS => 1Maker<Voss> | //MAKER/]/ten => 1Maker<Voss> | //GONE/e => 
//TWICE/=/25 => 1Doubled<25.00> | //TWICE/e => 3Doubled<> 4Doubled<> | //RATE/>/100% => 1Rate<250.00%>
barn/E/PRICE/E => 1Name<Big Red_Barn> | barn//PRICE/= => 1Name<Big Red_Barn> 4Note<barn>)"
             "\ne\"ta\"ble => 5Name<\xC9table> | etABle => 5Name<\xC9table> | caf\xC9 => 5Note<Rooms with caf\xE9s>"
             " | rooms => 1Category<Rooms> 4Category<Rooms> 5Note<Rooms with caf\xE9s>",
             [](const std::string& asked) {
               const FindRequest request = Asked(asked);
               std::string text;
               for (const Hit& hit : FindThings(request)) {
                 text += (text.empty() ? "" : " ") + std::to_string(hit.Record) + PlaceOf(hit, request) + "<" +
                         WordsAround(hit, request) + ">";
               }
               return text;
             });
  ExpectRows("//PRICE/</ten => 0 | //PRICE/e/ten => 1 | //MAKER/</ten => 1 | //ODDS/</2 => 1",
             [](const std::string& asked) { return std::to_string(CanBeRead(Asked(asked).Value)); });
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

// A record is visited; back, forward; -N: that one goes, and those above move down.
TEST(TrailTest, LeadsBackAndForward) {
  ExpectRows(R"(1 2 3 b b f => 212 | 1 2 b 3 f => 1. | b => . | 1 1 b => . | 1 2 3 4 -2 b b => 21 | 1 2 1 -2 b => .
1 2 3 b -2 f => 22 | 1 2 3 b -2 b => 2.)",
             [](const std::string& acts) {
               Trail trail;
               std::string told;
               for (const std::string& act : Parts(acts, " ")) {
                 const int record = LeadingInt16(act);
                 if (record > 0) trail.Visit(record);
                 if (record < 0) trail.Follow([=](int each) { return each == -record ? 0 : each - (each > -record); });
                 if (act == "b") told += trail.CanGoBack() ? std::to_string(trail.GoBack()) : ".";
                 if (act == "f") told += trail.CanGoForward() ? std::to_string(trail.GoForward()) : ".";
               }
               return told;
             });
  Trail trail;
  for (int record = 1; record <= 200; ++record) trail.Visit(record);
  int back = 0;
  while (trail.CanGoBack()) back = trail.GoBack();
  EXPECT_EQ(back, 101);
}

}  // namespace
