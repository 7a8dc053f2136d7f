#include "adapters/network/CurlLibrary.h"

#include <dlfcn.h>

#include <optional>

namespace sonavel {

namespace {

template <class Function> bool find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(::dlsym(library, name));
    return function != nullptr;
}

std::optional<CurlLibrary> loaded()
{
    void* library = ::dlopen("libcurl.so.4", RTLD_LAZY | RTLD_LOCAL); // stays until the process ends
    if (library == nullptr)
        return std::nullopt;
    CurlLibrary curl{};
    decltype(&curl_global_init) globalInit = nullptr;
    const bool isComplete = find(library, "curl_global_init", globalInit)
        && find(library, "curl_easy_init", curl.easyInit) && find(library, "curl_easy_cleanup", curl.easyCleanup)
        && find(library, "curl_easy_setopt", curl.easySetopt) && find(library, "curl_easy_perform", curl.easyPerform)
        && find(library, "curl_slist_append", curl.slistAppend)
        && find(library, "curl_slist_free_all", curl.slistFreeAll);
    if (!isComplete || globalInit(CURL_GLOBAL_DEFAULT) != CURLE_OK)
        return std::nullopt;
    return curl;
}

} // namespace

const CurlLibrary* CurlLibrary::shared()
{
    static const std::optional<CurlLibrary> library = loaded();
    return library ? &*library : nullptr;
}

} // namespace sonavel
