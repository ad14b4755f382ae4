// Studies of any size for the benchmarks, and for whoever wants to try the engine on a large one.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace korventally::bench {

struct StudySize {
  std::size_t hours = 8760;
  std::size_t receptors = 1000;
  std::size_t groups = 5;
  std::size_t averagingHours = 24;
};

/// Writes all.con, group_2.con ... , receptors.dat and korventally.inp (list file out.lst) into the
/// folder, from 2009-01-01 hour 00 on, and returns the bytes of the concentration files. The same
/// size gives the same concentrations, and those that are already there are not written again: one
/// folder serves one size of hours, receptors and groups.
std::uintmax_t makeStudy(const std::filesystem::path& folder, const StudySize& size);

/// The name of the concentration file of this group, counted from 0.
std::string concentrationName(std::size_t group);

}  // namespace korventally::bench
