// What the tool answers to the shell.
#pragma once

namespace navframe::tool {

enum ExitStatus : int {
  Success = 0,
  Failure = 1,  // the input could not be read, or the output not written
  WrongUsage = 2,
  NothingRecognised = 3  // no frame in all of the input
};

}  // namespace navframe::tool
