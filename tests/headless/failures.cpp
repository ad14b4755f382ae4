#include <gtest/gtest.h>

#include "platform/headless/desktop.h"

namespace korventally::testing {
namespace {

/// What goes wrong on the simulated desktop fails the running test.
class Failures : public ::testing::Environment {
  void SetUp() override {
    Desktop::onFailure = [](const std::string& what) { ADD_FAILURE() << what; };
  }
};

::testing::Environment* const failures = ::testing::AddGlobalTestEnvironment(new Failures);

}  // namespace
}  // namespace korventally::testing
