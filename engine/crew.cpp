#include "engine/crew.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>

namespace korventally::engine {

Crew::Crew(std::size_t count, Job job)
    : job_(std::move(job)), finished_(count), firstFault_(count) {
  const std::size_t processors = std::max(1u, std::thread::hardware_concurrency());
  start(std::min(processors, count));
}

Crew::~Crew() {
  firstFault_ = 0;
  next_ = finished_.size();
  for (std::thread& thread : threads_) thread.join();
}

void Crew::await(std::size_t index, const Patience& patience) {
  std::unique_lock lock(mutex_);
  while (!changed_.wait_for(lock, patience.interval, [&] { return finished_[index].done; })) {
    if (!patience.call) continue;
    lock.unlock();
    patience.call(index);
    lock.lock();
  }
  if (finished_[index].fault) std::rethrow_exception(finished_[index].fault);
}

void Crew::start(std::size_t threads) {
  try {
    while (threads_.size() < threads) threads_.emplace_back([this] { work(); });
  } catch (const std::exception&) {
    // Fewer hands do the same work; with none, this thread does it.
    if (threads_.empty()) work();
  }
}

void Crew::work() {
  for (std::size_t index = next_++; index < finished_.size(); index = next_++) {
    std::exception_ptr fault;
    try {
      job_(index, *this);
    } catch (...) {
      fault = std::current_exception();
    }
    report(index, fault);
  }
}

void Crew::report(std::size_t index, const std::exception_ptr& fault) {
  const std::lock_guard lock(mutex_);
  finished_[index] = {true, fault};
  if (fault) firstFault_ = std::min<std::size_t>(firstFault_, index);
  changed_.notify_all();
}

}  // namespace korventally::engine
