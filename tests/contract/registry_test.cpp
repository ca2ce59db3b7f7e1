// What registry.h promises, on both platforms alike.
#include "platform/registry.h"

#include <gtest/gtest.h>

#include "support/registry.h"

namespace {

const std::string kKey = "Software\\Classes\\.filertest";

class RegistryTest : public testing::Test {
 protected:
  void SetUp() override { TestRegistry::Remove(kKey); }
  void TearDown() override { TestRegistry::Remove(kKey); }
};

TEST_F(RegistryTest, KeysOpenByPathWhateverItsCase) {
  TestRegistry::Put(kKey + "\\shell\\open", "", "x");
  for (const char* path : {"Software\\Classes\\.filertest\\shell\\open", "SOFTWARE\\CLASSES\\.FILERTEST\\Shell",
                           "Software\\Classes\\.filertest"}) {
    EXPECT_TRUE(RegistryKey(RegistryRoot::CurrentUser, path).IsOpen()) << path;
    EXPECT_FALSE(RegistryKey(RegistryRoot::LocalMachine, path).IsOpen()) << path;
  }
  const RegistryKey missing(RegistryRoot::CurrentUser, kKey + "\\shell\\ope");
  EXPECT_FALSE(missing.IsOpen());
  EXPECT_FALSE(missing.Query("").has_value());
  EXPECT_FALSE(missing.ReadText("", 100).has_value());
}

TEST_F(RegistryTest, ValuesTellTypeSizeAndText) {
  TestRegistry::Put(kKey, "", "caf\xE9");
  TestRegistry::Put(kKey, "Folder", "%windir%\\x", kRegistryExpandableText);
  TestRegistry::Put(kKey, "Number", "abc", 4);
  TestRegistry::Put(kKey, "Nothing", "");
  const RegistryKey key(RegistryRoot::CurrentUser, kKey);
  const struct {
    const char* Name;
    unsigned long Type;
    std::string Text;
  } rows[] = {{"", kRegistryText, "caf\xE9"},
              {"FOLDER", kRegistryExpandableText, "%windir%\\x"},
              {"number", 4, "abc"},
              {"Nothing", kRegistryText, ""}};
  for (const auto& row : rows) {
    const auto value = key.Query(row.Name);
    ASSERT_TRUE(value.has_value()) << row.Name;
    EXPECT_EQ(value->Type, row.Type) << row.Name;
    EXPECT_EQ(value->Size, row.Text.size() + 1) << row.Name;
    EXPECT_EQ(key.ReadText(row.Name, value->Size), row.Text) << row.Name;
    EXPECT_EQ(key.ReadText(row.Name, value->Size - 1), std::nullopt) << row.Name;
  }
  EXPECT_FALSE(key.Query("Missing").has_value());
  EXPECT_FALSE(key.ReadText("Missing", 100).has_value());
}

TEST_F(RegistryTest, AKeyThatMayOnlyBeReadIsRead) {
  TestRegistry::Put(kKey, "", "x");
  TestRegistry::AllowReadingOnly(kKey);
  EXPECT_EQ(RegistryKey(RegistryRoot::CurrentUser, kKey).ReadText("", 2), "x");
}

TEST_F(RegistryTest, AKeyMayHaveNoDefaultValue) {
  TestRegistry::Put(kKey, "Other", "x");
  const RegistryKey key(RegistryRoot::CurrentUser, kKey);
  EXPECT_TRUE(key.IsOpen());
  EXPECT_FALSE(key.Query("").has_value());
}

}  // namespace
