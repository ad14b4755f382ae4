#include "platform/window_view.h"

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/control.h"
#include "platform/headless/desktop.h"
#include "platform/headless/world.h"

namespace korventally {
namespace {

/// Shows nothing: tests read the model. Stands in the world's list while the window is open.
class HeadlessView : public WindowView {
 public:
  HeadlessView(Window& window, Window* owner) : window_(window) {
    Desktop::World& world = Desktop::current().world();
    std::function<void(Window&)> visit;
    if (!world.visits.empty()) {
      visit = std::move(world.visits.front());
      world.visits.pop_front();
    }
    world.shown.push_back({&window, owner, std::move(visit)});
  }

  void refresh(const Control&, Aspect) override {}
  bool setFocus(const Control&) override { return false; }
  void announce(const Control& control) override {
    Desktop::current().world().announcements.push_back(control.text());
  }
  void close() override {
    std::erase_if(Desktop::current().world().shown,
                  [this](const headless::ShownWindow& shown) { return shown.window == &window_; });
  }

 private:
  Window& window_;
};

}  // namespace

std::unique_ptr<WindowView> createWindowView(Window& window, Window* owner) {
  return std::make_unique<HeadlessView>(window, owner);
}

}  // namespace korventally
