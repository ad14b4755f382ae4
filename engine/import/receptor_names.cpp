#include "engine/import/receptor_names.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "engine/import/model_data.h"
#include "engine/receptor_file.h"

namespace korventally::engine {
namespace {

constexpr const char* kDiscrete = "R";

bool isName(const std::string& text) {
  return isReceptorId(text) && text.find_first_of(" ,\t#") == text.npos;
}

}  // namespace

std::vector<std::string> receptorNames(const std::vector<ModelPlace>& places) {
  std::map<std::string, std::size_t> counts;
  std::vector<std::string> names;
  for (const ModelPlace& place : places) {
    const std::string network = place.network.empty() ? kDiscrete : place.network;
    names.push_back(network + std::to_string(++counts[network]));
  }
  const std::set<std::string> different(names.begin(), names.end());
  if (different.size() == names.size() && std::ranges::all_of(names, isName)) return names;
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = kDiscrete + std::to_string(i + 1);
  return names;
}

}  // namespace korventally::engine
