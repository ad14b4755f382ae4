#include "info/frmAboutKORVENTALLY.h"

#include <string>

#include "case/basModule.h"
#include "info/version.h"
#include "platform/color.h"
#include "platform/window.h"

namespace korventally {

frmAboutKORVENTALLY::frmAboutKORVENTALLY() : Window(" About KORVENTALLY...", {4215, 3135}) {
  backColor_ = colors::kTitleBarText;
  chkDebug.setAccessibleName("Debug mode");
  setTabOrder({&cmdOK, &chkDebug});
  cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmAboutKORVENTALLY::Form_Load() {
  lblVersion.setText(std::string("Version") + kVersion);
  lblLevel.setText("March 27, 2009");
  chkDebug.setChecked(basModule::analysisCase.DebugMode);
}

void frmAboutKORVENTALLY::cmdOK_Click() { unload(); }

void frmAboutKORVENTALLY::Form_Unload() { basModule::analysisCase.DebugMode = chkDebug.checked(); }

}  // namespace korventally
