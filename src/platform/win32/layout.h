// How the controls of a form follow its size.
#pragma once

#include <windows.h>

#include <vector>

#include "platform/form.h"

// The part of a screen that windows may cover; that of the screen on which a window mostly is.
RECT WorkAreaAt(HMONITOR screen);
RECT WorkAreaOf(HWND window);

class Layout {
 public:
  // Takes the form as it is for the smallest one.
  void Begin(HWND form);

  // As Form::Anchor and Form::MayShrink.
  void Anchor(HWND control, const Follow& follow);
  void MayShrink(int units);

  // As Form::RemoveRows, before anything is anchored.
  void RemoveRows(HWND first, HWND next);

  // Moves the anchored controls to where the form's present size wants them.
  void Arrange() const;

  // Keeps the form from getting too small, where the screen has the room. Until something is anchored, any size will
  // do.
  void Limit(MINMAXINFO& limits) const;

  // True for a form that can be resized.
  bool Resizes() const { return !items_.empty(); }

  // Between the two the system scales the form for another resolution, and nothing is arranged.
  void BeginScaling(UINT new_dpi);
  void EndScaling();

 private:
  struct Item {
    HWND Control;
    Follow Shares;
    RECT Base;  // where it is when the form's inside is base_ large
  };

  RECT Target(const Item& item, const SIZE& inside) const;
  SIZE Inside() const;

  HWND form_ = nullptr;
  SIZE base_{};
  SIZE smallest_{};  // of the whole window
  UINT dpi_ = 96;
  bool scaling_ = false;
  std::vector<Item> items_;
};
