// libcurl, loaded while the program runs.
#pragma once

#include <curl/curl.h>

namespace sonavel {

/// The functions of libcurl that are used. Linking libcurl would load it and its thirty dependencies before main(),
/// which delays every start by an eighth.
struct CurlLibrary {
    decltype(&curl_easy_init) easyInit;
    decltype(&curl_easy_cleanup) easyCleanup;
    decltype(&curl_easy_setopt) easySetopt;
    decltype(&curl_easy_perform) easyPerform;
    decltype(&curl_slist_append) slistAppend;
    decltype(&curl_slist_free_all) slistFreeAll;

    /// Loads it at the first call, which takes some milliseconds; concurrent calls wait. Null when it cannot be loaded.
    /// May be called on any thread.
    [[nodiscard]] static const CurlLibrary* shared();
};

} // namespace sonavel
