#include "sources/serial.h"

#include <fcntl.h>
#include <termios.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string_view>
#include <utility>

#include "fault.h"
#include "sources/descriptor.h"

namespace navframe::tool {
namespace {

constexpr std::pair<std::string_view, speed_t> Rates[] = {
    {"1200", B1200},       {"2400", B2400},       {"4800", B4800},       {"9600", B9600},
    {"19200", B19200},     {"38400", B38400},     {"57600", B57600},     {"115200", B115200},
    {"230400", B230400},   {"460800", B460800},   {"500000", B500000},   {"576000", B576000},
    {"921600", B921600},   {"1000000", B1000000}, {"1152000", B1152000}, {"1500000", B1500000},
    {"2000000", B2000000}, {"2500000", B2500000}, {"3000000", B3000000}, {"3500000", B3500000},
    {"4000000", B4000000},
};

speed_t RateOf(const std::string& name, std::string_view text) {
  for (const auto& [rate, speed] : Rates) {
    if (text == rate) return speed;
  }
  throw Fault(name + ": " + std::string(text) + " is no usual baud rate");
}

struct Settings {
  std::string device;
  std::optional<speed_t> speed;
};

Settings Parse(const std::string& name) {
  constexpr std::string_view Scheme = "serial:";
  constexpr std::string_view Baud = "baud=";
  const std::size_t mark = name.find('?');
  Settings settings;
  settings.device = name.substr(Scheme.size(), mark - Scheme.size());
  std::string_view options =
      mark == std::string::npos ? "" : std::string_view(name).substr(mark + 1);
  while (!options.empty()) {
    const std::string_view option = options.substr(0, options.find('&'));
    options.remove_prefix(std::min(option.size() + 1, options.size()));
    if (!option.starts_with(Baud)) {
      throw Fault(name + ": " + std::string(option) + " is none of its options; there is baud=N");
    }
    settings.speed = RateOf(name, option.substr(Baud.size()));
  }
  return settings;
}

// Bytes as they are sent: no lines, echo, signals or flow control, eight bits, no parity.
termios RawSettings(const termios& before, std::optional<speed_t> speed) {
  termios raw = before;
  cfmakeraw(&raw);
  raw.c_cflag |= CLOCAL | CREAD;
  raw.c_cflag &= ~static_cast<tcflag_t>(CRTSCTS | CSTOPB);
  raw.c_iflag &= ~static_cast<tcflag_t>(IXOFF | IXANY);
  raw.c_cc[VMIN] = 1;
  raw.c_cc[VTIME] = 0;
  if (speed) cfsetspeed(&raw, *speed);
  return raw;
}

class SerialSource : public Source {
 public:
  SerialSource(std::string name, const Settings& settings)
      : name_(std::move(name)),
        // Not waiting for a carrier, which most receivers do not have.
        line_(open(settings.device.c_str(), O_RDONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)) {
    if (line_.Number() < 0) throw CannotRead(name_, errno);
    if (tcgetattr(line_.Number(), &before_) != 0) {
      if (errno == ENOTTY) throw Fault("cannot read " + name_ + ": it is no serial line");
      throw CannotRead(name_, errno);
    }
    const termios raw = RawSettings(before_, settings.speed);
    if (tcsetattr(line_.Number(), TCSANOW, &raw) != 0) throw CannotRead(name_, errno);
    tcflush(line_.Number(), TCIFLUSH);  // what came at another rate
  }
  ~SerialSource() override { tcsetattr(line_.Number(), TCSANOW, &before_); }

  Reading Read(std::uint8_t* to, std::size_t room) override {
    int error = 0;
    const Reading reading = TryRead(line_.Number(), to, room, error);
    if (reading.state == Reading::State::End && (error == 0 || error == EIO)) {
      throw Fault("cannot read " + name_ + ": the device hung up");
    }
    if (error != 0) throw CannotRead(name_, error);
    return reading;
  }
  bool IsLive() const override { return true; }

 private:
  std::string name_;
  Descriptor line_;
  termios before_{};
};

}  // namespace

std::unique_ptr<Source> OpenSerial(const std::string& name) {
  return std::make_unique<SerialSource>(name, Parse(name));
}

}  // namespace navframe::tool
