#include "platform/application.h"
#include "wizard/program.h"

int main() { return korventally::runApplication(korventally::runProgram); }
