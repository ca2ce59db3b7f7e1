// The name that the Save command proposes for a document without one.
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "mainwindow/save.h"
#include "mainwindow/settings.h"

namespace {

TEST(SaveNamesTest, ProposesTheNumberBehindTheHighest) {
  const std::pair<std::vector<std::string>, const char*> rows[] = {
      {{}, "Filer001.FIL"},
      {{"C:\\D\\FILER007.FIL"}, "Filer008.FIL"},
      {{"C:\\D\\Home.FIL", "filer002.fil", "D:Filer011.FIL", "C:\\Filer003.FIL"}, "Filer012.FIL"},
      {{"C:\\D\\Home.FIL"}, "Filer001.FIL"},
      {{"C:\\Filer009.FIL\\Home.FIL"}, "Filer001.FIL"},  // a folder's name counts for nothing
      {{"C:\\D\\My Filer041 old.FIL"}, "Filer042.FIL"},
      {{"C:\\D\\Filer99"}, "Filer001.FIL"},  // two characters only
      {{"C:\\D\\Filer998.FIL"}, "Filer999.FIL"},
      {{"Filer005.FIL", "Filer999.FIL"}, "Filer999.FIL"},  // no number behind it: that of the last entry
      {{"Filer999.FIL", "Filer005.FIL"}, "Filer005.FIL"},
      {{"Filer.FIL"}, "Filer000.FIL"},
      {{"Filer000.FIL"}, "Filer000.FIL"},
      {{"Filer004.FIL", "Filer.FIL"}, "Filer005.FIL"},
      {{"Filer7a.FIL"}, "Filer008.FIL"},
      {{"Filer0123.FIL"}, "Filer013.FIL"},
      {{"Filer041"}, "Filer042.FIL"},
      {{"Filer-12.FIL"}, "Filer-012.FIL"},
  };
  for (const auto& [recent, proposal] : rows) {
    TheRecentFiles = {};
    for (const std::string& name : recent) TheRecentFiles[++TheRecentFiles.Count] = name;
    EXPECT_EQ(ProposedFileName(), proposal) << (recent.empty() ? "" : recent[0]);
  }
  TheRecentFiles = {};
}

}  // namespace
