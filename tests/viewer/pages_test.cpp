// What of a report stands in the window and on paper. The files beside this one hold what is done, flush left, and
// below it, indented, the whole page that is then to be seen. A run with --update writes the pages anew.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>

#include "platform/references.h"
#include "support/update.h"
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

// Hits stand in <>, what is selected in []; grid lines are told by cell, direction and length. What would stand on
// something else is told with its column.
std::string Seen(const Page& page) {
  std::vector<std::string> rows;
  std::map<int, int> ends;  // in cells
  for (const TextRun& run : page.Runs) {
    rows.resize(std::max(rows.size(), static_cast<std::size_t>(run.At.Row) + 1), "    |");
    std::string& row = rows[static_cast<std::size_t>(run.At.Row)];
    int& end = ends[run.At.Row];
    if (run.At.Column < end) row += "(at " + std::to_string(run.At.Column) + ")";
    row.append(static_cast<std::size_t>(std::max(0, run.At.Column - end)), ' ');
    end = run.At.Column + static_cast<int>(CountCharacters(run.Text));
    const char* const marks[] = {"", "", "<", ">", "[", "]"};
    const int style = 2 * static_cast<int>(run.Style);
    row += marks[style] + run.Text + marks[style + 1];
  }
  std::ostringstream seen;
  for (const std::string& row : rows) seen << row << "\n";
  for (const Rule& rule : page.Rules) {
    seen << (&rule == page.Rules.data() ? "    lines " : " ") << rule.At.Column << "," << rule.At.Row
         << (rule.Down ? "v" : ">") << rule.Length;
  }
  return seen.str() + (page.Rules.empty() ? "" : "\n");
}

std::string Seen(const ReportView& view) {
  const Page page = view.BuildPage();
  std::ostringstream text;
  const std::pair<const char*, ReportView::Extent> bars[] = {{"    down ", view.Down()}, {", across ", view.Across()}};
  for (const auto& [title, bar] : bars) text << title << bar.Position << " of " << bar.Range << " by " << bar.Shown;
  text << ", stay " << page.HeadRows << " and " << page.LeftColumns << " from " << page.LeftFrom;
  if (page.ShowsCaret) text << ", caret " << page.Caret.Column << "," << page.Caret.Row;
  if (view.Seeks()) text << ", hit " << view.HitNumber() << " of " << view.HitCount();
  if (view.HasSelection()) text << "\n    selected";
  for (const std::string& line : Parts(view.SelectedText(), "\r\n")) text << (view.HasSelection() ? " /" : "") << line;
  return text.str() + "\n" + Seen(page);
}

// Every page of the report on a sheet with room for that many cells of the usual text.
std::string Printed(const ReportText& text, int columns, int rows) {
  Sheet sheet;
  sheet.Width = columns * sheet.CellWidth() + sheet.Left + sheet.Right;
  sheet.Height = rows * sheet.CellHeight() + sheet.Top + sheet.Bottom;
  const PrintLayout layout(text, "Report.PRN", sheet);
  std::ostringstream printed;
  for (int number = 1; number <= layout.Pages(); ++number) {
    printed << "    page " << number << " of " << layout.Pages() << ", " << layout.Paper().TextSize << " points\n";
    printed << Seen(layout.PageAt(number));
  }
  return printed.str();
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

// Does the acts of a line, and tells what is then seen.
std::string Done(const std::string& line, ReportView& view) {
  for (const std::string& act : Parts(line, "; ")) {
    std::string word = act.substr(0, act.find(' '));
    const std::string rest = act.substr(std::min(word.size() + 1, act.size()));
    const bool shift = word.starts_with("Shift+"), control = word.find("Ctrl+") != std::string::npos;
    word.erase(0, word.rfind('+') + 1);
    int across = 0, down = 0;
    std::sscanf(rest.c_str(), "%d,%d", &across, &down);
    if (word == "print") return Printed(view.Text(), across, down);
    if (kKeys.contains(word)) {
      view.Press(KeyPress{kKeys.at(word), shift, control});
    } else if (kMouse.contains(word)) {
      view.Press(MousePress{kMouse.at(word), {across, down}, shift});
    } else if (kActs.contains(word)) {
      kActs.at(word)(view, rest, across, down);
    } else {
      ADD_FAILURE() << "nothing that can be done: " << act;
    }
  }
  return Seen(view);
}

class PagesTest : public testing::TestWithParam<const char*> {};

TEST_P(PagesTest, AreAsWritten) {
  const std::string name = std::string(FILER_SOURCE_DIR "/tests/viewer/") + GetParam();
  std::ifstream file(name, std::ios::binary);
  const std::string written{std::istreambuf_iterator<char>(file), {}};
  ASSERT_TRUE(written.ends_with("\n")) << name;
  std::string all;
  for (const std::string& story : Parts(written.substr(0, written.size() - 1), "\n\n")) {
    ReportView view;
    std::string told;
    for (const std::string& line : Parts(story, "\n")) {
      if (!line.starts_with("    ")) told += line + "\n" + (line.starts_with("== ") ? "" : Done(line, view));
    }
    all += (all.empty() ? "" : "\n") + told;
    if (!UpdatesGolden) {
      EXPECT_EQ(told, story + "\n");
    }
  }
  if (UpdatesGolden) std::ofstream(name, std::ios::binary) << all;
}

INSTANTIATE_TEST_SUITE_P(Files, PagesTest,
                         testing::Values("window.txt", "selection.txt", "finding.txt", "grid.txt", "paper.txt"));

}  // namespace
