#include "wizard/program.h"

#include <string>
#include <vector>

#include "platform/later.h"
#include "wizard/frmKORVENTALLY.h"

namespace korventally {

int runProgram(const std::vector<std::string>& controlFiles) {
  frmKORVENTALLY wizard(controlFiles);
  wizard.show();
  finishLater();
  return 0;
}

}  // namespace korventally
