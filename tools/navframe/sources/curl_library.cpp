#include "sources/curl_library.h"

#include <dlfcn.h>

#include <string>

#include "fault.h"

namespace navframe::tool {
namespace {

void* Open() {
  for (const char* name : {"libcurl.so.4", "libcurl-gnutls.so.4"}) {
    if (void* const library = dlopen(name, RTLD_NOW | RTLD_LOCAL)) return library;
  }
  throw Fault(std::string("casters are not read: libcurl is not there (") + dlerror() + ")");
}

template <typename Function>
void Find(void* library, const char* name, Function& function) {
  function = reinterpret_cast<Function>(dlsym(library, name));
  if (function == nullptr) {
    throw Fault(std::string("casters are not read: libcurl is too old and has no ") + name);
  }
}

CurlLibrary Load() {
  void* const library = Open();
  decltype(&curl_global_init) globalInit = nullptr;
  Find(library, "curl_global_init", globalInit);
  CurlLibrary curl{};
  Find(library, "curl_easy_init", curl.easy_init);
  Find(library, "curl_easy_setopt", curl.easy_setopt);
  Find(library, "curl_easy_getinfo", curl.easy_getinfo);
  Find(library, "curl_easy_pause", curl.easy_pause);
  Find(library, "curl_easy_strerror", curl.easy_strerror);
  Find(library, "curl_easy_cleanup", curl.easy_cleanup);
  Find(library, "curl_multi_init", curl.multi_init);
  Find(library, "curl_multi_add_handle", curl.multi_add_handle);
  Find(library, "curl_multi_perform", curl.multi_perform);
  Find(library, "curl_multi_poll", curl.multi_poll);
  Find(library, "curl_multi_fdset", curl.multi_fdset);
  Find(library, "curl_multi_info_read", curl.multi_info_read);
  Find(library, "curl_multi_remove_handle", curl.multi_remove_handle);
  Find(library, "curl_multi_cleanup", curl.multi_cleanup);
  Find(library, "curl_slist_append", curl.slist_append);
  Find(library, "curl_slist_free_all", curl.slist_free_all);
  if (globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK) throw Fault("libcurl does not start");
  return curl;
}

}  // namespace

const CurlLibrary& Curl() {
  static const CurlLibrary Library = Load();
  return Library;
}

}  // namespace navframe::tool
