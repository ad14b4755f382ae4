// Results of a dispersion model, turned into files that the engine reads.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "engine/calendar.h"

namespace korventally::engine {

/// One row of a model's file: an average in ug/m**3 and the name of its last hour.
struct ModelRow {
  std::string x, y, value;
  Hour hour = 0;  ///< not set for an average over the whole run
};

/// The bytes of a file below samples/dispersion.
std::string readTestData(const std::string& name);

/// The rows of a file below samples/dispersion.
std::vector<ModelRow> readModelRows(const std::string& name);

/// The hours that the model's message file calls calm or missing.
std::map<Hour, std::string> readMarks(const std::string& name);

/// The rows as a concentration file that counts hours 1 to 24, marks in place of those hours'
/// values.
std::string concentrationText(const std::vector<ModelRow>& rows,
                              const std::map<Hour, std::string>& marks);

/// The receptors of the first hour, named R1, R2, ...
std::string receptorText(const std::vector<ModelRow>& rows);

}  // namespace korventally::engine
