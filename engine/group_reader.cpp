#include "engine/group_reader.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/crew.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"

namespace korventally::engine {

std::vector<GroupSums> readGroups(std::span<const std::unique_ptr<InputFile>> files,
                                  const Blocks& blocks, const Receptors& receptors,
                                  const std::function<void(std::size_t, const GroupSums&)>& done,
                                  const Patience& patience) {
  std::vector<GroupSums> results(files.size());
  Crew crew(files.size(), [&](std::size_t i, const Crew& all) {
    results[i] =
        readConcentrations(*files[i], blocks, receptors, i == 0, [&] { return all.mayGiveUp(i); });
  });
  for (std::size_t i = 0; i < files.size(); ++i) {
    crew.await(i, patience);
    done(i, results[i]);
  }
  return results;
}

}  // namespace korventally::engine
