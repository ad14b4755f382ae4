#include "engine/command_line.h"

int main(int count, char** arguments) {
  return korventally::engine::runCommandLine({arguments, arguments + count});
}
