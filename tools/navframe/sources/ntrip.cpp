#include "sources/ntrip.h"

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <mutex>
#include <optional>
#include <random>
#include <utility>

#include "fault.h"
#include "sources/caster_request.h"
#include "sources/gga.h"

namespace navframe::tool {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr seconds AnswerWithin(20);
constexpr seconds SilentAtMost(60);  // receivers send every few seconds at least
constexpr seconds PositionEvery(10);

constexpr seconds FirstPause(1);
constexpr seconds LongestPause(120);
constexpr seconds PauseAfterRefusal(10);
constexpr seconds GoodAfter(60);  // a connection that held for so long was a good one

// Pauses between connections.
class Pauses {
 public:
  milliseconds Next(bool wasRefused) {
    const milliseconds pause =
        std::max<milliseconds>(next_, wasRefused ? PauseAfterRefusal : seconds(0));
    next_ = std::min<milliseconds>(2 * pause, LongestPause);
    // Up to half as long again: clients that were lost together do not come back together.
    return pause + milliseconds(random_() % static_cast<std::uint32_t>(pause.count() / 2));
  }
  void Reset() { next_ = FirstPause; }

 private:
  milliseconds next_ = FirstPause;
  std::minstd_rand random_{std::random_device()()};
};

class NtripSource : public Source {
 public:
  explicit NtripSource(const std::string& name)
      : name_(ShownName(name)), query_(ParseCaster(name)) {
    if (query_.address.path.empty()) {
      throw Fault(name_ + ": the mountpoint is missing; navframe sources lists them");
    }
  }

  Reading Read(std::uint8_t* to, std::size_t room) override {
    if (request_ == nullptr) {
      const auto left = std::chrono::duration_cast<milliseconds>(next_ - Clock::now()).count();
      if (left > 0) {
        poll(nullptr, 0, static_cast<int>(std::min<milliseconds::rep>(left, QuietMilliseconds)));
        return {Reading::State::Quiet, 0};
      }
      Connect();
    }
    request_->Work(QuietMilliseconds);
    if (request_->Answer().What() == CasterAnswer::Kind::Stream) return ReadStream(to, room);
    const auto end = request_->End();
    // Others may be followed by another answer: to a redirection, or to a password.
    if (end || request_->Answer().What() == CasterAnswer::Kind::SourceTable ||
        Clock::now() > heard_ + AnswerWithin)
      Refused(end);
    return {Reading::State::Quiet, 0};
  }
  bool IsLive() const override { return true; }

  void Tell(const Position& position) override {
    const std::lock_guard lock(mutex_);
    position_ = position;
  }

 private:
  void Connect() {
    query_.gga = Gga();
    request_ = MakeCasterRequest(query_);
    begun_ = heard_ = told_ = Clock::now();
    isFirstGga_ = true;
  }

  Reading ReadStream(std::uint8_t* to, std::size_t room) {
    SendPosition();
    std::string& body = request_->Answer().Body();
    if (!body.empty()) {
      const std::size_t length = std::min(room, body.size());
      std::memcpy(to, body.data(), length);
      body.erase(0, length);
      heard_ = Clock::now();
      hasStreamed_ = true;
      return {Reading::State::Bytes, length};
    }
    if (const auto end = request_->End()) {
      Lost(hasStreamed_ ? *end : "the caster has no data of this mountpoint: " + *end,
           !hasStreamed_);
    } else if (Clock::now() > heard_ + SilentAtMost) {
      Lost(Gga().empty() ? "sends nothing; it may wait for a --position" : "sends nothing", true);
    }
    return {Reading::State::Quiet, 0};
  }

  void SendPosition() {
    if (!isFirstGga_ && Clock::now() < told_ + PositionEvery) return;
    const std::string sentence = Gga();
    if (sentence.empty()) return;
    request_->Send(sentence + "\r\n");
    isFirstGga_ = false;
    told_ = Clock::now();
  }

  // Without a line end; empty while the position is not known.
  std::string Gga() {
    const std::lock_guard lock(mutex_);
    return position_ ? GgaSentence(*position_, std::time(nullptr)) : "";
  }

  // An answer that is no stream, or none.
  void Refused(const std::optional<std::string>& end) {
    CasterAnswer& answer = request_->Answer();
    if (answer.WantsDigest() && !query_.withDigest) {
      query_.withDigest = true;
      Connect();
      return;
    }
    const bool hasAnswered = answer.What() != CasterAnswer::Kind::None || !answer.Body().empty();
    Lost(!hasAnswered && end ? *end : answer.Why(), true);
  }

  void Lost(const std::string& why, bool wasRefused) {
    if (!hasStreamed_) throw Fault("cannot read " + name_ + ": " + why);
    if (Clock::now() > begun_ + GoodAfter) pauses_.Reset();
    const milliseconds pause = pauses_.Next(wasRefused);
    std::fprintf(stderr, "navframe: %s: %s; connecting again in %.0f s\n", name_.c_str(),
                 why.c_str(), static_cast<double>(pause.count()) / 1e3);
    next_ = Clock::now() + pause;
    request_.reset();
  }

  const std::string name_;
  CasterQuery query_;
  std::unique_ptr<CasterRequest> request_;  // none in a pause
  Pauses pauses_;
  Clock::time_point begun_;  // this connection
  Clock::time_point heard_;  // bytes of it, last
  Clock::time_point told_;   // the position, last
  Clock::time_point next_;   // connection, in a pause; the first is made at once
  bool isFirstGga_ = true;
  bool hasStreamed_ = false;
  std::mutex mutex_;  // another source may tell the position
  std::optional<Position> position_;
};

}  // namespace

std::unique_ptr<Source> OpenNtrip(const std::string& name) {
  return std::make_unique<NtripSource>(name);
}

}  // namespace navframe::tool
