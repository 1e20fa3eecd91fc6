// Where bytes come from: files, pipes, devices and the network, each behind one interface.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace navframe::tool {

// What a read brought.
struct Reading {
  enum class State : std::uint8_t {
    Bytes,  // `length` of them, at least one
    Quiet,  // none for a while, or a signal came: the caller may do other things and read again
    End,    // and there will be none
  };
  State state = State::End;
  std::size_t length = 0;
};

// A position that the stream itself told, for casters that want to know where their user is.
struct Position {
  double latitude;   // deg, positive to the north
  double longitude;  // deg, positive to the east
  double height;     // m above the sea
};

class Source {
 public:
  virtual ~Source() = default;
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;

  // Waits for bytes, but not for longer than QuietTime, and reads at most `room` of them. Throws a
  // Fault once nothing more can be read; what was read before is good.
  virtual Reading Read(std::uint8_t* to, std::size_t room) = 0;

  // Whether its bytes are made while they are read, so that what they give is wanted at once.
  virtual bool IsLive() const = 0;

  // Whether its end is that of a connection, which the other side closed: inside a frame a failure.
  virtual bool IsConnection() const { return false; }

  // How far a source of known size is read, in bytes of it (compressed ones, where it is); 0 for
  // others.
  virtual std::uint64_t Taken() const { return 0; }
  virtual std::uint64_t Total() const { return 0; }

  virtual void Tell(const Position&) {}

 protected:
  Source() = default;
};

// A live source that says nothing for so long has said what it had to say.
inline constexpr int QuietMilliseconds = 300;

// Opens a file, "-" for standard input, or an address such as "tcp://host:port". Throws a Fault.
std::unique_ptr<Source> OpenSource(const std::string& name);

}  // namespace navframe::tool
