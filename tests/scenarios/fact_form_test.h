// A thing's field values in a person's hands: what the scenarios of FactForm and its dialogs share.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "document/fact_form.h"
#include "document/fact_values.h"
#include "resource.h"
#include "support/fresh_test.h"

class FactFormTest : public FreshTest {
 protected:
  // Three fields, one formula, and two things; the first is the current one.
  void SetUp() override {
    FreshTest::SetUp();
    FieldSlots none;
    StoreField(1, {"PRICE", "Price of one", "DOLLAR"}, none);
    StoreField(2, {"QTY", "Quantity", "INTEGER"}, none);
    StoreField(3, {"COLOUR", "Colour", ""}, none);
    StoreFormula(1, {"TOTAL", "Total", "DOLLAR", "", "[PRICE]*[QTY]"});
    TheDocument.Things.SetCount(2);
    TheDocument.Things[1].NAME = "Big Red_Barn";
    TheDocument.Things[1].Values[0].Text = "COLOUR:red";
    TheDocument.Things[1].Values[1].Text = "PRICE:12.50";
    TheDocument.Things[2].NAME = "Garden Shed";
    TheDocument.CurrentThing = 1;
    TheDocument.Modified = false;
    ThingDataChanged = false;
  }

  void Use(std::function<void()> acts) {
    user.UsesForm(IDD_FactForm, std::move(acts));
    FactForm().ShowModal();
  }
  // What the form holds that is to be left without a change.
  void UseAndCancel(const std::function<void()>& acts) {
    Use([this, acts] {
      acts();
      user.Clicks(IDC_CancelButton);
    });
  }
  void PicksFromList(const std::string& entry) {
    user.UsesForm(IDD_PickListForm, [this, entry] {
      user.Picks(IDC_PickList, entry);
      user.Clicks(IDC_OKButton);
    });
  }
  void DefinesField(int opener, std::function<void()> acts) {
    user.UsesForm(IDD_FieldDefForm, std::move(acts));
    if (opener == IDC_AddFieldButton) {
      user.Clicks(opener);
    } else {
      user.ChoosesMenu(opener);
    }
  }
  void DefinesFormula(int opener, std::function<void()> acts) {
    user.UsesForm(IDD_FormulaDefForm, std::move(acts));
    user.ChoosesMenu(opener);
  }
  void Refuses(const std::string& text) { user.Reads(text, Icon::Exclamation); }

  static std::string SlotsOf(int record) {
    std::string text;
    for (const FieldValueSlot& slot : TheDocument.Things[record].Values) text += slot.Text + "|";
    return text;
  }
  static std::string Field(int number) {
    const FieldDefinition& field = TheDocument.Fields[number];
    return field.Keyword + "/" + field.Title + "/" + field.Type;
  }
  static std::string Formula(int number) {
    const FormulaDefinition& formula = TheDocument.Formulas[number];
    return formula.Name + "/" + formula.Title + "/" + formula.Type + "/" + formula.Format + "/" + formula.Formula;
  }
};
