// Fields and formulas in a person's hands: adding, changing and deleting them from a thing's data, and what is asked
// on the way.
#include "scenarios/fact_form_test.h"

namespace {

using Names = std::vector<std::string>;

class DefinitionFormsTest : public FactFormTest {};

TEST_F(DefinitionFormsTest, AddsFieldsFromNothing) {
  TheDocument.Fields.SetCount(0);
  TheDocument.Formulas.SetCount(0);
  TheDocument.CurrentThing = 2;
  Use([this] {
    EXPECT_FALSE(user.SeesVisible(IDC_DataBox));
    EXPECT_TRUE(user.SeesFocusOn(IDC_AddFieldButton));
    Refuses("Before adding a formula, you must first define one or more data fields.");
    user.ChoosesMenu(IDC_AddFormulaItem);
    Refuses("There are no fields to change.");
    user.ChoosesMenu(IDC_ChangeFieldItem);
    Refuses("There are no fields to delete.");
    user.ChoosesMenu(IDC_DeleteFieldItem);
    Refuses("There are no formulas to change.");
    user.ChoosesMenu(IDC_ChangeFormulaItem);
    user.Reads("There are no formulas to delete.", Icon::None);
    user.ChoosesMenu(IDC_DeleteFormulaItem);
    TheDocument.Formulas.SetCount(1);
    Refuses(
        "Formulas are based on fields, but no field definitions are on file. Before proceeding, please define one or "
        "more data fields.");
    user.ChoosesMenu(IDC_ChangeFormulaItem);

    DefinesField(IDC_AddFieldButton, [this] {
      EXPECT_EQ(user.SeesCaption(), "Add Field");
      EXPECT_FALSE(user.SeesEnabled(IDC_ChoiceCombo));
      Refuses("Please fill in a short name (keyword) to uniquely identify the field.");
      user.Clicks(IDC_OKButton);
      EXPECT_TRUE(user.SeesFocusOn(IDC_NameBox));
      user.Types(IDC_NameBox, "weight2");
      Refuses("Please fill in a brief description for the field.");
      user.Clicks(IDC_OKButton);
      EXPECT_EQ(user.Sees(IDC_NameBox), "WEIGHT2");
      EXPECT_TRUE(user.SeesFocusOn(IDC_DescriptionBox));
      user.Types(IDC_DescriptionBox, "Weight in kg");
      Refuses("The field name must contain only letters.  No spaces, symbols, or numbers are permitted.");
      user.Clicks(IDC_OKButton);
      user.Types(IDC_NameBox, "weight");
      user.Clicks(IDC_NumberOption);
      EXPECT_EQ(user.SeesEntries(IDC_ChoiceCombo),
                (Names{"DOUBLE", "SINGLE", "INTEGER", "LONG", "DOLLAR", "ODDS", "ODDSPM", "INTEREST"}));
      EXPECT_EQ(user.SeesSelected(IDC_ChoiceCombo), "DOUBLE");
      user.Picks(IDC_ChoiceCombo, "SINGLE");
      user.Clicks(IDC_TextOption);
      EXPECT_FALSE(user.SeesEnabled(IDC_ChoiceCombo));
      user.Clicks(IDC_NumberOption);
      EXPECT_EQ(user.SeesSelected(IDC_ChoiceCombo), "SINGLE");
      user.Presses(Key::Enter);
    });
    EXPECT_EQ(Field(1), "WEIGHT/Weight in kg/SINGLE");
    EXPECT_TRUE(TheDocument.Modified);
    // The new field waits for its value.
    EXPECT_EQ(user.SeesSelected(IDC_FieldNameCombo), "WEIGHT: Weight in kg");
    EXPECT_TRUE(user.SeesFocusOn(IDC_DataBox));
    user.Types(IDC_DataBox, "1.5");
    DefinesField(IDC_AddFieldItem, [this] { user.Clicks(IDC_CancelButton); });
    EXPECT_EQ(TheDocument.Fields.Count(), 1);
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(2), "WEIGHT:1.5||||||||||");
}

TEST_F(DefinitionFormsTest, RenamesAFieldInUse) {
  TheDocument.Things[2].Values[0].Text = "PRICE:3";
  Use([this] {
    user.Types(IDC_DataBox, "8");
    PicksFromList("PRICE");
    DefinesField(IDC_ChangeFieldItem, [this] {
      EXPECT_EQ(user.SeesCaption(), "Change Field");
      EXPECT_EQ(user.Sees(IDC_NameBox), "PRICE");
      EXPECT_EQ(user.Sees(IDC_DescriptionBox), "Price of one");
      EXPECT_EQ(user.SeesSelected(IDC_ChoiceCombo), "DOLLAR");
      user.Types(IDC_NameBox, "qty");
      Refuses("Field <<QTY>> is already defined. Choose a different name.");
      user.Clicks(IDC_OKButton);
      user.Types(IDC_NameBox, "total");
      Refuses("Name <<TOTAL>> has already been used as a formula name.  Choose a different name.");
      user.Clicks(IDC_OKButton);
      user.Types(IDC_NameBox, "cost");
      user.Clicks(IDC_OKButton);
    });
    EXPECT_EQ(user.SeesEntries(IDC_FieldNameCombo), (Names{"COST: Price of one", "QTY: Quantity", "COLOUR: Colour"}));
    EXPECT_EQ(user.Sees(IDC_DataBox), "8.00");  // what was typed went first into the copy
    EXPECT_EQ(SlotsOf(1), "COLOUR:red|COST:12.50|||||||||");
    EXPECT_EQ(SlotsOf(2), "COST:3||||||||||");
    EXPECT_EQ(Formula(1), "TOTAL/Total/DOLLAR//[COST]*[QTY]");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:red|COST:8.00|||||||||");
}

TEST_F(DefinitionFormsTest, ATextFieldWithATypedValueBecomesNoNumber) {
  TheDocument.Things[1].Values[0].Text.clear();
  UseAndCancel([this] {
    user.Picks(IDC_FieldNameCombo, "COLOUR: Colour");
    user.Types(IDC_DataBox, "blue");
    PicksFromList("COLOUR");
    DefinesField(IDC_ChangeFieldItem, [this] {
      user.Clicks(IDC_NumberOption);
      Refuses(
          "You are switching from a text field to a numeric field, but there is already data on file.  This change "
          "cannot be made.");
      user.Clicks(IDC_OKButton);
      EXPECT_TRUE(user.SeesFocusOn(IDC_ChoiceCombo));
      user.Clicks(IDC_TextOption);
      user.Types(IDC_DescriptionBox, "Hue");
      user.Clicks(IDC_OKButton);
    });
  });
  EXPECT_EQ(Field(3), "COLOUR/Hue/");
}

TEST_F(DefinitionFormsTest, AFormulaKeepsATypeThatIsNotOffered) {
  StoreFormula(1, {"TOTAL", "Total", "BYTE", "0.0", "[PRICE]*[QTY]"});
  UseAndCancel([this] {
    PicksFromList("TOTAL");
    DefinesFormula(IDC_ChangeFormulaItem, [this] {
      user.Clicks(IDC_AutoOption);
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "0.0");  // it has no template of its own
      user.Types(IDC_DescriptionBox, "All");
      user.Clicks(IDC_OKButton);
    });
    EXPECT_EQ(Formula(1), "TOTAL/All/BYTE//[PRICE]*[QTY]");
  });
}

TEST_F(DefinitionFormsTest, KeepsTypesThatItDoesNotOffer) {
  struct Row {
    std::string Type;
    bool IsNumber;
  };
  for (const Row& row : {Row{"CALC", false}, Row{"FOO", true}, Row{"BYTE", true}}) {
    TheDocument.Fields[2].Type = row.Type;
    UseAndCancel([&] {
      PicksFromList("QTY");
      DefinesField(IDC_ChangeFieldItem, [&] {
        EXPECT_EQ(user.SeesEnabled(IDC_ChoiceCombo), row.IsNumber) << row.Type;
        EXPECT_EQ(user.SeesSelected(IDC_ChoiceCombo), "");
        user.Types(IDC_DescriptionBox, "Number");
        user.Clicks(IDC_OKButton);
      });
      EXPECT_EQ(Field(2), "QTY/Number/" + row.Type);
      PicksFromList("QTY");
      DefinesField(IDC_ChangeFieldItem, [&] {
        if (row.IsNumber) user.Clicks(IDC_TextOption);
        user.Clicks(IDC_NumberOption);
        user.Clicks(IDC_OKButton);
      });
      EXPECT_EQ(Field(2), "QTY/Number/DOUBLE");
    });
  }
}

TEST_F(DefinitionFormsTest, DeletesAField) {
  TheDocument.Things[2].Values[0].Text = "PRICE:3";
  Use([this] {
    user.Types(IDC_DataBox, "8");
    PicksFromList("PRICE");
    Refuses(
        "Formula <<TOTAL>> includes the field that you wish to delete.  Before you can delete the field you must alter "
        "or delete that formula.");
    user.ChoosesMenu(IDC_DeleteFieldItem);
    PicksFromList("TOTAL");
    user.ChoosesMenu(IDC_DeleteFormulaItem);
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), Names{});
    EXPECT_EQ(TheDocument.Formulas.Count(), 0);

    const std::string question =
        "There are 2 things for whom the field PRICE is filled in.  Deleting the field will remove the field "
        "information from all of those records.  Do you wish to proceed?";
    PicksFromList("PRICE");
    user.Answers(question, Answer::Cancel, Icon::None, Buttons::OkCancel);
    user.ChoosesMenu(IDC_DeleteFieldItem);
    EXPECT_EQ(TheDocument.Fields.Count(), 3);
    EXPECT_EQ(user.Sees(IDC_DataBox), "8.00");
    PicksFromList("PRICE");
    user.Answers(question, Answer::Ok, Icon::None, Buttons::OkCancel);
    user.ChoosesMenu(IDC_DeleteFieldItem);
    EXPECT_EQ(user.SeesEntries(IDC_FieldNameCombo), (Names{"QTY: Quantity", "COLOUR: Colour"}));
    EXPECT_EQ(user.SeesSelected(IDC_FieldNameCombo), "");
    EXPECT_FALSE(user.SeesVisible(IDC_DataBox));
    EXPECT_EQ(SlotsOf(1), "COLOUR:red||||||||||");
    EXPECT_EQ(SlotsOf(2), "||||||||||");

    // The field behind the deleted one keeps its value in the box.
    user.Picks(IDC_FieldNameCombo, "COLOUR: Colour");
    PicksFromList("QTY");
    user.ChoosesMenu(IDC_DeleteFieldItem);
    EXPECT_EQ(user.SeesSelected(IDC_FieldNameCombo), "COLOUR: Colour");
    EXPECT_EQ(user.Sees(IDC_DataBox), "red");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:red||||||||||");
}

TEST_F(DefinitionFormsTest, AsksOnlyBeforeAnotherThingLosesItsOnlyValue) {
  UseAndCancel([this] {
    PicksFromList("COLOUR");  // held by the current thing alone
    user.ChoosesMenu(IDC_DeleteFieldItem);
  });
  EXPECT_EQ(SlotsOf(1), "PRICE:12.50||||||||||");  // Cancel undoes no definition
  TheDocument.Formulas.SetCount(0);
  TheDocument.CurrentThing = 2;
  UseAndCancel([this] {
    PicksFromList("PRICE");
    user.Answers("The field PRICE is filled in for Big Red_Barn.  The content will be erased.  Proceed?",
                 Answer::Cancel, Icon::None, Buttons::OkCancel);
    user.ChoosesMenu(IDC_DeleteFieldItem);
  });
  EXPECT_EQ(TheDocument.Fields.Count(), 2);
  EXPECT_EQ(SlotsOf(1), "PRICE:12.50||||||||||");
}

TEST_F(DefinitionFormsTest, NothingPickedEndsACommand) {
  UseAndCancel([this] {
    for (const int item : {IDC_ChangeFieldItem, IDC_ChangeFormulaItem, IDC_DeleteFieldItem, IDC_DeleteFormulaItem}) {
      user.UsesForm(IDD_PickListForm, [this, item] {
        const bool formulas = item == IDC_ChangeFormulaItem || item == IDC_DeleteFormulaItem;
        EXPECT_EQ(user.SeesEntries(IDC_PickList), formulas ? Names{"TOTAL"} : (Names{"PRICE", "QTY", "COLOUR"}));
        Refuses("please click on an item before clicking O.K.");
        user.Clicks(IDC_OKButton);
        user.Clicks(IDC_CancelButton);
      });
      user.ChoosesMenu(item);
    }
  });
  EXPECT_FALSE(TheDocument.Modified);
  EXPECT_EQ(TheDocument.Fields.Count() + TheDocument.Formulas.Count(), 4);
}

TEST_F(DefinitionFormsTest, DefinesFormulas) {
  TheDocument.Things[1].Values[2].Text = "QTY:3";
  UseAndCancel([this] {
    DefinesFormula(IDC_AddFormulaItem, [this] {
      EXPECT_EQ(user.SeesCaption(), "Add Formula");
      EXPECT_EQ(user.SeesEntries(IDC_FieldTypeCombo),
                (Names{"DOUBLE", "SINGLE", "INTEGER", "LONG", "DOLLAR", "ODDS", "ODDSPM", "INTEREST"}));
      EXPECT_EQ(user.SeesSelected(IDC_FieldTypeCombo), "DOUBLE");
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "###,###,###,##0.000");
      EXPECT_FALSE(user.SeesEnabled(IDC_TemplateBox));
      Refuses("Please fill in a short name for the field.");
      user.Clicks(IDC_OKButton);
      user.Types(IDC_NameBox, "twice");
      Refuses("Please fill in a brief description for the field.");
      user.Clicks(IDC_OKButton);
      EXPECT_TRUE(user.SeesFocusOn(IDC_DescriptionBox));
      user.Types(IDC_DescriptionBox, "Two of them");
      user.Clicks(IDC_InsertButton);  // nothing is chosen yet
      EXPECT_EQ(user.Sees(IDC_FormulaBox), "");
      user.Picks(IDC_FieldNameCombo, "PRICE: Price of one");
      user.Clicks(IDC_InsertButton);
      EXPECT_EQ(user.Sees(IDC_FormulaBox), "[PRICE]");
      user.Types(IDC_FormulaBox, "  2 *");
      user.Clicks(IDC_InsertButton);
      EXPECT_EQ(user.Sees(IDC_FormulaBox), "  2 * [PRICE]");
      EXPECT_TRUE(user.SeesFocusOn(IDC_FormulaBox));
      user.Types(IDC_FormulaBox, "  2 * [price] ");
      user.Clicks(IDC_OKButton);
    });
    EXPECT_EQ(Formula(2), "TWICE/Two of them/DOUBLE//2 * [price]");
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), (Names{"TOTAL: 37.50", "TWICE: 25.000"}));

    PicksFromList("TWICE");
    DefinesFormula(IDC_ChangeFormulaItem, [this] {
      EXPECT_EQ(user.SeesCaption(), "Change Formula");
      EXPECT_EQ(user.Sees(IDC_FormulaBox), "2 * [price]");
      user.Types(IDC_NameBox, "total");
      Refuses("Formula <<TOTAL>> is already defined. Choose a different name.");
      user.Clicks(IDC_OKButton);
      user.Types(IDC_NameBox, "qty");
      Refuses("Keyword <<QTY>> is already defined. Choose a different name.");
      user.Clicks(IDC_OKButton);
      EXPECT_TRUE(user.SeesFocusOn(IDC_NameBox));
      user.Types(IDC_NameBox, "twice");
      user.Picks(IDC_FieldTypeCombo, "DOLLAR");
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "###,###,##0.00");
      user.Clicks(IDC_FixedOption);
      user.Picks(IDC_FieldTypeCombo, "LONG");
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "##,###,###,##0");
      user.Picks(IDC_FieldTypeCombo, "DOLLAR");
      user.Types(IDC_TemplateBox, "");
      Refuses(
          "You selected a fixed display format but the template is empty. Please fill in a template or switch to "
          "Automatic.");
      user.Clicks(IDC_OKButton);
      EXPECT_TRUE(user.SeesFocusOn(IDC_TemplateBox));
      user.Types(IDC_TemplateBox, "#,##0.0 kg");
      Refuses("You typed an invalid format.  Use any of these for placeholders: # 0 , . %");
      user.Clicks(IDC_OKButton);
      user.Types(IDC_TemplateBox, "#,##0.0");
      user.Clicks(IDC_OKButton);
    });
    EXPECT_EQ(Formula(2), "TWICE/Two of them/DOLLAR/#,##0.0/2 * [price]");
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), (Names{"TOTAL: 37.50", "TWICE: 25.0"}));

    PicksFromList("TWICE");
    DefinesFormula(IDC_ChangeFormulaItem, [this] {
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "#,##0.0");
      EXPECT_TRUE(user.SeesEnabled(IDC_TemplateBox));
      user.Clicks(IDC_AutoOption);
      EXPECT_EQ(user.Sees(IDC_TemplateBox), "###,###,##0.00");
      user.Clicks(IDC_OKButton);
    });
    EXPECT_EQ(Formula(2), "TWICE/Two of them/DOLLAR//2 * [price]");
  });
  EXPECT_EQ(TheDocument.Formulas.Count(), 2);
}

}  // namespace
