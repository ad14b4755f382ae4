#include "engine/command_line.h"

int main(int count, char** arguments) {
  return korventally::engine::Main({arguments, arguments + count});
}
