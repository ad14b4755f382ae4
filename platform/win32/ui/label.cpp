#include "platform/label.h"

#include <memory>

#include "platform/control.h"
#include "platform/win32/ui/native_control.h"

namespace korventally::win32 {
namespace {

DWORD styleFor(Align align) {
  switch (align) {
    case Align::kRight:
      return SS_RIGHT;
    case Align::kCentre:
      return SS_CENTER;
    case Align::kLeft:
      return SS_LEFT;
  }
  return SS_LEFT;
}

class NativeLabel : public NativeControl {
 public:
  NativeLabel(Label& model, const Site& site)
      : NativeControl(model, site, L"STATIC",
                      WS_CLIPSIBLINGS | SS_NOPREFIX | styleFor(model.align())) {}

  void refresh(Aspect aspect) override {
    NativeControl::refresh(aspect);
    if (aspect == Aspect::kText) NativeControl::refresh(Aspect::kVisible);
  }

 protected:
  /// An empty label would only cover another one in the same place.
  bool shown() const override { return model().visible() && !model().text().empty(); }
};

}  // namespace

std::unique_ptr<NativeControl> makeLabel(Label& model, const Site& site) {
  return std::make_unique<NativeLabel>(model, site);
}

}  // namespace korventally::win32
