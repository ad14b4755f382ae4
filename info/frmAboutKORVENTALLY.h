#pragma once

#include "platform/button.h"
#include "platform/check_box.h"
#include "platform/color.h"
#include "platform/font.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/picture_box.h"
#include "platform/window.h"

namespace korventally {

/// Name, version and date of the program, and in the bottom-left corner the debug switch: an
/// unlabelled check box whose state becomes `DebugMode` however the window closes.
class frmAboutKORVENTALLY : public Window {
 public:
  frmAboutKORVENTALLY();

  static constexpr Font kNameFont{"Arial", 18, true};
  static constexpr Font kVersionFont{"Arial", 9, true};
  static constexpr Font kLevelFont{"Arial", 6.75, true};
  static constexpr Font kOkFont{"Arial", 9};

  PictureBox Picture1{*this, {240, 240, 735, 735}, Picture::kIcon48};
  Label lblKORVENTALLY{*this,     {1200, 165, 3135, 375}, "KORVENTALLY", Align::kLeft,
                       kNameFont, colors::kBlue};
  Label lblVersion{*this, {1410, 600, 1815, 255}, "", Align::kLeft, kVersionFont, colors::kBlue};
  Label lblLevel{*this, {1440, 840, 1695, 255}, "", Align::kLeft, kLevelFont, colors::kBlue};

  Line Line1{*this, {0, 1200, 4200, 0}};
  Line Line2{*this, {0, 1245, 4200, 0}};
  PictureBox Picture2{*this, {210, 1320, 1875, 675}, Picture::kAboutBanner};
  Line Line3{*this, {0, 2085, 4200, 0}};
  Line Line4{*this, {0, 2130, 4200, 0}};

  Button cmdOK{*this, {1500, 2640, 1215, 375}, "OK", kOkFont};
  CheckBox chkDebug{*this, {0, 2940, 255, 195}};

  bool closesOnEscape() const override { return true; }
  void cmdOK_Click();

 protected:
  void Form_Load() override;
  void Form_Unload() override;
};

}  // namespace korventally
