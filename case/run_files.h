#pragma once

#include <array>

namespace korventally {

/// The names of the files that the program writes into the working directory. The list file, whose
/// name the user chooses, is the engine's.
inline constexpr const char* kControlFile = "korventally.inp";
inline constexpr const char* kBatchFile = "run_korventally.bat";
inline constexpr const char* kEditorBatchFile = "open_file.bat";
inline constexpr const char* kClaimFile = "korventally.lock";
inline constexpr std::array kOwnFiles = {kControlFile, kBatchFile, kEditorBatchFile, kClaimFile};

/// The name offered for the engine's list file.
inline constexpr const char* kDefaultListFile = "korventally.lst";

}  // namespace korventally
