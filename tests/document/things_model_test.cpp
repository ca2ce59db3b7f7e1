// Thousands of random changes to the things, against a model in which links are names and nothing has a number.
#include <algorithm>
#include <random>

#include "document/document.h"
#include "document/things.h"
#include "platform/locale.h"
#include "support/fresh_test.h"

namespace {

struct ModelThing {
  std::string Name;
  std::string Links[2];  // names; empty for none
  std::int32_t Categories = 0;
};

class ThingsModelTest : public FreshTest {
 protected:
  std::mt19937 random;
  std::vector<ModelThing> model;  // in the document's order
  int names_given = 0;

  int Below(std::size_t limit) { return static_cast<int>(random() % limit); }

  // Names collide in their first letters and differ in case, so that places are found by more than a byte.
  std::string FreshName() {
    const std::string letters = "abAB";
    return std::string(1, letters[random() % 4]) + letters[random() % 4] + std::to_string(++names_given);
  }

  void PutIntoOrder(const ModelThing& thing) {
    model.insert(std::find_if(model.begin(), model.end(),
                              [&](const auto& other) { return UpperCase(other.Name) > UpperCase(thing.Name); }),
                 thing);
  }

  void Relink(const std::string& from, const std::string& to) {
    for (ModelThing& thing : model) std::replace(std::begin(thing.Links), std::end(thing.Links), from, to);
  }

  void Add() {
    const std::string name = FreshName();
    const int record = InsertThing(name);
    PutIntoOrder({name, {}, 0});
    EXPECT_EQ(FindThing(UpperCase(name)), record);
  }

  ModelThing Take(int index) {
    ModelThing taken = model[static_cast<std::size_t>(index)];
    model.erase(model.begin() + index);
    return taken;
  }

  void Delete() {
    const int index = Below(model.size());
    DeleteThing(index + 1);
    Relink(Take(index).Name, "");
  }

  void Rename() {
    const int index = Below(model.size());
    ModelThing thing = Take(index);
    const std::string before = std::exchange(thing.Name, FreshName());
    const int record = RenameThing(index + 1, thing.Name);
    PutIntoOrder(thing);
    Relink(before, thing.Name);
    EXPECT_EQ(TheDocument.Things[record].NAME, thing.Name);
  }

  void Change() {
    const auto index = static_cast<std::size_t>(Below(model.size()));
    const auto target = random() % (model.size() + 1);
    ThingRecord& thing = TheDocument.Things.Writable(static_cast<int>(index) + 1);
    const std::size_t which = random() % 2;
    (which == 0 ? thing.XREF1 : thing.XREF2) = static_cast<std::int16_t>(target);
    model[index].Links[which] = target == 0 ? "" : model[target - 1].Name;
    const std::int32_t bit = CategoryBit(1 + Below(kCategories));
    thing.CATBITMAP ^= bit;
    model[index].Categories ^= bit;
  }

  void Compare() {
    ASSERT_EQ(TheDocument.Things.Count(), static_cast<int>(model.size()));
    for (int record = 1; record <= TheDocument.Things.Count(); ++record) {
      const ThingRecord& thing = TheDocument.Things[record];
      const ModelThing& expected = model[static_cast<std::size_t>(record - 1)];
      const auto name_of = [](int link) { return link == 0 ? std::string() : TheDocument.Things[link].NAME; };
      ASSERT_EQ(thing.NAME, expected.Name);
      ASSERT_EQ(name_of(thing.XREF1), expected.Links[0]);
      ASSERT_EQ(name_of(thing.XREF2), expected.Links[1]);
      ASSERT_EQ(thing.CATBITMAP, expected.Categories);
    }
  }
};

TEST_F(ThingsModelTest, LinksStayTrueThroughRandomChanges) {
  for (const unsigned seed : {1u, 2u, 3u, 4u}) {
    SCOPED_TRACE(seed);
    random.seed(seed);
    MakeNew();
    model.clear();
    for (int step = 1; step <= 1500; ++step) {
      const int choice = Below(10);
      if (model.empty() || choice < 3) {
        Add();
      } else if (choice == 3) {
        Delete();
      } else if (choice < 6) {
        Rename();
      } else {
        Change();
      }
      if (step % 100 == 0) RequireRoundTrip();
      if (step % 10 == 0) Compare();
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
