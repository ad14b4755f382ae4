#pragma once

#include <functional>
#include <string>
#include <vector>

#include "driver/program.h"

namespace korventally::driver {

/// What a user enters: for the sample study, as samples/README.md tells.
struct Study {
  std::wstring workDir;  ///< with its last backslash
  std::vector<std::wstring> concFiles = {L"all_sources.con", L"facility.con", L"other_1.con",
                                         L"other_2.con", L"other_3.con"};
  std::wstring receptors = L"receptors.dat";
  std::wstring year = L"2009", month = L"01", day = L"12", hour = L"00", hours = L"168";
  bool opened = false;  ///< the wizard took all of it but the analysis from a control file
};

/// Told after each step what was entered there, while the step is still open.
using Observer = std::function<void(int step, const std::string& what)>;
inline void nobody(int, const std::string&) {}

/// From the first step to the open run summary, with the mouse or with the keyboard alone.
void walkWithMouse(const Program& program, const Study& study, const Observer& observe = nobody);
void walkWithKeyboard(const Program& program, const Study& study, const Observer& observe = nobody);

}  // namespace korventally::driver
