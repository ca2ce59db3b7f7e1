// What the definition dialogs check, and what defining, renaming and deleting do to the document.
#include "values/definitions.h"

#include "support/fresh_test.h"
#include "support/rows.h"

namespace {

FieldSlots Slots(const std::vector<std::string>& texts) {
  FieldSlots slots;
  for (std::size_t index = 0; index < texts.size(); ++index) slots[index].Text = texts[index];
  return slots;
}

// Three words tell texts apart; stories show the whole of them.
std::string Begin(const std::string& text) {
  std::size_t end = 0;
  for (int word = 0; word < 3 && end < text.size(); ++word) end = std::min(text.find(' ', end + 1), text.size());
  return text.substr(0, end);
}

// The box that a refusal speaks of, and how it begins.
std::string Told(const Refusal& refusal) {
  const char* const boxes[] = {"", "Name: ", "Description: ", "Type: ", "Template: "};
  return boxes[static_cast<int>(refusal.Box)] + Begin(refusal.Text);
}

class DefinitionsTest : public FreshTest {
 protected:
  static void AddThing(const std::string& name, const std::vector<std::string>& slots) {
    const int record = TheDocument.Things.Count() + 1;
    TheDocument.Things.SetCount(record);
    TheDocument.Things.Writable(record).NAME = name;
    TheDocument.Things.Writable(record).Values = Slots(slots);
  }
  void SetUp() override {
    FreshTest::SetUp();
    StoreField(1, {"PRICE", "Price", "DOLLAR"}, working);
    StoreField(2, {"Qty", "Quantity", "INTEGER"}, working);  // small letters, as a file may have them
    StoreField(3, {"COLOUR", "Colour", ""}, working);
    StoreFormula(1, {"TWICE", "Twice", "DOUBLE", "", "[PRICE]*2+[PRICE]"});
    StoreFormula(2, {"LOWER", "Lower case", "DOUBLE", "", "2 * [price] - [Price]"});
    AddThing("Barn", {"COLOUR:red: dark", "PRICE:12.50", "Qty:2"});
    AddThing("Shed", {"PRICE:3", "COLOUR:"});
    AddThing("Zoo", {"PRICER:1", "XPRICE:2"});
    TheDocument.Modified = false;
  }

  FieldSlots working;
};

// The number, name, title and type or format that are entered, and what is said to it.
TEST_F(DefinitionsTest, ChecksRunInTheirOrder) {
  StoreField(4, {"HUE", "Hue", "FOO"}, working);  // counts as text
  StoreField(5, {"PLACE", "Place", ""}, working);
  StoreField(6, {"BOTH", "Both", ""}, working);
  StoreFormula(3, {"BOTH", "Both", "", "", ""});
  working = Slots({"HUE:", "PLACE:typed, not stored yet"});
  ExpectRows(R"(7 // => Name: Please fill in | 7 A1// => Description: Please fill in | 7 A1/x/ => Name: The field name
7 A B/x/ => Name: The field name | 7  / / => Name: The field name | 7 A[B/x/ => Name: The field name
7 PRICE/x/ => Name: Field <<PRICE>> is | 3 QTY/x/ => Name: Field <<QTY>> is | 7 BOTH/x/ => Name: Field <<BOTH>> is
1 TWICE/x/ => Name: Name <<TWICE>> has | 3 COLOUR/x/LONG => Type: You are switching | 3 RED/x/LONG => Type: You are switching
5 PLACE/x/LONG => Type: You are switching | 4 HUE/x/LONG =>  | 5 PLACE/x/FOO =>  | 1 PRICE/x/ =>  | 1 PRICE/x/LONG => 
3 COLOUR/x/ =>  | 7 AZ/ /ODDS => )",
             '/', [this](const std::string& entry, const std::string& title, const std::string& type) {
               return Told(CheckField({entry.substr(2), title, type}, std::stoi(entry), working));
             });
  EXPECT_EQ(CheckField({"CAF\xC9", "x", ""}, 7, working).Box, DefinitionBox::Name);
  ExpectRows(
      R"(4 // => Name: Please fill in | 4 1// => Description: Please fill in | 4 PRICE2/x/ => Name: The field name
4 TWICE/x/ => Name: Formula <<TWICE>> is | 4 BOTH/x/ => Name: Formula <<BOTH>> is | 1 QTY/x/ => Name: Keyword <<QTY>> is
1 TWICE/x/ => Template: You selected a | 4 NEW/x/#,##0.00 kg => Template: You typed an | 4 NEW/x/-0 => Template: You typed an
4 NEW/x/#,##0.00% => )",
      '/', [](const std::string& entry, const std::string& title, const std::string& format) {
        return Told(CheckFormula({entry.substr(2), title, "", format, ""}, std::stoi(entry), true));
      });
  EXPECT_FALSE(CheckFormula({"TWICE", "x", "", "", ""}, 1, false));
}

TEST_F(DefinitionsTest, RenamedAndDeletedFieldsTakeTheirValuesAlong) {
  working = Slots({"QTY:9", "PRICE:7", "A:1", "PRICE:8", "B:3", "C:4", "D:5", "QTY:2", "QTY:10", "E:6"});  // damaged
  AddThing("Full", {"A:", "B:", "C:", "D:", "E:", "F:", "G:", "H:", "I:", "QTY:last"});
  StoreField(1, {"COST", "Cost", "DOLLAR"}, working);
  StoreField(1, {"COST", "Price", "LONG"}, working);  // the same keyword again renames nothing
  DeleteField(2, working);
  StoreFormula(3, {"MORE", "More", "", "", ""});
  DeleteFormula(2);
  EXPECT_EQ(DescribeDocument(), R"(field 1 keyword<COST> title<Price> type<LONG>
field 2 keyword<COLOUR> title<Colour>
formula 1 name<TWICE> title<Twice> type<DOUBLE> formula<[COST]*2+[PRICE]>
formula 2 name<MORE> title<More>
thing 1 name<Barn> slot1<COLOUR:red: dark> slot2<COST:12.50>
thing 2 name<Shed> slot1<COST:3> slot2<COLOUR:>
thing 3 name<Zoo> slot1<PRICER:1> slot2<XPRICE:2>
thing 4 name<Full> slot1<A:> slot2<B:> slot3<C:> slot4<D:> slot5<E:> slot6<F:> slot7<G:> slot8<H:> slot9<I:>
)");
  EXPECT_EQ(JoinedSlots(working), "COST:7|A:1|COST:8|B:3|C:4|D:5|E:6||||");
  EXPECT_TRUE(TheDocument.Modified);
}

// What stands against deleting a field, or is asked before.
TEST_F(DefinitionsTest, LooksForFormulasAndForValuesOfOthers) {
  EXPECT_EQ(Begin(DeleteFieldRefusal(1)), "Formula <<TWICE>> includes");
  TheDocument.Formulas.Writable(1).Formula = "PRICE + [PRICER]";
  EXPECT_EQ(Begin(DeleteFieldRefusal(1)), "Formula <<LOWER>> includes");  // [price] works as well
  TheDocument.Formulas.Writable(2).Formula.clear();
  EXPECT_EQ(DeleteFieldRefusal(1), "");
  EXPECT_EQ(Begin(DeleteFieldQuestion(1)) + Begin(DeleteFieldQuestion(2)), "There are 2The field Qty");
  TheDocument.CurrentThing = 1;
  EXPECT_EQ(DeleteFieldQuestion(2), "");
  EXPECT_EQ(CountHolders("COLOUR").Count, 2);  // one of them with an empty value
  EXPECT_EQ(CountHolders("").Count, 0);        // a field without a keyword, from a damaged file, is held by no slot
  EXPECT_EQ(AppendReference("2 *", " PRICE : Price: net"), "2 * [PRICE]");
}

}  // namespace
