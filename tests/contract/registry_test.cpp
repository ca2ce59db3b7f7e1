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
      const auto value = open.Query(name);
      ASSERT_TRUE(value.has_value()) << name;
      EXPECT_EQ(value->Type, row.Type) << name;
      EXPECT_EQ(value->Size, row.Text.size() + 1) << name;
      EXPECT_EQ(open.ReadText(name, value->Size), row.Text) << name;
      EXPECT_EQ(open.ReadText(name, value->Size - 1), std::nullopt) << name;
    }
  }
  // A key may have no value of that name, or no default one, or not be there.
  for (const auto& [root, path, is_open] : std::initializer_list<std::tuple<RegistryRoot, std::string, bool>>{
           {RegistryRoot::CurrentUser, class_key, true},
           {RegistryRoot::CurrentUser, key.substr(0, key.size() - 1), false},
           {RegistryRoot::LocalMachine, key, false}}) {
    const RegistryKey other(root, path);
    EXPECT_EQ(other.IsOpen(), is_open) << path;
    EXPECT_FALSE(other.Query("") || other.ReadText("", 100) || open.Query("missing") || open.ReadText("missing", 100));
  }
  TestRegistry::Remove(class_key);
}

}  // namespace
