#include "platform/win32/system/ole.h"

#include <windows.h>
// Needs the types of the header above.
#include <ole2.h>

namespace korventally::win32 {
namespace {

class Ole {
 public:
  Ole() : entered_(SUCCEEDED(OleInitialize(nullptr))) {}
  ~Ole() {
    if (entered_) OleUninitialize();
  }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;

 private:
  const bool entered_;
};

}  // namespace

void useOle() { static Ole ole; }

}  // namespace korventally::win32
