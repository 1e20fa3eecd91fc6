// The shared library, loaded and unloaded by hand.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <string>
#include <vector>

#include "generator/mixed_stream.h"
#include "navframe/navframe.h"

namespace navframe {
namespace {

class Library {
 public:
  Library() : handle_(dlopen(NAVFRAME_LIBRARY, RTLD_NOW | RTLD_LOCAL)) {}
  ~Library() {
    if (handle_ != nullptr) dlclose(handle_);
  }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

  bool Loaded() const { return handle_ != nullptr; }
  template <class Function>
  Function* Find(const char* name) const {
    return reinterpret_cast<Function*>(dlsym(handle_, name));
  }

 private:
  void* handle_;
};

struct Outcome {
  std::vector<std::string> records;  // id and text
  std::set<std::uint32_t> decoded;
  bool operator==(const Outcome&) const = default;
};

Outcome Decode(const Library& library, const sample::Bytes& stream) {
  Outcome outcome;
  library.Find<decltype(GNSSPutData)>("GNSSPutData")(stream.data(),
                                                     static_cast<std::uint32_t>(stream.size()));
  std::vector<char> text(65536);
  for (GnssMessage record; library.Find<decltype(GNSSGetMsg)>("GNSSGetMsg")(&record, 0) == 0;) {
    library.Find<decltype(structDataToStr)>("structDataToStr")(&record, text.data(), 1);
    outcome.records.push_back(std::to_string(record.id) + ' ' + text.data());
    library.Find<decltype(GNSSFreeMem)>("GNSSFreeMem")(&record);
  }
  std::uint32_t ids[64];
  const std::uint32_t count = library.Find<decltype(GNSSGetMsgs)>("GNSSGetMsgs")(ids);
  outcome.decoded.insert(ids, ids + count);
  return outcome;
}

// Leaves nothing as it was: configuration, clock, satellites in view, ids, a frame that waits.
void Disturb(const Library& library, const sample::Bytes& stream) {
  sample::Bytes cut(stream.begin(),
                    stream.begin() + static_cast<std::ptrdiff_t>(stream.size() / 2));
  sample::Append(cut, sample::Bytes{0xB5, 0x62, 0x01, 0x07, 0x5C, 0x00});
  Decode(library, cut);
  library.Find<decltype(GNSSSetOutMsgID)>("GNSSSetOutMsgID")(MsgIdGga);
  library.Find<decltype(GNSSSetMsgTypes)>("GNSSSetMsgTypes")(ProtocolNmea);
  library.Find<decltype(GNSSSetBoardType)>("GNSSSetBoardType")(7);
}

TEST(Reload, IsAFreshStart) {
  const sample::Bytes stream = sample::MixedStream();
  Outcome first;
  for (int round = 0; round < 3; ++round) {
    const Library library;
    ASSERT_TRUE(library.Loaded()) << dlerror();
    const Outcome outcome = Decode(library, stream);
    EXPECT_GT(outcome.records.size(), 100U);
    if (round == 0) first = outcome;
    EXPECT_TRUE(outcome == first) << "round " << round;
    Disturb(library, stream);
    EXPECT_FALSE(Decode(library, stream) == first) << "what is disturbed shows";
  }
  EXPECT_EQ(dlopen(NAVFRAME_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr);
}

// What was registered before the library was loaded comes behind all that the library registers.
const Library* leftLoaded = nullptr;
void GiveBackAtExit() {
  const auto free = leftLoaded->Find<decltype(GNSSFreeMem)>("GNSSFreeMem");
  const auto get = leftLoaded->Find<decltype(GNSSGetMsg)>("GNSSGetMsg");
  std::size_t count = 0;
  for (GnssMessage record; get(&record, 0) == 0; ++count) free(&record);
  if (count < 100) std::_Exit(EXIT_FAILURE);
}

TEST(ReloadDeathTest, HandlersAtExitMayGiveRecordsBack) {
  const sample::Bytes stream = sample::MixedStream();
  const auto host = [&] {
    std::atexit(GiveBackAtExit);
    leftLoaded = new Library;
    leftLoaded->Find<decltype(GNSSPutData)>("GNSSPutData")(
        stream.data(), static_cast<std::uint32_t>(stream.size()));
    std::exit(EXIT_SUCCESS);
  };
  EXPECT_EXIT(host(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace
}  // namespace navframe
