// The evaluator and the number store a second time, as plain and literal as their rules read, without a thought
// for speed: what the program's own are compared with.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "document/document.h"

class LiteralEvaluator {
 public:
  char Separator = '.';
  bool Quiet = false;
  bool InterestYes = true;         // the answer to the interest question
  std::vector<std::string> Boxes;  // the texts shown and asked, in order

  std::string ExpandFieldReferences(std::string text, const std::array<FieldValueSlot, kFieldValues>& slots);
  std::string CalculateExpression(std::string text, const std::string& type);
  std::string ConvertPercentages(std::string text);
  std::string EvaluateFlat(std::string text);
  // Positions count from 1; 0 is none.
  bool FindOperation(const std::string& text, const std::string& operators, int& first, int& last, char& sign);
  bool StoreNumberByType(std::string& text, const std::string& type);

 private:
  void Say(const std::string& text);
  double Read(std::string text) const;
  std::string Write(const char* format, double number) const;
  std::string Compute(const std::string& operation, int position, char sign);
  std::string StoredNumber(double number, const std::string& type);
  std::string StoredPercentage(float percentage, const std::string& written, const std::string& type);
};
