#include "info/frmKORVENTALLYHelp.h"

#include "platform/window.h"

namespace korventally {

frmKORVENTALLYHelp::frmKORVENTALLYHelp() : Window(" KORVENTALLY Help", {6255, 7470}) {
  setTabOrder({&cmdOK});
  cmdOK.onClick = [this] { cmdOK_Click(); };
}

void frmKORVENTALLYHelp::cmdOK_Click() { unload(); }

}  // namespace korventally
