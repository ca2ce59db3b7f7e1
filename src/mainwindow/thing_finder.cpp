// Finding, links, back and forward: see thing_finder.h.
#include "mainwindow/thing_finder.h"

#include "document/document.h"
#include "document/history.h"
#include "document/pick_list_form.h"
#include "mainwindow/find_form.h"
#include "mainwindow/thing_list.h"

// What was typed into the list may have led to another thing, without the target that the entry had.
void ThingFinder::GoTo(int record) {
  if (record != 0) picker_.GoTo(record);
}

void ThingFinder::FindItem_Click() {
  FindForm form(request_, picker_.NounOrder());
  form.ShowModal();
  if (form.Record == 0) return;
  request_ = form.Request;
  picker_.GoTo(form.Record);
}

void ThingFinder::GoOn(bool forward) {
  const int record = NextHit(FindThings(request_), TheDocument.CurrentThing, forward);
  record != 0 ? GoTo(record) : FindItem_Click();
}

void ThingFinder::LinksHereItem_Click() {
  if (!HasLinksHere()) return;
  PickListForm form("Things That Link Here", ListLinksTo(TheDocument.CurrentThing, picker_.NounOrder()));
  form.ShowModal();
  GoTo(form.Picked);
}

void ThingFinder::BackItem_Click() { GoTo(CanGoBack() ? TheDocument.Visited.GoBack() : 0); }
void ThingFinder::ForwardItem_Click() { GoTo(CanGoForward() ? TheDocument.Visited.GoForward() : 0); }
bool ThingFinder::CanGoBack() const { return TheDocument.Visited.CanGoBack(); }
bool ThingFinder::CanGoForward() const { return TheDocument.Visited.CanGoForward(); }

bool ThingFinder::HasLinksHere() const {
  if (linked_.empty() || looked_after_ != TheHistory.Changes()) {
    linked_ = LinkedThings();
    looked_after_ = TheHistory.Changes();
  }
  return linked_[static_cast<std::size_t>(TheDocument.CurrentThing)];
}
