// What registry.h promises, on both platforms alike.
#include "platform/registry.h"

#include <gtest/gtest.h>

#include "platform/locale.h"
#include "support/registry.h"

namespace {

TEST(RegistryTest, KeysOpenByPathAndValuesTellTypeSizeAndText) {
  const std::string class_key = "Software\\Classes\\.filertest", key = class_key + "\\shell\\open";
  const struct {
    const char* Name;
    unsigned long Type;
    std::string Text;
  } rows[] = {{"", kRegistryText, "caf\xE9"},
              {"Folder", kRegistryExpandableText, "%windir%\\x"},
              {"number", 4, "abc"},
              {"Nothing", kRegistryText, ""}};
  TestRegistry::Remove(class_key);
  for (const auto& row : rows) TestRegistry::Put(key, row.Name, row.Text, row.Type);
  TestRegistry::AllowReadingOnly(key);
  const RegistryKey open(RegistryRoot::CurrentUser, "SOFTWARE\\CLASSES\\.FILERTEST\\Shell\\open");
  EXPECT_TRUE(open.IsOpen());
  for (const auto& row : rows) {
    for (const std::string& name : {std::string(row.Name), UpperCase(row.Name)}) {
      const RegistryValue value = open.Query(name).value_or(RegistryValue());
      EXPECT_EQ(std::make_pair(value.Type, value.Size), std::make_pair(row.Type, row.Text.size() + 1)) << name;
      EXPECT_EQ(open.ReadText(name, value.Size), row.Text) << name;
      EXPECT_EQ(open.ReadText(name, value.Size - 1), std::nullopt) << name;
    }
  }
  EXPECT_FALSE(open.Query("missing") || open.ReadText("missing", 100));
  const RegistryKey empty(RegistryRoot::CurrentUser, class_key), other(RegistryRoot::LocalMachine, key),
      cut(RegistryRoot::CurrentUser, key.substr(0, key.size() - 1));
  EXPECT_TRUE(empty.IsOpen() && !cut.IsOpen() && !other.IsOpen());
  for (const RegistryKey* none : {&empty, &cut, &other}) EXPECT_FALSE(none->Query("") || none->ReadText("", 100));
  TestRegistry::Remove(class_key);
}

}  // namespace
