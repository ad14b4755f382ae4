#include "platform/check_box.h"

#include <memory>

#include "platform/win32/ui/choice_control.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

class NativeCheckBox : public ChoiceControl {
 public:
  NativeCheckBox(CheckBox& model, const Site& site)
      : ChoiceControl(model, site, BS_CHECKBOX,
                      {BP_CHECKBOX, CBS_UNCHECKEDNORMAL, CBS_CHECKEDNORMAL, DFCS_BUTTONCHECK}),
        box_(model) {}

 protected:
  bool on() const override { return box_.checked(); }
  void adopt(bool on) override { box_.setChecked(on); }
  void command(WORD code) override {
    if (code == BN_CLICKED) box_.press();
  }

 private:
  CheckBox& box_;
};

}  // namespace

std::unique_ptr<NativeControl> makeCheckBox(CheckBox& model, const Site& site) {
  return std::make_unique<NativeCheckBox>(model, site);
}

}  // namespace korventally::win32
