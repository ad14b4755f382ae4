// Does several jobs side by side, as many at a time as there are processors.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace korventally::engine {

/// Called on the calling thread for the job that is waited for, each time that the wait has lasted
/// so long again.
struct Patience {
  std::function<void(std::size_t)> call;
  std::chrono::milliseconds interval{1000};  ///< not below 0
};

class Crew {
 public:
  /// A job is told its number and who else is at work.
  using Job = std::function<void(std::size_t, const Crew&)>;

  /// Starts `job` for 0 to `count` - 1, each once, on threads of its own. What `job` refers to must
  /// outlive the crew.
  Crew(std::size_t count, Job job);
  Crew(const Crew&) = delete;
  Crew& operator=(const Crew&) = delete;

  /// Jobs that still run may give up, and the others are not started any more.
  ~Crew();

  /// Waits for this job; throws what it threw.
  void await(std::size_t index, const Patience& patience = {});

  /// True once nobody will ask for this job: an earlier one failed, or the crew is dismissed.
  bool mayGiveUp(std::size_t index) const { return firstFault_ < index; }

 private:
  struct Finished {
    bool done = false;
    std::exception_ptr fault;
  };

  void start(std::size_t threads);
  void work();
  void report(std::size_t index, const std::exception_ptr& fault);

  const Job job_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<Finished> finished_;
  std::atomic<std::size_t> next_ = 0;
  std::atomic<std::size_t> firstFault_;
  std::vector<std::thread> threads_;
};

}  // namespace korventally::engine
