// The forms of a thing's name: as typed, as stored, and turned around.
#include "document/names.h"

#include <gtest/gtest.h>

namespace {

TEST(NamesTest, TakeTheirForms) {
  struct NameRow {
    const char* Typed;
    const char* Stored;
    const char* Turned;
  };
  const NameRow rows[] = {{"Barn, Red", "Red Barn", "Barn, Red"},
                          {"Red Barn, Big", "Big Red_Barn", "Red Barn, Big"},
                          {"  Garden Shed ", "Garden Shed", "Shed, Garden"},
                          {"Red_Barn", "Red_Barn", "Red_Barn"},
                          {"Big Old Red_Barn", "Big Old Red_Barn", "Red Barn, Big Old"},
                          {"Shed", "Shed", "Shed"},
                          {"", "", ""},
                          {",", "", ""},
                          {" A  B ,", "A__B", "A__B"},
                          {", Red", "Red", "Red"},
                          {"A, B, C", "B, C A", "B, C A"},
                          {"Old_Big Red_Barn_Door", "Old_Big Red_Barn_Door", "Red Barn Door, Old_Big"}};
  for (const NameRow& row : rows) {
    EXPECT_EQ(NormaliseName(row.Typed), row.Stored) << row.Typed;
    EXPECT_EQ(TurnName(NormaliseName(row.Typed)), row.Turned) << row.Typed;
  }
  EXPECT_EQ(TurnName(" Barn ,  Red "), "Barn, Red");
  EXPECT_EQ(JoinUnderscoredWords(" Big_Red_Barn "), "Big Red Barn");
}

}  // namespace
