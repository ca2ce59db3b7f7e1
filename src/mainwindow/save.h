// Writing the document to its place on the disk, so that at every instant one complete copy exists.
#pragma once

#include <string>

// The whole Save command: proposes a name, asks what has to be asked, writes the file with a backup of
// the one it replaces, locks it again, and puts it into the recent-files list. Says what went wrong; the
// document is then unchanged. The store step must have run.
void SaveDocument();

// The name offered for a document that has none: "Filer" and the number behind the highest one among the
// recent files.
std::string ProposedFileName();
