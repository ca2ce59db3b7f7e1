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
#include "viewer/print_layout.h"
#include "viewer/report_view.h"

namespace {

// The parts of a text between the marks.
std::vector<std::string> Parts(const std::string& text, const std::string& mark) {
  std::vector<std::string> parts;
  for (std::size_t at = 0, end = 0; end != std::string::npos; at = end + mark.size()) {
    end = text.find(mark, at);
    parts.push_back(text.substr(at, end - at));
  }
  return parts;
}

std::string Joined(const std::vector<std::string>& rows) {
  std::string line;
  for (const std::string& row : rows) line += (&row == rows.data() ? "" : " / ") + row;
  return line;
}

// Lines parted by "/", the first one without "LARKSPUR V1.0 REPORT"; "-" in its place is none at all. "3*Th## a##" is
// three lines, with the line's number for each "##"; "^" and "`" are control characters.
ReportText Report(const std::string& described) {
  std::string bytes;
  for (const std::string& line : Parts(described, "/")) {
    const std::size_t star = line.find('*');
    for (int time = 1; time <= (star == std::string::npos ? 1 : std::stoi(line)); ++time) {
      const std::string number = {static_cast<char>('0' + time / 10), static_cast<char>('0' + time % 10)};
      std::string each = bytes.empty() ? "LARKSPUR V1.0 REPORT " + line : line.substr(star + 1);
      for (auto at = each.find("##"); at != std::string::npos; at = each.find("##")) each.replace(at, 2, number);
      bytes += each + "\r\n";
    }
  }
  std::replace(bytes.begin(), bytes.end(), '^', '\x1F');
  std::replace(bytes.begin(), bytes.end(), '`', '\x7F');
  return ReportText(described.starts_with('-') ? bytes.substr(bytes.find('\n') + 1) : bytes);
}

// The grid lines by cell, direction and length.
std::string RulesOf(const Page& page) {
  std::string rules;
  for (const Rule& rule : page.Rules) {
    rules += (rules.empty() ? "" : " ") + std::to_string(rule.At.Column) + "," + std::to_string(rule.At.Row) +
             (rule.Down ? "v" : ">") + std::to_string(rule.Length);
  }
  return rules;
}

// What is seen of a view, by what it is; rows by their numbers.
using Looks = std::map<std::string, std::string>;

Looks LooksOf(const ReportView& view) {
  const Page page = view.BuildPage();
  const auto pair = [](auto first, const char* between, auto second) {
    return std::to_string(first) + between + std::to_string(second);
  };
  const auto bar = [&](const ReportView::Extent& extent) {
    return pair(extent.Position, " of ", extent.Range) + " by " + std::to_string(extent.Shown);
  };
  Looks looks{{"down", bar(view.Down())},
              {"across", bar(view.Across())},
              {"stay", pair(page.HeadRows, " and ", page.LeftColumns) + " from " + std::to_string(page.LeftFrom)},
              {"lines", RulesOf(page)}};
  if (page.ShowsCaret) looks["caret"] = pair(page.Caret.Column, ",", page.Caret.Row);
  if (view.Seeks()) looks["hit"] = pair(view.HitNumber(), " of ", view.HitCount());
  if (view.HasSelection()) looks["selected"] = Joined(Parts(view.SelectedText(), "\r\n"));
  const auto rows = RowsOf(page, true);
  for (std::size_t row = 0; row < rows.size(); ++row)
    looks[(row < 10 ? "| " : "|") + std::to_string(row) + ":"] = rows[row];
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

using Bar = Surface::Bar;
using Act = MousePress::Act;
// What follows the act's word, and the two numbers in it: of columns first, of rows second.
using Doing = std::function<void(ReportView& view, const std::string& rest, int across, int down)>;

const std::map<std::string, Key> kKeys = {{"Left", Key::Left},         {"Right", Key::Right},   {"Up", Key::Up},
                                          {"Down", Key::Down},         {"PageUp", Key::PageUp}, {"Home", Key::Home},
                                          {"PageDown", Key::PageDown}, {"End", Key::End}};
const std::map<std::string, Act> kMouse = {{"press", Act::Press}, {"drag", Act::Drag}, {"double", Act::DoubleClick}};
const std::map<std::string, Doing> kActs = {
    {"report", [](auto& view, auto& rest, int, int) { view.SetText(Report(rest), false); }},
    {"again", [](auto& view, auto& rest, int, int) { view.SetText(Report(rest), true); }},
    {"window", [](auto& view, auto&, int across, int down) { view.Resize(across, down); }},
    {"across", [](auto& view, auto&, int position, int) { view.ScrollTo(Bar::Across, position); }},
    {"down", [](auto& view, auto&, int position, int) { view.ScrollTo(Bar::Down, position); }},
    {"roll",
     [](auto& view, auto&, int across, int down) {
       view.ScrollBy(Bar::Across, across);
       view.ScrollBy(Bar::Down, down);
     }},
    {"seek", [](auto& view, auto& rest, int, int) { view.Seek(rest); }},
    {"next", [](auto& view, auto&, int, int) { EXPECT_EQ(view.FindNext(), view.HitCount() > 0); }},
    {"previous", [](auto& view, auto&, int, int) { EXPECT_EQ(view.FindPrevious(), view.HitCount() > 0); }},
    {"all", [](auto& view, auto&, int, int) { view.SelectAll(); }},
    {"none", [](auto& view, auto&, int, int) { view.SelectNone(); }},
};

void Do(const std::string& act, ReportView& view, std::vector<std::string>& printed) {
  std::string word = act.substr(0, act.find(' '));
  const std::string rest = act.substr(std::min(word.size() + 1, act.size()));
  const bool shift = word.starts_with("Shift+"), control = word.find("Ctrl+") != std::string::npos;
  word.erase(0, word.rfind('+') + 1);
  int across = 0, down = 0;
  std::sscanf(rest.c_str(), "%d,%d", &across, &down);
  if (word == "print") {
    printed = Printed(view.Text(), across, down);
  } else if (kKeys.contains(word)) {
    view.Press(KeyPress{kKeys.at(word), shift, control});
  } else if (kMouse.contains(word)) {
    view.Press(MousePress{kMouse.at(word), {across, down}, shift});
  } else if (kActs.contains(word)) {
    kActs.at(word)(view, rest, across, down);
  } else {
    ADD_FAILURE() << "nothing that can be done: " << act;
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
      const bool prints = !line->Now.empty();
      if (!prints) line->Now = NewsOf(before, LooksOf(view));
      if (!prints) before = LooksOf(view);
    }
    tale_.Compare();
  }

  Tale tale_;
};

const bool kRegistered =
    RegisterStories("Pages", "viewer", [](const Tale&, const Tale& tale) { return new PageStory(tale); });

}  // namespace
