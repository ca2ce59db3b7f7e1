// The name that the Save command proposes for a document without one.
#include <tuple>

#include "mainwindow/save.h"
#include "mainwindow/settings.h"
#include "support/rows.h"

namespace {

// A folder's name counts for nothing; what has no number behind it is that of the last entry.
TEST(SaveNamesTest, ProposesTheNumberBehindTheHighest) {
  ExpectRows(R"( => Filer001.FIL | C:\D\FILER007.FIL => Filer008.FIL | C:\D\Home.FIL => Filer001.FIL
C:\D\Home.FIL/filer002.fil/D:Filer011.FIL/C:\Filer003.FIL => Filer012.FIL | C:\Filer009.FIL\Home.FIL => Filer001.FIL
C:\D\My Filer041 old.FIL => Filer042.FIL | C:\D\Filer99 => Filer001.FIL | C:\D\Filer998.FIL => Filer999.FIL
Filer005.FIL/Filer999.FIL => Filer999.FIL | Filer999.FIL/Filer005.FIL => Filer005.FIL | Filer.FIL => Filer000.FIL
Filer000.FIL => Filer000.FIL | Filer004.FIL/Filer.FIL => Filer005.FIL | Filer7a.FIL => Filer008.FIL
Filer0123.FIL => Filer013.FIL | Filer041 => Filer042.FIL | Filer-12.FIL => Filer-012.FIL)",
             [](std::string recent) {
               TheRecentFiles = {};
               for (std::string name; !recent.empty();) {
                 std::tie(name, recent) = Halves(recent, '/');
                 TheRecentFiles[++TheRecentFiles.Count] = name;
               }
               return ProposedFileName();
             });
  TheRecentFiles = {};
}

}  // namespace
