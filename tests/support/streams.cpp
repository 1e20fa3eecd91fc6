#include "support/streams.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>

#include "navframe/records.h"
#include "render/render.h"

namespace navframe::test {

Bytes ToBytes(std::string_view text) { return {text.begin(), text.end()}; }

Bytes operator+(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::vector<Record> PopAll(QueueSink& sink) {
  std::vector<Record> records;
  while (const auto oldest = sink.PopOldest()) {
    const GnssMessage& message = oldest->message;
    records.push_back({message.id, std::shared_ptr<void>(message.data, std::free),
                       oldest->payloadSize, message.source});
  }
  return records;
}

std::vector<Record> PopAll(Decoder& decoder) { return PopAll(decoder.sink); }

std::set<std::uint32_t> DecodedIds(Decoder& decoder) {
  std::array<std::uint32_t, 64> ids;
  return {ids.begin(), ids.begin() + decoder.sink.DrainDecodedIds(ids.data())};
}

std::vector<Record> Push(Decoder& decoder, const Bytes& bytes, std::size_t chunk) {
  std::vector<Record> records;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = std::min(chunk, bytes.size() - at);
    // An allocation of exactly the chunk's size, so that the address sanitizer sees a read past it.
    const Bytes piece(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                      bytes.begin() + static_cast<std::ptrdiff_t>(at + length));
    decoder.PutData(piece.data(), static_cast<std::uint32_t>(length));
    const auto popped = PopAll(decoder);
    records.insert(records.end(), popped.begin(), popped.end());
    at += length;
  }
  return records;
}

std::vector<Record> Push(Decoder& decoder, std::string_view text, std::size_t chunk) {
  return Push(decoder, ToBytes(text), chunk);
}

std::vector<Record> Decoded(const Bytes& bytes, std::size_t chunk) {
  const auto decoder = std::make_unique<Decoder>();
  return Push(*decoder, bytes, chunk);
}

std::vector<Record> Decoded(std::string_view text, std::size_t chunk) {
  return Decoded(ToBytes(text), chunk);
}

void PlaceHead(RingInput& stream, std::uint32_t position) {
  stream.ring.Clear();
  const Bytes filler(position + 1, 'x');
  stream.ring.Append(filler.data(), position + 1);
  stream.ring.Advance(position);
}

void PutInPlace(Decoder& decoder, const Bytes& bytes) {
  decoder.input.ring.Append(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
  decoder.PutData(nullptr, 0);
}

std::vector<std::uint32_t> Ids(const std::vector<Record>& records) {
  std::vector<std::uint32_t> ids;
  for (const Record& record : records) ids.push_back(record.id);
  return ids;
}

std::string Rendered(const Record& record, bool leadingFields) {
  std::string text(65536, '\0');
  if (!RenderRecord({record.id, record.source, record.payload.get()}, text.data(), leadingFields)) {
    return "no text";
  }
  text.resize(std::strlen(text.c_str()));
  return text;
}

namespace {

// The bytes of a payload. The text member of two kinds begins with a pointer into itself.
Bytes BytesOf(const Record& record) {
  const auto* const begin = static_cast<const std::uint8_t*>(record.payload.get());
  Bytes bytes(begin, begin + record.size);
  static_assert(offsetof(NavPosRecord, text) == offsetof(NavVelRecord, text));
  if (record.id == MsgIdNavPos || record.id == MsgIdNavVel) {
    std::memset(&bytes[offsetof(NavPosRecord, text)], 0, sizeof(char*));
  }
  return bytes;
}

}  // namespace

bool SameRecords(const std::vector<Record>& a, const std::vector<Record>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Record& x, const Record& y) {
    return x.id == y.id && x.source == y.source && BytesOf(x) == BytesOf(y);
  });
}

std::optional<Bytes> Capture(std::string_view name) {
  const char* const folder = std::getenv("NAVFRAME_CAPTURES");
  if (folder == nullptr) return std::nullopt;
  std::ifstream file(std::filesystem::path(folder) / name, std::ios::binary);
  if (!file) return std::nullopt;
  return Bytes(std::istreambuf_iterator<char>(file), {});
}

std::size_t ResidentMemory() {
  if (Sanitized) return 0;
  std::ifstream statm("/proc/self/statm");
  std::size_t total = 0;
  std::size_t resident = 0;
  statm >> total >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace navframe::test
