// The forms of a thing's name: as typed, as stored, and turned around.
#include "document/names.h"

#include <gtest/gtest.h>

#include <array>

namespace {

TEST(NamesTest, TakeTheirForms) {
  const std::array<const char*, 3> rows[] = {
      {"Barn, Red", "Red Barn", "Barn, Red"},
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
  for (const auto& [typed, stored, turned] : rows) {
    EXPECT_EQ(NormaliseName(typed), stored) << typed;
    EXPECT_EQ(TurnName(NormaliseName(typed)), turned) << typed;
  }
  EXPECT_EQ(TurnName(" Barn ,  Red "), "Barn, Red");
  EXPECT_EQ(JoinUnderscoredWords(" Big_Red_Barn "), "Big Red Barn");
}

}  // namespace
