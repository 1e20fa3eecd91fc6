// Names of sources on the network: SCHEME://[USER[:PASSWORD]@]HOST[:PORT][/PATH].
#pragma once

#include <string>

namespace navframe::tool {

struct Address {
  std::string user;      // empty for none, as with all that follow
  std::string password;  // as meant, without %XX
  std::string host;      // of IPv6 without brackets
  std::string port;
  std::string path;  // behind the slash
};

// Throws a Fault when there is no host, or a port that is none.
Address ParseAddress(const std::string& name);

// Whether the name is that of a device or of a place on the network: what is read from there comes
// as it is made.
bool IsAddress(const std::string& name);

// The name as people may see it: without a password.
std::string ShownName(const std::string& name);

}  // namespace navframe::tool
