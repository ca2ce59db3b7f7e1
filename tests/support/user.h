// A person at the program: acts on the topmost form by control id, in memory and on real windows alike. What no person
// could do fails the test. Of what comes up, this one expects nothing.
#pragma once

#include <functional>
#include <string>

#include "support/hands.h"
#include "support/listener.h"

class User : public Listener {
 public:
  User() { Hands::Begin(); }
  ~User() override { Hands::End(); }

  // Acts, each as the real thing: moves the focus first (so that LostFocus and GotFocus come), raises the control's
  // events, and lets everything happen that it sets off.
  void Clicks(int id) { ActsOn(id, Hands::Click); }
  void Enters(int id, const std::string& text);  // picks or ticks the first entry of that text; none: types it
  void MovesTo(int id) { ActsOn(id, Hands::MoveTo); }
  void ChoosesMenu(int id);
  void Presses(const KeyPress& key) { ActsOnForm(Hands::Press, key); }  // in the control that has the focus
  void ClosesWindow() { ActsOnForm(Hands::Close); }                     // by the topmost form's close box
  // Does not move the focus. Positive: towards the person.
  void TurnsWheel(int id, int notches, bool shift, bool control) {
    Do([&] { Hands::TurnWheel(Find(id), notches, shift, control); });
  }
  Hands::Sight LooksAt(int id) { return Hands::LookAt(Find(id)); }

  // Any other act of the hands.
  template <typename Kind = Control, typename Act, typename... How>
  static void ActsOn(int id, Act act, const How&... how) {
    Do([&] { act(dynamic_cast<Kind&>(Reach(id)), how...); });
  }
  template <typename Act, typename... How>
  static void ActsOnForm(Act act, const How&... how) {
    Do([&] { act(Topmost(), how...); });
  }

 private:
  static Form& Topmost();
  static Control& Find(int id);
  static Control& Reach(int id);
  static void Do(const std::function<void()>& act);
};
