// Reading numbers out of text and writing them, the same on every machine.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The number a text begins with: leading blanks, one sign, digits with at most one ".", an exponent;
// whatever follows is ignored and no number at all reads as 0. Throws error 6 when it is too large.
double LeadingNumber(std::string_view text);

// The whole number a text begins with, halves rounded to even; 0 when it lies outside the type.
std::int16_t LeadingInt16(std::string_view text);
std::int32_t LeadingInt32(std::string_view text);

// The record number a text begins with, halves rounded to even: 0 for none or below 1, and
// kPastLastRecord for anything above the last number a record can have.
inline constexpr int kLastRecord = 32767;
inline constexpr int kPastLastRecord = kLastRecord + 1;
int LeadingRecordNumber(std::string_view text);

// A whole number with one blank before it unless it is negative, as messages quote numbers.
std::string SignedText(int number);
