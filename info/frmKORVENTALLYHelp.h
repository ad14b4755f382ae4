#pragma once

#include "platform/button.h"
#include "platform/color.h"
#include "platform/font.h"
#include "platform/label.h"
#include "platform/line.h"
#include "platform/window.h"

namespace korventally {

/// One page that explains the purpose, the two fixed source groups and the terms.
class frmKORVENTALLYHelp : public Window {
 public:
  frmKORVENTALLYHelp();

  static constexpr Font kHeadingFont{"Arial", 9, true, true};
  static constexpr int kTextWidth = 5775;

  Label Label11{
      *this, {240, 120, 5775, 255}, "Purpose:", Align::kLeft, kHeadingFont, colors::kNavy};
  Label Label12{*this,
                {240, 480, 5655, 540},
                "KORVENTALLY provides source contribution results for Class I and Class II "
                "NAAQS/SIL and PSD/SIL analyses based on EPA standards.",
                Align::kLeft,
                fonts::kDefault,
                colors::kNavy};

  Line Line1{*this, {0, 1080, 6240, 0}, colors::kLightBlue};
  Label Label1{*this, {240, 1200, 5775, 255}, "Notes:", Align::kLeft, kHeadingFont, colors::kNavy};
  Label Label3{
      *this,
      {240, 1560, kTextWidth, 660},
      "1.  The \"ALL SOURCES\" source group means all modelled sources. Combined with the ambient "
      "background, where one applies, they are compared against the NAAQS or PSD limit.",
      Align::kLeft,
      fonts::kDefault,
      colors::kNavy};
  Label Label2{
      *this,
      {240, 2325, kTextWidth, 555},
      "2.  The \"FACILITY\" source group means the set of sources that is compared against the SIL "
      "threshold.",
      Align::kLeft,
      fonts::kDefault,
      colors::kNavy};

  Line Line2{*this, {0, 3000, 6240, 0}, colors::kLightBlue};
  Label Label5{*this,        {240, 3120, 5775, 255}, "Terms and Definitions:",
               Align::kLeft, kHeadingFont,           colors::kNavy};
  Label Label8{*this,
               {240, 3480, kTextWidth, 900},
               "Class I Area - As defined in the Clean Air Act, the following areas that existed "
               "on August 7, 1977: national parks over 6,000 acres, national wilderness areas and "
               "national memorial parks over 5,000 acres, and international parks.",
               Align::kLeft,
               fonts::kDefault,
               colors::kNavy};
  Label Label9{
      *this,
      {240, 4485, kTextWidth, 690},
      "Class II Area - Areas protected under the Clean Air Act, but given somewhat less stringent "
      "protection from air-pollution damage than a Class I area, except in specified cases.",
      Align::kLeft,
      fonts::kDefault,
      colors::kNavy};
  Label Label13{*this,
                {240, 5280, kTextWidth, 255},
                "              EPA - United States Environmental Protection Agency",
                Align::kLeft,
                fonts::kDefault,
                colors::kNavy};
  Label Label6{*this,
               {240, 5640, kTextWidth, 255},
               "        NAAQS - National Ambient Air Quality Standards",
               Align::kLeft,
               fonts::kDefault,
               colors::kNavy};
  Label Label7{*this,
               {240, 6000, kTextWidth, 255},
               "              PSD - Prevention of Significant Deterioration",
               Align::kLeft,
               fonts::kDefault,
               colors::kNavy};
  Label Label10{*this,
                {240, 6360, kTextWidth, 255},
                "                SIL - Significant Impact Limit",
                Align::kLeft,
                fonts::kDefault,
                colors::kNavy};

  Line Line3{*this, {0, 6720, 6240, 0}, colors::kLightBlue};
  Button cmdOK{*this, {2535, 6915, 1215, 375}, "OK"};

  bool closesOnEscape() const override { return true; }
  void cmdOK_Click();
};

}  // namespace korventally
