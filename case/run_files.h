#pragma once

#include <array>

namespace korventally {

/// The names of the files that a run writes into the working directory, beside the list file.
inline constexpr const char* kControlFile = "korventally.inp";
inline constexpr const char* kBatchFile = "run_korventally.bat";
inline constexpr const char* kEditorBatchFile = "open_file.bat";
inline constexpr std::array kOwnFiles = {kControlFile, kBatchFile, kEditorBatchFile};

/// The name offered for the engine's list file.
inline constexpr const char* kDefaultListFile = "korventally.lst";

}  // namespace korventally
