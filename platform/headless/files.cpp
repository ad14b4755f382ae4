#include "platform/files.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/headless/desktop.h"
#include "platform/headless/file_system.h"
#include "platform/headless/path.h"
#include "platform/headless/world.h"
#include "platform/result.h"

namespace korventally {
namespace {

using headless::FullPath;
using headless::Node;
using headless::parentOf;
using headless::resolve;
using headless::systemError;
using Operation = Desktop::Operation;

constexpr long kFileNotFound = 2;
constexpr long kPathNotFound = 3;
constexpr long kAccessDenied = 5;
constexpr long kSharingViolation = 32;
constexpr long kNoNetworkPath = 53;
constexpr long kFileExists = 80;
constexpr long kNetworkNameGone = 64;
constexpr long kDiskFull = 112;
constexpr long kInvalidName = 123;

Desktop::World& world() { return Desktop::current().world(); }

const Node* nodeInReach(const std::string& path) {
  return world().files.reaches(path) ? world().files.find(path) : nullptr;
}

/// The same as a call that can fail.
const Node* lookAt(const std::string& path) {
  return world().faults.call(Operation::kLook, path) ? nullptr : nodeInReach(path);
}

/// The file of that name, fit to be opened or deleted, or why there is none.
Result<Node*> usableFile(const FullPath& path) {
  if (!world().files.reaches(path.text)) return systemError(kNoNetworkPath, path.text);
  Node* node = world().files.find(path.text);
  if (node == nullptr) {
    const bool folderThere = world().files.find(parentOf(path.text)) != nullptr;
    return systemError(folderThere ? kFileNotFound : kPathNotFound, path.text);
  }
  if (node->isFolder) return systemError(kAccessDenied, path.text);
  if (path.namesFolder) return systemError(kInvalidName, path.text);
  if (node->lockedUntil > world().clock.time()) return systemError(kSharingViolation, path.text);
  return node;
}

/// Such a file that nobody holds.
Result<Node*> freeFile(const FullPath& path) {
  Result<Node*> file = usableFile(path);
  if (file && file.value()->held) return systemError(kSharingViolation, path.text);
  return file;
}

/// Why a file of that name cannot be created or replaced.
std::optional<Error> obstacle(const FullPath& path) {
  const Result<Node*> file = freeFile(path);
  if (file) {
    // Windows replaces neither a read-only file nor, unasked, a hidden one.
    if (file.value()->attribute == Desktop::Attribute::kNormal) return std::nullopt;
    return systemError(kAccessDenied, path.text);
  }
  if (file.error().code != kFileNotFound) return file.error();
  if (path.namesFolder) return systemError(kInvalidName, path.text);
  return std::nullopt;
}

Result<std::string> bytesOf(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) {
    Result<std::string> ansi = toAnsi(line);
    if (!ansi) return ansi;
    bytes += ansi.value() + "\r\n";
  }
  return bytes;
}

class Holder : public HeldFile {
 public:
  explicit Holder(const Node& node) : path_(node.path), bytes_(node.bytes) {}
  /// Where the server has closed it, another one may stand under its name.
  ~Holder() override {
    const Node* node = nodeInReach(path_);
    if (node != nullptr && node->bytes == bytes_) world().files.remove(path_);
  }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

 private:
  const std::string path_;
  const std::shared_ptr<const std::string> bytes_;
};

class Reader : public FileReader {
 public:
  explicit Reader(const Node& node) : path_(node.path), bytes_(node.bytes) {}

  Result<std::size_t> read(std::span<char> buffer) override {
    if (auto error = world().faults.call(Operation::kRead, path_)) return *error;
    if (!world().files.reaches(path_)) return systemError(kNetworkNameGone, path_);
    if (at_ >= bytes_->size()) return std::size_t{0};
    const std::size_t count = bytes_->copy(buffer.data(), buffer.size(), at_);
    at_ += count;
    return count;
  }

  Result<std::uint64_t> size() override { return std::uint64_t{bytes_->size()}; }

 private:
  const std::string path_;
  const std::shared_ptr<const std::string> bytes_;
  std::size_t at_ = 0;
};

}  // namespace

std::string absolutePath(const std::string& path) {
  const auto full = resolve(path);
  if (!full) return path;
  return full.value().namesFolder ? full.value().text + '\\' : full.value().text;
}

bool fileExists(const std::string& path) {
  const auto full = resolve(path);
  if (!full || full.value().namesFolder) return false;
  const Node* node = lookAt(full.value().text);
  return node != nullptr && !node->isFolder && node->attribute != Desktop::Attribute::kHidden &&
         node->attribute != Desktop::Attribute::kSystem;
}

bool folderListsEntries(const std::string& path) {
  const auto full = resolve(path);
  if (!full || !full.value().namesFolder) return false;
  const Node* node = lookAt(full.value().text);
  if (node == nullptr || !node->isFolder) return false;
  const bool isRoot = parentOf(node->path) == node->path;
  return !isRoot || !world().files.entries(node->path).empty();
}

bool sameFile(const std::string& one, const std::string& other) {
  const auto node = [](const std::string& path) -> const Node* {
    const auto full = resolve(path);
    return full ? lookAt(full.value().text) : nullptr;
  };
  const Node* const first = node(one);
  return first != nullptr && first == node(other);
}

Status deleteFile(const std::string& path) {
  const auto full = resolve(path);
  if (!full) return full.error();
  if (auto error = world().faults.call(Operation::kDelete, full.value().text)) return *error;
  const Result<Node*> file = freeFile(full.value());
  if (!file) return file.error();
  if (file.value()->attribute == Desktop::Attribute::kReadOnly) {
    return systemError(kAccessDenied, full.value().text);
  }
  world().files.remove(full.value().text);
  return {};
}

Status writeTextFile(const std::string& path, const std::vector<std::string>& lines) {
  const auto full = resolve(path);
  if (!full) return full.error();
  Result<std::string> bytes = bytesOf(lines);
  if (!bytes) {
    Error error = bytes.error();
    error.path = full.value().text;
    return error;
  }
  const auto fault = world().faults.call(Operation::kWrite, full.value().text);
  if (fault && fault->code != kDiskFull) return *fault;
  if (auto error = obstacle(full.value())) return *error;
  // A disk that fills up has taken the old file all the same.
  if (fault) {
    world().files.remove(full.value().text);
    return *fault;
  }
  world().files.put(full.value().text, std::move(bytes.value()));
  return {};
}

Result<std::unique_ptr<FileReader>> openForReading(const std::string& path) {
  const auto full = resolve(path);
  if (!full) return full.error();
  if (auto error = world().faults.call(Operation::kOpen, full.value().text)) return *error;
  const Result<Node*> file = usableFile(full.value());
  if (!file) return file.error();
  return std::unique_ptr<FileReader>(std::make_unique<Reader>(*file.value()));
}

Result<std::unique_ptr<HeldFile>> holdFile(const std::string& path, const std::string& bytes) {
  const auto full = resolve(path);
  if (!full) return full.error();
  if (auto error = world().faults.call(Operation::kHold, full.value().text)) return *error;
  if (auto error = obstacle(full.value())) return *error;
  if (world().files.find(full.value().text) != nullptr) {
    return systemError(kFileExists, full.value().text);
  }
  Node& node = world().files.put(full.value().text, bytes);
  node.held = true;
  return std::unique_ptr<HeldFile>(std::make_unique<Holder>(node));
}

}  // namespace korventally
