// What happens when the memory does not suffice: this program's own allocation refuses large
// blocks.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "engine/line_reader.h"
#include "tests/engine/study.h"

namespace {
std::atomic<std::size_t> largestAllowed{~std::size_t{0}};
}

// Not inlined: GCC would see malloc() meet delete and warn of a mismatch that is none.
__attribute__((noinline)) void* operator new(std::size_t size) {
  void* const memory = size > largestAllowed ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

// What sorts in a buffer asks for it this way.
__attribute__((noinline)) void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return size > largestAllowed ? nullptr : std::malloc(size == 0 ? 1 : size);
}

__attribute__((noinline)) void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace korventally::engine {
namespace {

Result runWithin(const Study& study, std::size_t bytes) {
  largestAllowed = bytes;
  const Result result = study.run();
  largestAllowed = ~std::size_t{0};
  return result;
}

TEST(Memory, ThatDoesNotSufficeIsAFaultInPlainWords) {
  Study study;
  study.line(4) = "900000";
  study.line(14) = "1";
  const Result result = runWithin(study, 8000000);
  EXPECT_EQ(result.sentence,
            "There is not enough memory for the 5,400,000 averages of this case (44 MB).");
  EXPECT_EQ(study.lastLine(), "RUN FAILED");
}

TEST(Memory, ThatIsMissingBeforeTheDataIsAFaultToo) {
  Study study;
  const Result result = runWithin(study, 20000);
  EXPECT_NE(result.sentence.find("not enough memory"), std::string::npos) << result.sentence;
  EXPECT_NE(result.outcome, Outcome::kCompleted);
}

// 5000 hours more cost no block of memory that the shorter run did not need.
TEST(Memory, DoesNotGrowWithTheHours) {
  Study study;
  const std::size_t enough = LineReader::kBlock + 4096;
  ASSERT_EQ(runWithin(study, enough).sentence, "");
  for (const char* name : {"all.con", "group_2.con", "group_3.con"}) {
    study.writeHours(name, std::vector<std::string>(5006, "1 1"));
  }
  EXPECT_EQ(runWithin(study, enough).sentence, "");
}

}  // namespace
}  // namespace korventally::engine
