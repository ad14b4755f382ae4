#include "platform/option_button.h"

#include <memory>

#include "platform/win32/ui/choice_control.h"
#include "platform/win32/ui/native_control.h"
#include "platform/win32/ui/system_headers.h"

namespace korventally::win32 {
namespace {

class NativeOptionButton : public ChoiceControl {
 public:
  NativeOptionButton(OptionButton& model, const Site& site)
      : ChoiceControl(model, site, BS_RADIOBUTTON,
                      {BP_RADIOBUTTON, RBS_UNCHECKEDNORMAL, RBS_CHECKEDNORMAL, DFCS_BUTTONRADIO}),
        option_(model) {
    // The focus alone selects nothing: the model says what an arrow key does.
    SendMessageW(handle(), BM_SETDONTCLICK, TRUE, 0);
  }

 protected:
  bool on() const override { return option_.selected(); }
  void adopt(bool on) override {
    if (on) option_.select();
  }
  void command(WORD code) override {
    if (code == BN_CLICKED) option_.press();
  }

 private:
  OptionButton& option_;
};

}  // namespace

std::unique_ptr<NativeControl> makeOptionButton(OptionButton& model, const Site& site) {
  return std::make_unique<NativeOptionButton>(model, site);
}

}  // namespace korventally::win32
