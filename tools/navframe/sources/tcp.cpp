#include "sources/tcp.h"

#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include <cerrno>
#include <utility>

#include "fault.h"
#include "sources/address.h"
#include "sources/descriptor.h"

namespace navframe::tool {
namespace {

constexpr int ConnectMilliseconds = 10'000;

struct AddressesCloser {
  void operator()(addrinfo* list) const { freeaddrinfo(list); }
};
using Addresses = std::unique_ptr<addrinfo, AddressesCloser>;

Addresses LookUp(const std::string& name, const Address& address) {
  addrinfo wanted{};
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* list = nullptr;
  const int error = getaddrinfo(address.host.c_str(), address.port.c_str(), &wanted, &list);
  if (error == EAI_SYSTEM) throw CannotRead(name, errno);
  if (error == EAI_NONAME) throw Fault("cannot read " + name + ": there is no such host");
  if (error != 0) throw Fault("cannot read " + name + ": " + gai_strerror(error));
  return Addresses(list);
}

// 0, or why it could not be.
int Connect(int socket, const addrinfo& address) {
  if (connect(socket, address.ai_addr, address.ai_addrlen) == 0) return 0;
  if (errno != EINPROGRESS) return errno;
  pollfd waiting = {socket, POLLOUT, 0};
  const int ready = poll(&waiting, 1, ConnectMilliseconds);
  if (ready < 0) return errno;
  if (ready == 0) return ETIMEDOUT;
  int error = 0;
  socklen_t length = sizeof error;
  getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &length);
  return error;
}

// A peer that is gone without a word is noticed within two minutes.
void KeepAlive(int socket) {
  const int on = 1;
  const int seconds = 30;
  setsockopt(socket, SOL_SOCKET, SO_KEEPALIVE, &on, sizeof on);
  setsockopt(socket, IPPROTO_TCP, TCP_KEEPIDLE, &seconds, sizeof seconds);
  setsockopt(socket, IPPROTO_TCP, TCP_KEEPINTVL, &seconds, sizeof seconds);
  const int probes = 3;
  setsockopt(socket, IPPROTO_TCP, TCP_KEEPCNT, &probes, sizeof probes);
}

class TcpSource : public Source {
 public:
  explicit TcpSource(const std::string& name) : name_(ShownName(name)) {
    const Address address = ParseAddress(name);
    if (!address.user.empty() || !address.path.empty())
      throw Fault(name_ + " is not tcp://HOST:PORT");
    if (address.port.empty()) throw Fault(name_ + ": the port is missing");
    const Addresses addresses = LookUp(name_, address);
    int error = 0;
    for (const addrinfo* a = addresses.get(); a != nullptr; a = a->ai_next) {
      socket_ = Descriptor(
          socket(a->ai_family, a->ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, a->ai_protocol));
      error = socket_.Number() < 0 ? errno : Connect(socket_.Number(), *a);
      if (error == 0) break;
    }
    if (error != 0) throw CannotRead(name_, error);
    KeepAlive(socket_.Number());
  }

  Reading Read(std::uint8_t* to, std::size_t room) override {
    return ReadDescriptor(socket_.Number(), name_, to, room);
  }
  bool IsLive() const override { return true; }
  bool IsConnection() const override { return true; }

 private:
  std::string name_;
  Descriptor socket_;
};

}  // namespace

std::unique_ptr<Source> OpenTcp(const std::string& name) {
  return std::make_unique<TcpSource>(name);
}

}  // namespace navframe::tool
