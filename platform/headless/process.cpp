#include "platform/process.h"

#include <memory>
#include <string>
#include <utility>

#include "platform/headless/batch_process.h"
#include "platform/headless/world.h"
#include "platform/result.h"

namespace korventally {
namespace {

class SimulatedRun : public BatchRun {
 public:
  explicit SimulatedRun(std::shared_ptr<headless::BatchProcess> process)
      : process_(std::move(process)) {}
  bool running() override { return process_->running(); }
  void terminate() override { process_->terminate(); }
  void endInterpreter() override { process_->endInterpreter(); }

 private:
  const std::shared_ptr<headless::BatchProcess> process_;
};

}  // namespace

std::string installationDirectory() { return Desktop::current().world().installation; }

std::string thisProcess() { return "process 4711 of Ann on MET-PC"; }

Result<std::unique_ptr<BatchRun>> startBatchFile(const std::string& path, WindowStyle style,
                                                 StartFolder /*folder*/) {
  Desktop::World& world = Desktop::current().world();
  if (auto error = world.faults.call(Desktop::Operation::kStart, path)) return *error;
  auto process = std::make_shared<headless::BatchProcess>(path);
  world.processes.push_back(process);
  world.styles.push_back(style);
  process->start();
  return std::unique_ptr<BatchRun>(std::make_unique<SimulatedRun>(std::move(process)));
}

}  // namespace korventally
