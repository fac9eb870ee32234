#include "net/curl_library.h"

#include <bit>
#include <optional>

#include <dlfcn.h>

namespace kalvo::net {

namespace {

#ifdef __APPLE__
constexpr const char* kFile = "libcurl.4.dylib";
#else
constexpr const char* kFile = "libcurl.so.4";
#endif

std::optional<CurlLibrary> load() {
    void* const file = dlopen(kFile, RTLD_NOW | RTLD_LOCAL);
    if (file == nullptr) return std::nullopt;
    bool isComplete = true;
    const auto find = [&](const char* name, auto& function) {
        void* const address = dlsym(file, name);
        function = std::bit_cast<std::remove_reference_t<decltype(function)>>(address);
        isComplete = isComplete && address != nullptr;
    };
    CurlLibrary curl{};
    find("curl_easy_cleanup", curl.easyCleanup);
    find("curl_easy_getinfo", curl.easyGetinfo);
    find("curl_easy_header", curl.easyHeader);
    find("curl_easy_init", curl.easyInit);
    find("curl_easy_setopt", curl.easySetopt);
    find("curl_easy_strerror", curl.easyStrerror);
    find("curl_global_init", curl.globalInit);
    find("curl_multi_add_handle", curl.multiAddHandle);
    find("curl_multi_cleanup", curl.multiCleanup);
    find("curl_multi_info_read", curl.multiInfoRead);
    find("curl_multi_init", curl.multiInit);
    find("curl_multi_perform", curl.multiPerform);
    find("curl_multi_poll", curl.multiPoll);
    find("curl_multi_remove_handle", curl.multiRemoveHandle);
    find("curl_multi_wakeup", curl.multiWakeup);
    find("curl_share_cleanup", curl.shareCleanup);
    find("curl_share_init", curl.shareInit);
    find("curl_share_setopt", curl.shareSetopt);
    find("curl_slist_append", curl.slistAppend);
    find("curl_slist_free_all", curl.slistFreeAll);
    if (!isComplete || curl.globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK) return std::nullopt;
    return curl;
}

}  // namespace

const CurlLibrary* CurlLibrary::get() {
    static const std::optional<CurlLibrary> library = load();
    return library ? &*library : nullptr;
}

}  // namespace kalvo::net
