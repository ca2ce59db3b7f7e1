// The fresh start of a test: see fresh_test.h.
#include "support/fresh_test.h"

#include "document/document.h"
#include "document/file_lock.h"
#include "document/segments.h"
#include "mainwindow/command_line.h"
#include "mainwindow/settings.h"

void FreshTest::SetUp() {
  TestFiles::Start();
  StartFresh();
}

void FreshTest::StartFresh() {
  ReleaseFileLock();
  TheDocument = {};
  TheRecentFiles = {};
  TheStart = {};
  StartSegments(0);
}

void FreshTest::TearDown() {
  ReleaseFileLock();
  TestFiles::Finish();
}

std::string InFolder(const std::string& name) { return TestFiles::Folder() + "\\" + name; }

std::string Lines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

namespace {

void Add(std::string& line, const std::string& title, const std::string& value) {
  if (!value.empty()) line += " " + title + "<" + value + ">";
}

void Add(std::string& line, const std::string& title, int value) {
  if (value != 0) line += " " + title + " " + std::to_string(value);
}

}  // namespace

std::string DescribeDocument() {
  std::string text;
  const auto end_line = [&text](const std::string& line) { text += line + "\n"; };
  for (int number = 1; number <= TheDocument.CategoryNames.Highest(); ++number) {
    std::string line = "category " + std::to_string(number);
    Add(line, "name", TheDocument.CategoryNames[number]);
    end_line(line);
  }
  for (int number = 1; number <= TheDocument.Fields.Count(); ++number) {
    const FieldDefinition& field = TheDocument.Fields[number];
    std::string line = "field " + std::to_string(number);
    Add(line, "keyword", field.Keyword);
    Add(line, "title", field.Title);
    Add(line, "type", field.Type);
    end_line(line);
  }
  for (int number = 1; number <= TheDocument.Formulas.Count(); ++number) {
    const FormulaDefinition& formula = TheDocument.Formulas[number];
    std::string line = "formula " + std::to_string(number);
    Add(line, "name", formula.Name);
    Add(line, "title", formula.Title);
    Add(line, "type", formula.Type);
    Add(line, "format", formula.Format);
    Add(line, "formula", formula.Formula);
    end_line(line);
  }
  for (int number = 1; number <= TheDocument.Things.Count(); ++number) {
    const ThingRecord& thing = TheDocument.Things[number];
    std::string line = "thing " + std::to_string(number);
    Add(line, "name", thing.NAME);
    Add(line, "note", thing.NOTE);
    Add(line, "photo", thing.PICFILENAME);
    Add(line, "xref1", thing.XREF1);
    Add(line, "xref2", thing.XREF2);
    Add(line, "categories", thing.CATBITMAP);
    for (int slot = 1; slot <= kFieldValues; ++slot) {
      Add(line, "slot" + std::to_string(slot), thing.Values[static_cast<std::size_t>(slot - 1)].Text);
    }
    end_line(line);
  }
  return text;
}
