#include "commands/run_command.h"

#include <exception>
#include <new>

#include "commands/messages.h"
#include "fault.h"
#include "navframe/stream.h"
#include "progress.h"

namespace navframe::tool {

ExitStatus RunCommand(const std::function<ExitStatus()>& work) {
  Progress none(0);
  Messages messages(none, false);
  try {
    return work();
  } catch (const ReaderLeft&) {
    return Success;
  } catch (const UsageFault& fault) {
    messages.Add(fault.what());
    return WrongUsage;
  } catch (const std::bad_alloc&) {
    messages.Add(navframe_status_text(NavframeOutOfMemory));
  } catch (const std::exception& fault) {
    messages.Add(fault.what());
  }
  return Failure;
}

}  // namespace navframe::tool
