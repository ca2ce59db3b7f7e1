// What the definition dialogs check, and what defining, renaming and deleting do to the document.
#include "values/definitions.h"

#include "support/fresh_test.h"

namespace {

class DefinitionsTest : public FreshTest {
 protected:
  static void AddThing(const std::string& name, const std::vector<std::string>& slots) {
    const int record = TheDocument.Things.Count() + 1;
    TheDocument.Things.SetCount(record);
    TheDocument.Things[record].NAME = name;
    TheDocument.Things[record].Values = Slots(slots);
  }
  static FieldSlots Slots(const std::vector<std::string>& texts) {
    FieldSlots slots;
    for (std::size_t index = 0; index < texts.size(); ++index) slots[index].Text = texts[index];
    return slots;
  }
  static std::string Joined(const FieldSlots& slots) {
    std::string text;
    for (const FieldValueSlot& slot : slots) text += slot.Text + "|";
    return text;
  }
  // Three fields, three formulas and four things.
  void SetUp() override {
    FreshTest::SetUp();
    StoreField(1, {"PRICE", "Price", "DOLLAR"}, working);
    StoreField(2, {"QTY", "Quantity", "INTEGER"}, working);
    StoreField(3, {"COLOUR", "Colour", ""}, working);
    StoreFormula(1, {"TOTAL", "Total", "DOLLAR", "", "[PRICE]*[QTY]"});
    StoreFormula(2, {"TWICE", "Twice", "DOUBLE", "", "[PRICE]*2+[PRICE]"});
    StoreFormula(3, {"LOWER", "Lower case", "DOUBLE", "", "2 * [price] - [Price]"});
    AddThing("Barn", {"COLOUR:red: dark", "PRICE:12.50", "QTY:2"});
    AddThing("Shed", {"PRICE:3", "COLOUR:"});
    AddThing("Zoo", {"PRICER:1", "XPRICE:2"});
    AddThing("Mill", {});
    TheDocument.Modified = false;
  }

  FieldSlots working;
};

TEST_F(DefinitionsTest, FieldChecksRunInTheirOrder) {
  struct Row {
    FieldDefinition Entry;
    int Number;
    DefinitionBox Box;
    std::string Text;
  };
  const std::string letters =
      "The field name must contain only letters.  No spaces, symbols, or numbers are permitted.";
  const std::string texts =
      "You are switching from a text field to a numeric field, but there is already data on file.  This change cannot "
      "be made.";
  const Row rows[] = {
      {{"", "", ""}, 4, DefinitionBox::Name, "Please fill in a short name (keyword) to uniquely identify the field."},
      {{"A1", "", ""}, 4, DefinitionBox::Description, "Please fill in a brief description for the field."},
      {{"A1", "x", ""}, 4, DefinitionBox::Name, letters},
      {{"A B", "x", ""}, 4, DefinitionBox::Name, letters},
      {{" ", " ", ""}, 4, DefinitionBox::Name, letters},
      {{"A_B", "x", ""}, 4, DefinitionBox::Name, letters},
      {{"CAF\xC9", "x", ""}, 4, DefinitionBox::Name, letters},
      {{"PRICE", "x", ""}, 4, DefinitionBox::Name, "Field <<PRICE>> is already defined. Choose a different name."},
      {{"PRICE", "x", ""}, 3, DefinitionBox::Name, "Field <<PRICE>> is already defined. Choose a different name."},
      {{"TOTAL", "x", ""},
       1,
       DefinitionBox::Name,
       "Name <<TOTAL>> has already been used as a formula name.  Choose a different name."},
      {{"COLOUR", "x", "LONG"}, 3, DefinitionBox::Type, texts},
      {{"HUE", "x", "LONG"}, 3, DefinitionBox::Type, texts},
      {{"PRICE", "x", ""}, 1, DefinitionBox::None, ""},      // number to text
      {{"PRICE", "x", "LONG"}, 1, DefinitionBox::None, ""},  // number to number
      {{"COLOUR", "x", ""}, 3, DefinitionBox::None, ""},
      {{"Z", " ", "ODDS"}, 4, DefinitionBox::None, ""},
  };
  for (const Row& row : rows) {
    const Refusal refusal = CheckField(row.Entry, row.Number, working);
    EXPECT_EQ(refusal.Box, row.Box) << row.Entry.Keyword << row.Number;
    EXPECT_EQ(refusal.Text, row.Text);
  }
  // A field's name from a file may be in small letters.
  TheDocument.Fields[2].Keyword = "Qty";
  EXPECT_EQ(CheckField({"QTY", "x", ""}, 4, working).Box, DefinitionBox::Name);
}

TEST_F(DefinitionsTest, TextsOnFileKeepAFieldFromBecomingANumber) {
  StoreField(4, {"PLACE", "Place", ""}, working);
  const FieldDefinition number{"PLACE", "Place", "LONG"};
  EXPECT_FALSE(CheckField(number, 4, working));
  EXPECT_EQ(CheckField(number, 4, Slots({"", "PLACE:here"})).Box, DefinitionBox::Type);  // typed, not stored yet
  EXPECT_FALSE(CheckField(number, 4, Slots({"", "PLACE:"})));                            // emptied
  TheDocument.Fields[4].Type = "FOO";                                                    // counts as text
  EXPECT_FALSE(CheckField(number, 4, working));
  AddThing("Pond", {"PLACE:5"});
  EXPECT_EQ(CheckField(number, 4, working).Box, DefinitionBox::Type);
  EXPECT_FALSE(CheckField({"PLACE", "Place", "FOO"}, 4, working));
}

TEST_F(DefinitionsTest, FormulaChecksRunInTheirOrder) {
  struct Row {
    FormulaDefinition Entry;
    int Number;
    bool Fixed;
    DefinitionBox Box;
    std::string Text;
  };
  const std::string letters =
      "The field name must contain only letters.  No spaces, symbols, or numbers are permitted.";
  const std::string format = "You typed an invalid format.  Use any of these for placeholders: # 0 , . %";
  const Row rows[] = {
      {{"", "", "", "", ""}, 4, true, DefinitionBox::Name, "Please fill in a short name for the field."},
      {{"1", "", "", "", ""}, 4, true, DefinitionBox::Description, "Please fill in a brief description for the field."},
      {{"PRICE2", "x", "", "", ""}, 4, true, DefinitionBox::Name, letters},
      {{"TOTAL", "x", "", "", ""},
       4,
       true,
       DefinitionBox::Name,
       "Formula <<TOTAL>> is already defined. Choose a different name."},
      {{"PRICE", "x", "", "", ""},
       4,
       true,
       DefinitionBox::Name,
       "Keyword <<PRICE>> is already defined. Choose a different name."},
      {{"TOTAL", "x", "", "", ""},
       1,
       true,
       DefinitionBox::Template,
       "You selected a fixed display format but the template is empty. Please fill in a template or switch to "
       "Automatic."},
      {{"NEW", "x", "", "#,##0.00 kg", ""}, 4, true, DefinitionBox::Template, format},
      {{"NEW", "x", "", " ", ""}, 4, true, DefinitionBox::Template, format},
      {{"NEW", "x", "", "-0", ""}, 4, true, DefinitionBox::Template, format},
      {{"NEW", "x", "", "$0", ""}, 4, true, DefinitionBox::Template, format},
      {{"NEW", "x", "", "#,##0.00%", ""}, 4, true, DefinitionBox::None, ""},
      {{"TOTAL", "x", "", "", ""}, 1, false, DefinitionBox::None, ""},
  };
  for (const Row& row : rows) {
    const Refusal refusal = CheckFormula(row.Entry, row.Number, row.Fixed);
    EXPECT_EQ(refusal.Box, row.Box) << row.Entry.Name << row.Entry.Format;
    EXPECT_EQ(refusal.Text, row.Text);
  }
  // Both names are taken: a formula's counts first here, a field's in the other dialog.
  TheDocument.Fields[1].Keyword = "TOTAL";
  EXPECT_EQ(CheckFormula({"TOTAL", "x", "", "", ""}, 4, false).Text.substr(0, 7), "Formula");
  EXPECT_EQ(CheckField({"TOTAL", "x", ""}, 4, working).Text.substr(0, 5), "Field");
}

TEST_F(DefinitionsTest, TablesGrowByThirty) {
  StoreField(30, {"LAST", "x", ""}, working);
  EXPECT_EQ(TheDocument.Fields.UpperBound(), 30);
  StoreField(31, {"NEXT", "x", ""}, working);
  EXPECT_EQ(TheDocument.Fields.UpperBound(), 60);
  EXPECT_EQ(TheDocument.Fields.Count(), 31);
  StoreFormula(21, {"NEXT", "x", "", "", ""});
  EXPECT_EQ(TheDocument.Formulas.UpperBound(), 50);
  StoreFormula(1, {"TOTAL", "y", "", "", ""});
  EXPECT_EQ(TheDocument.Formulas.Count(), 21);
  EXPECT_EQ(TheDocument.Formulas[1].Title, "y");
  EXPECT_TRUE(TheDocument.Modified);
}

TEST_F(DefinitionsTest, RenamingTakesValuesAndFirstReferencesAlong) {
  working = Slots({"QTY:9", "PRICE:7", "PRICE:8"});  // the second one from a damaged file
  StoreField(1, {"COST", "Cost", "DOLLAR"}, working);
  EXPECT_EQ(Joined(TheDocument.Things[1].Values), "COLOUR:red: dark|COST:12.50|QTY:2||||||||");
  EXPECT_EQ(Joined(TheDocument.Things[2].Values), "COST:3|COLOUR:|||||||||");
  EXPECT_EQ(Joined(TheDocument.Things[3].Values), "PRICER:1|XPRICE:2|||||||||");
  EXPECT_EQ(Joined(working), "QTY:9|COST:7|COST:8||||||||");
  EXPECT_EQ(TheDocument.Formulas[1].Formula, "[COST]*[QTY]");
  EXPECT_EQ(TheDocument.Formulas[2].Formula, "[COST]*2+[PRICE]");
  EXPECT_EQ(TheDocument.Formulas[3].Formula, "2 * [COST] - [Price]");
  EXPECT_EQ(TheDocument.Fields[1].Keyword, "COST");
  EXPECT_TRUE(TheDocument.Modified);
  // The same keyword again renames nothing.
  StoreField(1, {"COST", "Price", "LONG"}, working);
  EXPECT_EQ(TheDocument.Formulas[2].Formula, "[COST]*2+[PRICE]");
  EXPECT_EQ(TheDocument.Fields[1].Type, "LONG");
}

TEST_F(DefinitionsTest, AFieldInAFormulaIsNotDeleted) {
  EXPECT_EQ(DeleteFieldRefusal(1),
            "Formula <<TOTAL>> includes the field that you wish to delete.  Before you can delete the field you must "
            "alter or delete that formula.");
  TheDocument.Formulas[1].Formula = TheDocument.Formulas[2].Formula = "PRICE + [PRICER]";
  EXPECT_EQ(DeleteFieldRefusal(1).substr(0, 17), "Formula <<LOWER>>");  // [price] works as well
  TheDocument.Formulas[3].Formula.clear();
  EXPECT_EQ(DeleteFieldRefusal(1), "");
  EXPECT_EQ(DeleteFieldRefusal(3), "");
}

TEST_F(DefinitionsTest, AsksBeforeOthersLoseTheirValues) {
  EXPECT_EQ(CountHolders("PRICE").Count, 2);
  EXPECT_EQ(DeleteFieldQuestion(1),
            "There are 2 things for whom the field PRICE is filled in.  Deleting the field will remove the field "
            "information from all of those records.  Do you wish to proceed?");
  EXPECT_EQ(DeleteFieldQuestion(2), "The field QTY is filled in for Barn.  The content will be erased.  Proceed?");
  TheDocument.CurrentThing = 1;
  EXPECT_EQ(DeleteFieldQuestion(2), "");
  TheDocument.CurrentThing = 2;
  EXPECT_NE(DeleteFieldQuestion(2), "");
  EXPECT_EQ(CountHolders("COLOUR").Count, 2);  // one of them with an empty value
  StoreField(4, {"PLACE", "Place", ""}, working);
  EXPECT_EQ(DeleteFieldQuestion(4), "");
  // A field without a keyword, from a damaged file, is held by no empty slot.
  TheDocument.Fields[4].Keyword.clear();
  EXPECT_EQ(CountHolders("").Count, 0);
}

TEST_F(DefinitionsTest, DeletingAFieldClosesTheGaps) {
  working = Slots({"A:1", "PRICE:2", "B:3", "C:4", "D:5", "E:6", "F:7", "PRICE:2", "H:9", "PRICE:10"});
  DeleteField(1, working);
  EXPECT_EQ(Joined(working), "A:1|B:3|C:4|D:5|E:6|F:7|H:9||||");
  EXPECT_EQ(Joined(TheDocument.Things[1].Values), "COLOUR:red: dark|QTY:2|||||||||");
  EXPECT_EQ(Joined(TheDocument.Things[2].Values), "COLOUR:||||||||||");
  EXPECT_EQ(Joined(TheDocument.Things[3].Values), "PRICER:1|XPRICE:2|||||||||");
  EXPECT_EQ(TheDocument.Fields.Count(), 2);
  EXPECT_EQ(TheDocument.Fields[1].Keyword, "QTY");
  EXPECT_EQ(TheDocument.Fields[2].Keyword, "COLOUR");
  EXPECT_TRUE(TheDocument.Modified);
}

TEST_F(DefinitionsTest, DeletingAFormulaMovesTheOthersDown) {
  DeleteFormula(2);
  EXPECT_EQ(TheDocument.Formulas.Count(), 2);
  EXPECT_EQ(TheDocument.Formulas[1].Name, "TOTAL");
  EXPECT_EQ(TheDocument.Formulas[2].Name, "LOWER");
  EXPECT_TRUE(TheDocument.Modified);
}

TEST_F(DefinitionsTest, ReferencesAreAppended) {
  EXPECT_EQ(AppendReference("", "PRICE: Price"), "[PRICE]");
  EXPECT_EQ(AppendReference("2 *", " PRICE : Price: net"), "2 * [PRICE]");
}

}  // namespace
