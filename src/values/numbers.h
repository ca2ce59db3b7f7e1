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

// The record number a text begins with: 0 for none or one below 1, others with halves rounded to even, and
// kPastLastRecord for anything above the last number a record can have.
inline constexpr int kLastRecord = 32767;
inline constexpr int kPastLastRecord = kLastRecord + 1;
int LeadingRecordNumber(std::string_view text);

// How a machine with that decimal separator reads a number: on a "." machine as LeadingNumber does, on others
// the whole text must be one, written with that separator; otherwise throws error 13.
double ReadNumber(std::string_view text, char separator);

// A number as text with that decimal separator: 15 digits (7 for a single), "0.5", "-3", "1E+20", "1.5E-07".
std::string WriteNumber(double number, char separator);
std::string WriteSingle(float number, char separator);
