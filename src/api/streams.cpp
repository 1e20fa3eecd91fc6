// The exported functions of streams: arguments are judged, exceptions end here.
#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "base/text.h"
#include "catalogue/message_names.h"
#include "navframe/stream.h"
#include "stream/stream_decoder.h"

struct NavframeStream final : navframe::StreamDecoder {
  using StreamDecoder::StreamDecoder;
};

namespace {

constexpr std::uint32_t SmallestBuffer = 1 << 16;
constexpr std::uint32_t LargestBuffer = 1 << 24;
constexpr std::uint32_t UnknownWeek = 65535;

// Runs `call`, which may want memory.
template <class Call>
NavframeStatus Guarded(Call&& call) noexcept {
  try {
    return call();
  } catch (const std::bad_alloc&) {
    return NavframeOutOfMemory;
  }
}

// What a host's struct holds, which may be shorter or longer than this library's.
template <class Struct>
Struct FromHost(const Struct& host, Struct usual) {
  std::memcpy(&usual, &host, std::min(host.size, sizeof(Struct)));
  usual.size = sizeof(Struct);
  return usual;
}
template <class Struct>
void ToHost(const Struct& ours, Struct& host) {
  const std::size_t size = host.size;
  std::memcpy(&host, &ours, std::min(size, sizeof(Struct)));
  host.size = size;
}

constexpr std::size_t SmallestStruct = sizeof(std::size_t);

NavframeOptions UsualOptions() {
  return {.size = sizeof(NavframeOptions),
          .dialect = NavframeStandard,
          .protocols = NavframeAllProtocols,
          .items = NavframeItemRecord,
          .bufferSize = SmallestBuffer,
          .startWeek = 0,
          .kindCount = 0,
          .kinds = nullptr,
          .user = nullptr};
}

// Zeros of a struct that the host cleared stand for what is usual, where they would mean nothing.
NavframeOptions WithUsual(NavframeOptions options) {
  const NavframeOptions usual = UsualOptions();
  if (options.protocols == 0) options.protocols = usual.protocols;
  if (options.items == 0) options.items = usual.items;
  if (options.bufferSize == 0) options.bufferSize = usual.bufferSize;
  return options;
}

NavframeStatus Judge(const NavframeOptions& options) {
  constexpr std::uint32_t AllProtocols = NavframeAllProtocols;
  constexpr std::uint32_t AllItems = NavframeAllItems | NavframeItemUndecoded;
  const bool sound = options.dialect <= NavframeLegacy &&
                     (options.protocols & ~AllProtocols) == 0 && (options.items & ~AllItems) == 0 &&
                     options.bufferSize >= SmallestBuffer && options.bufferSize <= LargestBuffer &&
                     options.startWeek < UnknownWeek &&
                     (options.kindCount == 0 || options.kinds != nullptr);
  if (!sound) return NavframeBadArgument;
  // What a look-up did not find, or a copy of what it found.
  const auto isHandle = [](const NavframeKind* kind) {
    return kind != nullptr && navframe_kind(kind->id, kind->source) == kind;
  };
  return std::all_of(options.kinds, options.kinds + options.kindCount, isHandle)
             ? NavframeOk
             : NavframeUnknownKind;
}

}  // namespace

extern "C" {

NavframeStatus navframe_default_options(NavframeOptions* options) {
  if (options == nullptr || options->size < SmallestStruct) return NavframeBadArgument;
  ToHost(UsualOptions(), *options);
  return NavframeOk;
}

NavframeStatus navframe_open(const NavframeOptions* options, NavframeStream** out) {
  if (out == nullptr) return NavframeBadArgument;
  *out = nullptr;
  if (options != nullptr && options->size < SmallestStruct) return NavframeBadArgument;
  const NavframeOptions ours =
      options == nullptr ? UsualOptions() : WithUsual(FromHost(*options, UsualOptions()));
  if (const NavframeStatus status = Judge(ours); status != NavframeOk) return status;
  return Guarded([&] {
    *out = new NavframeStream(ours);
    return NavframeOk;
  });
}

void navframe_close(NavframeStream* stream) { delete stream; }

size_t navframe_put(NavframeStream* stream, const uint8_t* data, size_t length) {
  return stream == nullptr || data == nullptr ? 0 : stream->Put(data, length);
}

NavframeStatus navframe_next(NavframeStream* stream, NavframeItem* item) {
  if (stream == nullptr || item == nullptr || item->size < SmallestStruct) {
    return NavframeBadArgument;
  }
  return Guarded([&] {
    if (item->size == sizeof(NavframeItem)) [[likely]] {
      return stream->Next(*item) ? NavframeItemReady : NavframeNeedsBytes;
    }
    NavframeItem ours;
    if (!stream->Next(ours)) return NavframeNeedsBytes;
    ToHost(ours, *item);
    return NavframeItemReady;
  });
}

NavframeStatus navframe_flush(NavframeStream* stream) {
  if (stream == nullptr) return NavframeBadArgument;
  stream->Flush();
  return NavframeOk;
}

NavframeStatus navframe_idle(NavframeStream* stream) {
  if (stream == nullptr) return NavframeBadArgument;
  return Guarded([&] {
    stream->Idle();
    return NavframeOk;
  });
}

NavframeStatus navframe_reset(NavframeStream* stream) {
  if (stream == nullptr) return NavframeBadArgument;
  return Guarded([&] {
    stream->Reset();
    return NavframeOk;
  });
}

NavframeStatus navframe_statistics(const NavframeStream* stream, NavframeStatistics* statistics) {
  if (stream == nullptr || statistics == nullptr || statistics->size < SmallestStruct) {
    return NavframeBadArgument;
  }
  NavframeStatistics ours{};
  stream->Read(ours);
  ToHost(ours, *statistics);
  return NavframeOk;
}

void* navframe_user(const NavframeStream* stream) {
  return stream == nullptr ? nullptr : stream->User();
}

size_t navframe_copy_record(const NavframeItem* item, void* out, size_t capacity) {
  constexpr size_t UpToRecord = offsetof(NavframeItem, record) + sizeof(item->record);
  if (item == nullptr || item->size < UpToRecord || item->record == nullptr) return 0;
  const size_t size = item->kind->size;
  if (out != nullptr && size <= capacity) std::memcpy(out, item->record, size);
  return size;
}

const char* navframe_status_text(int status) {
  switch (status) {
    case NavframeOk:
      return "done, or more bytes are needed";
    case NavframeItemReady:
      return "an item is ready";
    case NavframeBadArgument:
      return "an argument is missing or outside its range";
    case NavframeOutOfMemory:
      return "out of memory";
    case NavframeUnknownKind:
      return "a kind that is none of the catalogue";
    default:
      return "no status of this library";
  }
}

const char* navframe_reason_text(uint32_t reason) {
  static constexpr const char* Texts[] = {
      "",
      "the bytes behind the first one start no frame",
      "the length is none of a frame",
      "the checksum is wrong",
      "it is cut off",
      "a frame with a stronger check lies inside",
      "no record is made of this message",
      "the frame does not hold what its message must",
      "a field cannot be converted",
  };
  return reason < std::size(Texts) ? Texts[reason] : "no reason of this library";
}

const char* navframe_message_name(const NavframeItem* item) {
  if (item == nullptr || item->length == 0) return "";
  switch (item->protocol) {
    case NavframeNmea:
      return navframe::catalogue::NmeaMessageName(navframe::TextOf(item->address));
    case NavframeRtcm3:
      return navframe::catalogue::RtcmMessageName(item->message);
    case NavframeUbx:
      return navframe::catalogue::UbxMessageName(item->message);
    default:
      return "";
  }
}

const char* navframe_protocol_name(uint32_t protocol) {
  switch (protocol) {
    case NavframeNmea:
      return "NMEA";
    case NavframeNmeaTagBlock:
      return "NMEA tag block";
    case NavframeRtcm3:
      return "RTCM 3";
    case NavframeUbx:
      return "UBX";
    case Navframe55Aa:
      return "55AA";
    case NavframeAsciiLog:
      return "ASCII log";
    default:
      return "";
  }
}

}  // extern "C"
