#include "sources/descriptor.h"

#include <poll.h>

#include <cerrno>

namespace navframe::tool {

Reading TryRead(int descriptor, std::uint8_t* to, std::size_t room, int& error) {
  error = 0;
  pollfd waiting = {descriptor, POLLIN, 0};
  const int ready = poll(&waiting, 1, QuietMilliseconds);
  if (ready == 0 || (ready < 0 && errno == EINTR)) return {Reading::State::Quiet, 0};
  const ssize_t length = read(descriptor, to, room);
  if (length > 0) return {Reading::State::Bytes, static_cast<std::size_t>(length)};
  if (length == 0) return {Reading::State::End, 0};
  if (errno == EINTR || errno == EAGAIN) return {Reading::State::Quiet, 0};
  error = errno;
  return {Reading::State::End, 0};
}

Reading ReadDescriptor(int descriptor, const std::string& name, std::uint8_t* to,
                       std::size_t room) {
  int error = 0;
  const Reading reading = TryRead(descriptor, to, room, error);
  if (error != 0) throw CannotRead(name, error);
  return reading;
}

}  // namespace navframe::tool
