// How the controls of a form follow its size.
#pragma once

#include <windows.h>

#include <vector>

class Layout {
 public:
  // Takes the form as it is for the smallest one.
  void Begin(HWND form);

  // `edges` are those of Form::Anchor.
  void Anchor(HWND control, unsigned edges);

  // As Form::RemoveRows, before anything is anchored.
  void RemoveRows(HWND first, HWND next);

  // Moves the anchored controls to where the form's present size wants them.
  void Arrange() const;

  // Keeps the form from getting too small.
  void Limit(MINMAXINFO& limits) const;

  // Between the two the system scales the form for another resolution, and nothing is arranged.
  void BeginScaling(UINT new_dpi);
  void EndScaling();

 private:
  struct Item {
    HWND Control;
    unsigned Edges;
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
