// A report divided into pages for a printer: titles and headings on each, page numbers below.
#pragma once

#include <string>
#include <vector>

#include "platform/page.h"
#include "viewer/page_cut.h"

class PrintLayout {
 public:
  // The text keeps the sheet's size, or takes a smaller one at which its longest line fits; a longer one still is
  // continued on further pages, which belong to the right of the first and repeat the columns at the left.
  // The text must outlive the layout.
  PrintLayout(const ReportText& text, std::string name, const Sheet& sheet);

  const Sheet& Paper() const { return sheet_; }
  int Pages() const { return pages_; }  // at least 1
  Page PageAt(int number) const;        // from 1

 private:
  void FindStarts();
  int Across() const { return static_cast<int>(starts_.size()) - 1; }

  const ReportText& text_;
  std::string name_;
  Sheet sheet_;
  PageCut first_;
  std::vector<Index> starts_;  // the columns that pages beside each other begin with, and the end of the last
  int pages_ = 1;
};
