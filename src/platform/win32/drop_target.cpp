// Files dragged over a form: see drop_target.h. The system asks an object of the form's what it may do with them.
#include "platform/win32/drop_target.h"

// After windows.h, on which it builds.
#include <shellapi.h>

#include <string>

#include "platform/win32/wide.h"

namespace {

// The one file that is dragged; empty for anything else.
std::string FileIn(IDataObject& data) {
  FORMATETC format{CF_HDROP, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
  STGMEDIUM medium{};
  if (FAILED(data.GetData(&format, &medium))) return {};
  auto* files = static_cast<HDROP>(medium.hGlobal);
  std::wstring name;
  if (DragQueryFileW(files, 0xFFFFFFFF, nullptr, 0) == 1) {
    name.resize(DragQueryFileW(files, 0, nullptr, 0));
    DragQueryFileW(files, 0, name.data(), static_cast<UINT>(name.size()) + 1);
  }
  ReleaseStgMedium(&medium);
  return name.empty() ? std::string() : Bytes(name);
}

class FileTarget : public IDropTarget {
 public:
  explicit FileTarget(Form::Peer& form) : form_(form) {}
  virtual ~FileTarget() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** object) override {
    const bool known = IsEqualIID(wanted, IID_IUnknown) || IsEqualIID(wanted, IID_IDropTarget);
    *object = known ? static_cast<IDropTarget*>(this) : nullptr;
    if (known) AddRef();
    return known ? S_OK : E_NOINTERFACE;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
    file_.clear();
    form_.Guard([&] {
      // A message box covers it, too.
      const bool alone = !form_.Self->Covered() && IsWindowEnabled(form_.Window) != FALSE;
      const std::string file = data != nullptr && alone ? FileIn(*data) : std::string();
      const auto may_drop = form_.Self->MayDrop;
      if (!file.empty() && may_drop && may_drop(file)) file_ = file;
    });
    return DragOver(keys, at, effect);
  }

  // Never a move: whoever drags the file would take it away.
  HRESULT STDMETHODCALLTYPE DragOver(DWORD /*keys*/, POINTL /*at*/, DWORD* effect) override {
    const DWORD offered = file_.empty() ? DROPEFFECT_NONE : *effect;
    *effect = (offered & DROPEFFECT_COPY) != 0 ? DROPEFFECT_COPY : offered & DROPEFFECT_LINK;
    return S_OK;
  }

  HRESULT STDMETHODCALLTYPE DragLeave() override {
    file_.clear();
    return S_OK;
  }

  // Whoever drags waits for the return: what the drop does, and asks, comes later.
  HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
    DragEnter(data, keys, at, effect);
    if (*effect == DROPEFFECT_NONE) return S_OK;
    SetForegroundWindow(form_.Window);
    form_.Guard([&] {
      form_.Self->Later([form = form_.Self, file = file_] {
        if (const auto drop = form->Drop) drop(file);
      });
    });
    return DragLeave();
  }

 private:
  Form::Peer& form_;
  std::string file_;  // is over the form and may be dropped
  ULONG references_ = 1;
};

}  // namespace

Drops::Drops(Form::Peer& form) : window_(form.Window), target_(new FileTarget(form)) {
  OleInitialize(nullptr);  // for as long as the program runs
  RegisterDragDrop(window_, target_);
}

Drops::~Drops() {
  RevokeDragDrop(window_);
  target_->Release();
}

void Form::Peer::TakeDrops() { TakesDrops = std::make_shared<Drops>(*this); }
