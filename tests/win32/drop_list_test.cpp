// How wide the list of a drop-down is when it drops.
#include <gtest/gtest.h>

#include <string>

#include "contract/test_form.h"
#include "platform/win32/internals.h"
#include "support/user.h"

namespace {

int DroppedWidth(const Control& list) {
  const Control::Peer& peer = list.PeerOf();
  peer.Send(CB_SHOWDROPDOWN, TRUE);
  RECT place{};
  GetWindowRect(peer.DropList(), &place);
  peer.Send(CB_SHOWDROPDOWN, FALSE);
  return place.right - place.left;
}

TEST(DropListTest, IsAsWideAsItsNamesNeedAndAtLeastAsItsBox) {
  TestForm form;
  User user;
  user.UsesForm(IDD_TestForm, [&] {
    for (ListControl* list : {static_cast<ListControl*>(&form.NameCombo), static_cast<ListControl*>(&form.KindDrop)}) {
      HWND window = list->PeerOf().Window;
      RECT place{};
      GetWindowRect(window, &place);
      const int width = place.right - place.left;
      list->Fill({{"short", 1}});
      EXPECT_EQ(DroppedWidth(*list), width);
      list->Fill({{"short", 1}, {std::string(200, 'w'), 2}});
      EXPECT_EQ(DroppedWidth(*list), 2 * width);  // and no wider
      // The box may have become another since it was filled.
      SetWindowPos(window, nullptr, 0, 0, 2 * width, place.bottom - place.top, SWP_NOMOVE | SWP_NOZORDER);
      EXPECT_EQ(DroppedWidth(*list), 4 * width);
      SetWindowPos(window, nullptr, 0, 0, width, place.bottom - place.top, SWP_NOMOVE | SWP_NOZORDER);
      EXPECT_EQ(DroppedWidth(*list), 2 * width);
    }
    user.Clicks(IDC_CancelButton);
  });
  form.ShowModal();
}

}  // namespace
