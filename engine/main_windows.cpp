#include "engine/command_line.h"

// The wide entry: the control file's path arrives whole, whatever the code page can express.
int wmain(int count, wchar_t** arguments) {
  return korventally::engine::runCommandLine({arguments, arguments + count});
}
