// What of a report stands in the window and on paper: stories of pages. The files beside this one hold what is done,
// flush left, and below it, indented, what of the page is then another, or all that is printed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <map>
#include <sstream>

#include "scenarios/story_file.h"
#include "support/page_text.h"
#include "support/rows.h"
#include "viewer/print_layout.h"
#include "viewer/report_view.h"

namespace {

std::string Joined(const std::vector<std::string>& rows) {
  std::string line;
  for (const std::string& row : rows) line += (&row == rows.data() ? "" : " / ") + row;
  return line;
}

// Lines parted by "/", the first one without "LARKSPUR V1.0 REPORT"; "-" in its place is none at all. "3*Th## a##" is
// three lines, with the line's number for each "##"; "^" and "`" are control characters.
ReportText Report(const std::string& described) {
  const bool plain = described.starts_with('-');
  std::string bytes = plain ? "" : "LARKSPUR V1.0 REPORT ";
  std::vector<std::string> lines = Parts(Replaced(Replaced(described, "^", "\x1F"), "`", "\x7F"), "/");
  if (plain) lines.erase(lines.begin());
  for (const std::string& line : lines) {
    const std::size_t star = line.find('*');
    for (int time = 1; time <= (star == std::string::npos ? 1 : std::stoi(line)); ++time) {
      const std::string number = {static_cast<char>('0' + time / 10), static_cast<char>('0' + time % 10)};
      bytes += Replaced(line.substr(star + 1), "##", number) + "\r\n";
    }
  }
  return ReportText(bytes);
}

std::string Pair(auto first, const char* between, auto second) {
  return std::to_string(first) + between + std::to_string(second);
}

// The grid lines by cell, direction and length.
std::string RulesOf(const Page& page) {
  std::string rules;
  for (const Rule& rule : page.Rules) {
    rules += (rules.empty() ? "" : " ") + Pair(rule.At.Column, ",", rule.At.Row) + (rule.Down ? "v" : ">") +
             std::to_string(rule.Length);
  }
  return rules;
}

// What is seen of a view, by what it is; rows by their numbers.
using Looks = std::map<std::string, std::string>;

Looks LooksOf(const ReportView& view) {
  const Page page = view.BuildPage();
  const auto bar = [](const ReportView::Extent& extent) {
    return Pair(extent.Position, " of ", extent.Range) + " by " + std::to_string(extent.Shown);
  };
  Looks looks{{"down", bar(view.Down())},
              {"across", bar(view.Across())},
              {"stay", Pair(page.HeadRows, " and ", page.LeftColumns) + " from " + std::to_string(page.LeftFrom)},
              {"lines", RulesOf(page)}};
  if (page.ShowsCaret) looks["caret"] = Pair(page.Caret.Column, ",", page.Caret.Row);
  if (view.Seeks()) looks["hit"] = Pair(view.HitNumber(), " of ", view.HitCount());
  if (view.HasSelection()) looks["selected"] = Joined(Parts(view.SelectedText(), "\r\n"));
  int number = 0;
  for (const std::string& row : RowsOf(page, true)) {
    looks[(number < 10 ? "| " : "|") + std::to_string(number) + ":"] = row;
    ++number;
  }
  return looks;
}

// What differs, in lines of some length.
std::vector<std::string> NewsOf(Looks before, Looks now) {
  constexpr std::size_t kWidth = 112;
  std::vector<std::string> news(1);
  for (const auto& look : Looks(before)) now[look.first];
  for (const auto& [what, text] : now) {
    if (before[what] == text) continue;
    const std::string line = what + " " + (text.empty() && what[0] != '|' ? "no more" : text);
    if (!news.back().empty() && news.back().size() + line.size() > kWidth) news.emplace_back();
    news.back() += (news.back().empty() ? "" : "; ") + line;
  }
  return news;
}

// Every page of the report on a sheet with room for that many cells of the usual text.
std::vector<std::string> Printed(const ReportText& text, int columns, int rows) {
  Sheet sheet;
  sheet.Width = columns * sheet.CellWidth() + sheet.Left + sheet.Right;
  sheet.Height = rows * sheet.CellHeight() + sheet.Top + sheet.Bottom;
  const PrintLayout layout(text, "Report.PRN", sheet);
  std::ostringstream head;
  head << layout.Pages() << " pages, " << layout.Paper().TextSize << " points";
  std::vector<std::string> printed{head.str()};
  for (int number = 1; number <= layout.Pages(); ++number) {
    const Page page = layout.PageAt(number);
    printed.push_back(Joined(RowsOf(page)));
    if (!page.Rules.empty()) printed.push_back("lines " + RulesOf(page));
  }
  return printed;
}

// What can be done to the view: with what follows the act's word, and the cell that it names.
using Doing = std::function<void(ReportView& view, const std::string& rest, Cell at)>;
using Bar = Surface::Bar;
using Act = MousePress::Act;

const std::map<std::string, Key> kKeys = {{"Left", Key::Left},         {"Right", Key::Right},   {"Up", Key::Up},
                                          {"Down", Key::Down},         {"PageUp", Key::PageUp}, {"Home", Key::Home},
                                          {"PageDown", Key::PageDown}, {"End", Key::End}};
const std::map<std::string, Act> kMouse = {{"press", Act::Press}, {"drag", Act::Drag}, {"double", Act::DoubleClick}};
const std::map<std::string, Doing> kActs = {
    {"report", [](auto& view, auto& rest, Cell) { view.SetText(Report(rest), false); }},
    {"again", [](auto& view, auto& rest, Cell) { view.SetText(Report(rest), true); }},
    {"window", [](auto& view, auto&, Cell at) { view.Resize(at.Column, at.Row); }},
    {"across", [](auto& view, auto& rest, Cell) { view.ScrollTo(Bar::Across, std::stoi(rest)); }},
    {"down", [](auto& view, auto& rest, Cell) { view.ScrollTo(Bar::Down, std::stoi(rest)); }},
    {"roll",
     [](auto& view, auto&, Cell at) { view.ScrollBy(Bar::Across, at.Column), view.ScrollBy(Bar::Down, at.Row); }},
    {"seek", [](auto& view, auto& rest, Cell) { view.Seek(rest); }},
    {"next", [](auto& view, auto&, Cell) { EXPECT_EQ(view.FindNext(), view.HitCount() > 0); }},
    {"previous", [](auto& view, auto&, Cell) { EXPECT_EQ(view.FindPrevious(), view.HitCount() > 0); }},
    {"all", [](auto& view, auto&, Cell) { view.SelectAll(); }},
    {"none", [](auto& view, auto&, Cell) { view.SelectNone(); }},
};

void Do(const std::string& act, ReportView& view, std::vector<std::string>& printed) {
  auto [word, rest] = Halves(act, ' ');
  const bool shift = word.starts_with("Shift+"), control = word.find("Ctrl+") != std::string::npos;
  word.erase(0, word.rfind('+') + 1);
  Cell at;
  std::sscanf(rest.c_str(), "%d,%d", &at.Column, &at.Row);
  if (word == "print") {
    printed = Printed(view.Text(), at.Column, at.Row);
  } else if (kKeys.contains(word)) {
    view.Press(KeyPress{kKeys.at(word), shift, control});
  } else if (kMouse.contains(word)) {
    view.Press(MousePress{kMouse.at(word), at, shift});
  } else {
    kActs.at(word)(view, rest, at);
  }
}

class PageStory : public testing::Test {
 public:
  explicit PageStory(const Tale& tale) : tale_(tale) {}

 private:
  void TestBody() override {
    ReportView view;
    Looks before;
    for (StoryLine* line : tale_.Acts()) {
      for (const std::string& act : Parts(line->Text, "; ")) Do(act, view, line->Now);
      if (!line->Now.empty()) continue;  // printed
      line->Now = NewsOf(before, LooksOf(view));
      before = LooksOf(view);
    }
    tale_.Compare();
  }

  Tale tale_;
};

const bool kRegistered =
    RegisterStories("Pages", "viewer", [](const Tale&, const Tale& tale) { return new PageStory(tale); });

}  // namespace
