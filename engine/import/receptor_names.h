// Names for the receptors of a dispersion model, which has none.
#pragma once

#include <string>
#include <vector>

#include "engine/import/model_data.h"

namespace korventally::engine {

/// A name of 1 to 12 characters for each place, no two alike: the network's and a number from 1
/// on, or R and a number for a discrete receptor. Where such names would be too long, alike or
/// unreadable, all receptors are called R and their number in the file.
std::vector<std::string> receptorNames(const std::vector<ModelPlace>& places);

}  // namespace korventally::engine
