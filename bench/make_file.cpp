// make_file THINGS SEED [--rec|--csv]: writes a generated document to the standard output, as a data
// file, or with the same data as a rec file or CSV.
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "generate.h"
#include "values/numbers.h"

int main(int argc, char** argv) {
  const std::string_view format = argc > 3 ? argv[3] : "";
  const int things = argc > 2 ? std::atoi(argv[1]) : 0;
  if (things < 1 || things > kLastRecord || (!format.empty() && format != "--rec" && format != "--csv")) {
    std::fputs("usage: make_file THINGS SEED [--rec|--csv] (1 to 32767 things)\n", stderr);
    return 2;
  }
  GenerateDocument(things, static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10)));
  const std::string bytes = format == "--rec"   ? DocumentAsRecFile()
                            : format == "--csv" ? DocumentAsCsv()
                                                : DocumentAsFilerFile();
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
  return written && std::fflush(stdout) == 0 ? 0 : 1;
}
