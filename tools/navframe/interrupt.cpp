#include "interrupt.h"

#include <atomic>
#include <csignal>

namespace navframe::tool {
namespace {

std::atomic<bool> interrupted = false;  // without a lock, so that a handler may write it
static_assert(std::atomic<bool>::is_always_lock_free);

void Note(int) { interrupted = true; }

}  // namespace

void NoteInterrupts() {
  struct sigaction action {};
  action.sa_handler = Note;
  action.sa_flags = static_cast<int>(SA_RESETHAND);  // and no SA_RESTART: reads return
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
}

bool IsInterrupted() { return interrupted; }

}  // namespace navframe::tool
