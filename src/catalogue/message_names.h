// What messages are called, with a record or without one.
#pragma once

#include <cstdint>
#include <string_view>

namespace navframe::catalogue {

// "" for a message without a name.
const char* RtcmMessageName(std::uint32_t number);
const char* UbxMessageName(std::uint32_t classAndId);
const char* NmeaMessageName(std::string_view address);

}  // namespace navframe::catalogue
