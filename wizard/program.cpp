#include "wizard/program.h"

#include "platform/later.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally {

int runProgram() {
  frmKORVENTALLY wizard;
  wizard.show();
  finishLater();
  return 0;
}

}  // namespace korventally
