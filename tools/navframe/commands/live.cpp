#include "commands/live.h"

#include <thread>

#include "fault.h"
#include "sources/address.h"

namespace navframe::tool {

bool LiveSources::Decode(const std::vector<std::string>& names) {
  for (const std::string& name : names) Open(name);
  std::vector<std::thread> threads;
  for (const Live& live : sources_) threads.emplace_back([this, &live] { Run(live); });
  for (std::thread& thread : threads) thread.join();
  if (failure_ != nullptr) std::rethrow_exception(failure_);
  return isGood_;
}

void LiveSources::Open(const std::string& name) {
  try {
    sources_.push_back({ShownName(name), OpenInput(options_, name)});
    together_.sources.push_back(sources_.back().source.get());
  } catch (const Fault& fault) {
    Fail(fault.what());
  }
}

void LiveSources::Run(const Live& live) {
  try {
    Decoding(options_, live.name, outputs_, reports_, wanted_, &together_).Run(*live.source);
  } catch (const Fault& fault) {
    const std::lock_guard turn(together_.turn);
    Fail(fault.what());
  } catch (...) {
    const std::lock_guard turn(together_.turn);
    if (failure_ == nullptr) failure_ = std::current_exception();
    reports_.isStopped = true;
  }
}

void LiveSources::Fail(const std::string& message) {
  reports_.messages.Add(message);
  isGood_ = false;
}

}  // namespace navframe::tool
