// make_study FOLDER HOURS RECEPTORS GROUPS AVERAGING-HOURS
#include <cstdio>
#include <cstdlib>

#include "bench/make_study.h"

int main(int count, char** arguments) {
  if (count != 6) {
    std::fputs("Usage: make_study FOLDER HOURS RECEPTORS GROUPS AVERAGING-HOURS\n", stderr);
    return 2;
  }
  korventally::bench::StudySize size;
  size.hours = std::strtoul(arguments[2], nullptr, 10);
  size.receptors = std::strtoul(arguments[3], nullptr, 10);
  size.groups = std::strtoul(arguments[4], nullptr, 10);
  size.averagingHours = std::strtoul(arguments[5], nullptr, 10);
  const auto folder = std::filesystem::absolute(arguments[1]);
  const auto bytes = korventally::bench::makeStudy(folder, size);
  std::printf("%.1f MB of concentrations in %s\n", static_cast<double>(bytes) / 1e6,
              folder.string().c_str());
  return 0;
}
