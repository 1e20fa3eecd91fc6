// The renderer over records of every kind with any content: counts above the room, texts without
// an end, numbers that are none.
#include "catalogue/kinds.h"
#include "fuzz.h"
#include "render/names.h"
#include "render/render.h"

using namespace navframe;

namespace {

// Of a record with a text form; 0 for others.
std::size_t SizeOf(std::uint32_t id) {
  const catalogue::KindRow* const row = catalogue::FindKind(id, SourceStream);
  return row == nullptr || row->text == catalogue::TextForm::None ? 0 : row->kind.size;
}

// A text of at most 15 characters, as such records have it, which owns no memory to give back.
void MakeText(void* record, std::size_t offset, fuzz::Input& input) {
  const auto bytes = input.Next(input.Byte() % 16);
  new (static_cast<char*>(record) + offset) RecordText(bytes.begin(), bytes.end());
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input({data, size});
  const std::uint32_t id = input.Byte();
  const bool leadingFields = input.Byte() % 2 != 0;
  const int fill = input.Byte();  // of what the input does not reach
  const std::size_t length = SizeOf(id);
  const std::unique_ptr<std::uint8_t[]> record(new std::uint8_t[length + 1]);
  std::uint8_t* const payload = record.get();
  const auto content = input.Next(length);
  std::memset(payload, fill, length);
  std::copy(content.begin(), content.end(), payload);
  if (id == MsgIdNavPos) MakeText(payload, offsetof(NavPosRecord, text), input);
  if (id == MsgIdNavVel) MakeText(payload, offsetof(NavVelRecord, text), input);

  const std::unique_ptr<char[]> text(new char[1 << 17]);
  text[0] = 'x';
  const bool rendered = RenderRecord({id, SourceStream, payload}, text.get(), leadingFields);
  fuzz::Require(rendered == (length != 0), "the kinds with a text form are known");
  fuzz::Require(rendered || text[0] == '\0', "what is not rendered leaves the empty text");
  fuzz::ReadAll(text.get(), static_cast<std::uint32_t>(std::strlen(text.get())));

  const std::unique_ptr<char[]> name(new char[7]);
  const auto system = input.Take<std::int32_t>();
  const auto signal = input.Take<std::uint32_t>();
  for (const std::int32_t systemId : {system, system % 16}) {
    fuzz::Require(CopyName(SystemName(systemId), name.get()) <= 6, "names of systems are short");
    fuzz::Require(CopyName(SignalName(systemId, signal % 32), name.get()) <= 6 &&
                      CopyName(SignalName(systemId, signal), name.get()) <= 6,
                  "names of signals are short");
  }
  return 0;
}
