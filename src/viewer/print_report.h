// Printing a report from the viewer.
#pragma once

#include <string>

#include "viewer/report_text.h"

// Lets the user choose printer and pages, and prints those. Says what went wrong.
void PrintReport(const ReportText& text, const std::string& name);
