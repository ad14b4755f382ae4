#include "tests/platform/contract/world.h"

#include <limits>

#include "platform/headless/desktop.h"

namespace korventally::testing {
namespace {

Desktop& desktop() { return Desktop::current(); }

void setAttribute(const std::string& path, Desktop::Attribute attribute) {
  desktop().putFile(path, desktop().fileBytes(path).value(), attribute);
}

}  // namespace

World::World() : backEnd_(std::make_shared<Desktop>()) {}
World::~World() = default;

std::string World::freshFolder() {
  desktop().makeFolder("D:\\Contract Ä\\");
  return "D:\\Contract Ä\\";
}

void World::makeFolder(const std::string& path) { desktop().makeFolder(path); }

void World::append(const std::string& path, const std::string& bytes) {
  desktop().appendFile(path, bytes);
}

void World::hide(const std::string& path) { setAttribute(path, Desktop::Attribute::kHidden); }

void World::makeReadOnly(const std::string& path) {
  setAttribute(path, Desktop::Attribute::kReadOnly);
}

bool World::guardsReadOnlyFiles() { return true; }

std::shared_ptr<void> World::hold(const std::string& path) {
  desktop().lockFile(path, std::numeric_limits<std::uint32_t>::max());
  return std::shared_ptr<void>(nullptr, [path](void*) { desktop().lockFile(path, 0); });
}

}  // namespace korventally::testing
