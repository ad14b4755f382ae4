#include "engine/group_reader.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <thread>
#include <utility>
#include <vector>

#include "engine/blocks.h"
#include "engine/concentration_file.h"
#include "engine/receptor_file.h"
#include "engine/system_files.h"

namespace korventally::engine {
namespace {

class Crew {
 public:
  Crew(std::span<const std::unique_ptr<InputFile>> files, const Blocks& blocks,
       const Receptors& receptors)
      : files_(files),
        blocks_(blocks),
        receptors_(receptors),
        finished_(files.size()),
        results_(files.size()),
        firstFault_(files.size()) {
    const std::size_t processors = std::max(1u, std::thread::hardware_concurrency());
    start(std::min(processors, files.size()));
  }

  Crew(const Crew&) = delete;
  Crew& operator=(const Crew&) = delete;

  ~Crew() {
    firstFault_ = 0;  // whoever still reads may stop
    for (std::thread& thread : threads_) thread.join();
  }

  // Waits for this file; throws its fault.
  const GroupSums& await(std::size_t index, const Patience& patience) {
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, patience.interval, [&] { return finished_[index].done; })) {
      if (!patience.call) continue;
      lock.unlock();
      patience.call(index);
      lock.lock();
    }
    if (finished_[index].fault) std::rethrow_exception(finished_[index].fault);
    return results_[index];
  }

  std::vector<GroupSums> results() { return std::move(results_); }

 private:
  struct Finished {
    bool done = false;
    std::exception_ptr fault;
  };

  void start(std::size_t count) {
    try {
      while (threads_.size() < count) threads_.emplace_back([this] { work(); });
    } catch (const std::exception&) {
      // Fewer hands do the same work; with none, this thread does it.
      if (threads_.empty()) work();
    }
  }

  void work() {
    for (std::size_t index = next_++; index < files_.size(); index = next_++) {
      std::exception_ptr fault;
      try {
        results_[index] = readConcentrations(*files_[index], blocks_, receptors_, index == 0,
                                             [&] { return firstFault_ < index; });
      } catch (...) {
        fault = std::current_exception();
      }
      report(index, fault);
    }
  }

  void report(std::size_t index, const std::exception_ptr& fault) {
    const std::lock_guard lock(mutex_);
    finished_[index] = {true, fault};
    if (fault) firstFault_ = std::min<std::size_t>(firstFault_, index);
    changed_.notify_all();
  }

  const std::span<const std::unique_ptr<InputFile>> files_;
  const Blocks& blocks_;
  const Receptors& receptors_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<Finished> finished_;
  std::vector<GroupSums> results_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<std::size_t> firstFault_;  // files behind it need not be read any more
  std::vector<std::thread> threads_;
};

}  // namespace

std::vector<GroupSums> readGroups(std::span<const std::unique_ptr<InputFile>> files,
                                  const Blocks& blocks, const Receptors& receptors,
                                  const std::function<void(std::size_t, const GroupSums&)>& done,
                                  const Patience& patience) {
  Crew crew(files, blocks, receptors);
  for (std::size_t i = 0; i < files.size(); ++i) done(i, crew.await(i, patience));
  return crew.results();
}

}  // namespace korventally::engine
