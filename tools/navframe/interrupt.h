// Ctrl-C and SIGTERM end the tool with what it has so far.
#pragma once

namespace navframe::tool {

// From here on they are noted; a second one ends the tool at once.
void NoteInterrupts();
bool IsInterrupted();

}  // namespace navframe::tool
