// One request to a caster: for a mountpoint, or without one for the list of them.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "sources/address.h"
#include "sources/caster_answer.h"

namespace navframe::tool {

struct CasterQuery {
  Address address;
  bool isSecure = false;
  bool withDigest = false;  // the password in the way of "Digest"; else as "Basic"
  std::string gga;          // where the user is, empty for unknown
};

// "ntrip://..." and "ntrips://..."; the password from the environment where the address has none.
CasterQuery ParseCaster(const std::string& name);

class CasterRequest {
 public:
  virtual ~CasterRequest() = default;
  CasterRequest(const CasterRequest&) = delete;
  CasterRequest& operator=(const CasterRequest&) = delete;

  // Sends and receives; waits for something to do, but not longer than that.
  virtual void Work(int milliseconds) = 0;
  virtual CasterAnswer& Answer() = 0;
  // Text for the caster, once it has begun with a stream.
  virtual void Send(const std::string& text) = 0;

  // Why nothing will come any more; none while something may.
  virtual std::optional<std::string> End() const = 0;

 protected:
  CasterRequest() = default;
};

// Throws a Fault where libcurl is not there.
std::unique_ptr<CasterRequest> MakeCasterRequest(const CasterQuery& query);

}  // namespace navframe::tool
