// The forms of a thing's name: as typed, as stored, and turned around.
#include "document/names.h"

#include "support/rows.h"

namespace {

TEST(NamesTest, TakeTheirForms) {
  ExpectRows(R"(Barn, Red => Red Barn/Barn, Red | Red Barn, Big => Big Red_Barn/Red Barn, Big
  Garden Shed  => Garden Shed/Shed, Garden | Red_Barn => Red_Barn/Red_Barn | Shed => Shed/Shed |  => / | , => /
Big Old Red_Barn => Big Old Red_Barn/Red Barn, Big Old |  A  B , => A__B/A__B | , Red => Red/Red
A, B, C => B, C A/B, C A | Old_Big Red_Barn_Door => Old_Big Red_Barn_Door/Red Barn Door, Old_Big)",
             [](const std::string& typed) { return NormaliseName(typed) + "/" + TurnName(NormaliseName(typed)); });
  EXPECT_EQ(TurnName(" Barn ,  Red ") + JoinUnderscoredWords(" Big_Red_Barn "), "Barn, RedBig Red Barn");
}

}  // namespace
