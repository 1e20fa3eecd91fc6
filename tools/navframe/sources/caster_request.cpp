#include "sources/caster_request.h"

#include <cstdlib>

#include "fault.h"

#ifdef NAVFRAME_WITH_CURL
#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>

#include "sources/curl_library.h"
#endif

namespace navframe::tool {

CasterQuery ParseCaster(const std::string& name) {
  CasterQuery query;
  query.address = ParseAddress(name);
  query.isSecure = name.starts_with("ntrips:");
  if (query.address.port.empty()) query.address.port = query.isSecure ? "443" : "2101";
  const char* const password = std::getenv("NAVFRAME_NTRIP_PASSWORD");
  if (query.address.password.empty() && !query.address.user.empty() && password != nullptr) {
    query.address.password = password;
  }
  return query;
}

#ifdef NAVFRAME_WITH_CURL
namespace {

constexpr long ConnectSeconds = 10;
constexpr long RedirectsAtMost = 5;

std::string UrlOf(const CasterQuery& query) {
  const Address& address = query.address;
  const bool isIpv6 = address.host.find(':') != std::string::npos;
  return (query.isSecure ? "https://" : "http://") +
         (isIpv6 ? "[" + address.host + "]" : address.host) + ":" + address.port + "/" +
         address.path;
}

class CurlRequest : public CasterRequest {
 public:
  explicit CurlRequest(const CasterQuery& query)
      : curl_(Curl()), easy_(curl_.easy_init()), multi_(curl_.multi_init()) {
    if (easy_ == nullptr || multi_ == nullptr) throw std::bad_alloc();
    const std::string url = UrlOf(query);
    Set(CURLOPT_URL, url.c_str());
    Set(CURLOPT_NOSIGNAL, 1L);
    Set(CURLOPT_ERRORBUFFER, error_.data());
    Set(CURLOPT_CONNECTTIMEOUT, ConnectSeconds);
    Set(CURLOPT_TCP_KEEPALIVE, 1L);
    Set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    Set(CURLOPT_HTTP09_ALLOWED, 1L);  // what NTRIP 1 answers is none of HTTP
    Set(CURLOPT_FOLLOWLOCATION, 1L);
    Set(CURLOPT_MAXREDIRS, RedirectsAtMost);
    Set(CURLOPT_USERAGENT, "NTRIP navframe/" NAVFRAME_VERSION);
#if LIBCURL_VERSION_NUM >= 0x075700
    Set(CURLOPT_QUICK_EXIT, 1L);  // without waiting for the name of a host
#endif
    if (const char* const file = std::getenv("SSL_CERT_FILE")) Set(CURLOPT_CAINFO, file);
    SetUser(query);
    SetHeaders(query);
    SetCallbacks();
    if (curl_.multi_add_handle(multi_, easy_) != CURLM_OK) throw std::bad_alloc();
  }
  ~CurlRequest() override {
    curl_.multi_remove_handle(multi_, easy_);
    curl_.easy_cleanup(easy_);
    curl_.multi_cleanup(multi_);
    curl_.slist_free_all(headers_);
  }

  void Work(int milliseconds) override {
    int running = 0;
    curl_.multi_perform(multi_, &running);
    if (running != 0 && answer_.Body().empty()) {
      curl_.multi_poll(multi_, nullptr, 0, milliseconds, nullptr);
      curl_.multi_perform(multi_, &running);
    }
    if (isPaused_ && !IsReading()) {
      isOver_ = true;
      curl_.easy_pause(easy_, CURLPAUSE_CONT);
      curl_.multi_perform(multi_, &running);
    }
    int left = 0;
    const CURLMsg* const message = curl_.multi_info_read(multi_, &left);
    if (message != nullptr && message->msg == CURLMSG_DONE) end_ = Explain(message->data.result);
  }

  CasterAnswer& Answer() override { return answer_; }
  std::optional<std::string> End() const override { return end_; }

  void Send(const std::string& text) override {
    sending_ += text;
    curl_.easy_pause(easy_, CURLPAUSE_CONT);
  }

 private:
  template <typename Value>
  void Set(CURLoption option, Value value) {
    curl_.easy_setopt(easy_, option, value);
  }

  // A password at once, without waiting to be asked: casters of NTRIP 1 do not ask.
  void SetUser(const CasterQuery& query) {
    const Address& address = query.address;
    if (!address.user.empty()) Set(CURLOPT_USERNAME, address.user.c_str());
    if (!address.password.empty()) {
      Set(CURLOPT_PASSWORD, address.password.c_str());
    } else {
      Set(CURLOPT_NETRC, static_cast<long>(CURL_NETRC_OPTIONAL));
    }
    Set(CURLOPT_HTTPAUTH, static_cast<long>(query.withDigest ? CURLAUTH_DIGEST : CURLAUTH_BASIC));
  }

  // To say where its user is a client of NTRIP goes on sending behind the request. libcurl does so
  // with a body, which must not be announced as one.
  void SetHeaders(const CasterQuery& query) {
    AddHeader("Ntrip-Version: Ntrip/2.0");
    AddHeader("Accept: */*");
    if (!query.address.path.empty()) {
      constexpr curl_off_t WithoutEnd = std::numeric_limits<curl_off_t>::max();
      Set(CURLOPT_UPLOAD, 1L);
      Set(CURLOPT_INFILESIZE_LARGE, WithoutEnd);
      Set(CURLOPT_CUSTOMREQUEST, "GET");
      for (const char* none : {"Content-Length:", "Transfer-Encoding:", "Expect:"}) AddHeader(none);
    }
    if (!query.gga.empty()) AddHeader(("Ntrip-GGA: " + query.gga).c_str());
    Set(CURLOPT_HTTPHEADER, headers_);
  }
  void AddHeader(const char* line) {
    curl_slist* const longer = curl_.slist_append(headers_, line);
    if (longer == nullptr) throw std::bad_alloc();
    headers_ = longer;
  }

  void SetCallbacks() {
    Set(CURLOPT_HEADERDATA, this);
    Set(
        CURLOPT_HEADERFUNCTION, +[](char* data, std::size_t, std::size_t length, void* self) {
          static_cast<CurlRequest*>(self)->answer_.TakeHeadLine({data, length});
          return length;
        });
    Set(CURLOPT_WRITEDATA, this);
    Set(
        CURLOPT_WRITEFUNCTION, +[](char* data, std::size_t, std::size_t length, void* self) {
          static_cast<CurlRequest*>(self)->answer_.TakeBody({data, length});
          return length;
        });
    Set(CURLOPT_READDATA, this);
    Set(
        CURLOPT_READFUNCTION, +[](char* data, std::size_t, std::size_t room, void* self) {
          return static_cast<CurlRequest*>(self)->TakeSending(data, room);
        });
    // Nothing is sent before the answer that counts, so there is nothing to send again.
    Set(
        CURLOPT_SEEKFUNCTION, +[](void*, curl_off_t, int) { return int{CURL_SEEKFUNC_OK}; });
  }

  // Whether the answer may go on. libcurl alone knows, and waits for the end of a body that it
  // still has to send: it then looks at no socket any more.
  bool IsReading() const {
    fd_set reading;
    fd_set writing;
    fd_set faulty;
    FD_ZERO(&reading);
    FD_ZERO(&writing);
    FD_ZERO(&faulty);
    int highest = -1;
    curl_.multi_fdset(multi_, &reading, &writing, &faulty, &highest);
    return highest >= 0;
  }

  std::size_t TakeSending(char* to, std::size_t room) {
    isPaused_ = sending_.empty() && !isOver_;
    isOver_ = false;
    if (isPaused_) return CURL_READFUNC_PAUSE;
    const std::size_t length = std::min(room, sending_.size());
    std::memcpy(to, sending_.data(), length);
    sending_.erase(0, length);
    return length;
  }

  std::string Explain(CURLcode code) const {
    switch (code) {
      case CURLE_OK:
        return "the caster closed the connection";
      case CURLE_COULDNT_RESOLVE_HOST:
        return "there is no such host";
      case CURLE_GOT_NOTHING:
        return "the caster answers nothing";
      default:
        return error_[0] != '\0' ? error_.data() : curl_.easy_strerror(code);
    }
  }

  const CurlLibrary& curl_;
  CURL* easy_;
  CURLM* multi_;
  curl_slist* headers_ = nullptr;
  std::array<char, CURL_ERROR_SIZE> error_{};
  CasterAnswer answer_;
  std::string sending_;
  bool isPaused_ = false;  // there is nothing to send
  bool isOver_ = false;    // and there will be none: the answer is complete
  std::optional<std::string> end_;
};

}  // namespace

std::unique_ptr<CasterRequest> MakeCasterRequest(const CasterQuery& query) {
  return std::make_unique<CurlRequest>(query);
}
#else
std::unique_ptr<CasterRequest> MakeCasterRequest(const CasterQuery&) {
  throw Fault("casters are not read: navframe was built without libcurl");
}
#endif

}  // namespace navframe::tool
