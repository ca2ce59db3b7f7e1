// A thing's field values in a person's hands: typing them, keeping them, and leaving them.
#include "scenarios/fact_form_test.h"

#include "platform/locale.h"
#include "platform/program.h"
#include "scenarios/main_form_test.h"
#include "shell/calendar.h"

namespace {

using Names = std::vector<std::string>;

TEST_F(FactFormTest, ShowsTheThingsValues) {
  UseAndCancel([this] {
    EXPECT_EQ(user.Sees(IDC_CaptionLabel), "Data for Big Red_Barn");
    EXPECT_EQ(user.SeesEntries(IDC_FieldNameCombo), (Names{"PRICE: Price of one", "QTY: Quantity", "COLOUR: Colour"}));
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), Names{"TOTAL:"});
    EXPECT_TRUE(user.SeesFocusOn(IDC_DataBox));
    EXPECT_EQ(user.Sees(IDC_DataBox), "12.50");
    user.Picks(IDC_FieldNameCombo, "QTY: Quantity");
    EXPECT_EQ(user.Sees(IDC_DataBox), "");
    user.Picks(IDC_FieldNameCombo, "COLOUR: Colour");
    EXPECT_EQ(user.Sees(IDC_DataBox), "red");
  });
  EXPECT_FALSE(TheDocument.Modified);
  EXPECT_FALSE(ThingDataChanged);
}

TEST_F(FactFormTest, EnterGoesFromFieldToFieldAndThenToOK) {
  Use([this] {
    user.Types(IDC_DataBox, "2 * 3.5");
    user.Presses(Key::Enter);
    EXPECT_EQ(user.SeesSelected(IDC_FieldNameCombo), "QTY: Quantity");
    EXPECT_TRUE(user.SeesFocusOn(IDC_DataBox));
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), Names{"TOTAL:"});
    user.Types(IDC_DataBox, "3");
    user.Presses(Key::Enter);
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), Names{"TOTAL: 21.00"});
    EXPECT_EQ(user.SeesSelected(IDC_FieldNameCombo), "COLOUR: Colour");
    user.Types(IDC_DataBox, "  dark: green ");
    user.Presses(Key::Enter);
    EXPECT_EQ(user.Sees(IDC_DataBox), "dark: green");
    EXPECT_TRUE(user.SeesFocusOn(IDC_OKButton));
    EXPECT_EQ(SlotsOf(1), "COLOUR:red|PRICE:12.50|||||||||");  // a copy is edited
    user.Presses(Key::Enter);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:dark: green|PRICE:7.00|QTY:3||||||||");
  EXPECT_TRUE(TheDocument.Modified);
  EXPECT_TRUE(ThingDataChanged);
}

TEST_F(FactFormTest, OKStoresWhatIsBeingTypedAndDropsWhatWasEmptied) {
  Use([this] {
    user.Picks(IDC_FieldNameCombo, "QTY: Quantity");
    user.Types(IDC_DataBox, "2.5");
    user.Picks(IDC_FieldNameCombo, "COLOUR: Colour");
    user.Types(IDC_DataBox, "  ");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "PRICE:12.50|QTY:2|||||||||");
  EXPECT_EQ(SlotsOf(2), "||||||||||");

  // O.K. counts as a change even without one.
  TheDocument.Modified = ThingDataChanged = false;
  Use([this] { user.Clicks(IDC_OKButton); });
  EXPECT_EQ(SlotsOf(1), "PRICE:12.50|QTY:2|||||||||");
  EXPECT_TRUE(TheDocument.Modified);
  EXPECT_TRUE(ThingDataChanged);
}

TEST_F(FactFormTest, CancelLeavesTheThing) {
  for (const auto& leave :
       std::vector<std::function<void()>>{[this] { user.Clicks(IDC_CancelButton); },
                                          [this] { user.Presses(Key::Escape); }, [this] { user.ClosesWindow(); }}) {
    Use([this, leave] {
      user.Types(IDC_DataBox, "5");
      user.Presses(Key::Enter);
      user.Types(IDC_DataBox, "x");  // no number: nobody asks for one any more
      leave();
    });
  }
  EXPECT_EQ(SlotsOf(1), "COLOUR:red|PRICE:12.50|||||||||");
  EXPECT_FALSE(TheDocument.Modified);
}

// Computing a stored value anew could change it: this one would become 21.

TEST_F(FactFormTest, ValuesThatNobodyTouchedStayAsTheyAre) {
  TheDocument.Fields[1].Type = "DOUBLE";
  TheDocument.Things[1].Values[1].Text = "PRICE:1E+20";
  Use([this] {
    user.Presses(Key::Enter);
    user.Picks(IDC_FieldNameCombo, "PRICE: Price of one");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:red|PRICE:1E+20|||||||||");
}

TEST_F(FactFormTest, StaysWithWhatCannotBeComputed) {
  Use([this] {
    const auto stays = [this](const std::function<void()>& act) {
      user.Types(IDC_DataBox, " 5 / 0");
      Refuses("Failed to calculate expression 5/0 due to error # 11: Division by zero");
      act();
      EXPECT_EQ(user.Sees(IDC_DataBox), " 5 / 0");
      EXPECT_EQ(user.SeesSelected(IDC_FieldNameCombo), "PRICE: Price of one");
      EXPECT_TRUE(user.SeesFocusOn(IDC_DataBox));
    };
    stays([this] { user.Picks(IDC_FieldNameCombo, "COLOUR: Colour"); });
    stays([this] { user.Clicks(IDC_OKButton); });
    stays([this] { user.Presses(Key::Enter); });
    stays([this] { user.ChoosesMenu(IDC_AddFieldItem); });
    stays([this] { user.Clicks(IDC_AddFieldButton); });
    stays([this] { user.ChoosesMenu(IDC_DeleteFormulaItem); });
    user.Types(IDC_DataBox, "6");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:red|PRICE:6.00|||||||||");
}

TEST_F(FactFormTest, RefusesAnEleventhValue) {
  FieldSlots none;
  for (int number = 4; number <= 11; ++number) {
    const std::string keyword(1, static_cast<char>('A' + number));
    StoreField(number, {keyword, "x", "LONG"}, none);
    TheDocument.Things[1].Values[static_cast<std::size_t>(number - 2)].Text = keyword + ":1";
  }
  const std::string before = SlotsOf(1);
  Use([this] {
    user.Picks(IDC_FieldNameCombo, "QTY: Quantity");
    user.Types(IDC_DataBox, "5");
    Refuses("A thing can hold at most 10 field values.  This value is not stored.");
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), before);
  EXPECT_EQ(SlotsOf(1).substr(0, 27), "COLOUR:red|PRICE:12.50|E:1|");
}

TEST_F(FactFormTest, AsksOnceForAFormulasHighInterestButForEachTypedOne) {
  const std::string question = "Are you sure that you want to use an interest rate greater than 100%?";
  FieldSlots none;
  StoreField(4, {"RATE", "Rate", "INTEREST"}, none);
  StoreFormula(1, {"HIGH", "High", "INTEREST", "", "1.5 + [RATE]"});
  TheDocument.Things[1].Values[2].Text = "RATE:10%";
  user.Answers(question, Answer::Yes, Icon::None, Buttons::YesNo);
  UseAndCancel([this, question] {
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), Names{"HIGH: 160.00%"});
    user.Picks(IDC_FieldNameCombo, "RATE: Rate");
    user.Types(IDC_DataBox, "200%");
    user.Answers(question, Answer::No, Icon::None, Buttons::YesNo);
    user.Presses(Key::Enter);
    EXPECT_EQ(user.Sees(IDC_DataBox), "0");
    EXPECT_EQ(user.SeesEntries(IDC_FormulaList), Names{"HIGH: 150.00%"});
  });
}

TEST_F(FactFormTest, InsertsADateIntoATextField) {
  const CalendarDate today = Today();
  const std::string date = ShortDate(static_cast<int>(today.year()), static_cast<unsigned>(today.month()),
                                     static_cast<unsigned>(today.day()));
  Use([this, date] {
    EXPECT_FALSE(user.SeesMenuEnabled(IDC_InsertDateItem));  // a number's field
    user.Picks(IDC_FieldNameCombo, "COLOUR: Colour");
    user.Types(IDC_DataBox, "seen");
    user.UsesForm(IDD_DatePickForm, [this] { user.Clicks(IDC_CancelButton); });
    user.ChoosesMenu(IDC_InsertDateItem);
    EXPECT_EQ(user.Sees(IDC_DataBox), "seen");
    user.UsesForm(IDD_DatePickForm, [this] { user.Presses(Key::Enter); });
    user.ChoosesMenu(IDC_InsertDateItem);
    EXPECT_EQ(user.Sees(IDC_DataBox), "seen " + date);
    EXPECT_TRUE(user.SeesFocusOn(IDC_DataBox));
    user.Clicks(IDC_OKButton);
  });
  EXPECT_EQ(SlotsOf(1), "COLOUR:seen " + date + "|PRICE:12.50|||||||||");
}

class MoreInfoTest : public MainFormTest {};

TEST_F(MoreInfoTest, NeedsAThing) {
  Start();
  user.Reads("First choose or add a thing, then click the MORE button.", Icon::Exclamation);
  user.Clicks(IDC_DataButton);
}

TEST_F(MoreInfoTest, OpensForTheCurrentThingAfterStoringWhatWasTyped) {
  PutHome();
  Start("Home.FIL");
  user.Picks(IDC_PersonCombo, "Garden Shed");
  user.Types(IDC_NoteBox, "typed");
  user.UsesForm(IDD_FactForm, [this] {
    EXPECT_EQ(TheDocument.Things[2].NOTE, "typed");
    EXPECT_EQ(user.Sees(IDC_CaptionLabel), "Data for Garden Shed");
    user.Types(IDC_DataBox, "13");
    user.Clicks(IDC_OKButton);
  });
  user.ChoosesMenu(IDC_DataItem);
  EXPECT_EQ(TheDocument.Things[2].Values[0].Text, "PRICE:13.00");
  EXPECT_FALSE(ThingDataChanged);
  EXPECT_EQ(user.Sees(IDC_NoteBox), "typed");
  EXPECT_EQ(user.SeesCaption(), "Larkspur Filer - Home.FIL *");
}

}  // namespace
