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

// The box that a refusal speaks of, and its text.
std::string Told(const Refusal& refusal) {
  const char* const boxes[] = {"", "Name: ", "Description: ", "Type: ", "Template: "};
  return boxes[static_cast<int>(refusal.Box)] + refusal.Text;
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
  const std::string letters =
      "Name: The field name must contain only letters.  No spaces, symbols, or numbers are permitted.\n";
  const std::string description = "Description: Please fill in a brief description for the field.\n";
  const std::string texts =
      "Type: You are switching from a text field to a numeric field, but there is already data on file.  This change "
      "cannot be made.\n";
  for (const auto& [entry, said] :
       Rows("7 // => Name: Please fill in a short name (keyword) to uniquely identify the field.\n7 A1// => " +
            description + "7 A1/x/ => " + letters + "7 A B/x/ => " + letters + "7  / / => " + letters + "7 A[B/x/ => " +
            letters + "3 COLOUR/x/LONG => " + texts + "3 RED/x/LONG => " + texts + "5 PLACE/x/LONG => " + texts +
            R"(7 PRICE/x/ => Name: Field <<PRICE>> is already defined. Choose a different name.
3 QTY/x/ => Name: Field <<QTY>> is already defined. Choose a different name.
7 BOTH/x/ => Name: Field <<BOTH>> is already defined. Choose a different name.
1 TWICE/x/ => Name: Name <<TWICE>> has already been used as a formula name.  Choose a different name.
4 HUE/x/LONG =>  | 5 PLACE/x/FOO =>  | 1 PRICE/x/ =>  | 1 PRICE/x/LONG =>  | 3 COLOUR/x/ =>  | 7 AZ/ /ODDS => )")) {
    const auto [name, rest] = Halves(entry.substr(2), '/');
    const auto [title, type] = Halves(rest, '/');
    EXPECT_EQ(Told(CheckField({name, title, type}, std::stoi(entry), working)), said) << entry;
  }
  EXPECT_EQ(CheckField({"CAF\xC9", "x", ""}, 7, working).Box, DefinitionBox::Name);

  for (const auto& [entry, said] :
       Rows("4 // => Name: Please fill in a short name for the field.\n4 1// => " + description + "4 PRICE2/x/ => " +
            letters + R"(4 TWICE/x/ => Name: Formula <<TWICE>> is already defined. Choose a different name.
4 BOTH/x/ => Name: Formula <<BOTH>> is already defined. Choose a different name.
1 QTY/x/ => Name: Keyword <<QTY>> is already defined. Choose a different name.
1 TWICE/x/ => Template: You selected a fixed display format but the template is empty. Please fill in a template or switch to Automatic.
4 NEW/x/#,##0.00 kg => Template: You typed an invalid format.  Use any of these for placeholders: # 0 , . %
4 NEW/x/-0 => Template: You typed an invalid format.  Use any of these for placeholders: # 0 , . %
4 NEW/x/#,##0.00% => )")) {
    const auto [name, rest] = Halves(entry.substr(2), '/');
    const auto [title, format] = Halves(rest, '/');
    EXPECT_EQ(Told(CheckFormula({name, title, "", format, ""}, std::stoi(entry), true)), said) << entry;
  }
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
  std::string joined;
  for (const FieldValueSlot& slot : working) joined += slot.Text + "|";
  EXPECT_EQ(joined, "COST:7|A:1|COST:8|B:3|C:4|D:5|E:6||||");
  EXPECT_TRUE(TheDocument.Modified);
}

// What stands against deleting a field, or is asked before.
TEST_F(DefinitionsTest, LooksForFormulasAndForValuesOfOthers) {
  const std::string refusal =
      ">> includes the field that you wish to delete.  Before you can delete the field you must alter or delete that "
      "formula.";
  EXPECT_EQ(DeleteFieldRefusal(1), "Formula <<TWICE" + refusal);
  TheDocument.Formulas.Writable(1).Formula = "PRICE + [PRICER]";
  EXPECT_EQ(DeleteFieldRefusal(1), "Formula <<LOWER" + refusal);  // [price] works as well
  TheDocument.Formulas.Writable(2).Formula.clear();
  EXPECT_EQ(DeleteFieldRefusal(1), "");

  EXPECT_EQ(DeleteFieldQuestion(1),
            "There are 2 things for whom the field PRICE is filled in.  Deleting the field will remove the field "
            "information from all of those records.  Do you wish to proceed?");
  EXPECT_EQ(DeleteFieldQuestion(2), "The field Qty is filled in for Barn.  The content will be erased.  Proceed?");
  TheDocument.CurrentThing = 1;
  EXPECT_EQ(DeleteFieldQuestion(2), "");
  EXPECT_EQ(CountHolders("COLOUR").Count, 2);  // one of them with an empty value
  EXPECT_EQ(CountHolders("").Count, 0);        // a field without a keyword, from a damaged file, is held by no slot
}

TEST_F(DefinitionsTest, ReferencesAreAppended) {
  EXPECT_EQ(AppendReference("", "PRICE: Price"), "[PRICE]");
  EXPECT_EQ(AppendReference("2 *", " PRICE : Price: net"), "2 * [PRICE]");
}

}  // namespace
