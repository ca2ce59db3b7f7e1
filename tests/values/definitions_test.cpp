// What the definition dialogs check, and what defining, renaming and deleting do to the document.
#include "values/definitions.h"

#include "support/fresh_test.h"

namespace {

// The box that a refusal speaks of, and how it begins; stories show all of the texts.
std::string Told(const Refusal& refusal) {
  const char* const boxes[] = {"", "Name: ", "Description: ", "Type: ", "Template: "};
  return boxes[static_cast<int>(refusal.Box)] + refusal.Text.substr(0, 14);
}

class DefinitionsTest : public FreshTest {
 protected:
  // One keyword has small letters, as a file may have them.
  void SetUp() override {
    FreshTest::SetUp();
    Load(R"([FIELDS]/NAME=PRICE; TITLE=Price; FIELDTYPE=DOLLAR/*2; NAME=Qty; TITLE=Quantity; FIELDTYPE=INTEGER
*3; NAME=COLOUR; TITLE=Colour/[FORMULAS]/NAME=TWICE; TITLE=Twice; FIELDTYPE=DOUBLE; FORMULA=[PRICE]*2+[PRICE]
*2; NAME=LOWER; TITLE=Lower case; FIELDTYPE=DOUBLE; FORMULA=2 * [price] - [Price]
[THINGS]/NAME=Barn/*2; NAME=Shed/*3; NAME=Zoo/*4; NAME=Full)");
    int record = 0;
    for (const char* texts : {"COLOUR:red: dark|PRICE:12.50|Qty:2", "PRICE:3|COLOUR:", "PRICER:1|XPRICE:2",
                              "A:|B:|C:|D:|E:|F:|G:|H:|I:|QTY:last"}) {
      TheDocument.Things.Writable(++record).Values = SlotsOf(texts);
    }
  }

  FieldSlots working;
};

// The number, name, title and type or format that are entered, and what is said to it.
TEST_F(DefinitionsTest, ChecksRunInTheirOrder) {
  StoreField(4, {"HUE", "Hue", "FOO"}, working);  // counts as text
  StoreField(5, {"PLACE", "Place", ""}, working);
  StoreField(6, {"BOTH", "Both", ""}, working);
  StoreFormula(3, {"BOTH", "Both", "", "", ""});
  working = SlotsOf("HUE:|PLACE:typed, not stored yet");
  ExpectRows(R"(7 // => Name: Please fill in | 7 A1// => Description: Please fill in | 7 A1/x/ => Name: The field name
7 A B/x/ => Name: The field name | 7  / / => Name: The field name | 7 A[B/x/ => Name: The field name
7 PRICE/x/ => Name: Field <<PRICE> | 3 QTY/x/ => Name: Field <<QTY>>  | 7 BOTH/x/ => Name: Field <<BOTH>>
1 TWICE/x/ => Name: Name <<TWICE>> | 3 COLOUR/x/LONG => Type: You are switch | 3 RED/x/LONG => Type: You are switch
5 PLACE/x/LONG => Type: You are switch | 4 HUE/x/LONG =>  | 5 PLACE/x/FOO =>  | 1 PRICE/x/ =>  | 1 PRICE/x/LONG => 
3 COLOUR/x/ =>  | 7 AZ/ /ODDS => )",
             '/', [this](const std::string& entry, const std::string& title, const std::string& type) {
               return Told(CheckField({entry.substr(2), title, type}, std::stoi(entry), working));
             });
  EXPECT_EQ(CheckField({"CAF\xC9", "x", ""}, 7, working).Box, DefinitionBox::Name);
  ExpectRows(
      R"(4 // => Name: Please fill in | 4 1// => Description: Please fill in | 4 PRICE2/x/ => Name: The field name
4 TWICE/x/ => Name: Formula <<TWIC | 4 BOTH/x/ => Name: Formula <<BOTH | 1 QTY/x/ => Name: Keyword <<QTY>
1 TWICE/x/ => Template: You selected a | 4 NEW/x/#,##0.00 kg => Template: You typed an i | 4 NEW/x/-0 => Template: You typed an i
4 NEW/x/#,##0.00% => )",
      '/', [](const std::string& entry, const std::string& title, const std::string& format) {
        return Told(CheckFormula({entry.substr(2), title, "", format, ""}, std::stoi(entry), true));
      });
  EXPECT_FALSE(CheckFormula({"TWICE", "x", "", "", ""}, 1, false));
}

TEST_F(DefinitionsTest, RenamedAndDeletedFieldsTakeTheirValuesAlong) {
  working = SlotsOf("QTY:9|PRICE:7|A:1|PRICE:8|B:3|C:4|D:5|QTY:2|QTY:10|E:6");  // damaged
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
  EXPECT_TRUE(working == SlotsOf("COST:7|A:1|COST:8|B:3|C:4|D:5|E:6"));
  EXPECT_TRUE(TheDocument.Modified);
}

// What stands against deleting a field; what is asked before, the fields' stories show.
TEST_F(DefinitionsTest, LooksForFormulasThatIncludeAField) {
  EXPECT_EQ(DeleteFieldRefusal(1).substr(0, 17), "Formula <<TWICE>>");
  TheDocument.Formulas.Writable(1).Formula = "PRICE + [PRICER]";
  EXPECT_EQ(DeleteFieldRefusal(1).substr(0, 17), "Formula <<LOWER>>");  // [price] works as well
  TheDocument.Formulas.Writable(2).Formula.clear();
  EXPECT_EQ(DeleteFieldRefusal(1), "");
  EXPECT_EQ(CountHolders("").Count, 0);  // a field without a keyword, from a damaged file, is held by no slot
}

}  // namespace
