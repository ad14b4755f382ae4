#include "engine/file_beginning.h"

#include <cstddef>
#include <string>

#include "engine/system_files.h"

namespace korventally::engine {

std::string beginningOf(const NativePath& path, std::size_t size) {
  InputFile file(path);
  std::string text(size, '\0');
  std::size_t filled = 0, count = 0;
  while (filled < size && (count = file.read(text.data() + filled, size - filled)) > 0) {
    filled += count;
  }
  text.resize(filled);
  return text;
}

}  // namespace korventally::engine
