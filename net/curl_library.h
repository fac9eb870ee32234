#pragma once

#include <string>

#include <curl/curl.h>

namespace kalvo::net {

/// The functions of libcurl that the program uses. They are found in the library once it is needed:
/// a program that is linked with it and its twenty libraries starts 5 ms later.
struct CurlLibrary {
    decltype(&curl_easy_cleanup) easyCleanup;
    decltype(&curl_easy_getinfo) easyGetinfo;
    decltype(&curl_easy_header) easyHeader;
    decltype(&curl_easy_init) easyInit;
    decltype(&curl_easy_setopt) easySetopt;
    decltype(&curl_easy_strerror) easyStrerror;
    decltype(&curl_global_init) globalInit;
    decltype(&curl_multi_add_handle) multiAddHandle;
    decltype(&curl_multi_cleanup) multiCleanup;
    decltype(&curl_multi_info_read) multiInfoRead;
    decltype(&curl_multi_init) multiInit;
    decltype(&curl_multi_perform) multiPerform;
    decltype(&curl_multi_poll) multiPoll;
    decltype(&curl_multi_remove_handle) multiRemoveHandle;
    decltype(&curl_multi_wakeup) multiWakeup;
    decltype(&curl_share_cleanup) shareCleanup;
    decltype(&curl_share_init) shareInit;
    decltype(&curl_share_setopt) shareSetopt;
    decltype(&curl_slist_append) slistAppend;
    decltype(&curl_slist_free_all) slistFreeAll;

    /// Returns the library, loaded and initialized by the first call and never unloaded; null when
    /// the system has none. Takes milliseconds the first time; may be called on any thread.
    [[nodiscard]] static const CurlLibrary* get();
};

}  // namespace kalvo::net
