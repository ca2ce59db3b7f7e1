// The print file of a report: the file with handle kPrintFileHandle, its lines, and its end. Each report writes it
// whole, and the viewer shows it.
#pragma once

#include <functional>
#include <initializer_list>
#include <string_view>
#include <variant>

// Goes on in a column, counted from 1: on the next line when this one is past it already.
struct Tab {
  int Column;
};

// What a line is composed of. A number is written with a blank before it unless it is negative.
using PrintItem = std::variant<std::string_view, int, Tab>;

// Writes the items one after another, with nothing between them, and ends the line. Throws what the disk refuses.
void PrintLine(std::initializer_list<PrintItem> items);

// Writes the three lines that every report opens with: its header, which tells the viewer how to show it, an
// empty one, and its title.
void PrintFrame(std::string_view header, std::string_view title);

// Has a report written into the open print file and closes that in any case. A failure is said; true when there
// was none.
bool WritePrintFile(const std::function<void()>& write);
