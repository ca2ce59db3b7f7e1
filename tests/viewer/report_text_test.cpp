// Reading print files: the header, the lines and the head.
#include "viewer/report_text.h"

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

// The header's T, H, L and G; how many title lines and head lines there are; the widest line's columns; the lines.
std::string Described(const ReportText& text) {
  const auto& [is_report, titles, headings, left, grid] = text.Header();
  std::string described = is_report ? "" : "plain";
  for (const Index value : {titles, headings, left, Index{grid}}) {
    if (is_report) described += std::to_string(value) + " ";
  }
  for (const Index value : {text.TitleLines(), text.HeadLines(), text.Widest()}) {
    described += "/" + std::to_string(value);
  }
  for (Index line = 0; line < text.Count(); ++line) described += "|" + std::string(text.Line(line));
  return described;
}

TEST(ReportTextTest, HasHeaderHeadAndLines) {
  const std::string report = "LARKSPUR V1.0 REPORT";
  const std::pair<std::string, std::string> rows[] = {
      {report + " T=2,L=31\r\n\r\ntitle\r\n", "2 0 31 0 /2/2/5||title"},
      {report, "0 0 0 0 /0/0/0"},
      {report + "  G=1, l=5,X=7,H=1", "0 1 5 1 /0/0/0"},
      {report + " T=-3,H=99999999999999999999,L=x,G=2,=,T", "0 32767 0 0 /0/0/0"},
      {report + " T=-99999999999999999999,L=,H=32768", "0 32767 0 0 /0/0/0"},
      {report + "S T=2", "plain/0/0/25|" + report + "S T=2"},
      {"LARKSPUR V5.0 FILER DATA", "plain/0/0/24|LARKSPUR V5.0 FILER DATA"},
      {"LARKSPUR V1.0", "plain/0/0/13|LARKSPUR V1.0"},
      // Titles and headings with the empty lines between.
      {report + " T=2,H=2\n\nTitle\n \nKEY\nHead\nthing\n", "2 2 0 0 /2/5/5||Title| |KEY|Head|thing"},
      {report + " T=2,H=2\n\nTitle\nKEY\nHead\nthing\n", "2 2 0 0 /2/4/5||Title|KEY|Head|thing"},
      {report + " T=2,H=2\n\nTitle\n\n\n", "2 2 0 0 /2/4/5||Title||"},
      {report + " T=2,H=2\n\n", "2 2 0 0 /1/1/0|"},
      // Each end of a line, and tabs up to the next eighth column.
      {"", "plain/0/0/0"},
      {"one\r\nthree", "plain/0/0/5|one|three"},
      {"a\nbb\rccc\r\r\n\n\rd\r", "plain/0/0/3|a|bb|ccc||||d"},
      {"\r\rx", "plain/0/0/1|||x"},
      {"a\tb\t\r\n12345678\tc\n", "plain/0/0/17|a       b       |12345678        c"},
      {"nul\0here\n"s, "plain/0/0/8|nul\0here"s},
      {"&#937;\tx&#38;#937;", "plain/0/0/15|\x1A       x&#937;"},
  };
  for (const auto& [bytes, described] : rows) EXPECT_EQ(Described(ReportText(bytes)), described) << bytes;
}

}  // namespace
