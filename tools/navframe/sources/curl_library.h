// libcurl, of which the tool needs nothing before it talks to a caster.
#pragma once

#include <curl/curl.h>

namespace navframe::tool {

// Its functions, by their names without "curl_".
struct CurlLibrary {
  decltype(&curl_easy_init) easy_init;
  decltype(&curl_easy_setopt) easy_setopt;
  decltype(&curl_easy_getinfo) easy_getinfo;
  decltype(&curl_easy_pause) easy_pause;
  decltype(&curl_easy_strerror) easy_strerror;
  decltype(&curl_easy_cleanup) easy_cleanup;
  decltype(&curl_multi_init) multi_init;
  decltype(&curl_multi_add_handle) multi_add_handle;
  decltype(&curl_multi_perform) multi_perform;
  decltype(&curl_multi_poll) multi_poll;
  decltype(&curl_multi_fdset) multi_fdset;
  decltype(&curl_multi_info_read) multi_info_read;
  decltype(&curl_multi_remove_handle) multi_remove_handle;
  decltype(&curl_multi_cleanup) multi_cleanup;
  decltype(&curl_slist_append) slist_append;
  decltype(&curl_slist_free_all) slist_free_all;
};

// Loads it when it is called first, from where the system has its libraries. Throws a Fault when it
// is not there.
const CurlLibrary& Curl();

}  // namespace navframe::tool
