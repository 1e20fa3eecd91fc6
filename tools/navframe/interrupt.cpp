#include "interrupt.h"

#include <csignal>

namespace navframe::tool {
namespace {

volatile std::sig_atomic_t interrupted = 0;  // what a handler may write

void Note(int) { interrupted = 1; }

}  // namespace

void NoteInterrupts() {
  struct sigaction action {};
  action.sa_handler = Note;
  action.sa_flags = static_cast<int>(SA_RESETHAND);  // and no SA_RESTART: reads return
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
}

bool IsInterrupted() { return interrupted != 0; }

}  // namespace navframe::tool
