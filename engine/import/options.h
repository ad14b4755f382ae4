// What the user asks of `korventally import`.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/import/model_value.h"
#include "engine/system_files.h"

namespace korventally::engine {

/// What hours of zeros at every receptor of every group are.
enum class ZeroHours {
  kJudge,  ///< calm while they are few, else the user is asked
  kCalm,
  kValid,
};

struct ImportOptions {
  std::vector<NativePath> files;  ///< at least one
  NativePath folder;              ///< where the results go
  std::string all = "ALL";        ///< group 1 of the case
  std::string facility = "FACILITY";
  std::vector<std::string> only;  ///< groups to take; empty: all of them
  ValueUnit unit = ValueUnit::kMicrograms;
  std::optional<NativePath> calms;      ///< the model's message file or its surface file
  std::optional<NativePath> receptors;  ///< X, Y, ID of the receptors in the model's order
  ZeroHours zeroHours = ZeroHours::kJudge;

  /// Whether a group is to be taken.
  bool wants(std::string_view group) const;
};

/// The options behind the word "import". Throws Fault.
ImportOptions parseImportOptions(const std::vector<NativePath>& arguments);

/// The lines of --help on this command.
extern const char* const kImportUsage;

}  // namespace korventally::engine
