#include "wizard/group_caption.h"

#include <cstdint>
#include <string>

#include "platform/frame.h"
#include "platform/window.h"
#include "tests/fuzz/targets.h"
#include "tests/fuzz/workshop.h"

namespace korventally::fuzz {
namespace {

GroupCaption setAndRead(std::int32_t slot, std::int32_t count) {
  Window window("", {100, 100});
  Frame frame(window, {0, 0, 100, 100}, "");
  SetGroupCaption(frame, slot, count);
  return readGroupCaption(frame.text());
}

}  // namespace

void groupCaption(std::string_view bytes) {
  const GroupCaption read = readGroupCaption(std::string(bytes));
  const bool isOther = read.kind == "OTHER", isFixed = read.slot == 1 || read.slot == 2;
  const bool isKnown = isOther || read.kind == "ALL SOURCES" || read.kind == "FACILITY";
  require(isKnown || read.slot == 0, "no other kind has a slot");
  require(isOther || read.count == 0, "no other kind has a count");
  const bool isPage = isFixed ? !isOther : read.slot > 2 && read.slot <= read.count;
  if (!isPage) return;
  const GroupCaption again = setAndRead(read.slot, read.count);
  require(again.kind == read.kind && again.slot == read.slot && again.count == read.count,
          "a page's caption reads back");
}

}  // namespace korventally::fuzz
